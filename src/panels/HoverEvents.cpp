// SPDX-License-Identifier: MIT
#include "HoverEvents.h"

#include "../widgets/InputState.h"
#include "../widgets/WindowNames.h"

#include <NxOsgCeGui/CeGuiMainFrame.h>

#include <CEGUI/InputEvent.h>
#include <CEGUI/Window.h>

bool OnGuiHover(const CEGUI::EventArgs& args)
{
    InputState* input = InputState::GetIfThere();
    const CEGUI::Window* window = static_cast<const CEGUI::WindowEventArgs&>(args).window;
    if (!input || !window)
    {
        return false;
    }
    input->windowUnderMouse = WindowNames::Of(*window);
    CeGuiMainFrame& frame = *CeGuiMainFrame::GetInstance();
    frame.SetDisplySystemMouse(true);
    frame.OnMouseMove(0, input->mousePoint);
    return true;
}
