// SPDX-License-Identifier: MIT
// The thin borders left, right and below.
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "../panels/HoverEvents.h"
#include "../widgets/CeGuiToolBar.h"
#include "FrameNames.h"

#include <CEGUI/Window.h>

namespace
{
constexpr int RestrictedUserExtra = 3; // pixels
}

void CeGuiMainFrame::CreateBorders()
{
    const bool restricted = userType_ != GUI_USER_FULL;
    const LONG width = static_cast<LONG>(windowWidth_);
    const LONG height = static_cast<LONG>(windowHeight_);
    const LONG border = borderWidth_ + (restricted ? RestrictedUserExtra : 0);
    const LONG bottomTop = restricted ? height - border + 1 : height - borderWidth_ - 2;
    const struct
    {
        const wchar_t* window;
        const wchar_t* image;
        RECT rect;
    } borders[] = {
        {FrameNames::LeftBorder, L"new_skin/leftborder.png", {0, titleBarHeight_, border, height}},
        {FrameNames::RightBorder, L"new_skin/rightborder.png", {width - border, titleBarHeight_, width, height}},
        {FrameNames::BottomBorder, L"new_skin/bottomborder.png", {0, bottomTop, width, height}},
    };
    for (const auto& border : borders)
    {
        CeGuiToolBar& bar = NewBar(border.rect, border.window, border.image, BAR_TITLE);
        bar.SubscribeBarEvent(CEGUI::Window::EventMouseMove, CEGUI::SubscriberSlot(&OnGuiHover));
        bar.window->setAlwaysOnTop(true);
        EnterBar(bar);
    }
}
