// SPDX-License-Identifier: MIT
// Title bar: logo, scene title and window buttons.
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "../panels/HoverEvents.h"
#include "../widgets/CeGuiToolBar.h"
#include "ChromeEvents.h"
#include "FrameNames.h"
#include "RootEvents.h"

#include <KernelCommonUse/MultiLanguage.h>

#include <CEGUI/Window.h>
#include <CEGUI/widgets/PushButton.h>

namespace
{
// Beside "new_skin/topBG.png", in bar pixels.
constexpr UINT ButtonSize = 24;
constexpr UINT RightMargin = 16;
constexpr UINT ButtonTop = 13;
constexpr UINT ButtonSpacing = 20;
constexpr RECT LogoRect = {15, 10, 45, 40};

struct WindowButton
{
    const wchar_t* window;
    const wchar_t* image; ///< stem of the three picture files
    const char* tooltip;  ///< translation key
    CeGuiToolBar::EventHandler clicked;
};

const WindowButton windowButtons[] = {
    {FrameNames::CloseButton, L"new_skin/close", "LKEY1", OnCloseClicked},
    {FrameNames::MinimiseButton, L"new_skin/minimize", "LKEY2", OnMinimiseClicked},
    {FrameNames::EnterFullSceneButton, L"new_skin/full", "LKEY3", OnToggleFullScene},
    {FrameNames::LeaveFullSceneButton, L"new_skin/fullesc", "LKEY4", OnLeaveFullSceneClicked},
};
} // namespace

void CeGuiMainFrame::CreateTitleBar()
{
    const RECT rect = {0, 0, static_cast<LONG>(windowWidth_), titleBarHeight_};
    CeGuiToolBar& bar = NewBar(rect, FrameNames::TitleBar, L"new_skin/topBG.png", BAR_TITLE);
    AddItemEvents(bar);
    bar.SubscribeBarEvent(CEGUI::Window::EventMouseMove, CEGUI::SubscriberSlot(&OnGuiHover));
    for (const CEGUI::String& event :
         {CEGUI::Window::EventMouseClick, CEGUI::Window::EventMouseButtonDown, CEGUI::Window::EventMouseButtonUp})
    {
        bar.SubscribeBarEvent(event, CEGUI::SubscriberSlot(&OnSwallow));
    }

    bar.buttonWidth = ButtonSize;
    bar.buttonHeight = ButtonSize;
    bar.marginX = RightMargin;
    bar.marginY = ButtonTop;
    bar.spacing = ButtonSpacing;
    for (const WindowButton& button : windowButtons)
    {
        const CString image = button.image;
        const CString tooltip = CMultiLanguageMgr::GetInstance()->translation(button.tooltip, "", "Common");
        const int index = bar.AddImageButton(button.window, image + L".png", image + L"H.png", image + L"P.png", tooltip);
        bar.SubscribeItemEvent(index, CEGUI::PushButton::EventClicked, CEGUI::SubscriberSlot(button.clicked));
    }
    bar.window->setAlwaysOnTop(true);

    const int logo = bar.AddStaticImage(LogoRect, FrameNames::Logo, L"new_skin/logo.png");
    bar.SubscribeItemEvent(logo, CEGUI::Window::EventMouseMove, CEGUI::SubscriberSlot(&OnGuiHover));
    AddTitleText(bar);
    EnterBar(bar);
}
