// SPDX-License-Identifier: MIT
#include "CityHost.h"

#include "../camera/SceneInput.h"
#include "../city/Viewpoints.h"
#include "../views/ViewPictures.h"
#include "CommandTable.h"
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

CeGuiMainFrame& Frame()
{
    return *CeGuiMainFrame::GetInstance();
}

} // namespace

CameraPose CityHost::HomePose()
{
    const city::Viewpoint& first = city::Viewpoints().front();
    return CameraPose::Between(first.eye, first.centre);
}

CityHost::CityHost(const Options& options)
    : options_(options), city_(city::BuildCity(CitySeed)), camera_(HomePose(), city_.radius), roam_(camera_), actions_(*this),
      window_(options.size, *this)
{
    viewer_ = MakeViewer(window_.View(), window_.ViewSize(), options_.samples);
    BuildScene();
    window_.Show();
    Realise(*viewer_);
    MakeViewPictures(*viewer_, *city_.root);
    gui_ = std::make_unique<GuiSession>(*viewer_, *guiSlot_, options_.user, options_.slideOut);
    window_.SetTitle(Frame().GetSceneTitle());
    // The interface shows from its third frame on: the first draw is skipped, the second may build text pictures.
    NeedFrames(3);
}

CityHost::~CityHost()
{
    gui_.reset();
    toasts_.reset();
    // The context goes before the window that it draws in.
    viewer_ = nullptr;
}

void CityHost::BuildScene()
{
    const osg::ref_ptr<osg::Group> root = new osg::Group;
    guiSlot_ = new osg::Group;
    const osg::ref_ptr<osg::Group> input = new osg::Group;
    input->setEventCallback(new SceneInput(camera_));
    // Events reach them in this order: the interface has the first word.
    root->addChild(city_.root);
    root->addChild(guiSlot_);
    root->addChild(input);
    toasts_ = std::make_unique<Toasts>(*root);
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
    Pump();
    CarryOut();
    return Advance() && Draw();
}

bool CityHost::IsBusy() const
{
    return !window_.IsMinimised() &&
           (moving_ || framesDue_ > 0 || toasts_->IsChanging() || Clock::now() < barsMayMoveUntil_);
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
        // A dialog over the view has its keys first.
        if (!AfxPreTranslateMessage(&message))
        {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

void CityHost::CarryOut()
{
    for (const UINT virtualKey : std::exchange(keys_, {}))
    {
        const HostKey& key = *FindHostKey(virtualKey);
        const CString result = (actions_.*key.act)(GuiMessage());
        CString origin;
        origin.Format(Say({L"按键 %c", L"key %c"}), static_cast<wchar_t>(virtualKey));
        toasts_->Show(CString(static_cast<wchar_t>(virtualKey)), Say(key.name), result.IsEmpty() ? origin : result);
        NeedFrames(1);
    }
    for (const GuiMessage& message : std::exchange(messages_, {}))
    {
        CarryOut(message);
    }
}

void CityHost::CarryOut(const GuiMessage& message)
{
    const Command* command = FindCommand(message.code);
    const CString result = command && command->act ? (actions_.*command->act)(message) : CString();
    CString code;
    code.Format(L"%u", message.code);
    CString detail;
    detail.Format(Say({L"消息 %u，代码 %u", L"message %u, code %u"}), GUI_HOST_MESSAGE, message.code);
    if (!result.IsEmpty())
    {
        detail += Say({L"　", L"  ·  "}) + result;
    }
    toasts_->Show(code, command ? Say(command->name) : Say({L"未知代码", L"Unknown code"}), detail);
    NeedFrames(1);
}

bool CityHost::Advance()
{
    const Clock::time_point now = Clock::now();
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
    return framesDue_ > 0;
}

bool CityHost::Draw()
{
    if (inFrame_ || window_.IsMinimised())
    {
        return false;
    }
    inFrame_ = true;
    // Counted first: what comes in while the frame handles its events asks for another one.
    --framesDue_;
    viewer_->frame();
    inFrame_ = false;
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

void CityHost::SwitchLanguage(const CString& language)
{
    gui_->Restart(language);
    window_.SetTitle(Frame().GetSceneTitle());
    NeedFrames(3);
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

void CityHost::OnInput()
{
    NeedFrames(1);
    barsMayMoveUntil_ = Clock::now() + SlideTime;
}

void CityHost::OnExpose()
{
    NeedFrames(1);
}

void CityHost::OnKey(UINT virtualKey)
{
    if (FindHostKey(virtualKey))
    {
        keys_.push_back(virtualKey);
    }
}

void CityHost::OnTimer(UINT_PTR id)
{
    Frame().OnTimer(id);
    if (Clock::now() < barsMayMoveUntil_)
    {
        NeedFrames(1);
    }
}

void CityHost::OnMouseMove(UINT flags, CPoint point)
{
    Frame().OnMouseMove(flags, point);
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
    return gui_ && gui_->IsTitleHandle(point);
}

bool CityHost::HasResizeEdges() const
{
    return !Frame().IsFullScene();
}

} // namespace host
