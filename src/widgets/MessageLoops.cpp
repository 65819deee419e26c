// SPDX-License-Identifier: MIT
#include "MessageLoops.h"

#include "CallbackScope.h"
#include "FailureLog.h"

#include <windows.h>

#include <exception>
#include <memory>
#include <utility>

namespace
{
constexpr UINT CallMessage = WM_APP;

using Call = std::function<void()>;

/// The window is made for one call. It takes the call with the message, so that a call whose message never comes is never made.
LRESULT CALLBACK CallProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != CallMessage)
    {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    const std::unique_ptr<Call> call(reinterpret_cast<Call*>(lParam));
    DestroyWindow(window);
    try
    {
        (*call)();
    }
    catch (const std::exception& failure)
    {
        LogFailure("call out of the message loop not carried out", failure.what());
    }
    catch (...)
    {
        // No exception may pass through the system's frames.
        LogFailure("call out of the message loop not carried out", "an exception of no known kind");
    }
    return 0;
}
} // namespace

namespace MessageLoops
{
void Run(Call loop)
{
    if (CallbackScope::IsActive())
    {
        Post(std::move(loop));
        return;
    }
    loop();
}

void Post(Call call)
{
    // A window, since messages to a thread are lost in the loops of dialogs. A class of the system's needs no registration.
    const HWND window = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    auto kept = std::make_unique<Call>(std::move(call));
    if (window)
    {
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&CallProcedure));
        if (PostMessageW(window, CallMessage, 0, reinterpret_cast<LPARAM>(kept.get())))
        {
            kept.release();
            return;
        }
        DestroyWindow(window);
    }
    LogFailure("call out of the message loop not posted", "error " + std::to_string(GetLastError()));
}
} // namespace MessageLoops
