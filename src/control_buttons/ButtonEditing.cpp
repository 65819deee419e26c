// SPDX-License-Identifier: MIT
#include "ButtonEditing.h"

#include "../widgets/InputState.h"
#include "../widgets/MessageLoops.h"
#include "../widgets/Names.h"
#include "../widgets/WindowNames.h"
#include "PopupMenus.h"

#include <NxOsgCeGui/CeGuiMainFrame.h>

#include <CEGUI/Window.h>

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace
{
constexpr std::string_view ButtonPrefix = "TavGuiButton_";
/// A press that moves further than this does not choose the button. View pixels.
constexpr int ClickTolerance = 10;

CPoint pressPoint;

CeGuiMainFrame& Frame()
{
    return *CeGuiMainFrame::GetInstance();
}

bool IsButtonName(const CEGUI::String& name)
{
    return name.compare(0, ButtonPrefix.length(), ButtonPrefix.data()) == 0;
}

/// Shows a menu where the cursor is now. When it is closed, the window that it was opened on is the edited one.
void OpenMenu(void (*show)(POINT place), const CEGUI::String& underMouse)
{
    POINT cursor = {};
    GetCursorPos(&cursor);
    MessageLoops::Run(
        [=]
        {
            if (Frame().IsInit())
            {
                show(cursor);
            }
            // In the menu's message loop the host may have ended the interface.
            if (Frame().IsInit())
            {
                InputState::Get().editedWindow = underMouse;
            }
        });
}
} // namespace

namespace ButtonEditing
{
void PressLeft(CPoint mouse)
{
    if (Frame().GetUser() == GUI_USER_RESTRICTED)
    {
        return;
    }
    InputState& input = InputState::Get();
    mouseFlags.pressConsumed = false;
    // The press itself has cleared the name under the mouse, so this finds none unless a slot has set it again: on purpose,
    // buttons stay where they are.
    if (input.windowUnderMouse.find(ButtonPrefix.data()) != CEGUI::String::npos)
    {
        mouseFlags.pressConsumed = mouseFlags.buttonEditMode;
        mouseFlags.buttonEditMode = true;
        input.editedWindow = input.windowUnderMouse;
        pressPoint = mouse;
    }
    else
    {
        input.editedWindow.clear();
        mouseFlags.buttonEditMode = false;
    }
}

bool Drag(CPoint mouse)
{
    const InputState& input = InputState::Get();
    if (Frame().GetUser() == GUI_USER_RESTRICTED || !IsButtonName(input.editedWindow))
    {
        return false;
    }
    Frame().SetDisplySystemMouse(true);
    CEGUI::Window* window = WindowNames::Find(input.editedWindow);
    if (!window)
    {
        return false;
    }
    UINT width = 0;
    UINT height = 0;
    Frame().GetWindowSize(width, height);
    CEGUI::UVector2 position = window->getPosition();
    position.d_x.d_scale = static_cast<float>(static_cast<double>(input.grabOffset + mouse.x) / width);
    window->setPosition(position);

    std::vector<BTN_UNIT>& records = Frame().GetCtrlBtnInfo();
    const CString name = TextOfName(input.editedWindow);
    const auto record =
        std::find_if(records.begin(), records.end(), [&](const BTN_UNIT& candidate) { return candidate.name == name; });
    if (record != records.end())
    {
        record->value = static_cast<float>(width) * position.d_x.d_scale;
    }
    if (std::abs(mouse.x - pressPoint.x) > ClickTolerance)
    {
        mouseFlags.pressConsumed = true;
    }
    return true;
}

void ReleaseLeft()
{
    if (Frame().GetUser() == GUI_USER_RESTRICTED)
    {
        return;
    }
    InputState& input = InputState::Get();
    if (!input.windowUnderMouse.empty() && mouseFlags.buttonEditMode)
    {
        Frame().RefreshButton(GUI_BTN_ALL);
        input.editedWindow.clear();
    }
    mouseFlags.pressConsumed = false;
    mouseFlags.buttonEditMode = false;
}

void ReleaseRight()
{
    InputState& input = InputState::Get();
    if (input.windowUnderMouse.empty() && input.contextMenuAllowed)
    {
        OpenMenu(&ShowSceneMenu, input.windowUnderMouse);
    }
    else if (Frame().GetUser() == GUI_USER_FULL)
    {
        if (mouseFlags.buttonEditMode && !mouseFlags.leftButton)
        {
            input.editedWindow.clear();
            mouseFlags.buttonEditMode = false;
        }
        if (IsButtonName(input.windowUnderMouse))
        {
            OpenMenu(&ShowButtonMenu, input.windowUnderMouse);
        }
    }
    input.contextMenuAllowed = true;
}
} // namespace ButtonEditing

CString CeGuiMainFrame::GetEditWindowName()
{
    return TextOfName(InputState::Get().editedWindow);
}
