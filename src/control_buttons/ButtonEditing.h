// SPDX-License-Identifier: MIT
#pragma once

#include <atltypes.h>

/// Editing of control buttons by mouse: the steps that the input bridge calls after it has given the event to CEGUI.
/// Positions are view pixels.
namespace ButtonEditing
{
void PressLeft(CPoint mouse);
void ReleaseLeft();
/// May show the menu of a button or of the scene; returns when it is closed.
void ReleaseRight();
/// Moves the edited button sideways. False when there is none any more.
bool Drag(CPoint mouse);
} // namespace ButtonEditing
