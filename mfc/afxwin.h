// SPDX-License-Identifier: MIT
#pragma once

#include "afx.h"

class NX_MFC_EXPORT CCmdTarget : public CObject
{
public:
    ~CCmdTarget() override;
};

// Holds a window it did not make: Detach before destruction, or the window is destroyed with the object.
class NX_MFC_EXPORT CWnd : public CCmdTarget
{
public:
    CWnd() = default;
    ~CWnd() override;

    // False when there is no window to attach or one is held already.
    BOOL Attach(HWND window);
    // The window held so far, null when there was none.
    HWND Detach();
    HWND GetSafeHwnd() const;
    operator HWND() const;

    HWND m_hWnd = nullptr;
};

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

// The process's own module until AfxWinInit or AfxSetResourceHandle said otherwise.
NX_MFC_EXPORT HINSTANCE AfxGetInstanceHandle();
NX_MFC_EXPORT HINSTANCE AfxGetResourceHandle();
NX_MFC_EXPORT void AfxSetResourceHandle(HINSTANCE instance);

NX_MFC_EXPORT BOOL AfxWinInit(HINSTANCE instance, HINSTANCE previousInstance, LPWSTR commandLine, int showCommand);
