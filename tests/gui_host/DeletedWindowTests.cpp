// SPDX-License-Identifier: MIT
// Any window of the frame deleted by its name, in every state that a user brings the frame into; then everything goes on.
#include "EveryOperation.h"

#include "support/HostedFrame.h"
#include "widgets/Pictures.h"

#include <widgets/WindowNames.h>

#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>

#include <osgGA/EventQueue>
#include <osgViewer/GraphicsWindow>

#include <algorithm>
#include <cctype>
#include <ostream>
#include <set>

namespace
{
constexpr UINT_PTR HideTimer = 2022;
const wchar_t* const PictureTitleFile = L"tavtitleimgefile.bmp";

/// How a user gets the frame there, with real input. It begins as just built, with the mouse in the middle of the view.
struct FrameState
{
    const char* name;
    void (*enter)(GuiHost& host, CeGuiMainFrame& frame);
    int windows; ///< the least that there are
};

/// How GoogleTest prints it.
void PrintTo(const FrameState& state, std::ostream* out)
{
    *out << state.name;
}

void SetRows(CeGuiMainFrame& frame, int count)
{
    CeGuiMainFrame::PropertyRows rows(static_cast<std::size_t>(count), {L"name", L"value"});
    frame.setPropertyData(rows);
}

void SlideIn(GuiHost& host, int x, int y)
{
    host.MoveMouse(400, 301);
    host.MoveMouse(400, 300);
    host.MoveMouse(x, y);
}

void SlideOut(GuiHost& host, CeGuiMainFrame& frame, int x, int y)
{
    frame.EnableSlideOut(true);
    SlideIn(host, x, y);
    host.MoveMouse(400, 300);
    for (int i = 0; i < 4; ++i)
    {
        frame.OnTimer(HideTimer);
    }
}

void OpenPanel(GuiHost& host, CeGuiMainFrame& frame, int rows)
{
    SetRows(frame, rows);
    frame.OpenPropertyDlg(nullptr, true);
    frame.RefreshPropertyDlg();
    host.Frames(1);
}

const FrameState states[] = {
    {"at rest", [](GuiHost&, CeGuiMainFrame&) {}, 20},
    {"the list shown and its thumb dragged",
     [](GuiHost& host, CeGuiMainFrame&)
     {
         SlideIn(host, 50, 300);
         host.MoveMouse(147, 100);
         host.Press(147, 100);
         host.MoveMouse(147, 150);
     },
     20},
    {"the list sliding out", [](GuiHost& host, CeGuiMainFrame& frame) { SlideOut(host, frame, 50, 300); }, 20},
    {"a tool pressed under its tooltip",
     [](GuiHost& host, CeGuiMainFrame& frame)
     {
         SlideIn(host, 110, 550);
         host.MoveMouse(154, 555);
         host.Press(154, 555);
         frame.CreateTooltipWindow(100, 480, L"tooltip");
     },
     21},
    {"a title picture in full scene, the title bar sliding out",
     [](GuiHost& host, CeGuiMainFrame& frame)
     {
         frame.CreateTitle(L"picture", 7);
         frame.OnToolBarFullScene(true);
         SlideOut(host, frame, 400, 20);
     },
     21},
    {"the panel's list scrolled",
     [](GuiHost& host, CeGuiMainFrame& frame)
     {
         OpenPanel(host, frame, 40);
         host.Wheel(600, 300, -1);
     },
     25},
    {"the panel's list taller than a texture, and its thumb dragged",
     [](GuiHost& host, CeGuiMainFrame& frame)
     {
         OpenPanel(host, frame, 760);
         host.MoveMouse(783, 90);
         host.Press(783, 90);
         host.MoveMouse(783, 150);
     },
     26},
    {"the panel closed again, in full scene",
     [](GuiHost& host, CeGuiMainFrame& frame)
     {
         OpenPanel(host, frame, 760);
         frame.OnToolBarFullScene(true);
         frame.OpenPropertyDlg(nullptr, false);
     },
     26},
};
} // namespace

/// Pictures that are not there may be told in the log: what matters here is that nothing falls over.
class DeletedWindow : public HostedFrame, public testing::WithParamInterface<FrameState>
{
protected:
    void SetUp() override
    {
        HostedFrame::SetUp();
        WriteSkinPicture(PictureTitleFile, 0xFFFF0000);
    }

    void TearDown() override
    {
        BeginAnew();
        Frame().SetCtrlBtnInfo({});
        Frame().ClearTitleSet();
        DeleteFileW(SkinDir() + PictureTitleFile);
        CeGuiMainFrame::PropertyRows none;
        Frame().setPropertyData(none);
        Frame().setTargetData(none);
        TakeLog();
        HostedFrame::TearDown();
    }

    /// A frame just built, with a list that can be scrolled.
    void BeginAnew()
    {
        CeGuiMainFrame& frame = Frame();
        Host().Release(400, 300);
        frame.EnableSlideOut(false);
        frame.OnToolBarFullScene(false);
        frame.OpenPropertyDlg(nullptr, false);
        if (!frame.IsShowLeftToolBar())
        {
            frame.OnToolBarRCList(nullptr);
        }
        frame.SetSceneTitleFontStyle(TitleFont);
        std::vector<BTN_UNIT> records(8);
        for (BTN_UNIT& record : records)
        {
            record.name = L"entry";
        }
        records.back().name = L"last entry";
        frame.SetCtrlBtnInfo(records);
        Rebuild();
        Host().MoveMouse(400, 300);
        MakeCurrent();
    }

    void Enter()
    {
        BeginAnew();
        GetParam().enter(Host(), Frame());
        MakeCurrent();
    }

    static std::set<std::string> Names()
    {
        std::set<std::string> names;
        for (auto window = CEGUI::WindowManager::getSingleton().getIterator(); !window.isAtEnd(); ++window)
        {
            names.insert(WindowNames::Of(**window).c_str());
        }
        return names;
    }

    /// What comes from user and host at any time, with the state as it is.
    /// @param thorough with every part switched on and off, and a list taller than a texture
    static void GoOn(bool thorough)
    {
        GuiHost& host = Host();
        CeGuiMainFrame& frame = Frame();
        for (int i = 0; i < 3; ++i)
        {
            frame.OnTimer(HideTimer);
        }
        // All of it in one frame: there are many windows and states.
        osgGA::EventQueue& queue =
            *dynamic_cast<osgViewer::GraphicsWindow&>(*host.Viewer().getCamera()->getGraphicsContext()).getEventQueue();
        for (const CPoint& point : {CPoint(147, 200), CPoint(783, 200), CPoint(600, 100), CPoint(154, 555), CPoint(400, 20)})
        {
            queue.mouseMotion(static_cast<float>(point.x), static_cast<float>(point.y));
            queue.mouseScroll(osgGA::GUIEventAdapter::SCROLL_DOWN);
        }
        queue.mouseButtonRelease(154, 555, 1);
        for (const CPoint& point : {CPoint(783, 120), CPoint(60, 120), CPoint(700, 300)})
        {
            queue.mouseMotion(static_cast<float>(point.x), static_cast<float>(point.y));
            queue.mouseButtonPress(static_cast<float>(point.x), static_cast<float>(point.y), 1);
            queue.mouseButtonRelease(static_cast<float>(point.x), static_cast<float>(point.y), 1);
        }
        queue.keyPress(osgGA::GUIEventAdapter::KEY_Page_Down);
        queue.keyPress(osgGA::GUIEventAdapter::KEY_Page_Up);
        host.Frames(1);
        MakeCurrent();
        if (thorough)
        {
            SetRows(frame, 760);
            frame.RefreshPropertyDlg();
        }
        SetRows(frame, 3);
        frame.RefreshPropertyDlg();
        for (int i = 0; thorough && i < 2; ++i)
        {
            frame.OpenPropertyDlg(nullptr, !frame.IsOpenPropertyDlg());
            frame.OnToolBarFullScene(!frame.IsFullScene());
            frame.OnToolBarRCList(nullptr);
        }
        frame.CreateTooltipWindow(10, 100, L"tooltip");
        frame.ChangeTitleText(L"changed", 7, TitleFont, 12);
        frame.CreateTitle(L"picture", 7);
        host.Frames(1);
        MakeCurrent();
    }
};

TEST_P(DeletedWindow, leaves_everything_else_going)
{
    Enter();
    const std::set<std::string> names = Names();
    ASSERT_GE(names.size(), static_cast<std::size_t>(GetParam().windows));
    // Each window meets every operation and a list taller than a texture in one of the states, which differs from window to
    // window.
    auto turn = std::find_if(std::begin(states), std::end(states),
                             [&](const FrameState& state) { return state.name == GetParam().name; }) -
                std::begin(states);
    for (const std::string& name : names)
    {
        SCOPED_TRACE(name);
        const bool thorough = turn++ % static_cast<std::ptrdiff_t>(std::size(states)) == 0;
        Enter();
        ASSERT_TRUE(Names().count(name));
        Frame().DeleteButton(CString(name.c_str()));
        GoOn(thorough);
        Frame().OnToolBarFullScene(false);
        Frame().OpenPropertyDlg(nullptr, false);
        if (!Frame().IsShowLeftToolBar())
        {
            Frame().OnToolBarRCList(nullptr);
        }
        if (thorough)
        {
            CallEveryOperation(Frame());
        }
        Host().Frames(1);
        Host().TakeMessages();
    }
    Enter();
    EXPECT_EQ(Names(), names) << "all of them are there again";
}

INSTANTIATE_TEST_SUITE_P(Of, DeletedWindow, testing::ValuesIn(states),
                         [](const testing::TestParamInfo<FrameState>& tested)
                         {
                             std::string name = tested.param.name;
                             std::replace_if(
                                 name.begin(), name.end(), [](char c) { return !std::isalnum(c); }, '_');
                             return name;
                         });
