// SPDX-License-Identifier: MIT
#pragma once

#include "support/driver/Driver.h"

namespace host
{

class CityHost;

/// The host as a program to be driven. Its time goes by steps from here on, so that each run comes to the same pictures.
class HostProgram : public driver::Program
{
public:
    /// @param host outlives this
    explicit HostProgram(CityHost& host);

    HWND MainWindow() override;
    HWND View() override;
    osgViewer::Viewer& Viewer() override;
    void Turn() override;
    bool IsBusy() override;
    DWORD Now() override;

protected:
    CityHost& host_;
};

/// Somebody at the host's window. Points are view pixels, from the top left.
class User : private HostProgram, public driver::Driver
{
public:
    /// @param host outlives this
    explicit User(CityHost& host);

    /// Drags the window to a monitor of another density, where it is as large to the eye: told as the system tells it.
    /// @param density dots per inch
    void MoveToMonitor(UINT density, CSize size);
    /// As a click into the task bar does.
    void RestoreWindow();
    /// Lets the program go on for a while of the machine's time, for what is outside of the program.
    void LetOthersWork(DWORD milliseconds);
    /// Waits until no note is left on the screen.
    void WaitForNotes();

    CityHost& Host() { return host_; }
};

} // namespace host
