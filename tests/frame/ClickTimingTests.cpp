// SPDX-License-Identifier: MIT
// Clicks and double clicks with the time by which CEGUI counts clicks of its own accord: as every interface has it, and without a
// limit, as if a user were always quick enough for it. What depends on the time is tried with no limit alone.
#include "Names.h"

#include "support/FrameTest.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/InputEvent.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>

namespace
{
using TimedCodes = std::vector<WPARAM>;

const float CeguisTime = CEGUI::GUIContext::DefaultMouseButtonMultiClickTimeout;
/// CEGUI takes 0 for no limit.
constexpr float NoLimit = 0;
/// What the other tests use, which click one point faster than users do.
constexpr float NoTime = 1e-6f;

class ClickTimingTest : public FrameTest
{
protected:
    void TearDown() override
    {
        UseTime(NoTime);
        FrameTest::TearDown();
    }
    /// An interface that has seen no click yet, with this time.
    void Begin(float time)
    {
        Restart(GUI_USER_FULL);
        UseTime(time);
        Frame().OnToolBarFullScene(false);
        Host().MoveMouse(401, 300);
        Host().MoveMouse(400, 300);
        Host().TakeMessages();
        presses_ = 0;
        doubleClicks_ = 0;
        CEGUI::Window& root = *Gui().getRootWindow();
        const auto count = [](int& counted)
        { return CEGUI::Event::Subscriber([&counted](const CEGUI::EventArgs&) { return ++counted, false; }); };
        root.subscribeEvent(CEGUI::Window::EventMouseButtonDown, count(presses_));
        root.subscribeEvent(CEGUI::Window::EventMouseDoubleClick, count(doubleClicks_));
    }
    static CEGUI::GUIContext& Gui() { return CEGUI::System::getSingleton().getDefaultGUIContext(); }
    static void UseTime(float time) { Gui().setMouseButtonMultiClickTimeout(time); }

    /// What has reached the root sheet.
    int presses_ = 0;
    int doubleClicks_ = 0;
};
} // namespace

TEST_F(ClickTimingTest, a_double_click_in_the_scene_is_one_press_and_one_double_click)
{
    for (const float time : {CeguisTime, NoLimit})
    {
        SCOPED_TRACE(time);
        Begin(time);
        Host().DoubleClick(400, 300);
        EXPECT_EQ(presses_, 1);
        EXPECT_EQ(doubleClicks_, 1);
        EXPECT_TRUE(Frame().IsFullScene());
    }
}

TEST_F(ClickTimingTest, a_double_click_on_a_tool_is_told_once_by_design)
{
    for (const float time : {CeguisTime, NoLimit})
    {
        SCOPED_TRACE(time);
        Begin(time);
        SlideIn(110, 550);
        Host().DoubleClick(154, 555);
        EXPECT_EQ(Host().TakeCodes(), TimedCodes{GUI_CMD_ROAM});
        EXPECT_FALSE(Frame().IsFullScene());
    }
}

TEST_F(ClickTimingTest, quick_clicks_on_different_tools_are_told_each)
{
    for (const float time : {CeguisTime, NoLimit})
    {
        SCOPED_TRACE(time);
        Begin(time);
        SlideIn(110, 550);
        Host().Click(154, 555);
        Host().Click(154 + 92, 555);
        Host().Click(154, 555);
        EXPECT_EQ(Host().TakeCodes(), (TimedCodes{GUI_CMD_ROAM, GUI_CMD_ENVIRONMENT, GUI_CMD_ROAM}));
    }
}

TEST_F(ClickTimingTest, a_click_of_each_button_at_one_point_is_no_double_click)
{
    for (const float time : {CeguisTime, NoLimit})
    {
        SCOPED_TRACE(time);
        Begin(time);
        Frame().EnablePopupMenu(false);
        Host().Click(400, 300);
        Host().RightClick(400, 300);
        EXPECT_EQ(presses_, 2);
        EXPECT_EQ(doubleClicks_, 0);
    }
}

TEST_F(ClickTimingTest, a_second_press_that_the_system_tells_as_a_press_is_a_double_click_to_cegui_by_design)
{
    // The system takes presses a few pixels apart for two, CEGUI only from 12 pixels on.
    Begin(NoLimit);
    Host().Click(400, 300);
    Host().Click(404, 300);
    EXPECT_EQ(presses_, 1);
    EXPECT_EQ(doubleClicks_, 1);
    EXPECT_TRUE(Frame().IsFullScene());
}

TEST_F(ClickTimingTest, a_third_press_in_ceguis_time_is_a_second_double_click_since_the_first_is_the_systems)
{
    Begin(NoLimit);
    Host().DoubleClick(400, 300);
    EXPECT_EQ(doubleClicks_, 1);
    Host().Click(400, 300);
    EXPECT_EQ(presses_, 1);
    EXPECT_EQ(doubleClicks_, 2);
    EXPECT_FALSE(Frame().IsFullScene());
}

TEST_F(ClickTimingTest, presses_farther_apart_than_ceguis_tolerance_are_two_presses)
{
    Begin(NoLimit);
    Host().Click(400, 300);
    Host().Click(420, 300);
    EXPECT_EQ(presses_, 2);
    EXPECT_EQ(doubleClicks_, 0);
    EXPECT_FALSE(Frame().IsFullScene());
}

TEST_F(ClickTimingTest, two_clicks_on_a_tool_with_time_between_them_are_told_each)
{
    Begin(NoTime);
    SlideIn(110, 550);
    Host().Click(154, 555);
    Host().Click(154, 555);
    EXPECT_EQ(Host().TakeCodes(), (TimedCodes{GUI_CMD_ROAM, GUI_CMD_ROAM}));
}
