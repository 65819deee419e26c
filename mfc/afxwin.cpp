// SPDX-License-Identifier: MIT
#include "afxwin.h"

CObject::~CObject() = default;

CWinThread::~CWinThread() = default;

BOOL CWinThread::InitInstance()
{
    return FALSE;
}

int CWinThread::Run()
{
    for (;;)
    {
        MSG message;
        for (LONG count = 0; !PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE) && OnIdle(count); ++count)
        {
        }
        do
        {
            if (!PumpMessage())
            {
                return ExitInstance();
            }
        } while (PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE));
    }
}

int CWinThread::ExitInstance()
{
    return static_cast<int>(quitCode_);
}

BOOL CWinThread::OnIdle(LONG)
{
    return FALSE;
}

BOOL CWinThread::PreTranslateMessage(MSG* message)
{
    for (HWND window = message->hwnd; window; window = ::GetParent(window))
    {
        CWnd* object = CWnd::FromHandlePermanent(window);
        if (object && object->PreTranslateMessage(message))
        {
            return TRUE;
        }
    }
    return FALSE;
}

BOOL CWinThread::PumpMessage()
{
    MSG message;
    if (!GetMessageW(&message, nullptr, 0, 0))
    {
        quitCode_ = message.wParam;
        return FALSE;
    }
    if (!PreTranslateMessage(&message))
    {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return TRUE;
}

CWnd* CWinThread::GetMainWnd()
{
    return m_pMainWnd;
}

CWinApp::CWinApp(LPCWSTR name) : m_pszAppName(name)
{
    AfxGetModuleState()->m_pCurrentWinApp = this;
}

CWinApp::~CWinApp()
{
    if (AfxGetApp() == this)
    {
        AfxGetModuleState()->m_pCurrentWinApp = nullptr;
    }
}

BOOL CWinApp::InitApplication()
{
    return TRUE;
}

AFX_MODULE_STATE* AfxGetModuleState()
{
    static AFX_MODULE_STATE state;
    return &state;
}

CWinApp* AfxGetApp()
{
    return AfxGetModuleState()->m_pCurrentWinApp;
}

CWinThread* AfxGetThread()
{
    return AfxGetApp();
}

CWnd* AfxGetMainWnd()
{
    CWinThread* thread = AfxGetThread();
    return thread ? thread->GetMainWnd() : nullptr;
}

BOOL AfxPreTranslateMessage(MSG* message)
{
    CWinThread* thread = AfxGetThread();
    return thread && thread->PreTranslateMessage(message);
}

HINSTANCE AfxGetInstanceHandle()
{
    const HINSTANCE instance = AfxGetModuleState()->m_hCurrentInstanceHandle;
    return instance ? instance : GetModuleHandleW(nullptr);
}

HINSTANCE AfxGetResourceHandle()
{
    const HINSTANCE instance = AfxGetModuleState()->m_hCurrentResourceHandle;
    return instance ? instance : AfxGetInstanceHandle();
}

void AfxSetResourceHandle(HINSTANCE instance)
{
    AfxGetModuleState()->m_hCurrentResourceHandle = instance;
}

BOOL AfxWinInit(HINSTANCE instance, HINSTANCE, LPWSTR commandLine, int showCommand)
{
    AFX_MODULE_STATE* state = AfxGetModuleState();
    state->m_hCurrentInstanceHandle = instance;
    state->m_hCurrentResourceHandle = instance;
    if (CWinApp* application = AfxGetApp())
    {
        application->m_hInstance = instance;
        application->m_lpCmdLine = commandLine;
        application->m_nCmdShow = showCommand;
    }
    return TRUE;
}
