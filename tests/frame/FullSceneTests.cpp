// SPDX-License-Identifier: MIT
// Full-scene mode: what is where in it and after it.
#include "Names.h"

#include "support/FrameTest.h"

#include <CEGUI/Window.h>

namespace
{
const wchar_t* const Title = L"TavTitleBackground";
const wchar_t* const Tools = L"TavBotCtrlFrame";

/// Rectangles of title bar, list and tool bar, each with its hot rectangle.
struct Layout
{
    std::string title, titleHot, list, listHot, tools, toolsHot;
};

bool operator==(const Layout& a, const Layout& b)
{
    return a.title == b.title && a.titleHot == b.titleHot && a.list == b.list && a.listHot == b.listHot && a.tools == b.tools &&
           a.toolsHot == b.toolsHot;
}

std::ostream& operator<<(std::ostream& out, const Layout& l)
{
    return out << "title " << l.title << " hot " << l.titleHot << ", list " << l.list << " hot " << l.listHot << ", tools "
               << l.tools << " hot " << l.toolsHot;
}

const Layout Windowed = {"0,0 - 800,50",   "0,0 - 800,50",    "1,50 - 153,598",
                         "0,50 - 153,508", "1,508 - 584,598", "0,508 - 584,600"};
const Layout FullScene = {"0,0 - 800,50", "0,0 - 800,50", "0,0 - 152,600", "0,0 - 152,508", "0,510 - 583,600", "0,510 - 583,600"};
} // namespace

class FullSceneTest : public FrameTest
{
protected:
    static Layout Now()
    {
        return {Place("TavTitleBackground"),    Text(Bar(Title).triggerRect), Place("TavLeftCtrlFrame"),
                Text(Bar(ListKey).triggerRect), Place("TavBotCtrlFrame"),     Text(Bar(Tools).triggerRect)};
    }

    /// The windows that are shown, of those that the mode is about.
    static Lines Shown()
    {
        Lines shown;
        for (const char* name : {"TavTitleBackground", "TavLeftBorderBackground", "TavRightBorderBackground",
                                 "TavBottomBorderBackground", "TavLeftCtrlFrame", "TavBotCtrlFrame"})
        {
            if (Visible(name))
            {
                shown.push_back(name);
            }
        }
        return shown;
    }

    static void ExpectWindowed()
    {
        EXPECT_EQ(Now(), Windowed);
        EXPECT_EQ(Shown(), (Lines{"TavTitleBackground", "TavLeftBorderBackground", "TavRightBorderBackground",
                                  "TavBottomBorderBackground"}));
        EXPECT_TRUE(Visible("TavTilteMaxboxButtom"));
        EXPECT_FALSE(Visible("TavFullTilteEscBtn"));
        EXPECT_FALSE(Bar(Title).autoHide);
    }

    static void ExpectFullScene()
    {
        EXPECT_EQ(Now(), FullScene);
        EXPECT_EQ(Shown(), Lines{});
        EXPECT_FALSE(GuiHost::Find("TavTilteMaxboxButtom")->isVisible());
        EXPECT_TRUE(GuiHost::Find("TavFullTilteEscBtn")->isVisible());
        EXPECT_TRUE(Bar(Title).autoHide);
    }
};

TEST_F(FullSceneTest, is_off_at_first)
{
    EXPECT_FALSE(Frame().IsFullScene());
    ExpectWindowed();
}

TEST_F(FullSceneTest, entering_gives_the_whole_view_to_the_scene)
{
    Frame().OnToolBarFullScene(true);
    EXPECT_TRUE(Frame().IsFullScene());
    EXPECT_FALSE(Bar(Title).showArmed);
    ExpectFullScene();
    const Screenshot shot = Host().Shoot();
    const auto other = [](Pixel p) { return !(p == Background()); };
    EXPECT_EQ(std::count_if(shot.pixels.begin(), shot.pixels.end(), other), 0) << "pixels that are not the scene's";
}

TEST_F(FullSceneTest, entering_twice_is_entering_once)
{
    Frame().OnToolBarFullScene(true);
    Frame().OnToolBarFullScene(true);
    EXPECT_TRUE(Frame().IsFullScene());
    ExpectFullScene();
}

TEST_F(FullSceneTest, leaving_brings_the_frame_back_to_the_pixel)
{
    const Screenshot before = Host().Shoot();
    Frame().OnToolBarFullScene(true);
    Frame().OnToolBarFullScene(false);
    EXPECT_FALSE(Frame().IsFullScene());
    ExpectWindowed();
    EXPECT_TRUE(Host().Shoot().pixels == before.pixels);
    Frame().OnToolBarFullScene(false);
    ExpectWindowed();
}

TEST_F(FullSceneTest, many_switches_keep_the_widths_of_list_and_tool_bar)
{
    for (int i = 0; i < 10; ++i)
    {
        Frame().OnToolBarFullScene(true);
        ExpectFullScene();
        Frame().OnToolBarFullScene(false);
    }
    ExpectWindowed();
}

TEST_F(FullSceneTest, another_users_shorter_tool_bar_keeps_its_width)
{
    Restart(GUI_USER_RESTRICTED);
    Frame().OnToolBarFullScene(true);
    EXPECT_EQ(Place("TavBotCtrlFrame"), "0,510 - 491,600");
    Frame().OnToolBarFullScene(false);
    EXPECT_EQ(Place("TavBotCtrlFrame"), "1,508 - 492,598");
    EXPECT_EQ(Text(Bar(Tools).triggerRect), "0,508 - 492,600");
}

TEST_F(FullSceneTest, before_the_frame_is_built_the_flag_alone_is_set)
{
    Restart(GUI_USER_FULL, false);
    Frame().OnToolBarFullScene(true);
    EXPECT_TRUE(Frame().IsFullScene());
    EXPECT_FALSE(HasBar(Title));
    EXPECT_EQ(WindowCount(), 0);
    Rebuild();
    ExpectFullScene();
}

TEST_F(FullSceneTest, without_an_interface_the_flag_alone_is_set_until_the_next_start)
{
    Host().Close();
    Frame().OnToolBarFullScene(true);
    EXPECT_TRUE(Frame().IsFullScene());
    Restart(GUI_USER_FULL);
    EXPECT_FALSE(Frame().IsFullScene());
    ExpectWindowed();
}

TEST_F(FullSceneTest, after_the_bars_are_destroyed_the_flag_alone_is_set)
{
    Frame().DestoryAllToolBar();
    const int windows = WindowCount();
    Frame().OnToolBarFullScene(true);
    EXPECT_TRUE(Frame().IsFullScene());
    EXPECT_EQ(WindowCount(), windows);
}

TEST_F(FullSceneTest, survives_a_resize)
{
    Frame().OnToolBarFullScene(true);
    Host().Resize(640, 480);
    EXPECT_TRUE(Frame().IsFullScene());
    EXPECT_EQ(Shown(), Lines{});
    EXPECT_EQ(Now(),
              (Layout{"0,0 - 640,50", "0,0 - 640,50", "0,0 - 152,480", "0,0 - 152,388", "0,390 - 583,480", "0,390 - 583,480"}));
    EXPECT_TRUE(GuiHost::Find("TavFullTilteEscBtn")->isVisible());
    Frame().OnToolBarFullScene(false);
    EXPECT_EQ(Now(),
              (Layout{"0,0 - 640,50", "0,0 - 640,50", "1,50 - 153,478", "0,50 - 153,388", "1,388 - 584,478", "0,388 - 584,480"}));
}

TEST_F(FullSceneTest, the_host_is_told_nothing_and_its_camera_and_window_stay)
{
    const osg::Camera& camera = *Host().Viewer().getCamera();
    const osg::Matrix view = camera.getViewMatrix();
    const osg::Matrix projection = camera.getProjectionMatrix();
    RECT before;
    GetWindowRect(Host().Window(), &before);
    Frame().OnToolBarFullScene(true);
    Host().Frames(2);
    RECT after;
    GetWindowRect(Host().Window(), &after);
    EXPECT_EQ(Text(after), Text(before));
    EXPECT_EQ(camera.getViewport()->width(), 800);
    EXPECT_EQ(camera.getViewport()->height(), 600);
    EXPECT_TRUE(camera.getViewMatrix() == view);
    EXPECT_TRUE(camera.getProjectionMatrix() == projection);
    EXPECT_TRUE(Host().TakeMessages().empty());
    EXPECT_TRUE(Host().TakeMainWindowMessages().empty());
}
