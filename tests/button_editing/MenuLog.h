// SPDX-License-Identifier: MIT
#pragma once

#include "support/Gui.h"

#include <string>
#include <vector>

/// Watches the main window for menus, and answers them as a user would: a real menu is read item by item from its handle
/// while it is open, and left or chosen from by keys. A menu that nobody answers is ended after a while.
class MenuLog
{
public:
    explicit MenuLog(GuiHost& host);
    ~MenuLog();
    MenuLog(const MenuLog&) = delete;
    MenuLog& operator=(const MenuLog&) = delete;

    /// Keys that the next menu gets; none end it by themselves.
    void Answer(std::vector<UINT> keys) { keys_ = std::move(keys); }

    /// The popups opened since the last call, each as its items: "id text", "-" for a separator, "> text" for a popup,
    /// followed by " checked" and " disabled".
    std::vector<std::vector<std::string>> TakeMenus();
    /// The commands that the main window received since the last call.
    std::vector<UINT> TakeCommands();

    /// Of the first popup since the last `TakeMenus`: its handle, and the place of its window on the screen.
    HMENU menu = nullptr;
    RECT place = {};
    /// What `CeGuiMainFrame::GetEditWindowName` said while the last menu was open.
    std::string editedWhileOpen;

private:
    void OnMessage(UINT message, WPARAM wParam, LPARAM lParam);

    GuiHost& host_;
    std::vector<UINT> keys_;
    std::vector<std::vector<std::string>> menus_;
    std::vector<UINT> commands_;
};

/// A popup's items, as `MenuLog::TakeMenus` gives them.
std::vector<std::string> ItemsOf(HMENU menu);
