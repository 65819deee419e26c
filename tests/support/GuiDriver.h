// SPDX-License-Identifier: MIT
#pragma once

#include "Gui.h"
#include "driver/Driver.h"
#include "driver/FrameGrab.h"

#include <vector>

/// The tests' host as a program to be driven: each turn draws a frame and forwards a tick of the timer that bars slide by.
class GuiProgram : public driver::Program
{
public:
    /// @param host outlives this
    explicit GuiProgram(GuiHost& host) : host_(host) {}

    HWND MainWindow() override { return host_.MainWindow(); }
    HWND View() override { return host_.Window(); }
    osgViewer::Viewer& Viewer() override { return host_.Viewer(); }
    void Turn() override;
    /// Draws another frame, and compares it with the one that was drawn for the last call.
    bool IsBusy() override;
    /// Goes on by a tick with every turn.
    DWORD Now() override { return now_; }
    void Resize(CSize size) override { host_.Resize(size.cx, size.cy); }
    void Post(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::optional<RECT> PlaceOf(const char* name) override;
    DWORD DoubleClickTime() override;

private:
    GuiHost& host_;
    DWORD now_ = 0;
    osg::ref_ptr<osg::Image> last_;
};

/// Somebody at the window of the tests' host, who finds the windows of the interface by name.
class GuiDriver : private GuiProgram, public driver::Driver
{
public:
    /// @param host outlives this
    explicit GuiDriver(GuiHost& host) : GuiProgram(host), Driver(static_cast<Program&>(*this)), host_(host) {}

    /// What the host has received since the last call, at its view and its main window.
    std::vector<HostMessage> TakeReceived();
    /// How far this driver has taken its own clock, in milliseconds.
    using GuiProgram::Now;
    /// Whether a window of the interface is there and shown.
    bool Sees(const char* window) { return PlaceOf(window).has_value(); }

private:
    GuiHost& host_;
};
