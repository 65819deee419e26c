// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

/// The popup menus. The application's main window gets what is chosen as WM_COMMAND. Both run the menu's message loop until it is
/// closed (see `MessageLoops::Run`), and show nothing when there is no such menu.
/// @param place of the menu's top left corner, screen pixels

/// The scene's menu, from the file that the parameter "QMV发布右键菜单" names, else from "RButtonMenu.xml".
void ShowSceneMenu(POINT place);
/// The menu of a control button: properties, add, delete.
void ShowButtonMenu(POINT place);
