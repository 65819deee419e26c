// SPDX-License-Identifier: MIT
#pragma once

#include "Program.h"

#include <osg/Image>

#include <chrono>
#include <functional>
#include <string>
#include <utility>

namespace driver
{

enum class Button
{
    Left,
    Right
};

/// Where the mouse is to go: a point of the view, in pixels from its top left, or the middle of a window of the interface.
class Place
{
public:
    Place(CPoint point) : point_(point) {}
    /// @param window its name
    Place(const char* window) : window_(window) {}

    /// @throws std::runtime_error when there is no such window, or it is not shown
    CPoint In(Program& program) const;

private:
    CPoint point_;
    std::string window_; ///< empty: the point
};

/// Somebody at a program's window. Whatever is done here reaches the program as the system's own messages, and the program's
/// loop turns after each.
class Driver
{
public:
    /// @param program outlives this
    explicit Driver(Program& program);
    virtual ~Driver() = default;
    Driver(const Driver&) = delete;
    Driver& operator=(const Driver&) = delete;

    /// In several moves, from where the mouse is, with the button held that is down.
    void MoveTo(const Place& place);
    void Press(const Place& place, Button button = Button::Left);
    void Release(const Place& place, Button button = Button::Left);
    void Click(const Place& place, Button button = Button::Left);
    void DoubleClick(const Place& place);
    void Drag(const Place& from, const Place& to, Button button = Button::Left);
    /// @param notches positive ones away from the user
    void Wheel(const Place& place, int notches);
    void Key(UINT virtualKey);
    /// Where the last move went.
    CPoint Mouse() const { return mouse_; }

    /// A right click that opens a menu, whose own loop then runs: goes down its entries, and ends it with a key, after what
    /// `WhileMenuIsOpen` was given. The machine's pointer is where the click is, since the menu opens there.
    /// @param downs presses of the Down key
    /// @param end VK_RETURN chooses the entry, VK_ESCAPE leaves the menu
    /// @throws std::runtime_error when no menu opens
    void RightClickMenu(const Place& place, int downs, UINT end);
    /// To be called with the next menus open and the entry marked; null for nothing.
    void WhileMenuIsOpen(std::function<void()> action) { whileMenuIsOpen_ = std::move(action); }

    // What has the keyboard's focus, a dialog's control.
    /// Replaces what is selected there.
    void Type(const CString& text);
    void KeyToFocus(UINT virtualKey);
    void SelectAllInFocus();

    /// Drags the window to a size, as its edges do.
    /// @throws std::runtime_error when the view does not take it
    void ResizeWindow(CSize size);

    /// How long of the machine's clock something may take before it is given up; at first longer than anything takes,
    /// software rendering included.
    void SetPatience(std::chrono::milliseconds patience) { patience_ = patience; }
    /// Lets the program go on for a while of its own clock.
    void LetPass(DWORD milliseconds);
    /// Waits until nothing changes any more.
    /// @throws std::runtime_error when that does not come
    void Wait();

    CSize ViewSize() const;
    /// The next frame, with all that is drawn over the scene: RGB, bottom row first.
    /// @throws std::runtime_error when none is drawn
    osg::ref_ptr<osg::Image> TakePicture();
    /// The part of it that a window of the interface takes.
    /// @throws std::runtime_error as well when there is no such window
    osg::ref_ptr<osg::Image> TakePictureOf(const char* window);
    /// What the screen shows where the main window is, with the menus and dialogs there. No caret blinks in it.
    osg::ref_ptr<osg::Image> TakeScreenPicture();

protected:
    /// @throws std::runtime_error when the condition is not met for a few turns in a row while the patience lasts
    void TurnUntil(const std::function<bool()>& condition);
    void Turn() { program_.Turn(); }
    /// The machine's own pointer would send moves of its own whenever the window changes under it.
    static void ParkPointer();

private:
    void Send(UINT message, WPARAM wParam, CPoint point);
    void WaitOutDoubleClick(CPoint point);
    void PressAt(UINT message, CPoint point, Button button);
    void ReleaseAt(CPoint point, Button button);

    Program& program_;
    std::chrono::milliseconds patience_ = std::chrono::seconds(30);
    std::function<void()> whileMenuIsOpen_;
    CPoint mouse_;
    WPARAM held_ = 0; ///< MK_LBUTTON, MK_RBUTTON
    DWORD pressed_ = 0;
    CPoint pressedAt_ = CPoint(-1, -1); ///< negative: nowhere yet
};

} // namespace driver
