// SPDX-License-Identifier: MIT
// The left list: one thumbnail for each control button, sliding in at the left edge.
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "../control_buttons/ButtonWindows.h"
#include "../panels/HoverEvents.h"
#include "../panels/Thumbnails.h"
#include "../widgets/CallbackScope.h"
#include "../widgets/CeGuiToolBar.h"
#include "../widgets/FileImageset.h"
#include "FrameNames.h"

#include <CEGUI/Window.h>
#include <CEGUI/widgets/PushButton.h>

namespace
{
// Beside "new_skin/leftBG.png", in bar pixels.
constexpr UINT EntryWidth = 126;
constexpr UINT EntryHeight = 96;
constexpr UINT EntryX = 10;
constexpr UINT EntrySpacing = 13; // also above the first
constexpr int RightOfBorder = 151;
constexpr UINT ThumbMargin = 3;

CString NormalFile(const CString& stem)
{
    return stem.IsEmpty() ? CString() : stem + L"_N.bmp";
}

CString PushedFile(const CString& stem)
{
    return stem.IsEmpty() ? CString() : stem + L"_P.bmp";
}

void SetEntryPushed(CeGuiToolBar& list, int index, bool pushed)
{
    const CString stem = ThumbnailStem(static_cast<UINT>(index));
    // An entry whose thumbnail could not be made has none to change; that was told when it was to be made.
    if (!FileImagesets::IsPresent(NormalFile(stem)))
    {
        return;
    }
    list.SetItemImages(index, NormalFile(stem), L"", PushedFile(stem), pushed);
}
} // namespace

void CeGuiMainFrame::CreateLeftList()
{
    const LONG height = static_cast<LONG>(windowHeight_);
    const RECT rect = {borderWidth_ - 1, titleBarHeight_, borderWidth_ + RightOfBorder, height - borderWidth_};
    CeGuiToolBar& list = NewBar(rect, FrameNames::LeftList, L"new_skin/leftBG.png", BAR_LIST);
    list.triggerRect = {0, titleBarHeight_, borderWidth_ + RightOfBorder, height - toolBarHeight_ - borderWidth_};
    list.itemEvents[CEGUI::Window::EventMouseMove] = OnGuiHover;
    list.itemEvents[CEGUI::PushButton::EventClicked] = OnControlButtonClicked;
    SubscribeSlidingBar(list);
    list.buttonWidth = EntryWidth;
    list.buttonHeight = EntryHeight;
    list.marginX = EntryX;
    list.marginY = EntrySpacing;
    list.spacing = EntrySpacing;
    list.autoHide = true;
    list.StartHideAnimation(false);

    list.BeginButtons();
    for (int i = 0; i < ControlButtonCount(); ++i)
    {
        const BTN_UNIT& record = controlButtons_[static_cast<std::size_t>(i)];
        const CString stem = MakeThumbnail(record.target, record.lastText, static_cast<UINT>(i), record.kind);
        list.AddImageButton(EntryWindowName(record), NormalFile(stem), L"", PushedFile(stem), L"");
    }
    list.EndButtons();
    list.CreateScrollThumb(ThumbMargin, L"scrollbar", L"new_skin/verticalscrollbar.png", L"new_skin/verticalscrollbar_hover.png",
                           L"");
    EnterBar(list);
}

void CeGuiMainFrame::OnToolBarRCList(void* button)
{
    const CallbackScope scope;
    CeGuiToolBar* list = FindBar(FrameNames::LeftList);
    CeGuiToolBar* tools = FindBar(FrameNames::ToolBar);
    if (!list || !tools)
    {
        return;
    }
    showLeftToolBar_ = !showLeftToolBar_;
    list->SetAutoHide(showLeftToolBar_);
    if (showLeftToolBar_)
    {
        list->ShowBar();
        tools->HideBar();
    }
    else
    {
        list->HideBar();
    }
    tools->SetButtonImages(static_cast<CEGUI::Window*>(button), L"viewvideosetN.png", L"", L"viewvideosetP.png",
                           showLeftToolBar_);
}

bool CeGuiMainFrame::ChangeLeftBtnState(int oldIndex, int newIndex, bool scrollTo)
{
    const CallbackScope scope;
    if (newIndex == oldIndex)
    {
        return false;
    }
    CeGuiToolBar* list = FindBar(FrameNames::LeftList);
    if (!list || !MakeContextCurrent())
    {
        return true;
    }
    if (oldIndex >= 0 && oldIndex < ControlButtonCount())
    {
        SetEntryPushed(*list, oldIndex, false);
    }
    if (newIndex >= 0 && newIndex < ControlButtonCount())
    {
        SetEntryPushed(*list, newIndex, true);
        if (scrollTo)
        {
            list->ScrollToItem(newIndex);
        }
    }
    return true;
}
