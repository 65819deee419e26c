// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <osgViewer/Viewer>

#include <optional>

namespace driver
{

/// A program with the interface in it, as its driver needs it: its windows, and its loop, which turns only when the driver
/// says so.
class Program
{
public:
    virtual ~Program() = default;

    virtual HWND MainWindow() = 0;
    /// The window that the viewer draws in: mouse and keys go there.
    virtual HWND View() = 0;
    virtual osgViewer::Viewer& Viewer() = 0;

    /// One turn of the loop: waiting messages and what they ask for, and a frame if there is one to be drawn.
    virtual void Turn() = 0;
    /// Whether the picture is going to change by itself.
    virtual bool IsBusy() = 0;
    /// Milliseconds of the clock that the program goes by, which need not be the machine's.
    virtual DWORD Now() = 0;

    /// Gives the main window another size, and with it the view.
    virtual void Resize(CSize size) { MoveWindow(MainWindow(), 0, 0, size.cx, size.cy, TRUE); }
    /// Puts a message into the view's queue. The loop may turn already.
    virtual void Post(UINT message, WPARAM wParam, LPARAM lParam) { PostMessageW(View(), message, wParam, lParam); }
    /// Where a window of the interface is in the view, in view pixels, as long as it is shown; none for a program that nobody
    /// looks into.
    virtual std::optional<RECT> PlaceOf(const char* /*name*/) { return std::nullopt; }
    /// In milliseconds of the machine's clock: a second press sooner than this, at the same place, is a double click to the
    /// interface.
    virtual DWORD DoubleClickTime() { return GetDoubleClickTime(); }
};

} // namespace driver
