// SPDX-License-Identifier: MIT
#include "CityHost.h"

#include "../city/Viewpoints.h"
#include "../views/ViewPictures.h"
#include "CommandTable.h"
#include "Frame.h"
#include "Language.h"
#include "ViewerSetup.h"

#include <algorithm>
#include <utility>

namespace host
{
namespace
{

constexpr unsigned CitySeed = 7;
/// A bar that slides out does so in ten ticks of its timer.
constexpr std::chrono::milliseconds SlideTime(400);
constexpr DWORD FrameMilliseconds = 16;
constexpr DWORD IdleMilliseconds = 100;
/// No step of time is taken longer than that, so that what moves does not jump after a pause.
constexpr double LongestStep = 0.25;
constexpr double HomeFlightSeconds = 1.0;

/// Also ends with a frame that an exception leaves.
class InFrame
{
public:
    explicit InFrame(bool& flag) : flag_(flag) { flag_ = true; }
    ~InFrame() { End(); }
    InFrame(const InFrame&) = delete;
    InFrame& operator=(const InFrame&) = delete;
    void End() const { flag_ = false; }

private:
    bool& flag_;
};

} // namespace

CameraPose CityHost::HomePose()
{
    const city::Viewpoint& first = city::Viewpoints().front();
    return CameraPose::Between(first.eye, first.centre);
}

CityHost::CityHost(const Options& options)
    : options_(options), city_(city::BuildCity(CitySeed)), camera_(HomePose(), city_.radius), roam_(camera_), actions_(*this),
      menuActions_(*this), publishing_(*this), window_(options.size, *this)
{
    viewer_ = MakeViewer(window_.View(), window_.ViewSize(), options_.samples);
    BuildScene();
    window_.Show();
    Realise(*viewer_);
    MakeViewPictures(*viewer_, *city_.root);
    options_.publicationFolder.IsEmpty() ? OpenInterface() : ShowPublication();
}

void CityHost::ShowPublication()
{
    const Publication publication = ReadPublication(options_.publicationFolder);
    options_.user = GUI_USER_RESTRICTED;
    if (!publication.language.IsEmpty())
    {
        UseLanguage(publication.language);
    }
    Frame().SetSceneTitle(publication.title);
    Frame().SetSceneTitleFontStyle(publication.titleFont);
    Frame().SetSceneTitleColor(publication.titleColor);
    Frame().SetSceneTitleFontHeight(publication.titleHeight);
    camera_.SetPose(publication.pose);
    viewer_->getCamera()->setViewMatrix(publication.pose.ViewMatrix());
    startScreen_ = std::make_unique<StartScreen>(*viewer_->getSceneData()->asGroup(), publication.startPage);
    ShowTitle();
    NeedFrames(2);
}

void CityHost::OpenInterface()
{
    skin_ = std::make_unique<LiveSkin>(options_.skinFolder.IsEmpty() ? LiveSkin::ConfiguredFolder() : options_.skinFolder);
    gui_ = std::make_unique<GuiSession>(*viewer_, *guiSlot_, options_.user, options_.slideOut);
    ShowTitle();
    // The interface shows from its third frame on: the first draw is skipped, the second may build text pictures.
    NeedFrames(3);
}

CityHost::~CityHost()
{
    publishing_.CloseDialog();
    startScreen_.reset();
    menuActions_.CloseDialog();
    gui_.reset();
    scale_.reset();
    toasts_.reset();
    // The context goes before the window that it draws in.
    viewer_ = nullptr;
}

void CityHost::BuildScene()
{
    const osg::ref_ptr<osg::Group> root = new osg::Group;
    guiSlot_ = new osg::Group;
    const osg::ref_ptr<osg::Group> input = new osg::Group;
    input->setEventCallback(new SceneInput(camera_, *this));
    // Events reach them in this order: the interface has the first word.
    root->addChild(city_.root);
    properties_ = std::make_unique<PropertyView>(city_, *root);
    root->addChild(guiSlot_);
    root->addChild(input);
    toasts_ = std::make_unique<Toasts>(*root);
    scale_ = std::make_unique<InterfaceScale>(*root, *guiSlot_);
    ScaleFor(DensityOf(window_.Main()));
    viewer_->setSceneData(root);
    viewer_->getCamera()->setViewMatrix(camera_.Pose().ViewMatrix());
}

int CityHost::Run()
{
    while (!closed_)
    {
        Step();
        Sleep();
    }
    return 0;
}

bool CityHost::Step()
{
    clock_.Turn();
    Pump();
    TickSteps();
    CarryOut();
    return Advance() && Draw();
}

bool CityHost::IsBusy() const
{
    return !window_.IsMinimised() &&
           (moving_ || framesDue_ > 0 || toasts_->IsChanging() || tellPickAt_ || clock_.Now() < barsMayMoveUntil_);
}

void CityHost::Pump()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
    {
        if (message.message == WM_QUIT)
        {
            closed_ = true;
            return;
        }
        if (message.hwnd && GetAncestor(message.hwnd, GA_ROOT) != window_.Main().GetSafeHwnd())
        {
            // What is done in a dialog may change the scene's title or the control buttons.
            NeedFrames(1);
        }
        // A dialog over the view has its keys first.
        if (!AfxPreTranslateMessage(&message))
        {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

bool CityHost::Advance()
{
    const TimePoint now = clock_.Now();
    const double seconds = std::min(std::chrono::duration<double>(now - lastAdvance_).count(), LongestStep);
    lastAdvance_ = now;
    const bool roamed = roam_.Advance(seconds);
    const bool moved = camera_.Advance(seconds);
    moving_ = roamed || moved;
    if (moving_)
    {
        viewer_->getCamera()->setViewMatrix(camera_.Pose().ViewMatrix());
    }
    UINT width = 0;
    UINT height = 0;
    Frame().GetWindowSize(width, height);
    const bool toastsChanged = toasts_->Advance(seconds, CSize(static_cast<int>(width), static_cast<int>(height)));
    if (moving_ || toastsChanged)
    {
        NeedFrames(1);
    }
    if (startScreen_)
    {
        AdvanceStartScreen(seconds);
    }
    FollowSkin(now);
    ShowTitle();
    return framesDue_ > 0;
}

void CityHost::FollowFrame()
{
    UINT width = 0;
    UINT height = 0;
    Frame().GetWindowSize(width, height);
    const CSize view(static_cast<int>(width), static_cast<int>(height));
    if (view != laidOutFor_)
    {
        laidOutFor_ = view;
        // The interface has built its panel anew, which gets its scroll bar when it is refreshed.
        if (Frame().RefreshPropertyDlg())
        {
            NeedFrames(1);
        }
    }
}

bool CityHost::Draw()
{
    if (inFrame_ || window_.IsMinimised())
    {
        return false;
    }
    const InFrame within(inFrame_);
    // Windows that came under the mouse since the last frame have set it; the frame's own events say where the mouse is.
    Frame().SetDisplySystemMouse(false);
    // Counted first: what comes in while the frame handles its events asks for another one.
    --framesDue_;
    viewer_->frame();
    within.End();
    FollowFrame();
    return true;
}

void CityHost::NeedFrames(int count)
{
    framesDue_ = std::max(framesDue_, count);
}

void CityHost::Sleep() const
{
    if (framesDue_ == 0 || window_.IsMinimised())
    {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, IsBusy() ? FrameMilliseconds : IdleMilliseconds, QS_ALLINPUT);
    }
}

void CityHost::AdvanceStartScreen(double seconds)
{
    if (startScreen_->Advance(seconds, window_.ViewSize()))
    {
        NeedFrames(1);
    }
    if (startScreen_->IsOver())
    {
        startScreen_.reset();
        OpenInterface();
    }
}

void CityHost::ShowTitle()
{
    if (Frame().GetSceneTitle() != shownTitle_)
    {
        shownTitle_ = Frame().GetSceneTitle();
        window_.SetTitle(shownTitle_);
    }
}

void CityHost::FlyHome()
{
    roam_.Stop();
    camera_.FlyTo(HomePose(), HomeFlightSeconds);
}

void CityHost::OnGuiMessage(UINT code, LPARAM value)
{
    GuiMessage message;
    message.code = code;
    if (code == GUI_CMD_CONTROL_BUTTON && value)
    {
        message.button = *reinterpret_cast<const BTN_UNIT*>(value);
    }
    messages_.push_back(message);
}

void CityHost::OnMenuCommand(UINT id)
{
    if (FindMenuCommand(id))
    {
        menuCommands_.push_back(id);
    }
}

void CityHost::OnSceneClick(CPoint point)
{
    if (startScreen_)
    {
        startScreen_->End();
        return;
    }
    clicks_.push_back(point);
}

void CityHost::OnSceneDoubleClick()
{
    doubleClicked_ = !startScreen_;
}

bool CityHost::IsOnInterface(CPoint point) const
{
    return gui_ && gui_->IsOnFrame(scale_->Inner(point));
}

void CityHost::OnInput()
{
    NeedFrames(1);
    barsMayMoveUntil_ = clock_.Now() + SlideTime;
}

void CityHost::OnExpose()
{
    NeedFrames(1);
}

void CityHost::OnKey(UINT virtualKey)
{
    if (startScreen_)
    {
        startScreen_->End();
    }
    else if (FindHostKey(virtualKey))
    {
        keys_.push_back(virtualKey);
    }
}

void CityHost::OnTimer(UINT_PTR id)
{
    // By steps the ticks come with the turns of the loop.
    if (!clock_.IsStepped())
    {
        SlideTick(id);
    }
}

void CityHost::TickSteps()
{
    for (HostClock::Duration passed = HostWindow::SlideTick; passed <= clock_.Step(); passed += HostWindow::SlideTick)
    {
        SlideTick(HostWindow::SlideTimer);
    }
}

void CityHost::SlideTick(UINT_PTR id)
{
    Frame().OnTimer(id);
    if (clock_.Now() < barsMayMoveUntil_)
    {
        NeedFrames(1);
    }
}

void CityHost::OnMouseMove(UINT flags, CPoint point)
{
    Frame().OnMouseMove(flags, scale_->Inner(point));
}

void CityHost::OnModalTick()
{
    if (Advance())
    {
        Draw();
    }
}

bool CityHost::IsTitleHandle(CPoint point) const
{
    return gui_ && gui_->IsTitleHandle(scale_->Inner(point));
}

bool CityHost::HasResizeEdges() const
{
    return !Frame().IsFullScene();
}

} // namespace host
