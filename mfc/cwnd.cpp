// SPDX-License-Identifier: MIT
// A window's object: which one it is, and what is asked of the window.
#include "afxwin.h"

#include <map>
#include <memory>

namespace
{
// Both belong to the thread of the interface, the only one with windows here.
std::map<HWND, CWnd*>& PermanentObjects()
{
    static std::map<HWND, CWnd*> objects;
    return objects;
}

// A temporary object must leave its window alone when it goes.
struct LetGo
{
    void operator()(CWnd* object) const
    {
        object->m_hWnd = nullptr;
        delete object;
    }
};

std::map<HWND, std::unique_ptr<CWnd, LetGo>>& TemporaryObjects()
{
    static std::map<HWND, std::unique_ptr<CWnd, LetGo>> objects;
    return objects;
}
} // namespace

CWnd* CWnd::FromHandlePermanent(HWND window)
{
    const auto found = PermanentObjects().find(window);
    return found == PermanentObjects().end() ? nullptr : found->second;
}

CWnd* CWnd::FromHandle(HWND window)
{
    if (!window)
    {
        return nullptr;
    }
    if (CWnd* object = FromHandlePermanent(window))
    {
        return object;
    }
    auto& objects = TemporaryObjects();
    const auto known = objects.find(window);
    if (known != objects.end())
    {
        return known->second.get();
    }
    for (auto object = objects.begin(); object != objects.end();)
    {
        object = ::IsWindow(object->first) ? std::next(object) : objects.erase(object);
    }
    std::unique_ptr<CWnd, LetGo> object(new CWnd);
    object->m_hWnd = window;
    return objects.emplace(window, std::move(object)).first->second.get();
}

CWnd* CWnd::GetDesktopWindow()
{
    return FromHandle(::GetDesktopWindow());
}

CWnd::~CWnd()
{
    if (m_hWnd)
    {
        CWnd::DestroyWindow();
        Detach();
    }
}

BOOL CWnd::Attach(HWND window)
{
    if (m_hWnd || !window)
    {
        return FALSE;
    }
    m_hWnd = window;
    PermanentObjects()[window] = this;
    return TRUE;
}

HWND CWnd::Detach()
{
    const HWND window = std::exchange(m_hWnd, nullptr);
    if (FromHandlePermanent(window) == this)
    {
        PermanentObjects().erase(window);
    }
    const WNDPROC former = std::exchange(formerProcedure_, nullptr);
    // A procedure that somebody has put before ours since goes on calling ours, which then does nothing of its own.
    if (former && ::GetWindowLongPtrW(window, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&CWnd::Procedure))
    {
        ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(former));
    }
    return window;
}

BOOL CWnd::SubclassWindow(HWND window)
{
    if (!::IsWindow(window) || !Attach(window))
    {
        return FALSE;
    }
    formerProcedure_ = reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(window, GWLP_WNDPROC));
    ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&CWnd::Procedure));
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent)
{
    return SubclassWindow(::GetDlgItem(parent->m_hWnd, static_cast<int>(id)));
}

HWND CWnd::GetSafeHwnd() const
{
    return m_hWnd;
}

CWnd::operator HWND() const
{
    return m_hWnd;
}

BOOL CWnd::DestroyWindow()
{
    return m_hWnd && ::DestroyWindow(m_hWnd);
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return ::SendMessageW(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return ::PostMessageW(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::ShowWindow(int command)
{
    return ::ShowWindow(m_hWnd, command);
}

BOOL CWnd::IsWindowVisible() const
{
    return ::IsWindowVisible(m_hWnd);
}

BOOL CWnd::EnableWindow(BOOL enable)
{
    return ::EnableWindow(m_hWnd, enable);
}

BOOL CWnd::IsWindowEnabled() const
{
    return ::IsWindowEnabled(m_hWnd);
}

void CWnd::Invalidate(BOOL erase)
{
    ::InvalidateRect(m_hWnd, nullptr, erase);
}

CWnd* CWnd::SetFocus()
{
    return FromHandle(::SetFocus(m_hWnd));
}

void CWnd::SetWindowText(LPCWSTR text)
{
    ::SetWindowTextW(m_hWnd, text);
}

void CWnd::GetWindowText(CString& text) const
{
    const int length = ::GetWindowTextLengthW(m_hWnd);
    const int copied = ::GetWindowTextW(m_hWnd, text.GetBuffer(length), length + 1);
    text.ReleaseBuffer(copied);
}

void CWnd::GetWindowRect(LPRECT rect) const
{
    ::GetWindowRect(m_hWnd, rect);
}

BOOL CWnd::SetWindowPos(const CWnd* insertAfter, int x, int y, int width, int height, UINT flags)
{
    return ::SetWindowPos(m_hWnd, insertAfter ? insertAfter->m_hWnd : nullptr, x, y, width, height, flags);
}

CWnd* CWnd::GetParent() const
{
    return FromHandle(::GetParent(m_hWnd));
}

CWnd* CWnd::GetDlgItem(int id) const
{
    return FromHandle(::GetDlgItem(m_hWnd, id));
}

int CWnd::GetDlgCtrlID() const
{
    return ::GetDlgCtrlID(m_hWnd);
}

void CWnd::SetDlgItemText(int id, LPCWSTR text)
{
    ::SetDlgItemTextW(m_hWnd, id, text);
}

BOOL CWnd::IsDialogMessage(LPMSG message)
{
    return ::IsDialogMessageW(m_hWnd, message);
}
