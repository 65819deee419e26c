// SPDX-License-Identifier: MIT
// The one tooltip window.
#include "TooltipEvents.h"

#include "../widgets/CallbackScope.h"
#include "../widgets/FailureLog.h"
#include "../widgets/FileImageset.h"
#include "../widgets/Names.h"
#include "../widgets/WindowNames.h"
#include "TitleEditDialog.h"
#include "TooltipPicture.h"

#include <NxOsgCeGui/CeGuiMainFrame.h>

#include <CEGUI/CoordConverter.h>
#include <CEGUI/Exceptions.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/Renderer.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>

#include <algorithm>

namespace
{
const char* const TooltipWindow = "tavguitooltipwindow";
constexpr int ItemGap = 8; // pixels between an item and its tooltip
constexpr int ViewGap = 4; // pixels between a tooltip and the view's edge

CEGUI::Window* RootWindow()
{
    CEGUI::System* system = CEGUI::System::getSingletonPtr();
    return system ? system->getDefaultGUIContext().getRootWindow() : nullptr;
}
} // namespace

void CeGuiMainFrame::CreateTooltipWindow(int x, int y, const CString& text)
{
    const CallbackScope scope;
    CEGUI::Window* root = RootWindow();
    if (!root)
    {
        return;
    }
    DestroyTooltipWindow();
    const int widest = static_cast<int>(CEGUI::System::getSingleton().getRenderer()->getMaxTextureSize());
    if (text.IsEmpty() || !WriteTooltipPicture(text, widest) || !MakeContextCurrent())
    {
        return;
    }
    try
    {
        // Left over when somebody else has destroyed the window that showed it.
        FileImagesets::Destroy(TooltipPictureFile);
        const CEGUI::Image& image = FileImagesets::Create(TooltipPictureFile);
        CEGUI::Window& window = *WindowNames::Create("TavLook/StaticImage", TooltipWindow);
        const CSize size = TooltipSize(text);
        const float width = static_cast<float>(windowWidth_);
        const float height = static_cast<float>(windowHeight_);
        window.setSize(CEGUI::USize(CEGUI::UDim(size.cx / width, 0), CEGUI::UDim(size.cy / height, 0)));
        window.setPosition(CEGUI::UVector2(CEGUI::UDim(x / width, 0), CEGUI::UDim(y / height, 0)));
        FileImagesets::Apply(window, "Image", image);
        window.setAlwaysOnTop(true);
        // What lies below goes on getting the mouse: a tooltip under the cursor would take it off its own item.
        window.setMousePassThroughEnabled(true);
        WindowNames::AddChild(*root, window);
    }
    catch (const CEGUI::Exception& dropped)
    {
        LogDropped("tooltip not shown", CString2string(TooltipPictureFile), NameBytes(dropped.getMessage()));
    }
}

void CeGuiMainFrame::DestroyTooltipWindow()
{
    const CallbackScope scope;
    CEGUI::Window* root = RootWindow();
    if (!root || !root->isChild(TooltipWindow) || !MakeContextCurrent())
    {
        return;
    }
    WindowNames::Destroy(*root->getChild(TooltipWindow));
    FileImagesets::Destroy(TooltipPictureFile);
}

bool OnTooltipShow(const CEGUI::EventArgs& args)
{
    CeGuiMainFrame& frame = *CeGuiMainFrame::GetInstance();
    frame.SetDisplySystemMouse(true);
    const CEGUI::Window* item = static_cast<const CEGUI::WindowEventArgs&>(args).window;
    if (!item)
    {
        return true;
    }
    const CString text = _a2w(NameBytes(item->getTooltipText()));
    const CSize size = TooltipSize(text);
    const CEGUI::Rectf area = item->getUnclippedOuterRect().get();
    UINT width = 0;
    UINT height = 0;
    frame.GetWindowSize(width, height);
    const int centred = static_cast<int>((area.left() + area.right()) / 2) - size.cx / 2;
    const int rightmost = static_cast<int>(width) - size.cx - ViewGap;
    const int x = std::max(ViewGap, std::min(centred, rightmost));
    // Below an item of the upper half of the view, above one of the lower half.
    const bool below = area.top() + area.bottom() < static_cast<float>(height);
    const int y = below ? static_cast<int>(area.bottom()) + ItemGap : static_cast<int>(area.top()) - ItemGap - size.cy;
    frame.CreateTooltipWindow(x, y, text);
    return true;
}

bool OnTooltipHide(const CEGUI::EventArgs&)
{
    CeGuiMainFrame::GetInstance()->DestroyTooltipWindow();
    return true;
}

bool OnItemPressed(const CEGUI::EventArgs& args)
{
    CloseTitleEditDialog();
    return OnTooltipHide(args);
}
