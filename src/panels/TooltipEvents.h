// SPDX-License-Identifier: MIT
#pragma once

namespace CEGUI
{
class EventArgs;
}

/// Slots of the items of bars that carry a tooltip text. All report the event as handled.
bool OnTooltipShow(const CEGUI::EventArgs& args);
bool OnTooltipHide(const CEGUI::EventArgs& args);
/// A press on an item ends what was popped up over the frame.
bool OnItemPressed(const CEGUI::EventArgs& args);
