// SPDX-License-Identifier: MIT
#pragma once

#include "afx.h"
#include "afxdd_.h"
#include "afxmsg_.h"
#include "cdialog.h"
#include "cwnd.h"

class NX_MFC_EXPORT CWinThread : public CCmdTarget
{
public:
    ~CWinThread() override;

    virtual BOOL InitInstance();
    // Messages until WM_QUIT, with OnIdle whenever there is none waiting; returns what ExitInstance gives.
    virtual int Run();
    virtual int ExitInstance();
    // Called with 0, 1, 2... while no message waits; false ends the calls until the next message has been handled.
    virtual BOOL OnIdle(LONG count);
    // True: the message has been dealt with. Asks the windows from the message's own outwards, so that the keys of dialogs work.
    virtual BOOL PreTranslateMessage(MSG* message);
    virtual BOOL PumpMessage();
    virtual CWnd* GetMainWnd();

    // Not owned; null until the application sets it.
    CWnd* m_pMainWnd = nullptr;

protected:
    CWinThread() = default;
    WPARAM quitCode_ = 0;
};

// One object of a class derived from this is the application. Its constructor makes it the current one and calls nothing of
// Win32, so that it may be a global object.
class NX_MFC_EXPORT CWinApp : public CWinThread
{
public:
    explicit CWinApp(LPCWSTR name = nullptr);
    ~CWinApp() override;

    virtual BOOL InitApplication();

    // Set by AfxWinInit; the texts are not copied.
    HINSTANCE m_hInstance = nullptr;
    LPWSTR m_lpCmdLine = nullptr;
    int m_nCmdShow = SW_SHOWNORMAL;
    LPCWSTR m_pszAppName = nullptr;
};

struct AFX_MODULE_STATE
{
    CWinApp* m_pCurrentWinApp = nullptr;
    HINSTANCE m_hCurrentInstanceHandle = nullptr;
    HINSTANCE m_hCurrentResourceHandle = nullptr;
};

// There is one state for the whole process here, whatever module asks.
NX_MFC_EXPORT AFX_MODULE_STATE* AfxGetModuleState();

// Null while there is no CWinApp. The application is the only thread object there is.
NX_MFC_EXPORT CWinApp* AfxGetApp();
NX_MFC_EXPORT CWinThread* AfxGetThread();
NX_MFC_EXPORT CWnd* AfxGetMainWnd();

// For a message loop of the host's own: what the application's PreTranslateMessage says. True: not to be dispatched.
NX_MFC_EXPORT BOOL AfxPreTranslateMessage(MSG* message);

// The process's own module until AfxWinInit or AfxSetResourceHandle said otherwise.
NX_MFC_EXPORT HINSTANCE AfxGetInstanceHandle();
NX_MFC_EXPORT HINSTANCE AfxGetResourceHandle();
NX_MFC_EXPORT void AfxSetResourceHandle(HINSTANCE instance);

NX_MFC_EXPORT BOOL AfxWinInit(HINSTANCE instance, HINSTANCE previousInstance, LPWSTR commandLine, int showCommand);
