// SPDX-License-Identifier: MIT
// Windows that messages are dispatched for.
#include "../support/GTest.h"
#include "Utf8.h"

#include <afxwin.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace
{
constexpr UINT Ask = WM_APP + 1;
constexpr UINT Throw = WM_APP + 2;
constexpr UINT ThrowNumber = WM_APP + 3;

HWND NewWindow(const wchar_t* windowClass, const wchar_t* text = L"", DWORD style = WS_POPUP, HWND parent = nullptr, int id = 0)
{
    return CreateWindowW(windowClass, text, style, 0, 0, 120, 40, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                         nullptr, nullptr);
}

class Base : public CWnd
{
public:
    std::vector<std::string> seen;
    bool closes = false;

protected:
    afx_msg void OnFirst() { seen.push_back("first"); }
    afx_msg void OnSecond() { seen.push_back("second of base"); }
    afx_msg void OnClose()
    {
        seen.push_back("close");
        if (closes)
        {
            CWnd::OnClose();
        }
    }
    afx_msg LRESULT OnAsk(WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) * lParam; }
    afx_msg LRESULT OnThrow(WPARAM, LPARAM) { throw std::runtime_error("from a handler"); }
    afx_msg LRESULT OnThrowNumber(WPARAM, LPARAM) { throw 42; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Base, CWnd)
    ON_COMMAND(1, &Base::OnFirst)
    ON_COMMAND(2, &Base::OnSecond)
    ON_WM_CLOSE()
    ON_MESSAGE(Ask, &Base::OnAsk)
    ON_MESSAGE(Throw, &Base::OnThrow)
    ON_MESSAGE(ThrowNumber, &Base::OnThrowNumber)
    ON_MESSAGE(WM_CREATE, &Base::OnThrow)
    ON_MESSAGE(WM_PAINT, &Base::OnThrow)
END_MESSAGE_MAP()

class Derived : public Base
{
public:
    explicit Derived(bool* gone = nullptr) : gone_(gone) {}

protected:
    afx_msg void OnSecond() { seen.push_back("second of derived"); }
    afx_msg void OnChanged() { seen.push_back("changed"); }
    void PostNcDestroy() override
    {
        if (gone_)
        {
            *gone_ = true;
            delete this;
        }
    }
    DECLARE_MESSAGE_MAP()

private:
    bool* gone_;
};

BEGIN_MESSAGE_MAP(Derived, Base)
    ON_COMMAND(2, &Derived::OnSecond)
    ON_EN_CHANGE(3, &Derived::OnChanged)
END_MESSAGE_MAP()

using Seen = std::vector<std::string>;
} // namespace

TEST(Dispatch, GoesToTheMostDerivedHandler)
{
    Derived window;
    ASSERT_TRUE(window.SubclassWindow(NewWindow(L"STATIC")));
    window.SendMessage(WM_COMMAND, 1);
    window.SendMessage(WM_COMMAND, 2);
    window.SendMessage(WM_COMMAND, MAKEWPARAM(2, 1));
    window.SendMessage(WM_COMMAND, 7);
    EXPECT_EQ(window.seen, (Seen{"first", "second of derived", "second of derived"}));
    EXPECT_EQ(window.SendMessage(Ask, 6, 7), 42);
}

TEST(Dispatch, TellsNotificationsFromCommandsOfTheSameId)
{
    Derived window;
    ASSERT_TRUE(window.SubclassWindow(NewWindow(L"STATIC")));
    const HWND edit = NewWindow(L"EDIT", L"", WS_CHILD, window, 3);
    window.SendMessage(WM_COMMAND, 3);
    EXPECT_EQ(window.seen, Seen{});
    SetWindowTextW(edit, L"text");
    EXPECT_EQ(window.seen, Seen{"changed"});
}

TEST(Dispatch, WhatHasNoHandlerGoesToTheWindowsOwnProcedure)
{
    Base window;
    ASSERT_TRUE(window.SubclassWindow(NewWindow(L"STATIC", L"former")));
    CString text;
    window.GetWindowText(text);
    EXPECT_EQ(Utf8(text), "former");
    window.SetWindowText(L"标题");
    window.GetWindowText(text);
    EXPECT_EQ(Utf8(text), "标题");
}

TEST(Dispatch, DefaultIsCalledFromAHandler)
{
    Base window;
    const HWND handle = NewWindow(L"STATIC");
    ASSERT_TRUE(window.SubclassWindow(handle));
    window.SendMessage(WM_CLOSE);
    EXPECT_TRUE(IsWindow(handle));
    window.closes = true;
    window.SendMessage(WM_CLOSE);
    EXPECT_FALSE(IsWindow(handle));
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.seen, (Seen{"close", "close"}));
}

TEST(Dispatch, AnExceptionEndsAtTheWindow)
{
    Base window;
    ASSERT_TRUE(window.SubclassWindow(NewWindow(L"STATIC")));
    EXPECT_EQ(window.SendMessage(Throw), 0);
    EXPECT_EQ(window.SendMessage(ThrowNumber), 0);
    EXPECT_EQ(window.SendMessage(WM_CREATE), -1) << "no window is made";
    window.ShowWindow(SW_SHOW);
    window.Invalidate();
    EXPECT_EQ(window.SendMessage(WM_PAINT), 0);
    EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE)) << "else it would be sent without end";
    EXPECT_EQ(window.SendMessage(Ask, 2, 3), 6);
}

TEST(Window, MayDeleteItselfWithItsWindow)
{
    bool gone = false;
    auto* window = new Derived(&gone);
    const HWND handle = NewWindow(L"STATIC");
    ASSERT_TRUE(window->SubclassWindow(handle));
    EXPECT_TRUE(window->DestroyWindow());
    EXPECT_TRUE(gone);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
}

TEST(Window, GivesItsProcedureBackWhenDetached)
{
    Base window;
    const HWND handle = NewWindow(L"STATIC", L"kept");
    ASSERT_TRUE(window.SubclassWindow(handle));
    EXPECT_FALSE(window.SubclassWindow(handle)) << "it has a window";
    EXPECT_EQ(window.Detach(), handle);
    SendMessageW(handle, WM_COMMAND, 1, 0);
    EXPECT_EQ(window.seen, Seen{});
    wchar_t text[8] = {};
    GetWindowTextW(handle, text, 8);
    EXPECT_EQ(Utf8(text), "kept");
    DestroyWindow(handle);
}

TEST(Window, IsFoundByItsHandle)
{
    Base window;
    const HWND handle = NewWindow(L"STATIC", L"", WS_POPUP);
    const HWND child = NewWindow(L"STATIC", L"child", WS_CHILD, handle, 5);
    window.Attach(handle);
    EXPECT_EQ(CWnd::FromHandle(handle), &window);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), &window);
    EXPECT_EQ(CWnd::FromHandlePermanent(child), nullptr);
    CWnd* temporary = window.GetDlgItem(5);
    ASSERT_NE(temporary, nullptr);
    EXPECT_EQ(temporary->m_hWnd, child);
    EXPECT_EQ(temporary, CWnd::FromHandle(child));
    EXPECT_EQ(temporary->GetParent(), &window);
    EXPECT_EQ(temporary->GetDlgCtrlID(), 5);
    EXPECT_EQ(window.GetDlgItem(6), nullptr);
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
    DestroyWindow(window.Detach());
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
}

TEST(Window, IsShownMovedAndEnabled)
{
    CWnd window;
    ASSERT_TRUE(window.Attach(NewWindow(L"STATIC")));
    EXPECT_FALSE(window.IsWindowVisible());
    window.ShowWindow(SW_SHOW);
    EXPECT_TRUE(window.IsWindowVisible());
    window.SetWindowPos(nullptr, 30, 40, 200, 100, SWP_NOZORDER);
    CRect rect;
    window.GetWindowRect(rect);
    EXPECT_EQ(rect, CRect(30, 40, 230, 140));
    window.EnableWindow(FALSE);
    EXPECT_FALSE(window.IsWindowEnabled());
    window.EnableWindow();
    EXPECT_TRUE(window.IsWindowEnabled());
}

TEST(Window, PreTranslatesFromTheMessagesWindowOutwards)
{
    class Listener : public CWnd
    {
    public:
        BOOL PreTranslateMessage(MSG* message) override { return ++seen && message->message == WM_APP; }
        int seen = 0;
    };
    CWinApp application;
    Listener outer;
    Listener inner;
    outer.Attach(NewWindow(L"STATIC"));
    inner.Attach(NewWindow(L"STATIC", L"", WS_CHILD, outer));
    MSG message = {};
    message.hwnd = NewWindow(L"STATIC", L"", WS_CHILD, inner);
    message.message = WM_KEYDOWN;
    EXPECT_FALSE(AfxPreTranslateMessage(&message));
    EXPECT_EQ(inner.seen, 1);
    EXPECT_EQ(outer.seen, 1);
    message.message = WM_APP;
    EXPECT_TRUE(AfxPreTranslateMessage(&message));
    EXPECT_EQ(inner.seen, 2);
    EXPECT_EQ(outer.seen, 1);
    message.hwnd = nullptr;
    EXPECT_FALSE(AfxPreTranslateMessage(&message));
    DestroyWindow(inner.Detach());
}
