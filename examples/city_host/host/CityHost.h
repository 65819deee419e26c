// SPDX-License-Identifier: MIT
#pragma once

#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "../Options.h"
#include "../camera/OrbitCamera.h"
#include "../camera/Roam.h"
#include "../camera/SceneInput.h"
#include "../city/City.h"
#include "../publish/Publishing.h"
#include "../publish/StartScreen.h"
#include "../skin/LiveSkin.h"
#include "../toast/Toasts.h"
#include "../views/UserViews.h"
#include "../window/HostWindow.h"
#include "Actions.h"
#include "GuiMessage.h"
#include "GuiSession.h"
#include "HostClock.h"
#include "InterfaceScale.h"
#include "MenuActions.h"
#include "PropertyView.h"

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace host
{

/// The host application: a window, a viewer with the city in it, the interface over it, and the loop that feeds all three.
/// It draws when something has changed and sleeps otherwise.
class CityHost : private HostWindowEvents, private SceneEvents
{
public:
    /// @throws std::runtime_error without a window or context, CEGUI::Exception without a skin
    explicit CityHost(const Options& options);
    ~CityHost() override;

    /// Turns until the user closes the host; gives the process's exit code.
    int Run();
    /// One turn of the loop: waiting messages, what they ask for, and a frame if anything has changed.
    /// @return whether a frame was drawn
    bool Step();
    /// Whether the picture is going to change by itself.
    bool IsBusy() const;
    bool IsClosed() const { return closed_; }

    CWnd* MainWindow() { return &window_.Main(); }
    HostWindow& Window() { return window_; }
    HostClock& Time() { return clock_; }
    osgViewer::Viewer& Viewer() { return *viewer_; }
    city::City& City() { return city_; }
    OrbitCamera& Camera() { return camera_; }
    Roam& Roaming() { return roam_; }
    Toasts& Messages() { return *toasts_; }
    PropertyView& Properties() { return *properties_; }
    UserViews& Views() { return views_; }
    Publishing& Publisher() { return publishing_; }

    void Close() { closed_ = true; }
    void SwitchLanguage(const CString& language);
    /// Takes the next of the skins that lie beside each other. @return what it is called, or why it is not taken
    CString SwitchSkin();
    LiveSkin& Skin() { return *skin_; }
    /// Builds the interface's frame anew, as the control buttons now are.
    void RebuildInterface();
    void FlyHome();
    /// Where the camera starts.
    static CameraPose HomePose();

private:
    using TimePoint = HostClock::TimePoint;

    void OnGuiMessage(UINT code, LPARAM value) override;
    void OnMenuCommand(UINT id) override;
    void OnInput() override;
    void OnExpose() override;
    void OnKey(UINT virtualKey) override;
    void OnTimer(UINT_PTR id) override;
    void OnMouseMove(UINT flags, CPoint point) override;
    void OnModalTick() override;
    void OnDensity(UINT density) override;
    void OnCloseRequest() override { closed_ = true; }
    bool IsTitleHandle(CPoint point) const override;
    bool HasResizeEdges() const override;
    void OnSceneClick(CPoint point) override;
    void OnSceneDoubleClick() override;
    bool IsOnInterface(CPoint point) const override;

    void BuildScene();
    /// As a publication says; its start page comes before the interface.
    void ShowPublication();
    void OpenInterface();
    void Pump();
    /// Ticks of the timer for the bars, when time goes by steps.
    void TickSteps();
    void SlideTick(UINT_PTR id);
    void CarryOut();
    void CarryOut(const GuiMessage& message);
    void CarryOut(const MenuCommand& command);
    void CarryOutClicks();
    void TellPick();
    void FollowFrame();
    void ScaleFor(UINT density);
    /// Takes over what was changed in the skin's files.
    void FollowSkin(TimePoint now);
    void AfterRestart();
    bool Advance();
    bool Draw();
    void AdvanceStartScreen(double seconds);
    /// The window is named after the scene.
    void ShowTitle();
    void NeedFrames(int count);
    void Sleep() const;

    Options options_;
    bool closed_ = false;
    bool inFrame_ = false;
    int framesDue_ = 0;
    HostClock clock_;
    TimePoint lastAdvance_ = clock_.Now();
    TimePoint barsMayMoveUntil_ = lastAdvance_;
    bool moving_ = false;
    std::vector<GuiMessage> messages_;
    std::vector<UINT> keys_;
    std::vector<UINT> menuCommands_;
    std::vector<CPoint> clicks_;
    bool doubleClicked_ = false;
    /// When a picked building is told of, once no double click can come any more.
    std::optional<TimePoint> tellPickAt_;
    CSize laidOutFor_; ///< size of the view that the panel was last refreshed for

    city::City city_;
    OrbitCamera camera_;
    Roam roam_;
    Actions actions_;
    MenuActions menuActions_;
    Publishing publishing_;
    CString shownTitle_;
    UserViews views_;
    HostWindow window_;
    osg::ref_ptr<osgViewer::Viewer> viewer_;
    osg::ref_ptr<osg::Group> guiSlot_;
    std::unique_ptr<InterfaceScale> scale_;
    std::unique_ptr<PropertyView> properties_;
    std::unique_ptr<Toasts> toasts_;
    std::unique_ptr<StartScreen> startScreen_; ///< null but at the start of a publication
    std::unique_ptr<LiveSkin> skin_;           ///< null until the interface starts
    std::unique_ptr<GuiSession> gui_;          ///< null until the start page has been seen
};

} // namespace host
