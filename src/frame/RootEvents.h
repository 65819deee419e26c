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
/// Any button but the right one toggles full scene; also the enter-full-scene button's click.
bool OnToggleFullScene(const CEGUI::EventArgs& args);
