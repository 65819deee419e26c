// SPDX-License-Identifier: MIT
#pragma once

namespace CEGUI
{
class EventArgs;
}

/// Slots of the root sheet.

/// Keys become commands to the host. False for a key that is none of them.
bool OnRootKeyDown(const CEGUI::EventArgs& args);
/// The bars see the mouse.
bool OnRootMouseMove(const CEGUI::EventArgs& args);
/// Any button but the right one toggles full scene.
bool OnRootDoubleClick(const CEGUI::EventArgs& args);
/// The enter-full-scene button's click, which is of no mouse button.
bool OnToggleFullScene(const CEGUI::EventArgs& args);
