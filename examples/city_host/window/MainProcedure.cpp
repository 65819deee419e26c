// SPDX-License-Identifier: MIT
// The main window's messages: a frame without a caption that moves and sizes like any other.
#include "HostWindow.h"

#include "../host/Guarded.h"

#include <NxOsgCeGui/GuiTypes.h>

#include <windowsx.h>

namespace host
{
namespace
{

// At 96 dots per inch.
constexpr LONG EdgeWidth = 8; ///< pixels
constexpr POINT SmallestSize = {640, 480};
constexpr POINT LargestSize = {8192, 8192}; ///< pixels

} // namespace

LRESULT CALLBACK HostWindow::MainProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
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
    Guarded("a message of the main window", [&] { result = host->OnMain(window, message, wParam, lParam); });
    return result;
}

LRESULT HostWindow::OnMain(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const POINT point = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    switch (message)
    {
    case GUI_HOST_MESSAGE:
        events_.OnGuiMessage(static_cast<UINT>(wParam), lParam);
        return 0;
    case WM_COMMAND:
        if (lParam == 0 && HIWORD(wParam) == 0)
        {
            events_.OnMenuCommand(LOWORD(wParam));
            return 0;
        }
        break;
    case WM_NCCALCSIZE:
        // The whole window is client area: the interface draws the title bar and the borders.
        return wParam ? 0 : DefWindowProcW(window, message, wParam, lParam);
    case WM_NCACTIVATE:
        // -1: no drawing of a caption that is not there.
        return DefWindowProcW(window, message, wParam, -1);
    case WM_NCPAINT:
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_NCHITTEST:
        return HitTest(point);
    case WM_NCMOUSEMOVE:
        PassMoveToView(point);
        break;
    case WM_GETMINMAXINFO:
        LimitSize(*reinterpret_cast<MINMAXINFO*>(lParam));
        return 0;
    case WM_SIZE:
        if (wParam != SIZE_MINIMIZED && view_)
        {
            MoveWindow(view_, 0, 0, LOWORD(lParam), HIWORD(lParam), FALSE);
        }
        events_.OnExpose();
        return 0;
    case WM_DPICHANGED:
        FollowDensity(LOWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
        return 0;
    case WM_ENTERSIZEMOVE:
        inModalLoop_ = true;
        break;
    case WM_EXITSIZEMOVE:
        inModalLoop_ = false;
        break;
    case WM_TIMER:
        events_.OnTimer(wParam);
        if (inModalLoop_)
        {
            events_.OnModalTick();
        }
        return 0;
    case WM_SETFOCUS:
        SetFocus(view_);
        return 0;
    case WM_CLOSE:
        events_.OnCloseRequest();
        return 0;
    default:
        break;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

LRESULT HostWindow::HitTest(POINT screenPoint) const
{
    RECT window = {};
    GetWindowRect(main_, &window);
    if (events_.HasResizeEdges() && !IsZoomed(main_))
    {
        const int edge = MulDiv(EdgeWidth, DensityOf(main_), PlainDensity);
        const int column = screenPoint.x < window.left + edge ? 0 : screenPoint.x >= window.right - edge ? 2 : 1;
        const int row = screenPoint.y < window.top + edge ? 0 : screenPoint.y >= window.bottom - edge ? 2 : 1;
        static const LRESULT edges[3][3] = {
            {HTTOPLEFT, HTTOP, HTTOPRIGHT},
            {HTLEFT, HTCLIENT, HTRIGHT},
            {HTBOTTOMLEFT, HTBOTTOM, HTBOTTOMRIGHT},
        };
        if (edges[row][column] != HTCLIENT)
        {
            return edges[row][column];
        }
    }
    return events_.IsTitleHandle(CPoint(screenPoint.x - window.left, screenPoint.y - window.top)) ? HTCAPTION : HTCLIENT;
}

void HostWindow::FollowDensity(UINT density, const RECT& place) const
{
    SetWindowPos(main_, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    events_.OnDensity(density);
}

void HostWindow::LimitSize(MINMAXINFO& limits) const
{
    const UINT density = DensityOf(main_);
    limits.ptMinTrackSize = {MulDiv(SmallestSize.x, density, PlainDensity), MulDiv(SmallestSize.y, density, PlainDensity)};
    // Pictures for monitors larger than this one are made here, too.
    limits.ptMaxTrackSize = LargestSize;
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof(monitor);
    if (GetMonitorInfoW(MonitorFromWindow(main_, MONITOR_DEFAULTTONEAREST), &monitor))
    {
        // Without this a maximised window would reach beyond the screen by its frame, and cover the task bar.
        limits.ptMaxPosition = {monitor.rcWork.left - monitor.rcMonitor.left, monitor.rcWork.top - monitor.rcMonitor.top};
        limits.ptMaxSize = {monitor.rcWork.right - monitor.rcWork.left, monitor.rcWork.bottom - monitor.rcWork.top};
    }
}

void HostWindow::PassMoveToView(POINT screenPoint) const
{
    ScreenToClient(view_, &screenPoint);
    PostMessageW(view_, WM_MOUSEMOVE, 0, MAKELPARAM(screenPoint.x, screenPoint.y));
}

} // namespace host
