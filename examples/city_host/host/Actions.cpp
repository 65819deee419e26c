// SPDX-License-Identifier: MIT
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "Actions.h"

#include "../objects/ObjectRows.h"
#include "../views/ViewList.h"
#include "CityHost.h"
#include "Language.h"

#include <osg/GL>

#ifndef GL_MULTISAMPLE
#define GL_MULTISAMPLE 0x809D
#endif

namespace host
{
namespace
{

constexpr double WalkStep = 0.12; ///< of the distance to the target
constexpr double FlightSeconds = 1.0;
constexpr int VideoKind = 1;

const Words dayTimeNames[] = {{L"早晨", L"Morning"}, {L"正午", L"Noon"}, {L"傍晚", L"Evening"}, {L"夜晚", L"Night"}};

} // namespace

CString Actions::Publish(const GuiMessage&)
{
    return host_.Publisher().Ask();
}

CString Actions::StartRoaming(const GuiMessage&)
{
    host_.Camera().SetRotating(false);
    host_.Roaming().Start();
    return Say({L"按 Esc 键结束", L"Escape ends it"});
}

CString Actions::StopRoaming(const GuiMessage&)
{
    if (!host_.Roaming().IsRunning() && !host_.Camera().IsRotating())
    {
        return CString();
    }
    host_.Roaming().Stop();
    host_.Camera().SetRotating(false);
    return Say({L"镜头已停止", L"the camera stands still"});
}

CString Actions::ToggleMultisampling(const GuiMessage&)
{
    const osg::GraphicsContext::Traits* traits = host_.Viewer().getCamera()->getGraphicsContext()->getTraits();
    if (!traits || traits->samples == 0)
    {
        return Say({L"此窗口没有多重采样", L"this window has no multisampling"});
    }
    multisampling_ = !multisampling_;
    host_.City().root->getOrCreateStateSet()->setMode(GL_MULTISAMPLE,
                                                      multisampling_ ? osg::StateAttribute::ON : osg::StateAttribute::OFF);
    return multisampling_ ? Say({L"已开启", L"on"}) : Say({L"已关闭", L"off"});
}

CString Actions::NextDayTime(const GuiMessage&)
{
    const int next = (static_cast<int>(dayTime_) + 1) % 4;
    dayTime_ = static_cast<city::DayTime>(next);
    city::ApplyDayTime(host_.City(), dayTime_);
    return Say(dayTimeNames[next]);
}

CString Actions::ToggleMusic(const GuiMessage&)
{
    if (music_.IsPlaying())
    {
        music_.Stop();
        return Say({L"音乐已停止", L"the music has stopped"});
    }
    if (!Music::HasDevice())
    {
        return Say({L"此计算机没有声音设备", L"this machine has no sound device"});
    }
    return music_.Start() ? Say({L"循环播放", L"playing over and over"}) : Say({L"无法播放", L"it cannot be played"});
}

CString Actions::ShowProperties(const GuiMessage&)
{
    // The interface has toggled its panel already.
    if (!CeGuiMainFrame::GetInstance()->IsOpenPropertyDlg())
    {
        return Say({L"已关闭", L"closed"});
    }
    host_.Properties().ShowObject();
    const city::Building* const picked = host_.Properties().Picked();
    return picked ? InLanguage(picked->name) : CString(Say({L"单击建筑查看其属性", L"click a building to see its data"}));
}

CString Actions::ShowLayers(const GuiMessage&)
{
    CeGuiMainFrame& frame = *CeGuiMainFrame::GetInstance();
    if (!frame.IsOpenPropertyDlg())
    {
        frame.OpenPropertyDlg(nullptr, true);
        // The tool that shows the panel's state is drawn anew with the frame.
        host_.RebuildInterface();
    }
    host_.Properties().ShowLayers(*host_.City().root);
    return Say({L"场景图层", L"the scene's layers"});
}

CString Actions::ShowView(const GuiMessage& message)
{
    const CameraPose* const added = message.button ? host_.Views().Find(message.button->name) : nullptr;
    if (added)
    {
        host_.Roaming().Stop();
        host_.Camera().FlyTo(*added, FlightSeconds);
        return message.button->target;
    }
    const city::Viewpoint* viewpoint = message.button ? FindViewpoint(*message.button) : nullptr;
    if (!viewpoint)
    {
        return Say({L"没有这个视点", L"there is no such view"});
    }
    host_.Roaming().Stop();
    host_.Camera().SetRotating(false);
    if (viewpoint->isVideo)
    {
        host_.Roaming().Start();
    }
    else
    {
        host_.Camera().FlyTo(CameraPose::Between(viewpoint->eye, viewpoint->centre), FlightSeconds);
        host_.Camera().SetRotating(message.button->kind == VideoKind);
    }
    return message.button->target;
}

CString Actions::ToggleSlideOut(const GuiMessage&)
{
    CeGuiMainFrame& frame = *CeGuiMainFrame::GetInstance();
    frame.EnableSlideOut(!frame.IsSlideOutEnabled());
    return frame.IsSlideOutEnabled() ? Say({L"已开启", L"on"}) : Say({L"已关闭", L"off"});
}

CString Actions::Close(const GuiMessage&)
{
    host_.Close();
    return CString();
}

CString Actions::Minimise(const GuiMessage&)
{
    // The message comes twice, to the main window and to the view; the second finds nothing left to do.
    host_.Window().Minimise();
    return CString();
}

CString Actions::ToggleRotation(const GuiMessage&)
{
    host_.Roaming().Stop();
    const bool rotate = !host_.Camera().IsRotating();
    host_.Camera().SetRotating(rotate);
    return rotate ? Say({L"开始环绕", L"circling the city"}) : Say({L"停止环绕", L"circling has ended"});
}

CString Actions::WalkForward(const GuiMessage&)
{
    host_.Camera().Walk(WalkStep, 0.0);
    return Say({L"镜头向前", L"camera forward"});
}

CString Actions::WalkBack(const GuiMessage&)
{
    host_.Camera().Walk(-WalkStep, 0.0);
    return Say({L"镜头向后", L"camera back"});
}

CString Actions::WalkLeft(const GuiMessage&)
{
    host_.Camera().Walk(0.0, -WalkStep);
    return Say({L"镜头向左", L"camera to the left"});
}

CString Actions::WalkRight(const GuiMessage&)
{
    host_.Camera().Walk(0.0, WalkStep);
    return Say({L"镜头向右", L"camera to the right"});
}

CString Actions::SwitchLanguage(const GuiMessage&)
{
    host_.SwitchLanguage(IsChinese() ? L"en" : L"zh-CN");
    return Say({L"中文", L"English"});
}

CString Actions::SwitchSkin(const GuiMessage&)
{
    return host_.SwitchSkin();
}

CString Actions::FlyHome(const GuiMessage&)
{
    host_.FlyHome();
    return CString();
}

} // namespace host
