// SPDX-License-Identifier: MIT
#include "User.h"

#include "../host/CityHost.h"

#include <chrono>
#include <exception>
#include <stdexcept>

namespace host
{
namespace
{

using Clock = std::chrono::steady_clock;

/// Longer than anything takes here, software rendering included.
constexpr std::chrono::seconds Patience(30);
constexpr int QuietTurns = 3;
constexpr DWORD TurnMilliseconds = 5;
constexpr int DragSteps = 6;

template <class Condition>
void TurnUntil(CityHost& host, Condition condition)
{
    const Clock::time_point end = Clock::now() + Patience;
    for (int quiet = 0; quiet < QuietTurns;)
    {
        quiet = !host.Step() && condition() ? quiet + 1 : 0;
        if (Clock::now() > end)
        {
            throw std::runtime_error("the picture does not settle");
        }
        ::Sleep(TurnMilliseconds);
    }
}

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
constexpr UINT TickMilliseconds = 150;
constexpr int TicksWithoutMenu = 20;

bool IsMenuOpen()
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    return GetGUIThreadInfo(GetCurrentThreadId(), &info) && (info.flags & GUI_INMENUMODE) != 0;
}

void PostKey(HWND window, UINT virtualKey)
{
    const LPARAM scanCode = static_cast<LPARAM>(MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC)) << 16;
    PostMessageW(window, WM_KEYDOWN, virtualKey, scanCode | 1);
    PostMessageW(window, WM_KEYUP, virtualKey, scanCode | static_cast<LPARAM>(0xC0000001));
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
    case TicksWithoutMenu:
        EndMenu();
        break;
    default:
        break;
    }
}

} // namespace

User::User(CityHost& host) : host_(host)
{
    ParkPointer();
}

void User::ParkPointer()
{
    // The machine's own pointer would send moves of its own whenever the window changes under it.
    SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);
}

void User::Turn()
{
    host_.Step();
}

void User::Send(UINT message, WPARAM wParam, CPoint point)
{
    PostMessageW(host_.Window().View(), message, wParam, MAKELPARAM(point.x, point.y));
    Turn();
}

void User::MoveTo(CPoint point)
{
    Send(WM_MOUSEMOVE, 0, point);
}

void User::Press(CPoint point)
{
    Send(WM_LBUTTONDOWN, MK_LBUTTON, point);
}

void User::Release(CPoint point)
{
    Send(WM_LBUTTONUP, 0, point);
}

void User::Click(CPoint point)
{
    MoveTo(point);
    Press(point);
    Release(point);
}

void User::DoubleClick(CPoint point)
{
    Click(point);
    Send(WM_LBUTTONDBLCLK, MK_LBUTTON, point);
    Release(point);
}

void User::Drag(CPoint from, CPoint to, bool rightButton)
{
    MoveTo(from);
    Send(rightButton ? WM_RBUTTONDOWN : WM_LBUTTONDOWN, rightButton ? MK_RBUTTON : MK_LBUTTON, from);
    for (int i = 1; i <= DragSteps; ++i)
    {
        Send(WM_MOUSEMOVE, rightButton ? MK_RBUTTON : MK_LBUTTON,
             CPoint(from.x + (to.x - from.x) * i / DragSteps, from.y + (to.y - from.y) * i / DragSteps));
    }
    Send(rightButton ? WM_RBUTTONUP : WM_LBUTTONUP, 0, to);
}

void User::Wheel(CPoint point, int notches)
{
    MoveTo(point);
    POINT screen = point;
    ClientToScreen(host_.Window().View(), &screen);
    const int step = notches < 0 ? -WHEEL_DELTA : WHEEL_DELTA;
    for (int i = 0; i < (notches < 0 ? -notches : notches); ++i)
    {
        Send(WM_MOUSEWHEEL, MAKEWPARAM(0, step), CPoint(screen.x, screen.y));
    }
}

void User::Key(UINT virtualKey)
{
    PostKey(host_.Window().View(), virtualKey);
    Turn();
}

void User::RightClickMenu(CPoint point, int downs, UINT end)
{
    POINT screen = point;
    ClientToScreen(host_.Window().View(), &screen);
    SetCursorPos(screen.x, screen.y);
    MoveTo(point);
    MenuScript script(host_.Window().Main(), downs, end, whileMenuIsOpen_);
    runningScript = &script;
    const UINT_PTR timer = SetTimer(nullptr, 0, TickMilliseconds, OnMenuTick);
    Send(WM_RBUTTONDOWN, MK_RBUTTON, point);
    Send(WM_RBUTTONUP, 0, point);
    for (int i = 0; i < TicksWithoutMenu && !script.opened; ++i)
    {
        LetPass(TickMilliseconds);
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

void User::Type(const CString& text)
{
    const HWND control = FocusedControl(host_.Window().Main());
    for (int i = 0; i < text.GetLength(); ++i)
    {
        PostMessageW(control, WM_CHAR, static_cast<WPARAM>(text[i]), 1);
    }
    Turn();
}

void User::SelectAllInFocus()
{
    PostMessageW(FocusedControl(host_.Window().Main()), EM_SETSEL, 0, -1);
    Turn();
}

void User::KeyToFocus(UINT virtualKey)
{
    PostKey(FocusedControl(host_.Window().Main()), virtualKey);
    Turn();
}

void User::ResizeWindow(CSize size)
{
    const HWND window = host_.Window().Main();
    RECT now = {};
    GetWindowRect(window, &now);
    const CSize from(now.right - now.left, now.bottom - now.top);
    constexpr int steps = 2;
    for (int i = 1; i <= steps; ++i)
    {
        const CSize part(from.cx + (size.cx - from.cx) * i / steps, from.cy + (size.cy - from.cy) * i / steps);
        MoveWindow(window, 0, 0, part.cx, part.cy, TRUE);
        Turn();
    }
    ParkPointer();
    Wait();
    if (ViewSize() != size)
    {
        throw std::runtime_error("the window did not take its size");
    }
}

void User::MoveToMonitor(UINT density, CSize size)
{
    const RECT place = {0, 0, size.cx, size.cy};
    SendMessageW(host_.Window().Main(), WM_DPICHANGED, MAKEWPARAM(density, density), reinterpret_cast<LPARAM>(&place));
    ParkPointer();
    Wait();
    if (ViewSize() != size)
    {
        throw std::runtime_error("the window did not take the other monitor's size");
    }
}

void User::RestoreWindow()
{
    ShowWindow(host_.Window().Main(), SW_RESTORE);
    Turn();
}

void User::LetPass(DWORD milliseconds)
{
    const DWORD start = GetTickCount();
    while (GetTickCount() - start < milliseconds)
    {
        Turn();
        Sleep(1);
    }
}

void User::Wait()
{
    TurnUntil(host_, [this] { return host_.IsClosed() || !host_.IsBusy(); });
}

void User::WaitForNotes()
{
    TurnUntil(host_, [this] { return host_.Messages().IsEmpty() && !host_.IsBusy(); });
}

CSize User::ViewSize() const
{
    return host_.Window().ViewSize();
}

} // namespace host
