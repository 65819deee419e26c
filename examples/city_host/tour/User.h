// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <functional>
#include <utility>

namespace host
{

class CityHost;

/// Somebody at the window: everything done here reaches the program as the system's own messages, and the program's loop
/// turns after each. Points are view pixels, from the top left.
class User
{
public:
    /// @param host outlives this
    explicit User(CityHost& host);

    void MoveTo(CPoint point);
    void Press(CPoint point);
    void Release(CPoint point);
    void Click(CPoint point);
    void DoubleClick(CPoint point);
    /// With the left or the right button held down.
    void Drag(CPoint from, CPoint to, bool rightButton = false);
    /// Positive notches away from the user.
    void Wheel(CPoint point, int notches);
    void Key(UINT virtualKey);

    /// A right click that opens a menu, whose own loop then runs: goes down its entries, and ends it with a key, after what
    /// `WhileMenuIsOpen` was given. The machine's pointer is where the click is, since the menu opens there.
    /// @param downs presses of the Down key
    /// @param end VK_RETURN chooses the entry, VK_ESCAPE leaves the menu
    /// @throws std::runtime_error when no menu opens
    void RightClickMenu(CPoint point, int downs, UINT end);
    /// To be called with the next menu open and the entry marked; null for nothing.
    void WhileMenuIsOpen(std::function<void()> action) { whileMenuIsOpen_ = std::move(action); }

    // What has the keyboard's focus, a dialog's control.
    /// Replaces what is selected there.
    void Type(const CString& text);
    void KeyToFocus(UINT virtualKey);
    void SelectAllInFocus();
    /// Drags the window to a size, as its edges do.
    void ResizeWindow(CSize size);
    /// Drags the window to a monitor of another density, where it is as large to the eye: told as the system tells it.
    /// @param density dots per inch
    void MoveToMonitor(UINT density, CSize size);
    /// As a click into the task bar does.
    void RestoreWindow();

    /// Lets the program go on for a while.
    void LetPass(DWORD milliseconds);
    /// Waits until nothing changes any more.
    /// @throws std::runtime_error when that does not come
    void Wait();
    /// Waits until no note is left on the screen.
    void WaitForNotes();

    CSize ViewSize() const;
    CityHost& Host() { return host_; }

private:
    void Send(UINT message, WPARAM wParam, CPoint point);
    void Turn();
    void ParkPointer();

    CityHost& host_;
    std::function<void()> whileMenuIsOpen_;
};

} // namespace host
