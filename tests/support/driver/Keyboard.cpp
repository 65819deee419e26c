// SPDX-License-Identifier: MIT
// What the driver does by keys: to the view, to a dialog, and to a menu, which runs a loop of its own meanwhile.
#include "Driver.h"

#include <exception>
#include <stdexcept>

namespace driver
{
namespace
{

/// What is done in the loop of a menu, by ticks of a timer.
struct MenuScript
{
    MenuScript(HWND window, int downPresses, UINT endKey, std::function<void()> whileOpen)
        : keysTo(window), downs(downPresses), end(endKey), action(std::move(whileOpen))
    {
    }

    HWND keysTo;
    int downs;
    UINT end;
    std::function<void()> action;
    int tick = 0;
    bool opened = false;
    std::exception_ptr failure;
};

MenuScript* runningScript = nullptr;
constexpr UINT TickMilliseconds = 50;
constexpr int MostTicks = 40; ///< of a menu that does not end by its key
/// In which a menu opens that was asked for: its loop runs within one of them.
constexpr int TurnsForAMenu = 20;

bool IsMenuOpen()
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    return GetGUIThreadInfo(GetCurrentThreadId(), &info) && (info.flags & GUI_INMENUMODE) != 0;
}

LPARAM ScanCodeOf(UINT virtualKey)
{
    return static_cast<LPARAM>(MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC)) << 16;
}

constexpr LPARAM KeyDownFlags = 1;
constexpr LPARAM KeyUpFlags = static_cast<LPARAM>(0xC0000001);

void PostKey(HWND window, UINT virtualKey)
{
    PostMessageW(window, WM_KEYDOWN, virtualKey, ScanCodeOf(virtualKey) | KeyDownFlags);
    PostMessageW(window, WM_KEYUP, virtualKey, ScanCodeOf(virtualKey) | KeyUpFlags);
}

/// The control with the keyboard's focus. An open dialog that has lost it to the window behind gets it back first, as by a
/// click on its caption: without a window manager the display may give it to either.
HWND FocusedControl(HWND mainWindow)
{
    HWND dialog = nullptr;
    while ((dialog = FindWindowExW(nullptr, dialog, L"#32770", nullptr)) != nullptr)
    {
        if (GetWindow(dialog, GW_OWNER) == mainWindow && IsWindowVisible(dialog) && !IsChild(dialog, GetFocus()))
        {
            SetForegroundWindow(dialog);
            if (!IsChild(dialog, GetFocus()))
            {
                SetFocus(GetNextDlgTabItem(dialog, nullptr, FALSE));
            }
            break;
        }
    }
    return GetFocus();
}

void CALLBACK OnMenuTick(HWND, UINT, UINT_PTR, DWORD)
{
    MenuScript& script = *runningScript;
    if (!IsMenuOpen())
    {
        return;
    }
    script.opened = true;
    switch (++script.tick)
    {
    case 1:
        for (int i = 0; i < script.downs; ++i)
        {
            PostKey(script.keysTo, VK_DOWN);
        }
        break;
    case 3:
        try
        {
            if (script.action)
            {
                script.action();
            }
        }
        catch (...)
        {
            // The system's loop must not be left by an exception.
            script.failure = std::current_exception();
        }
        PostKey(script.keysTo, script.end);
        break;
    case MostTicks:
        EndMenu();
        break;
    default:
        break;
    }
}

} // namespace

void Driver::Key(UINT virtualKey)
{
    program_.Post(WM_KEYDOWN, virtualKey, ScanCodeOf(virtualKey) | KeyDownFlags);
    program_.Post(WM_KEYUP, virtualKey, ScanCodeOf(virtualKey) | KeyUpFlags);
    Turn();
}

void Driver::RightClickMenu(const Place& place, int downs, UINT end)
{
    const CPoint point = place.In(program_);
    POINT screen = point;
    ClientToScreen(program_.View(), &screen);
    SetCursorPos(screen.x, screen.y);
    MoveTo(point);
    MenuScript script(program_.MainWindow(), downs, end, whileMenuIsOpen_);
    runningScript = &script;
    const UINT_PTR timer = SetTimer(nullptr, 0, TickMilliseconds, OnMenuTick);
    Press(point, Button::Right);
    // No hand is quite still, and some menus open by that.
    Send(WM_MOUSEMOVE, held_, CPoint(point.x + 1, point.y));
    Send(WM_MOUSEMOVE, held_, point);
    Release(point, Button::Right);
    for (int i = 0; i < TurnsForAMenu && !script.opened; ++i)
    {
        Turn();
    }
    KillTimer(nullptr, timer);
    runningScript = nullptr;
    ParkPointer();
    Wait();
    if (script.failure)
    {
        std::rethrow_exception(script.failure);
    }
    if (!script.opened)
    {
        throw std::runtime_error("no menu has opened");
    }
}

void Driver::Type(const CString& text)
{
    const HWND control = FocusedControl(program_.MainWindow());
    for (int i = 0; i < text.GetLength(); ++i)
    {
        PostMessageW(control, WM_CHAR, static_cast<WPARAM>(text[i]), 1);
    }
    Turn();
}

void Driver::SelectAllInFocus()
{
    PostMessageW(FocusedControl(program_.MainWindow()), EM_SETSEL, 0, -1);
    Turn();
}

void Driver::KeyToFocus(UINT virtualKey)
{
    PostKey(FocusedControl(program_.MainWindow()), virtualKey);
    Turn();
}

} // namespace driver
