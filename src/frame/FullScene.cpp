// SPDX-License-Identifier: MIT
// Full-scene mode: the 3D view alone, with the bars sliding in at its edges.
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "../widgets/CallbackScope.h"
#include "../widgets/CeGuiToolBar.h"
#include "ChromeEvents.h"
#include "FrameNames.h"
#include "RootEvents.h"

#include <CEGUI/InputEvent.h>
#include <CEGUI/Window.h>

namespace
{
/// Shows one of two windows that share a place.
void ShowItem(CeGuiToolBar& bar, const wchar_t* name, bool show)
{
    for (const ToolBarItem& item : bar.items)
    {
        if (item.window && item.name == name)
        {
            item.window->setVisible(show);
        }
    }
}

void ShowFrame(CeGuiToolBar* bar, bool show)
{
    if (bar)
    {
        show ? bar->ShowBar() : bar->HideBar();
    }
}
} // namespace

void CeGuiMainFrame::OnToolBarFullScene(bool full)
{
    const CallbackScope scope;
    fullScene_ = full;
    LayOutForScene();
    if (propertyDlgOpen_)
    {
        RefreshPropertyDlg();
    }
}

void CeGuiMainFrame::LayOutForScene()
{
    const bool full = fullScene_;
    const LONG height = static_cast<LONG>(windowHeight_);
    const LONG border = borderWidth_;
    if (CeGuiToolBar* title = FindBar(FrameNames::TitleBar))
    {
        ShowFrame(title, !full);
        title->SetAutoHide(full);
        if (full)
        {
            // It comes back only once the mouse has been away from the top of the view.
            title->showArmed = false;
        }
        ShowItem(*title, FrameNames::EnterFullSceneButton, !full);
        ShowItem(*title, FrameNames::LeaveFullSceneButton, full);
    }
    for (const wchar_t* name : {FrameNames::LeftBorder, FrameNames::RightBorder, FrameNames::BottomBorder})
    {
        ShowFrame(FindBar(name), !full);
    }
    if (CeGuiToolBar* list = FindBar(FrameNames::LeftList))
    {
        const LONG width = list->rect.right - list->rect.left;
        const LONG left = full ? 0 : border - 1;
        const LONG top = full ? 0 : titleBarHeight_;
        const LONG right = left + width;
        list->MoveBar({left, top, right, full ? height : height - border}, windowWidth_, windowHeight_);
        list->triggerRect = {0, top, right, height - border - toolBarHeight_};
    }
    if (CeGuiToolBar* tools = FindBar(FrameNames::ToolBar))
    {
        const LONG width = tools->rect.right - tools->rect.left;
        const LONG barHeight = tools->rect.bottom - tools->rect.top;
        const LONG left = full ? 0 : border - 1;
        const LONG bottom = full ? height : height - border;
        tools->MoveBar({left, bottom - barHeight, left + width, bottom}, windowWidth_, windowHeight_);
        tools->triggerRect = {0, bottom - barHeight, tools->rect.right, height};
    }
}

bool OnToggleFullScene(const CEGUI::EventArgs&)
{
    CeGuiMainFrame& frame = *CeGuiMainFrame::GetInstance();
    frame.OnToolBarFullScene(!frame.IsFullScene());
    return true;
}

bool OnRootDoubleClick(const CEGUI::EventArgs& args)
{
    return static_cast<const CEGUI::MouseEventArgs&>(args).button == CEGUI::RightButton || OnToggleFullScene(args);
}

bool OnLeaveFullSceneClicked(const CEGUI::EventArgs&)
{
    CeGuiMainFrame::GetInstance()->OnToolBarFullScene(false);
    return true;
}
