// SPDX-License-Identifier: MIT
#include "GuiSession.h"

#include "../toast/Text.h"
#include "../views/ViewList.h"
#include "../views/ViewPictures.h"
#include "Frame.h"
#include "Language.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace host
{
namespace
{

// The interface's title bar, in view pixels.
constexpr LONG TitleBarHeight = 50;
constexpr float HighestTitle = 1000; // pixels
constexpr LONG TitleTextLeft = 50;
constexpr LONG TitleTextRoom = 14; ///< more than the text measures, for the difference between measurers
constexpr LONG ButtonsFromRight = 140;

/// Each record carries its caption in both languages.
void ExchangeLanguages(std::vector<BTN_UNIT>& records)
{
    for (BTN_UNIT& record : records)
    {
        // One without a caption is to stay so.
        if (!record.target.IsEmpty())
        {
            std::swap(record.target, record.text);
        }
    }
}

} // namespace

GuiSession::GuiSession(osgViewer::Viewer& viewer, osg::Group& slot, GUIUserType user, bool slideOut)
    : viewer_(viewer), slot_(slot), user_(user)
{
    Frame().EnableSlideOut(slideOut);
    Frame().SetCtrlBtnInfo(MakeViewRecords(ViewPictureFolder()));
    Open();
}

GuiSession::~GuiSession()
{
    Close();
}

void GuiSession::Open()
{
    Frame().Init(&viewer_, user_);
    slot_.addChild(Frame().GetGUINode());
    // No resize event comes by itself, and the frame is built by one.
    const osg::Viewport& viewport = *viewer_.getCamera()->getViewport();
    viewer_.getEventQueue()->windowResize(0, 0, static_cast<int>(viewport.width()), static_cast<int>(viewport.height()));
}

void GuiSession::Close()
{
    Frame().CloseGuiSystem();
    slot_.removeChildren(0, slot_.getNumChildren());
}

void GuiSession::Restart(const std::function<void()>& between)
{
    const bool panelOpen = Frame().IsOpenPropertyDlg();
    Close();
    if (between)
    {
        between();
    }
    Open();
    // A start begins without the panel; the frame that is built next shows it.
    Frame().OpenPropertyDlg(nullptr, panelOpen);
}

void GuiSession::RestartIn(const CString& language)
{
    Restart(
        [&]
        {
            const bool chinese = IsChinese();
            const bool ownTitle = Frame().GetSceneTitle() != Translation("LKEY0");
            UseLanguage(language);
            if (IsChinese() != chinese)
            {
                ExchangeLanguages(Frame().GetCtrlBtnInfo());
            }
            if (!ownTitle)
            {
                Frame().SetSceneTitle(Translation("LKEY0"));
            }
        });
}

void GuiSession::Rebuild()
{
    try
    {
        Frame().ClearAllWindows();
        Frame().CreateMainFrame();
    }
    catch (const std::exception&)
    {
        // The interface's log names the picture that is missing; the host goes on without a frame.
    }
    Frame().OnMouseMove(0, Frame().GetMousePoint());
}

bool GuiSession::IsOnTitleBar(CPoint point) const
{
    return Frame().IsInit() && !Frame().IsFullScene() && point.y >= 0 && point.y < TitleBarHeight && point.x >= 0;
}

bool GuiSession::IsOnFrame(CPoint point) const
{
    const bool onPanel = Frame().IsOpenPropertyDlg() && !Frame().IsNeedRefreshPropertyDlg(point);
    return IsOnTitleBar(point) || onPanel;
}

bool GuiSession::IsTitleHandle(CPoint point) const
{
    if (!IsOnTitleBar(point))
    {
        return false;
    }
    UINT width = 0;
    UINT height = 0;
    Frame().GetWindowSize(width, height);
    // A published title may have any height, also one that is no number.
    const float titleHeight = Frame().GetSceneTitleFontHeight();
    const int pixels = titleHeight > 0 ? static_cast<int>(std::min(titleHeight, HighestTitle)) : 0;
    const CSize text = MeasureText(Frame().GetSceneTitle(), Frame().GetSceneTitleFontStyle(), pixels);
    const bool onText = point.x >= TitleTextLeft && point.x < TitleTextLeft + text.cx + TitleTextRoom;
    return !onText && point.x < static_cast<LONG>(width) - ButtonsFromRight;
}

} // namespace host
