// SPDX-License-Identifier: MIT
#pragma once

/// The popup menus, at the cursor. The application's main window gets what is chosen as WM_COMMAND. Both return when the
/// menu is closed, and show nothing when there is no such menu.

/// The scene's menu, from the file that the parameter "QMV发布右键菜单" names, else from "RButtonMenu.xml".
void ShowSceneMenu();
/// The menu of a control button: properties, add, delete.
void ShowButtonMenu();
