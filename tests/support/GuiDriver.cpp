// SPDX-License-Identifier: MIT
#include "GuiDriver.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>

#include <cmath>
#include <cstring>

namespace
{
/// Of the timer that hosts forward to the interface.
constexpr UINT_PTR SlideTimer = 2022;
constexpr DWORD TickMilliseconds = 30;

bool SamePicture(const osg::Image& a, const osg::Image& b)
{
    return a.s() == b.s() && a.t() == b.t() && std::memcmp(a.data(), b.data(), a.getTotalSizeInBytes()) == 0;
}
} // namespace

void GuiProgram::Turn()
{
    now_ += TickMilliseconds;
    host_.Frame().OnTimer(SlideTimer);
    host_.Frames(1);
}

bool GuiProgram::IsBusy()
{
    const driver::FrameGrab grab(host_.Viewer());
    host_.Frames(1);
    const osg::ref_ptr<osg::Image> former = std::exchange(last_, grab.Picture());
    return !former || !SamePicture(*former, *last_);
}

void GuiProgram::Post(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_MOUSEMOVE)
    {
        // The host knows its own moves from the real pointer's by the last one that was sent.
        host_.Send(message, wParam, lParam);
        return;
    }
    Program::Post(message, wParam, lParam);
}

std::optional<RECT> GuiProgram::PlaceOf(const char* name)
{
    const CEGUI::Window* window = GuiHost::Find(name);
    if (!window || !window->isEffectiveVisible())
    {
        return std::nullopt;
    }
    return GuiHost::RectOf(name);
}

DWORD GuiProgram::DoubleClickTime()
{
    const CEGUI::System* system = CEGUI::System::getSingletonPtr();
    // CEGUI takes the seconds from here, which a test may have made as short as it likes.
    return system ? static_cast<DWORD>(std::ceil(system->getDefaultGUIContext().getMouseButtonMultiClickTimeout() * 1000.0f)) : 0;
}

std::vector<HostMessage> GuiDriver::TakeReceived()
{
    std::vector<HostMessage> received = host_.TakeMessages();
    const std::vector<HostMessage> main = host_.TakeMainWindowMessages();
    received.insert(received.end(), main.begin(), main.end());
    return received;
}
