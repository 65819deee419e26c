// SPDX-License-Identifier: MIT
// Bars of the frame that slide out tick by tick instead of going at once.
#include "support/FrameTest.h"

#include <CEGUI/Window.h>

#include <cmath>

namespace
{
constexpr UINT_PTR HideTimer = 2022;

/// The way out after a number of ticks, as a share of the bar's size.
double ShareAfter(int ticks)
{
    return std::log2(1 + ticks * 0.1);
}
} // namespace

class SlideOutTest : public FrameTest
{
protected:
    void TearDown() override
    {
        Frame().EnableSlideOut(false);
        FrameTest::TearDown();
    }

    static void Ticks(int count)
    {
        for (int i = 0; i < count; ++i)
        {
            Frame().OnTimer(HideTimer);
        }
    }

    /// Ticks a bar out and expects it at each step where the animation has it, then hidden, then back home.
    /// @param place the bar's left and top for a share of the way out
    template <class Place>
    static void ExpectSlidesOut(const wchar_t* key, const char* window, Place place, CPoint inside)
    {
        CeGuiToolBar& bar = Bar(key);
        Frame().EnableSlideOut(true);
        const std::string home = FrameTest::Place(window);
        SlideIn(inside.x, inside.y);
        ASSERT_TRUE(Visible(window));
        EXPECT_EQ(FrameTest::Place(window), home);
        Host().MoveMouse(400, 300);
        EXPECT_TRUE(Visible(window)) << "it does not go at once";
        EXPECT_TRUE(bar.animating);
        for (int tick = 1; tick < 10; ++tick)
        {
            Frame().OnTimer(HideTimer);
            const CPoint expected = place(ShareAfter(tick));
            const RECT now = GuiHost::RectOf(window);
            EXPECT_TRUE(Visible(window)) << "tick " << tick;
            EXPECT_EQ(now.left, expected.x) << "tick " << tick;
            EXPECT_EQ(now.top, expected.y) << "tick " << tick;
        }
        Frame().OnTimer(HideTimer);
        EXPECT_FALSE(Visible(window));
        EXPECT_FALSE(bar.animating);
        EXPECT_EQ(bar.animClock, 0.0);
        SlideIn(inside.x, inside.y);
        EXPECT_TRUE(Visible(window));
        EXPECT_EQ(FrameTest::Place(window), home);
    }
};

TEST_F(SlideOutTest, is_off_unless_switched_on)
{
    EXPECT_FALSE(Frame().IsSlideOutEnabled());
    SlideIn(50, 300);
    Host().MoveMouse(400, 300);
    EXPECT_FALSE(Visible("TavLeftCtrlFrame"));
    EXPECT_FALSE(Bar(L"TavLeftCtrlFrame").animating);
}

TEST_F(SlideOutTest, the_list_goes_to_the_left)
{
    ExpectSlidesOut(
        L"TavLeftCtrlFrame", "TavLeftCtrlFrame", [](double share) { return CPoint(static_cast<int>(1 - 152 * share), 50); },
        CPoint(50, 300));
}

TEST_F(SlideOutTest, the_tool_bar_goes_down)
{
    ExpectSlidesOut(
        L"TavBotCtrlFrame", "TavBotCtrlFrame", [](double share) { return CPoint(1, static_cast<int>(508 + 90 * share)); },
        CPoint(110, 550));
}

TEST_F(SlideOutTest, the_title_bar_goes_up_in_full_scene)
{
    Frame().OnToolBarFullScene(true);
    ExpectSlidesOut(
        L"TavTitleBackground", "TavTitleBackground", [](double share) { return CPoint(0, static_cast<int>(-50 * share)); },
        CPoint(400, 20));
}

TEST_F(SlideOutTest, the_scene_is_seen_where_the_bar_has_left)
{
    Frame().EnableSlideOut(true);
    SlideIn(50, 300);
    Host().MoveMouse(400, 300);
    EXPECT_FALSE(Seen(140, 300) == Background());
    for (int i = 0; i < 4; ++i)
    {
        Frame().OnTimer(HideTimer);
    }
    // 73 of 152 pixels are left after four ticks.
    const Screenshot shot = Host().Shoot();
    EXPECT_TRUE(LooksLike(shot.At(140, 300), Background(), 0));
    EXPECT_TRUE(LooksLike(shot.At(90, 300), Background(), 0));
    EXPECT_FALSE(shot.At(40, 300) == Background());
}

TEST_F(SlideOutTest, other_timers_move_nothing)
{
    Frame().EnableSlideOut(true);
    SlideIn(50, 300);
    Host().MoveMouse(400, 300);
    for (const UINT_PTR timer : {0, 1, 2021, 2023})
    {
        Frame().OnTimer(timer);
        EXPECT_EQ(Place("TavLeftCtrlFrame"), "1,50 - 153,598") << timer;
    }
}

TEST_F(SlideOutTest, ticks_without_a_bar_under_way_move_nothing)
{
    Frame().EnableSlideOut(true);
    SlideIn(50, 300);
    for (int i = 0; i < 12; ++i)
    {
        Frame().OnTimer(HideTimer);
    }
    EXPECT_TRUE(Visible("TavLeftCtrlFrame"));
    EXPECT_EQ(Place("TavLeftCtrlFrame"), "1,50 - 153,598");
}

TEST_F(SlideOutTest, ticks_without_a_frame_or_an_interface_do_no_harm)
{
    Frame().DestoryAllToolBar();
    Frame().OnTimer(HideTimer);
    Host().Close();
    Frame().OnTimer(HideTimer);
    EXPECT_FALSE(Frame().IsInit());
}

TEST_F(SlideOutTest, a_resize_in_the_middle_leaves_the_bar_at_home_and_hidden)
{
    Frame().EnableSlideOut(true);
    SlideIn(50, 300);
    Host().MoveMouse(400, 300);
    Frame().OnTimer(HideTimer);
    Rebuild();
    Frame().OnTimer(HideTimer);
    EXPECT_FALSE(Visible("TavLeftCtrlFrame"));
    EXPECT_EQ(Place("TavLeftCtrlFrame"), "1,50 - 153,598");
}

TEST_F(SlideOutTest, stays_switched_on_for_the_next_frame)
{
    Frame().EnableSlideOut(true);
    Rebuild();
    EXPECT_TRUE(Frame().IsSlideOutEnabled());
    SlideIn(50, 300);
    Host().MoveMouse(400, 300);
    EXPECT_TRUE(Visible("TavLeftCtrlFrame"));
    Frame().OnTimer(HideTimer);
    EXPECT_EQ(Place("TavLeftCtrlFrame"), "-19,50 - 133,598");
}

TEST_F(SlideOutTest, switched_off_again_bars_go_at_once)
{
    Frame().EnableSlideOut(true);
    Frame().EnableSlideOut(false);
    EXPECT_FALSE(Frame().IsSlideOutEnabled());
    SlideIn(50, 300);
    Host().MoveMouse(400, 300);
    EXPECT_FALSE(Visible("TavLeftCtrlFrame"));
}

TEST_F(SlideOutTest, the_title_bar_is_at_home_when_full_scene_is_left_while_it_slides)
{
    Frame().EnableSlideOut(true);
    Host().DoubleClick(400, 300);
    ASSERT_TRUE(Frame().IsFullScene());
    SlideIn(400, 20);
    Host().MoveMouse(400, 300);
    Ticks(4);
    EXPECT_EQ(Place("TavTitleBackground"), "0,-24 - 800,26");
    Host().DoubleClick(400, 300);
    ASSERT_FALSE(Frame().IsFullScene());
    for (int i = 0; i < 12; ++i)
    {
        EXPECT_TRUE(Visible("TavTitleBackground"));
        EXPECT_EQ(Place("TavTitleBackground"), "0,0 - 800,50");
        Ticks(1);
    }
    Host().Click(684, 25);
    EXPECT_TRUE(Frame().IsFullScene()) << "its buttons are where they are seen";
    SlideIn(400, 20);
    EXPECT_EQ(Place("TavTitleBackground"), "0,0 - 800,50");
    Host().MoveMouse(400, 300);
    Ticks(1);
    EXPECT_EQ(Place("TavTitleBackground"), "0,-6 - 800,44") << "the next slide begins at its beginning";
}

TEST_F(SlideOutTest, the_title_bar_is_at_home_when_full_scene_is_left_after_it_has_slid_out)
{
    Frame().EnableSlideOut(true);
    Frame().OnToolBarFullScene(true);
    SlideIn(400, 20);
    Host().MoveMouse(400, 300);
    Ticks(10);
    ASSERT_FALSE(Visible("TavTitleBackground"));
    Frame().OnToolBarFullScene(false);
    EXPECT_TRUE(Visible("TavTitleBackground"));
    EXPECT_EQ(Place("TavTitleBackground"), "0,0 - 800,50");
}

TEST_F(SlideOutTest, a_list_switched_off_and_on_while_it_slides_stays)
{
    Frame().EnableSlideOut(true);
    SlideIn(50, 300);
    Host().MoveMouse(400, 300);
    Ticks(3);
    EXPECT_EQ(Place("TavLeftCtrlFrame"), "-56,50 - 96,598");
    Frame().OnToolBarRCList(nullptr);
    EXPECT_FALSE(Visible("TavLeftCtrlFrame"));
    Ticks(2);
    Frame().OnToolBarRCList(nullptr);
    for (int i = 0; i < 12; ++i)
    {
        EXPECT_TRUE(Visible("TavLeftCtrlFrame"));
        EXPECT_EQ(Place("TavLeftCtrlFrame"), "1,50 - 153,598");
        Ticks(1);
    }
    Host().MoveMouse(401, 300);
    Ticks(10);
    EXPECT_FALSE(Visible("TavLeftCtrlFrame")) << "it hides by itself as ever";
}

TEST_F(SlideOutTest, a_switch_of_full_scene_brings_bars_that_slide_to_their_new_places)
{
    for (const bool full : {true, false})
    {
        Frame().EnableSlideOut(true);
        Frame().OnToolBarFullScene(!full);
        SlideIn(50, 300);
        Host().MoveMouse(400, 300);
        Ticks(3);
        ASSERT_TRUE(Bar(L"TavLeftCtrlFrame").animating);
        Frame().OnToolBarFullScene(full);
        Ticks(3);
        EXPECT_EQ(Place("TavLeftCtrlFrame"), full ? "0,0 - 152,600" : "1,50 - 153,598");
        EXPECT_TRUE(Visible("TavLeftCtrlFrame"));
        Host().MoveMouse(401, 300);
        Ticks(10);
        EXPECT_FALSE(Visible("TavLeftCtrlFrame"));
    }
}

TEST_F(SlideOutTest, switched_off_in_the_middle_bars_are_at_home_until_the_mouse_moves)
{
    Frame().EnableSlideOut(true);
    SlideIn(50, 300);
    Host().MoveMouse(400, 300);
    Ticks(3);
    Frame().EnableSlideOut(true);
    EXPECT_EQ(Place("TavLeftCtrlFrame"), "-56,50 - 96,598") << "no change";
    Frame().EnableSlideOut(false);
    EXPECT_EQ(Place("TavLeftCtrlFrame"), "1,50 - 153,598");
    Frame().EnableSlideOut(true);
    Ticks(1);
    EXPECT_EQ(Place("TavLeftCtrlFrame"), "1,50 - 153,598");
    Frame().EnableSlideOut(false);
    Host().MoveMouse(401, 300);
    EXPECT_FALSE(Visible("TavLeftCtrlFrame"));
}
