// SPDX-License-Identifier: MIT
// The view's messages, after the viewer's own window procedure has seen them.
#include "HostWindow.h"

#include "../host/Guarded.h"

#include <NxOsgCeGui/GuiTypes.h>

#include <windowsx.h>

namespace host
{

LRESULT CALLBACK HostWindow::ViewProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCCREATE)
    {
        SetWindowLongPtrW(window, GWLP_USERDATA,
                          reinterpret_cast<LONG_PTR>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams));
    }
    auto* host = reinterpret_cast<HostWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!host)
    {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    LRESULT result = 0;
    Guarded("a message of the view", [&] { result = host->OnView(window, message, wParam, lParam); });
    return result;
}

LRESULT HostWindow::OnView(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const POINT point = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    switch (message)
    {
    case GUI_HOST_MESSAGE:
        events_.OnGuiMessage(static_cast<UINT>(wParam), lParam);
        return 0;
    case WM_NCHITTEST:
        // The main window beneath answers for the edges and for the empty part of the title bar.
        return HitTest(point) == HTCLIENT ? HTCLIENT : HTTRANSPARENT;
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT:
        ValidateRect(window, nullptr);
        events_.OnExpose();
        return 0;
    case WM_MOUSEMOVE:
        WatchForLeaving();
        events_.OnMouseMove(static_cast<UINT>(wParam), CPoint(point.x, point.y));
        events_.OnInput();
        break;
    case WM_MOUSELEAVE:
        // No viewer event tells the interface; a move to the outside ends its hovering and hides its bars.
        PostMessageW(window, WM_MOUSEMOVE, 0, MAKELPARAM(-1, -1));
        break;
    case WM_KEYDOWN:
        events_.OnKey(static_cast<UINT>(wParam));
        events_.OnInput();
        break;
    case WM_RBUTTONDOWN:
        // The interface looks for what lies under the mouse when it moves, and a right click on an entry asks for its menu.
        PostTwitch(static_cast<UINT>(wParam), CPoint(point.x, point.y));
        events_.OnInput();
        break;
    case WM_KEYUP:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
    case WM_MBUTTONDBLCLK:
    case WM_RBUTTONUP:
    case WM_RBUTTONDBLCLK:
    case WM_MOUSEWHEEL:
        events_.OnInput();
        break;
    default:
        break;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

void HostWindow::PostTwitch(UINT flags, CPoint point) const
{
    for (const int aside : {1, 0})
    {
        PostMessageW(view_, WM_MOUSEMOVE, flags, MAKELPARAM(point.x + aside, point.y));
    }
}

void HostWindow::WatchForLeaving() const
{
    POINT cursor = {};
    if (!GetCursorPos(&cursor) || WindowFromPoint(cursor) != view_)
    {
        // The system would say at once that the mouse has left. Such a move was passed on or sent by a program.
        return;
    }
    TRACKMOUSEEVENT track = {};
    track.cbSize = sizeof(track);
    track.dwFlags = TME_LEAVE;
    track.hwndTrack = view_;
    TrackMouseEvent(&track);
}

} // namespace host
