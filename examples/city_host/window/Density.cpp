// SPDX-License-Identifier: MIT
#include "Density.h"

namespace host
{
namespace
{

/// Systems before Windows 10 lack what is asked for here.
template <typename Function>
Function UserFunction(const char* name)
{
    const HMODULE user = GetModuleHandleW(L"user32.dll");
    return user ? reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(user, name))) : nullptr;
}

} // namespace

void TakeTrueDensity()
{
    using SetContext = BOOL(WINAPI*)(HANDLE);
    // DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2
    const HANDLE perMonitor = reinterpret_cast<HANDLE>(static_cast<INT_PTR>(-4));
    const auto setContext = UserFunction<SetContext>("SetProcessDpiAwarenessContext");
    if (!setContext || !setContext(perMonitor))
    {
        SetProcessDPIAware();
    }
}

UINT DensityOf(HWND window)
{
    using GetDpi = UINT(WINAPI*)(HWND);
    const auto getDpi = UserFunction<GetDpi>("GetDpiForWindow");
    if (const UINT density = window && getDpi ? getDpi(window) : 0)
    {
        return density;
    }
    const HDC screen = GetDC(nullptr);
    const int density = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return density > 0 ? static_cast<UINT>(density) : PlainDensity;
}

} // namespace host
