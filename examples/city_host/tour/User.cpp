// SPDX-License-Identifier: MIT
#include "User.h"

#include "../host/CityHost.h"

#include <stdexcept>

namespace host
{
namespace
{

/// Of the host's time, with each turn of its loop: two ticks of its bars.
constexpr HostClock::Duration TurnTime(60);
constexpr DWORD PauseMilliseconds = 5;

} // namespace

HostProgram::HostProgram(CityHost& host) : host_(host)
{
    host_.Time().TakeSteps(TurnTime);
}

HWND HostProgram::MainWindow()
{
    return host_.Window().Main();
}

HWND HostProgram::View()
{
    return host_.Window().View();
}

osgViewer::Viewer& HostProgram::Viewer()
{
    return host_.Viewer();
}

void HostProgram::Turn()
{
    host_.Step();
}

bool HostProgram::IsBusy()
{
    return !host_.IsClosed() && host_.IsBusy();
}

DWORD HostProgram::Now()
{
    const auto time = host_.Time().Now().time_since_epoch();
    return static_cast<DWORD>(std::chrono::duration_cast<std::chrono::milliseconds>(time).count());
}

User::User(CityHost& host) : HostProgram(host), Driver(static_cast<Program&>(*this))
{
    // Where a resized window goes, too: dialogs come up at the same place over it then in every part of the tour.
    SetWindowPos(MainWindow(), nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
}

void User::MoveToMonitor(UINT density, CSize size)
{
    const RECT place = {0, 0, size.cx, size.cy};
    SendMessageW(MainWindow(), WM_DPICHANGED, MAKEWPARAM(density, density), reinterpret_cast<LPARAM>(&place));
    ParkPointer();
    Wait();
    if (ViewSize() != size)
    {
        throw std::runtime_error("the window did not take the other monitor's size");
    }
}

void User::RestoreWindow()
{
    ShowWindow(MainWindow(), SW_RESTORE);
    Driver::Turn();
}

void User::LetOthersWork(DWORD milliseconds)
{
    const DWORD start = GetTickCount();
    while (GetTickCount() - start < milliseconds)
    {
        Driver::Turn();
        Sleep(PauseMilliseconds);
    }
}

void User::WaitForNotes()
{
    TurnUntil([this] { return host_.Messages().IsEmpty() && !host_.IsBusy(); });
}

} // namespace host
