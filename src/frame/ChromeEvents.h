// SPDX-License-Identifier: MIT
#pragma once

namespace CEGUI
{
class EventArgs;
}

/// Slots of the title bar and of bars in general. All report the event as handled.

/// Ends a click on a bar there.
bool OnSwallow(const CEGUI::EventArgs& args);
bool OnCloseClicked(const CEGUI::EventArgs& args);
bool OnMinimiseClicked(const CEGUI::EventArgs& args);
bool OnLeaveFullSceneClicked(const CEGUI::EventArgs& args);
/// A right click on the title asks for its edit.
bool OnTitleButtonUp(const CEGUI::EventArgs& args);
/// A left double click on the title asks for its edit.
bool OnTitleDoubleClick(const CEGUI::EventArgs& args);
