// SPDX-License-Identifier: MIT
#include "GuiSession.h"

#include "../toast/Text.h"
#include "../views/ViewList.h"
#include "../views/ViewPictures.h"
#include "Language.h"

namespace host
{
namespace
{

CeGuiMainFrame& Frame()
{
    return *CeGuiMainFrame::GetInstance();
}

// The interface's title bar, in view pixels.
constexpr LONG TitleBarHeight = 50;
constexpr LONG TitleTextLeft = 50;
constexpr LONG TitleTextRoom = 14;     ///< more than the text measures, for the difference between measurers
constexpr LONG ButtonsFromRight = 140;

} // namespace

GuiSession::GuiSession(osgViewer::Viewer& viewer, osg::Group& slot, GUIUserType user, bool slideOut)
    : viewer_(viewer), slot_(slot), user_(user)
{
    Frame().EnableSlideOut(slideOut);
    Open();
}

GuiSession::~GuiSession()
{
    Close();
}

void GuiSession::Open()
{
    if (!IsFontFamilyInstalled(Frame().GetSceneTitleFontStyle()))
    {
        Frame().SetSceneTitleFontStyle(Translation("LKEY11"));
    }
    Frame().SetCtrlBtnInfo(MakeViewRecords(ViewPictureFolder()));
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

void GuiSession::Restart(const CString& language)
{
    Close();
    UseLanguage(language);
    Frame().SetSceneTitle(Translation("LKEY0"));
    Open();
}

bool GuiSession::IsTitleHandle(CPoint point) const
{
    if (!Frame().IsInit() || Frame().IsFullScene() || point.y < 0 || point.y >= TitleBarHeight || point.x < 0)
    {
        return false;
    }
    UINT width = 0;
    UINT height = 0;
    Frame().GetWindowSize(width, height);
    const CSize text = MeasureText(Frame().GetSceneTitle(), Frame().GetSceneTitleFontStyle(),
                                   static_cast<int>(Frame().GetSceneTitleFontHeight()));
    const bool onText = point.x >= TitleTextLeft && point.x < TitleTextLeft + text.cx + TitleTextRoom;
    return !onText && point.x < static_cast<LONG>(width) - ButtonsFromRight;
}

} // namespace host
