// SPDX-License-Identifier: MIT
// The tests' host without a view: its main window and its message queue are there, and no interface is ever started.
#include "support/Gui.h"

#include <windows.h>

#include <stdexcept>

namespace
{
/// A test that asks for what only a view has fails.
[[noreturn]] void NoView()
{
    throw std::logic_error("there is no view here");
}

const wchar_t* const MainClass = L"NxGuiTestMain";
GuiHost* currentHost = nullptr;

LRESULT CALLBACK MainProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (currentHost && currentHost->onMainWindowMessage)
    {
        currentHost->onMainWindowMessage(message, wParam, lParam);
    }
    return DefWindowProcW(window, message, wParam, lParam);
}
} // namespace

GuiHost::GuiHost(int width, int height, osg::Node*) : width_(width), height_(height)
{
    WNDCLASSW windowClass = {};
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    windowClass.lpfnWndProc = MainProcedure;
    windowClass.lpszClassName = MainClass;
    RegisterClassW(&windowClass);
    main_ = CreateWindowExW(0, MainClass, L"test host", WS_POPUP | WS_VISIBLE, 0, 0, width, height, nullptr, nullptr,
                            windowClass.hInstance, nullptr);
    mainWnd_.Attach(main_);
    AfxGetApp()->m_pMainWnd = &mainWnd_;
    currentHost = this;
}

GuiHost::~GuiHost()
{
    currentHost = nullptr;
    AfxGetApp()->m_pMainWnd = nullptr;
    mainWnd_.Detach();
    DestroyWindow(main_);
}

void GuiHost::Pump()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
    {
        if (!AfxPreTranslateMessage(&message))
        {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

void GuiHost::Frames(int)
{
    Pump();
}

void GuiHost::Close() {}

void GuiHost::Start(GUIUserType)
{
    NoView();
}

void GuiHost::Resize(int, int)
{
    NoView();
}

void GuiHost::MoveMouse(int, int)
{
    NoView();
}

void GuiHost::Press(int, int)
{
    NoView();
}

void GuiHost::Release(int, int)
{
    NoView();
}

void GuiHost::Click(int, int)
{
    NoView();
}

void GuiHost::RightClick(int, int)
{
    NoView();
}

void GuiHost::DoubleClick(int, int)
{
    NoView();
}

void GuiHost::Key(UINT)
{
    NoView();
}

Screenshot GuiHost::Shoot()
{
    NoView();
}

std::vector<HostMessage> GuiHost::TakeMessages()
{
    NoView();
}

std::vector<WPARAM> GuiHost::TakeCodes()
{
    NoView();
}

RECT GuiHost::RectOf(const char*)
{
    NoView();
}

CPoint GuiHost::CentreOf(const char*)
{
    NoView();
}
