// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

/// Kind of user, given to `CeGuiMainFrame::Init`. Only 0 and non-zero are told apart: any value but 0 hides the publish
/// tool, widens the side borders from 2 to 5 pixels and switches off title editing and the menus of control buttons.
enum GUIUserType : DWORD
{
    GUI_USER_FULL = 0,
    GUI_USER_RESTRICTED = 1
};

/// What `CeGuiMainFrame::RefreshButton` is asked for. The operation does nothing, so one value is all there is.
enum GUIBTNTYPE : DWORD
{
    GUI_BTN_ALL = 0
};

/// The window message (WM_USER + 500 = 1524) that the library posts to the viewer's native window. wParam is one of
/// `GuiHostCommand`; lParam is 0 unless the command says otherwise.
constexpr UINT GUI_HOST_MESSAGE = WM_USER + 500;

/// Command codes of `GUI_HOST_MESSAGE`.
enum GuiHostCommand : UINT
{
    GUI_CMD_PUBLISH = 1,             ///< publish tool
    GUI_CMD_ROAM = 2,                ///< roam tool
    GUI_CMD_ANTIALIASING = 10,       ///< anti-aliasing
    GUI_CMD_DISPLAY_PROPERTIES = 11, ///< display-properties tool, after the property panel was toggled
    GUI_CMD_MUSIC = 12,              ///< background music
    GUI_CMD_ENVIRONMENT = 13,        ///< effect-environment tool
    GUI_CMD_CLOSE = 15,              ///< close button; every bar of the frame is destroyed already
    GUI_CMD_MINIMISE = 16,           ///< minimise button; posted first to the application's main window, then to the viewer's
    /// The current control button changed, or an entry of the left list was chosen. lParam is the address of the
    /// `BTN_UNIT`, or 0. It points into the library's own list and is valid until that list is next changed, which can be
    /// before the message is handled when the host changes the list in between: copy the record when handling the message.
    GUI_CMD_CONTROL_BUTTON = 17,
    GUI_CMD_KEY_ESCAPE = 24,
    GUI_CMD_KEY_SPACE = 25,
    GUI_CMD_KEY_UP = 26,
    GUI_CMD_KEY_DOWN = 27,
    GUI_CMD_KEY_LEFT = 28,
    GUI_CMD_KEY_RIGHT = 29,
    GUI_CMD_EDIT_TITLE = 30,     ///< scene-title edit requested (user type 0 only)
    GUI_CMD_DATA_MANAGEMENT = 31 ///< data-management tool
};
