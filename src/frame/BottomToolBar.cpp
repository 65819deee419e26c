// SPDX-License-Identifier: MIT
// The bottom tool bar: a row of large tools that slides in at the lower edge.
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "../panels/HoverEvents.h"
#include "../widgets/CallbackScope.h"
#include "../widgets/CeGuiToolBar.h"
#include "../widgets/FailureLog.h"
#include "../widgets/FileImageset.h"
#include "../widgets/Names.h"
#include "ChromeEvents.h"
#include "FrameNames.h"

#include <KernelCommonUse/MultiLanguage.h>

#include <CEGUI/Exceptions.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <CEGUI/widgets/PushButton.h>

namespace
{
// Beside "new_skin/bottomBG.png", in bar pixels.
constexpr UINT ButtonSize = 62;
constexpr UINT FirstX = 30;
constexpr UINT ButtonTop = 16;
constexpr UINT ButtonSpacing = 30;
constexpr int WidthOfFiveTools = 490; // to the right of the border
constexpr int WidthOfSixTools = 582;

template <UINT Command>
bool OnTool(const CEGUI::EventArgs&)
{
    CeGuiMainFrame::GetInstance()->NotifyHost(Command, 0);
    return true;
}

bool OnPropertyTool(const CEGUI::EventArgs& args)
{
    CEGUI::Window* button = static_cast<const CEGUI::WindowEventArgs&>(args).window;
    if (!button)
    {
        return false;
    }
    CeGuiMainFrame& frame = *CeGuiMainFrame::GetInstance();
    frame.OpenPropertyDlg(button, !frame.IsOpenPropertyDlg());
    frame.NotifyHost(GUI_CMD_DISPLAY_PROPERTIES, 0);
    return true;
}

bool OnListTool(const CEGUI::EventArgs& args)
{
    CEGUI::Window* button = static_cast<const CEGUI::WindowEventArgs&>(args).window;
    if (!button)
    {
        return false;
    }
    CeGuiMainFrame::GetInstance()->OnToolBarRCList(button);
    return true;
}

struct Tool
{
    const wchar_t* name; ///< stem of its picture files
    const char* tooltip; ///< translation key
    CeGuiToolBar::EventHandler clicked;
    bool fullUserOnly;
};

const Tool tools[] = {
    {L"viewvideoset", "LKEY5", OnListTool, false},
    {L"roam", "LKEY6", OnTool<GUI_CMD_ROAM>, false},
    {L"environment", "LKEY7", OnTool<GUI_CMD_ENVIRONMENT>, false},
    {L"property", "LKEY8", OnPropertyTool, false},
    {L"obliquepathmanage", "LKEY9", OnTool<GUI_CMD_DATA_MANAGEMENT>, false},
    {L"browser", "LKEY10", OnTool<GUI_CMD_PUBLISH>, true},
};
} // namespace

void CeGuiMainFrame::CreateBottomToolBar()
{
    const bool restricted = userType_ != GUI_USER_FULL;
    const LONG height = static_cast<LONG>(windowHeight_);
    const RECT rect = {borderWidth_ - 1, height - borderWidth_ - toolBarHeight_,
                       borderWidth_ + (restricted ? WidthOfFiveTools : WidthOfSixTools), height - borderWidth_};
    CeGuiToolBar& bar = NewBar(rect, FrameNames::ToolBar, L"new_skin/bottomBG.png", BAR_TOOLS);
    bar.triggerRect = {0, rect.top, rect.right, height};
    AddItemEvents(bar);
    SubscribeSlidingBar(bar);
    bar.buttonWidth = ButtonSize;
    bar.buttonHeight = ButtonSize;
    bar.marginX = FirstX;
    bar.marginY = ButtonTop;
    bar.spacing = ButtonSpacing;
    bar.autoHide = true;
    bar.StartHideAnimation(false);

    int number = 0;
    for (const Tool& tool : tools)
    {
        ++number;
        if (restricted && tool.fullUserOnly)
        {
            continue;
        }
        CString window;
        window.Format(FrameNames::ToolButton, number);
        CString normal = CString(tool.name) + L"N.png";
        CString pushed = CString(tool.name) + L"P.png";
        if (number == 1)
        {
            // The list that it toggles is on at the start, so the first tool starts down.
            std::swap(normal, pushed);
        }
        const CString tooltip = CMultiLanguageMgr::GetInstance()->translation(tool.tooltip, "", "Common");
        const int index = bar.AddImageButton(window, normal, L"", pushed, tooltip);
        bar.SubscribeItemEvent(index, CEGUI::PushButton::EventClicked, CEGUI::SubscriberSlot(tool.clicked));
    }
    EnterBar(bar);
}

CEGUI::Window* CeGuiMainFrame::ToolButton(int number)
{
    const CeGuiToolBar* bar = FindBar(FrameNames::ToolBar);
    const std::size_t index = static_cast<std::size_t>(number) - 1;
    return bar && index < bar->items.size() ? bar->items[index].window : nullptr;
}

void CeGuiMainFrame::SubscribeSlidingBar(CeGuiToolBar& bar)
{
    bar.SubscribeBarEvent(CEGUI::Window::EventMouseMove, CEGUI::SubscriberSlot(&OnGuiHover));
    for (const CEGUI::String& event : {CEGUI::Window::EventMouseDoubleClick, CEGUI::Window::EventMouseClick,
                                       CEGUI::Window::EventMouseButtonDown, CEGUI::Window::EventMouseButtonUp})
    {
        bar.SubscribeBarEvent(event, CEGUI::SubscriberSlot(&OnSwallow));
    }
}

void CeGuiMainFrame::CreateToolBar()
{
    const CallbackScope scope;
    const wchar_t* const background = L"bottomBG.png";
    if (!CEGUI::System::getSingletonPtr() || !CEGUI::System::getSingleton().getDefaultGUIContext().getRootWindow() ||
        !MakeContextCurrent())
    {
        return;
    }
    try
    {
        FileImagesets::GetImagesetFromFile(background);
    }
    catch (const CEGUI::Exception& dropped)
    {
        LogDropped("tool bar not prepared", CString2string(background), NameBytes(dropped.getMessage()));
    }
}
