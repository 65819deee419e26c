// SPDX-License-Identifier: MIT
#pragma once

#include <CEGUI/String.h>

#include <atltypes.h>

/// What the input bridge and the editing of control buttons share. One per process, made on first use and gone with the
/// interface.
struct InputState
{
    /// The window under the mouse as last reported by a window's mouse-move slot; cleared by every left or right press and
    /// release.
    CEGUI::String windowUnderMouse;
    /// The control button's window that is being edited.
    CEGUI::String editedWindow;
    /// Added to the mouse x while a control button is dragged.
    int grabOffset = 0;
    /// The last mouse position, view pixels.
    CPoint mousePoint;
    bool contextMenuAllowed = true;

    static InputState& Get();
    /// The state, or null when none has been made.
    static InputState* GetIfThere();
    static void Release();
};

/// Flags about the mouse that live as long as the process.
struct MouseFlags
{
    bool buttonEditMode = false; ///< a control button is being moved
    bool buttonHeld = false;     ///< a left or right button is down
    bool leftButton = false;     ///< the last pressed or released button was the left one
    bool pressConsumed = false;  ///< the next click on a control button must not choose it
};

extern MouseFlags mouseFlags;
