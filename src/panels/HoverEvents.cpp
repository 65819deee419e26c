// SPDX-License-Identifier: MIT
#include "HoverEvents.h"

#include "../widgets/InputState.h"
#include "../widgets/WindowNames.h"

#include <NxOsgCeGui/CeGuiMainFrame.h>

#include <CEGUI/InputEvent.h>
#include <CEGUI/Window.h>

namespace
{
const char* const PropertyImagePrefix = "TavPropertyImage";
constexpr int PrefixLength = 16;
constexpr int ValueColumn = 130; // pixels from the view's right edge
constexpr int RowHeight = 23;    // pixels
constexpr int FirstRow = 85;     // pixels from the view's top, the title bar included
constexpr int FirstRowInFullScene = 35;
constexpr int CharacterWidth = 6; // pixels, as tooltips count
constexpr int TooltipAbove = 28;  // pixels

/// The whole name of the row under the mouse. The list's scroll position is left out, on purpose.
void ShowRowTooltip(CeGuiMainFrame& frame, CPoint mouse)
{
    UINT width = 0;
    UINT height = 0;
    frame.GetWindowSize(width, height);
    const int row = (mouse.y - (frame.IsFullScene() ? FirstRowInFullScene : FirstRow)) / RowHeight;
    if (mouse.x >= static_cast<int>(width) - ValueColumn || row < 0 || row >= frame.PropertyRowCount())
    {
        frame.DestroyTooltipWindow();
        return;
    }
    const CString name = frame.PropertyRowName(row);
    frame.CreateTooltipWindow(mouse.x - name.GetLength() * CharacterWidth / 2, mouse.y - TooltipAbove, name);
}
} // namespace

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
    if (input->windowUnderMouse.compare(0, PrefixLength, PropertyImagePrefix) == 0)
    {
        ShowRowTooltip(frame, input->mousePoint);
    }
    frame.OnMouseMove(0, input->mousePoint);
    return true;
}
