// SPDX-License-Identifier: MIT
#pragma once

#include "../views/ViewDialog.h"
#include "Language.h"

#include <memory>

namespace host
{

class CityHost;

/// What the host does on an entry of the interface's menus. Each gives a line for the user about what came of it.
class MenuActions
{
public:
    /// @param host outlives this
    explicit MenuActions(CityHost& host) : host_(host) {}

    CString EditButton();
    CString AddButton();
    CString DeleteButton();
    CString ResetCamera();
    CString ToggleFullScene();
    CString EditTitle();

    /// The dialog of `EditButton` goes; nothing happens when it is not there.
    void CloseDialog() { dialog_.reset(); }

private:
    bool IsAllowed() const;
    /// Index of the control button whose menu was opened last; -1 when there is none.
    int EditedButton() const;
    void TakePicture(const CString& file);
    void ApplyEdit(const CString& name, const CString& caption, bool newPicture);

    CityHost& host_;
    std::unique_ptr<ViewDialog> dialog_;
};

/// An entry of a menu, by the id that comes with WM_COMMAND.
struct MenuCommand
{
    UINT id;
    Words name;
    CString (MenuActions::*act)();
};

/// Null for an id that no menu of this host has.
const MenuCommand* FindMenuCommand(UINT id);

} // namespace host
