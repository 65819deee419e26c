// SPDX-License-Identifier: MIT
#include "../support/GTest.h"
#include "Utf8.h"

#include <afxwin.h>

namespace
{
class Application : public CWinApp
{
public:
    Application() : CWinApp(L"Masterplan") {}

    BOOL InitInstance() override
    {
        initialised = true;
        return TRUE;
    }

    BOOL OnIdle(LONG count) override
    {
        idles = count + 1;
        if (count == 3)
        {
            PostQuitMessage(7);
        }
        return count < 3;
    }

    BOOL PreTranslateMessage(MSG* message) override
    {
        seen += message->message == WM_APP;
        return FALSE;
    }

    bool initialised = false;
    LONG idles = 0;
    int seen = 0;
};

// Global, as an application is: its constructor must get along without Wine.
Application* const early = new Application;
const CWinApp* const registeredEarly = AfxGetApp();
} // namespace

TEST(Application, RegistersItselfAndGoes)
{
    EXPECT_EQ(registeredEarly, early);
    delete early;
    EXPECT_EQ(AfxGetApp(), nullptr);
    EXPECT_EQ(AfxGetThread(), nullptr);
    EXPECT_EQ(AfxGetMainWnd(), nullptr);
    {
        Application application;
        EXPECT_EQ(AfxGetApp(), &application);
        EXPECT_EQ(AfxGetThread(), &application);
        EXPECT_EQ(AfxGetModuleState()->m_pCurrentWinApp, &application);
        EXPECT_EQ(Utf8(application.m_pszAppName), "Masterplan");
        CWnd window;
        application.m_pMainWnd = &window;
        EXPECT_EQ(AfxGetMainWnd(), &window);
        EXPECT_EQ(AfxGetThread()->GetMainWnd(), &window);
    }
    EXPECT_EQ(AfxGetApp(), nullptr);
}

TEST(Application, KnowsItsModules)
{
    const HINSTANCE own = GetModuleHandleW(nullptr);
    EXPECT_EQ(AfxGetInstanceHandle(), own);
    EXPECT_EQ(AfxGetResourceHandle(), own);

    Application application;
    wchar_t commandLine[] = L"scene.xml";
    const HINSTANCE user = GetModuleHandleW(L"user32.dll");
    EXPECT_TRUE(AfxWinInit(own, nullptr, commandLine, SW_SHOWMAXIMIZED));
    EXPECT_EQ(application.m_hInstance, own);
    EXPECT_EQ(application.m_lpCmdLine, commandLine);
    EXPECT_EQ(application.m_nCmdShow, SW_SHOWMAXIMIZED);
    AfxSetResourceHandle(user);
    EXPECT_EQ(AfxGetResourceHandle(), user);
    EXPECT_EQ(AfxGetInstanceHandle(), own);
    AfxSetResourceHandle(nullptr);
    EXPECT_EQ(AfxGetResourceHandle(), own);
}

TEST(Application, RunsMessagesAndIdlesBetweenThem)
{
    Application application;
    ASSERT_TRUE(application.InitInstance());
    PostThreadMessageW(GetCurrentThreadId(), WM_APP, 0, 0);
    PostThreadMessageW(GetCurrentThreadId(), WM_APP, 0, 0);
    EXPECT_EQ(application.Run(), 7);
    EXPECT_EQ(application.seen, 2);
    EXPECT_EQ(application.idles, 4);
}

TEST(Window, IsAttachedAndDetached)
{
    const HWND handle = CreateWindowW(L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(handle, nullptr);
    {
        CWnd window;
        EXPECT_EQ(window.GetSafeHwnd(), nullptr);
        EXPECT_FALSE(window.Attach(nullptr));
        EXPECT_TRUE(window.Attach(handle));
        EXPECT_FALSE(window.Attach(handle));
        EXPECT_EQ(window.m_hWnd, handle);
        EXPECT_EQ(window.GetSafeHwnd(), handle);
        EXPECT_EQ(window.Detach(), handle);
        EXPECT_EQ(window.Detach(), nullptr);
    }
    EXPECT_TRUE(IsWindow(handle));
    {
        CWnd window;
        window.Attach(handle);
    }
    EXPECT_FALSE(IsWindow(handle));
}
