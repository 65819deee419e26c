// SPDX-License-Identifier: MIT
// The way of a message to its handler.
#include "afxwin.h"

#include <exception>
#include <string>

namespace
{
// The message that is being handled, for Default. Windows belong to the one thread of the interface.
struct Handled
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};
Handled current = {};

class HandledNow
{
public:
    explicit HandledNow(const Handled& handled) : former_(std::exchange(current, handled)) {}
    ~HandledNow() { current = former_; }
    HandledNow(const HandledNow&) = delete;
    HandledNow& operator=(const HandledNow&) = delete;

private:
    Handled former_;
};
} // namespace

CCmdTarget::~CCmdTarget() = default;

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY none = {0, 0, 0, 0, nullptr};
    static const AFX_MSGMAP map = {nullptr, &none};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

const AFX_MSGMAP_ENTRY* CCmdTarget::FindEntry(UINT message, UINT code, UINT id) const
{
    for (const AFX_MSGMAP* map = GetMessageMap(); map; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr)
    {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nMessage; ++entry)
        {
            if (entry->nMessage == message && entry->nCode == code && id >= entry->nID && id <= entry->nLastID)
            {
                return entry;
            }
        }
    }
    return nullptr;
}

BOOL CCmdTarget::OnCmdMsg(UINT id, int code, void*, void*)
{
    const AFX_MSGMAP_ENTRY* entry = FindEntry(WM_COMMAND, static_cast<UINT>(code), id);
    if (!entry)
    {
        return FALSE;
    }
    entry->call(this, 0, 0);
    return TRUE;
}

CWnd* AfxWindowOf(WPARAM handle)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(handle));
}

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_DRAWITEM()
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()

LRESULT CALLBACK CWnd::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    CWnd* object = FromHandlePermanent(window);
    if (!object)
    {
        return ::DefWindowProcW(window, message, wParam, lParam);
    }
    const HandledNow handled({message, wParam, lParam});
    try
    {
        // The object may be gone when this returns.
        return object->WindowProc(message, wParam, lParam);
    }
    catch (...)
    {
        // No exception may pass through the system's frames between here and the message loop.
        return AfxProcessWndProcException(window, message);
    }
}

LRESULT AfxProcessWndProcException(HWND window, UINT message)
{
    std::string reason = "of no known kind";
    try
    {
        throw;
    }
    catch (const std::exception& failure)
    {
        reason = failure.what();
    }
    catch (...)
    {
    }
    ::OutputDebugStringA(("Warning: uncaught exception in a window procedure: " + reason + "\n").c_str());
    if (message == WM_PAINT)
    {
        // It would be sent again at once.
        ::ValidateRect(window, nullptr);
    }
    return message == WM_CREATE ? -1 : 0;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    return OnWndMsg(message, wParam, lParam, &result) ? result : DefWindowProc(message, wParam, lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message == WM_COMMAND)
    {
        return OnCommand(wParam, lParam);
    }
    const AFX_MSGMAP_ENTRY* entry = FindEntry(message, 0, 0);
    if (entry)
    {
        *result = entry->call(this, wParam, lParam);
    }
    return entry != nullptr;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    // Menus have the code 0, accelerators 1: both are plain commands.
    return OnCmdMsg(LOWORD(wParam), lParam ? HIWORD(wParam) : 0, nullptr, nullptr);
}

BOOL CWnd::OnChildNotify(UINT, WPARAM, LPARAM, LRESULT*)
{
    return FALSE;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return formerProcedure_ ? ::CallWindowProcW(formerProcedure_, m_hWnd, message, wParam, lParam)
                            : ::DefWindowProcW(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default()
{
    const Handled handled = current;
    return DefWindowProc(handled.message, handled.wParam, handled.lParam);
}

BOOL CWnd::PreTranslateMessage(MSG*)
{
    return FALSE;
}

void CWnd::PostNcDestroy() {}

void CWnd::OnChar(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnClose()
{
    Default();
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT item)
{
    CWnd* control = item->CtlType == ODT_MENU ? nullptr : FromHandlePermanent(item->hwndItem);
    LRESULT result = 0;
    if (!control || !control->OnChildNotify(current.message, current.wParam, current.lParam, &result))
    {
        Default();
    }
}

void CWnd::OnKillFocus(CWnd*)
{
    Default();
}

void CWnd::OnNcDestroy()
{
    Default();
    Detach();
    PostNcDestroy();
}
