// SPDX-License-Identifier: MIT
#pragma once

#include "GuiMessage.h"

#include "../city/DayTime.h"
#include "../sound/Music.h"

namespace host
{

class CityHost;

/// What the host can do on a command. Each gives a line for the user about what came of it, or nothing.
class Actions
{
public:
    /// @param host outlives this
    explicit Actions(CityHost& host) : host_(host) {}

    CString Publish(const GuiMessage& message);
    CString StartRoaming(const GuiMessage& message);
    CString StopRoaming(const GuiMessage& message);
    CString ToggleMultisampling(const GuiMessage& message);
    CString NextDayTime(const GuiMessage& message);
    CString ToggleMusic(const GuiMessage& message);
    CString ShowProperties(const GuiMessage& message);
    CString ShowLayers(const GuiMessage& message);
    CString ShowView(const GuiMessage& message);
    CString ToggleSlideOut(const GuiMessage& message);
    CString Close(const GuiMessage& message);
    CString Minimise(const GuiMessage& message);
    CString ToggleRotation(const GuiMessage& message);
    CString WalkForward(const GuiMessage& message);
    CString WalkBack(const GuiMessage& message);
    CString WalkLeft(const GuiMessage& message);
    CString WalkRight(const GuiMessage& message);
    CString SwitchLanguage(const GuiMessage& message);
    CString SwitchSkin(const GuiMessage& message);
    CString FlyHome(const GuiMessage& message);

private:
    CityHost& host_;
    Music music_;
    bool multisampling_ = true;
    city::DayTime dayTime_ = city::DayTime::Noon;
};

} // namespace host
