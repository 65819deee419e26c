// SPDX-License-Identifier: MIT
#include "ChromeEvents.h"

#include "../panels/TitleEditDialog.h"

#include <NxOsgCeGui/CeGuiMainFrame.h>

#include <CEGUI/InputEvent.h>

namespace
{
CeGuiMainFrame& Frame()
{
    return *CeGuiMainFrame::GetInstance();
}

HWND ApplicationMainWindow()
{
    const CWinApp* application = AfxGetModuleState()->m_pCurrentWinApp;
    const CWnd* window = application ? application->m_pMainWnd : nullptr;
    return window ? window->GetSafeHwnd() : nullptr;
}

void EditTitle()
{
    if (Frame().GetUser() == GUI_USER_FULL)
    {
        Frame().NotifyHost(GUI_CMD_EDIT_TITLE, 0);
        OpenTitleEditDialog();
    }
}
} // namespace

bool OnSwallow(const CEGUI::EventArgs&)
{
    return true;
}

bool OnCloseClicked(const CEGUI::EventArgs&)
{
    Frame().DestoryAllToolBar();
    Frame().NotifyHost(GUI_CMD_CLOSE, 0);
    return true;
}

bool OnMinimiseClicked(const CEGUI::EventArgs&)
{
    // Twice on purpose: some hosts listen in their main window, some in the viewer's.
    PostMessageW(ApplicationMainWindow(), GUI_HOST_MESSAGE, GUI_CMD_MINIMISE, 0);
    Frame().NotifyHost(GUI_CMD_MINIMISE, 0);
    return true;
}

bool OnTitleButtonUp(const CEGUI::EventArgs& args)
{
    const auto& mouse = static_cast<const CEGUI::MouseEventArgs&>(args);
    if ((mouse.button == CEGUI::RightButton && mouse.clickCount == 1) ||
        (mouse.button == CEGUI::LeftButton && mouse.clickCount != 1))
    {
        EditTitle();
    }
    return true;
}

bool OnTitleDoubleClick(const CEGUI::EventArgs& args)
{
    // An injected double click carries no click count; it is never a single click.
    if (static_cast<const CEGUI::MouseEventArgs&>(args).button == CEGUI::LeftButton)
    {
        EditTitle();
    }
    return true;
}
