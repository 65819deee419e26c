// SPDX-License-Identifier: MIT
#include "Driver.h"

#include "FrameGrab.h"
#include "Pictures.h"
#include "ScreenGrab.h"

#include <chrono>
#include <cstdlib>
#include <stdexcept>

namespace driver
{
namespace
{

using WallClock = std::chrono::steady_clock;

constexpr int QuietTurns = 3;
constexpr int MoveSteps = 4;
constexpr int DragSteps = 6;
constexpr int ResizeSteps = 2;
/// Presses nearer to each other than this, in pixels, may make a double click.
constexpr int DoubleClickWidth = 16;
constexpr int TurnsForAFrame = 100;
constexpr DWORD ClockGrain = 20; ///< milliseconds by which two clocks of the machine may differ

WPARAM FlagOf(Button button)
{
    return button == Button::Left ? MK_LBUTTON : MK_RBUTTON;
}

CPoint Between(CPoint from, CPoint to, int step, int steps)
{
    return CPoint(from.x + (to.x - from.x) * step / steps, from.y + (to.y - from.y) * step / steps);
}

} // namespace

CPoint Place::In(Program& program) const
{
    if (window_.empty())
    {
        return point_;
    }
    const std::optional<RECT> place = program.PlaceOf(window_.c_str());
    if (!place)
    {
        throw std::runtime_error("no window is to be seen that is named " + window_);
    }
    return CPoint((place->left + place->right) / 2, (place->top + place->bottom) / 2);
}

Driver::Driver(Program& program) : program_(program)
{
    ParkPointer();
}

void Driver::ParkPointer()
{
    SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);
}

void Driver::Send(UINT message, WPARAM wParam, CPoint point)
{
    program_.Post(message, wParam, MAKELPARAM(point.x, point.y));
    Turn();
}

void Driver::MoveTo(const Place& place)
{
    const CPoint from = mouse_;
    mouse_ = place.In(program_);
    for (int i = 1; i < MoveSteps; ++i)
    {
        const CPoint step = Between(from, mouse_, i, MoveSteps);
        // A mouse reports several moves between two frames.
        program_.Post(WM_MOUSEMOVE, held_, MAKELPARAM(step.x, step.y));
    }
    Turn();
    // What has come up on the way is seen by now.
    Send(WM_MOUSEMOVE, held_, mouse_);
}

void Driver::WaitOutDoubleClick(CPoint point)
{
    const bool samePlace = pressedAt_.x >= 0 && std::abs(point.x - pressedAt_.x) < DoubleClickWidth &&
                           std::abs(point.y - pressedAt_.y) < DoubleClickWidth;
    const DWORD since = GetTickCount() - pressed_;
    const DWORD wait = program_.DoubleClickTime() + ClockGrain;
    if (samePlace && since < wait)
    {
        // The interface goes by the machine's clock here, whatever the program goes by.
        Sleep(wait - since);
    }
}

void Driver::PressAt(UINT message, CPoint point, Button button)
{
    held_ |= FlagOf(button);
    Send(message, held_, point);
    pressed_ = GetTickCount();
    pressedAt_ = point;
}

void Driver::ReleaseAt(CPoint point, Button button)
{
    held_ &= ~FlagOf(button);
    Send(button == Button::Left ? WM_LBUTTONUP : WM_RBUTTONUP, held_, point);
}

void Driver::Press(const Place& place, Button button)
{
    const CPoint point = place.In(program_);
    WaitOutDoubleClick(point);
    PressAt(button == Button::Left ? WM_LBUTTONDOWN : WM_RBUTTONDOWN, point, button);
}

void Driver::Release(const Place& place, Button button)
{
    ReleaseAt(place.In(program_), button);
}

void Driver::Click(const Place& place, Button button)
{
    // What is clicked may move away when the mouse comes or presses.
    const CPoint point = place.In(program_);
    MoveTo(point);
    Press(point, button);
    ReleaseAt(point, button);
}

void Driver::DoubleClick(const Place& place)
{
    const CPoint point = place.In(program_);
    Click(point);
    PressAt(WM_LBUTTONDBLCLK, point, Button::Left);
    ReleaseAt(point, Button::Left);
}

void Driver::Drag(const Place& from, const Place& to, Button button)
{
    const CPoint start = from.In(program_);
    const CPoint end = to.In(program_);
    MoveTo(start);
    Press(start, button);
    for (int i = 1; i <= DragSteps; ++i)
    {
        Send(WM_MOUSEMOVE, held_, Between(start, end, i, DragSteps));
    }
    mouse_ = end;
    ReleaseAt(end, button);
}

void Driver::Wheel(const Place& place, int notches)
{
    MoveTo(place);
    POINT screen = mouse_;
    ClientToScreen(program_.View(), &screen);
    const int step = notches < 0 ? -WHEEL_DELTA : WHEEL_DELTA;
    for (int i = 0; i < std::abs(notches); ++i)
    {
        Send(WM_MOUSEWHEEL, MAKEWPARAM(held_, step), CPoint(screen.x, screen.y));
    }
}

void Driver::ResizeWindow(CSize size)
{
    RECT now = {};
    GetWindowRect(program_.MainWindow(), &now);
    const CPoint from(now.right - now.left, now.bottom - now.top);
    for (int i = 1; i <= ResizeSteps; ++i)
    {
        const CPoint part = Between(from, CPoint(size.cx, size.cy), i, ResizeSteps);
        program_.Resize(CSize(part.x, part.y));
        Turn();
    }
    ParkPointer();
    Wait();
    if (ViewSize() != size)
    {
        throw std::runtime_error("the window did not take its size");
    }
}

void Driver::LetPass(DWORD milliseconds)
{
    const DWORD start = program_.Now();
    while (program_.Now() - start < milliseconds)
    {
        Turn();
    }
}

void Driver::TurnUntil(const std::function<bool()>& condition)
{
    const WallClock::time_point end = WallClock::now() + patience_;
    for (int quiet = 0; quiet < QuietTurns;)
    {
        Turn();
        quiet = condition() ? quiet + 1 : 0;
        if (WallClock::now() > end)
        {
            throw std::runtime_error("the picture does not settle");
        }
    }
}

void Driver::Wait()
{
    TurnUntil([this] { return !program_.IsBusy(); });
}

CSize Driver::ViewSize() const
{
    RECT client = {};
    GetClientRect(program_.View(), &client);
    return CSize(client.right, client.bottom);
}

osg::ref_ptr<osg::Image> Driver::TakePicture()
{
    const FrameGrab grab(program_.Viewer());
    // Asks for one more frame of the same picture.
    InvalidateRect(program_.View(), nullptr, FALSE);
    for (int i = 0; i < TurnsForAFrame && grab.Picture()->s() == 0; ++i)
    {
        Turn();
    }
    if (grab.Picture()->s() == 0)
    {
        throw std::runtime_error("no frame is drawn");
    }
    return grab.Picture();
}

osg::ref_ptr<osg::Image> Driver::TakePictureOf(const char* window)
{
    const std::optional<RECT> place = program_.PlaceOf(window);
    if (!place)
    {
        throw std::runtime_error(std::string("no window is to be seen that is named ") + window);
    }
    return Part(*TakePicture(), *place);
}

osg::ref_ptr<osg::Image> Driver::TakeScreenPicture()
{
    RECT area = {};
    GetWindowRect(program_.MainWindow(), &area);
    const BOOL hidden = HideCaret(nullptr);
    if (hidden)
    {
        // The system brings what has changed to the screen when it finds no more messages.
        Turn();
    }
    osg::ref_ptr<osg::Image> picture = GrabScreen(area);
    if (hidden)
    {
        ShowCaret(nullptr);
    }
    return picture;
}

} // namespace driver
