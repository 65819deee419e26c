// SPDX-License-Identifier: MIT
#pragma once

namespace CEGUI
{
class EventArgs;
}

/// The mouse-move slot of every bar and item of the frame: notes the window under the mouse, tells the host to show the
/// system's cursor, and lets the bars see the move.
bool OnGuiHover(const CEGUI::EventArgs& args);
