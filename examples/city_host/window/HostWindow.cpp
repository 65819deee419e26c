// SPDX-License-Identifier: MIT
#include "HostWindow.h"

#include <stdexcept>

namespace host
{
namespace
{

const wchar_t* const MainClass = L"CityHostMain";
const wchar_t* const ViewClass = L"CityHostView";

} // namespace

void HostWindow::RegisterClasses()
{
    WNDCLASSW windowClass = {};
    windowClass.hInstance = AfxGetInstanceHandle();
    windowClass.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
    windowClass.lpfnWndProc = &HostWindow::MainProcedure;
    windowClass.lpszClassName = MainClass;
    RegisterClassW(&windowClass);
    // OpenGL keeps the device context, and the interface tells double clicks from clicks.
    windowClass.style = CS_OWNDC | CS_DBLCLKS;
    windowClass.lpfnWndProc = &HostWindow::ViewProcedure;
    windowClass.lpszClassName = ViewClass;
    RegisterClassW(&windowClass);
}

HostWindow::HostWindow(CSize size, HostWindowEvents& events) : events_(events)
{
    RegisterClasses();
    const UINT density = DensityOf(nullptr);
    size = CSize(MulDiv(size.cx, density, PlainDensity), MulDiv(size.cy, density, PlainDensity));
    RECT desktop = {0, 0, size.cx, size.cy};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &desktop, 0);
    const int left = desktop.left + (desktop.right - desktop.left - size.cx) / 2;
    const int top = desktop.top + (desktop.bottom - desktop.top - size.cy) / 2;
    // The thick frame makes the system size, snap and shade the window; WM_NCCALCSIZE gives its room to the view.
    const DWORD style = WS_POPUP | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX | WS_SYSMENU | WS_CLIPCHILDREN;
    const HINSTANCE instance = AfxGetInstanceHandle();
    const HWND window = CreateWindowExW(WS_EX_APPWINDOW, MainClass, L"", style, left < 0 ? 0 : left, top < 0 ? 0 : top, size.cx,
                                        size.cy, nullptr, nullptr, instance, this);
    if (!window)
    {
        throw std::runtime_error("the main window cannot be made");
    }
    main_.Attach(window);
    // Has the frame taken away by the message above before anything is shown.
    SetWindowPos(window, nullptr, 0, 0, 0, 0, SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    RECT client = {};
    GetClientRect(window, &client);
    view_ = CreateWindowExW(0, ViewClass, L"", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, 0, 0, client.right, client.bottom, window,
                            nullptr, instance, this);
    if (!view_)
    {
        throw std::runtime_error("the view's window cannot be made");
    }
    SetTimer(window, SlideTimer, static_cast<UINT>(SlideTick.count()), nullptr);
}

HostWindow::~HostWindow()
{
    KillTimer(main_, SlideTimer);
    DestroyWindow(main_.Detach());
}

CSize HostWindow::ViewSize() const
{
    RECT client = {};
    GetClientRect(view_, &client);
    return CSize(client.right, client.bottom);
}

void HostWindow::Show()
{
    ShowWindow(main_, SW_SHOWNORMAL);
    UpdateWindow(main_);
    SetFocus(view_);
}

void HostWindow::Minimise()
{
    if (!IsMinimised())
    {
        ShowWindow(main_, SW_MINIMIZE);
    }
}

bool HostWindow::IsMinimised() const
{
    return IsIconic(main_) != FALSE;
}

void HostWindow::SetTitle(const CString& title)
{
    SetWindowTextW(main_, title);
}

} // namespace host
