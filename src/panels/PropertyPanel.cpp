// SPDX-License-Identifier: MIT
// The property panel: two bars at the right edge that show the panel's frame and its list as pictures.
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "../widgets/CallbackScope.h"
#include "../widgets/CeGuiToolBar.h"
#include "../widgets/FailureLog.h"
#include "../widgets/FileImageset.h"
#include "../widgets/Names.h"
#include "HoverEvents.h"
#include "PropertyPictures.h"
#include "TallList.h"
#include "TooltipEvents.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>

namespace
{
using namespace PropertyPictures;

const wchar_t* const PanelFrame = L"TavBackCtrlFrame";
const wchar_t* const ListFrame = L"TavPropertyCtrlFrame";
const wchar_t* const ThumbName = L"right_top_scrollbar";
const wchar_t* const ThumbNormal = L"new_skin/verticalscrollbar.png";
const wchar_t* const ThumbHover = L"new_skin/verticalscrollbar_hover.png";
const wchar_t* const ToolNormal = L"new_skin/propertyN.png";
const wchar_t* const ToolPushed = L"new_skin/propertyP.png";
constexpr UINT MinViewWidth = 240;
constexpr UINT MinViewHeight = 200;
// The thumb: 6 wide, 12 from the list's right edge.
constexpr UINT ThumbMargin = 12;
constexpr float ThumbWidth = 6;
constexpr float ThumbFromRight = 18;

/// Height of the list's place, set each time the frame's picture is drawn.
int listBodyHeight = 0;

CString DrawFrame(int panelHeight)
{
    listBodyHeight = panelHeight - HeaderHeight - FooterHeight;
    return WriteFrame(panelHeight);
}

void UpdateThumb(CeGuiToolBar& list)
{
    const float ratio = list.contentExtent;
    if (!(ratio > 1))
    {
        list.HideThumb();
        return;
    }
    if (!list.thumb)
    {
        list.CreateScrollThumb(ThumbMargin, ThumbName, ThumbNormal, ThumbHover, L"");
        return;
    }
    const float width = static_cast<float>(list.rect.right - list.rect.left);
    list.thumb->setArea(CEGUI::UVector2(CEGUI::UDim((width - ThumbFromRight) / width, 0), CEGUI::UDim(0, 0)),
                        CEGUI::USize(CEGUI::UDim(ThumbWidth / width, 0), CEGUI::UDim(1 / ratio, 0)));
    if (list.thumb)
    {
        list.thumb->show();
    }
}
} // namespace

void CeGuiMainFrame::OpenPropertyDlg(void* button, bool open)
{
    const CallbackScope scope;
    propertyDlgOpen_ = open;
    if (!IsFrameBuilt())
    {
        return;
    }
    RefreshPropertyDlg();
    if (button)
    {
        ShowPropertyTool(static_cast<CEGUI::Window*>(button));
    }
}

void CeGuiMainFrame::ShowPropertyTool(CEGUI::Window* button)
{
    try
    {
        // The tool bar's own pictures of this tool lie elsewhere.
        FileImagesets::GetImagesetFromFile(ToolNormal);
        CeGuiToolBar::SetButtonImages(button, ToolNormal, L"", ToolPushed, propertyDlgOpen_);
    }
    catch (const CEGUI::Exception& dropped)
    {
        LogDropped("property tool's pictures not changed", CString2string(ToolNormal), NameBytes(dropped.getMessage()));
    }
}

void CeGuiMainFrame::ClosePropertyDlg() {}

bool CeGuiMainFrame::IsNeedRefreshPropertyDlg(CPoint point)
{
    const CeGuiToolBar* panel = FindBar(PanelFrame);
    return IsFrameBuilt() && propertyDlgOpen_ && panel && panel->window && point.x < panel->rect.left;
}

bool CeGuiMainFrame::IsFrameBuilt() const
{
    return HasGui() && CEGUI::System::getSingleton().getDefaultGUIContext().getRootWindow();
}

bool CeGuiMainFrame::RefreshPropertyDlg()
{
    const CallbackScope scope;
    if (!MakeContextCurrent() || windowWidth_ < MinViewWidth || windowHeight_ < MinViewHeight || !IsFrameBuilt())
    {
        return false;
    }
    CeGuiToolBar* panel = FindBar(PanelFrame);
    CeGuiToolBar* list = FindBar(ListFrame);
    if (!propertyDlgOpen_)
    {
        for (CeGuiToolBar* bar : {panel, list})
        {
            if (bar)
            {
                bar->HideBar();
            }
        }
        return false;
    }
    try
    {
        RefreshPanelFrame(panel);
        return RefreshPropertyList(list);
    }
    catch (const CEGUI::Exception& dropped)
    {
        LogDropped("property panel not shown", CString2string(ListFrame), NameBytes(dropped.getMessage()));
        return false;
    }
}

void CeGuiMainFrame::RefreshPanelFrame(CeGuiToolBar* panel)
{
    const LONG width = static_cast<LONG>(windowWidth_);
    const LONG height = static_cast<LONG>(windowHeight_);
    const RECT rect = fullScene_
                          ? RECT{width - PanelWidth, 0, width, height}
                          : RECT{width - borderWidth_ - PanelWidth, titleBarHeight_, width - borderWidth_, height - borderWidth_};
    const int panelHeight = rect.bottom - rect.top;
    const RECT picturePlace = {0, 0, PanelWidth, panelHeight};
    if (!panel)
    {
        const CString file = DrawFrame(panelHeight);
        if (file.IsEmpty())
        {
            return;
        }
        FileImagesets::Destroy(file);
        CeGuiToolBar& bar = NewBar(rect, PanelFrame, L"", BAR_PANEL);
        const int picture = bar.AddStaticImage(picturePlace, L"TavBackgroundImage", file);
        bar.SubscribeItemEvent(picture, CEGUI::Window::EventMouseMove, CEGUI::SubscriberSlot(&OnGuiHover));
        EnterBar(bar);
        return;
    }
    panel->ShowBar();
    if (!EqualRect(&panel->rect, &rect))
    {
        const CString file = DrawFrame(panelHeight);
        panel->MoveBar(rect, windowWidth_, windowHeight_);
        panel->ChangeItemImage(0, file, picturePlace);
    }
}

bool CeGuiMainFrame::RefreshPropertyList(CeGuiToolBar* list)
{
    const LONG right = static_cast<LONG>(windowWidth_) - (fullScene_ ? 0 : borderWidth_);
    const LONG top = HeaderHeight + (fullScene_ ? 0 : titleBarHeight_);
    const RECT rect = {right - PanelWidth, top, right, top + listBodyHeight};
    const int height = ListHeight(*propertyData_, listBodyHeight);
    const RECT picturePlace = {0, 0, PanelWidth, height};
    const bool tall = IsTallList(height);
    // Drawn before anything changes: what cannot be drawn leaves the list as it is.
    const CString file = tall ? WriteTallListTop(*propertyData_, height, listBodyHeight) : WriteList(*propertyData_, height);
    if (!list)
    {
        if (file.IsEmpty())
        {
            return true;
        }
        if (!tall)
        {
            FileImagesets::Destroy(file);
        }
        CeGuiToolBar& bar = NewBar(rect, ListFrame, L"", BAR_PANEL);
        const int picture = bar.AddStaticImage(picturePlace, L"TavPropertyImage", tall ? CString() : file);
        bar.SubscribeItemEvent(picture, CEGUI::Window::EventMouseMove, CEGUI::SubscriberSlot(&OnGuiHover));
        bar.SubscribeItemEvent(picture, CEGUI::Window::EventMouseLeavesSurface, CEGUI::SubscriberSlot(&OnTooltipHide));
        EnterBar(bar);
        if (tall)
        {
            ShowTallList(bar, file, propertyData_, height);
        }
        return true;
    }
    list->ShowBar();
    if (!file.IsEmpty())
    {
        if (!EqualRect(&list->rect, &rect))
        {
            list->MoveBar(rect, windowWidth_, windowHeight_);
        }
        RemoveTallList(*list);
        if (tall)
        {
            list->PlaceItem(0, picturePlace);
            ShowTallList(*list, file, propertyData_, height);
        }
        else
        {
            list->ChangeItemImage(0, file, picturePlace);
        }
        UpdateThumb(*list);
    }
    return true;
}
