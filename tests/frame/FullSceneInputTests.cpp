// SPDX-License-Identifier: MIT
// Full-scene mode as a user goes into it, works in it and leaves it.
#include "support/FrameTest.h"

namespace
{
const char* const TitleBar = "TavTitleBackground";
const CPoint FullSceneButton(684, 25);
} // namespace

class FullSceneInputTest : public FrameTest
{
protected:
    static void ClickFullSceneButton() { Host().Click(FullSceneButton.x, FullSceneButton.y); }
};

TEST_F(FullSceneInputTest, the_button_in_the_title_bar_enters)
{
    ClickFullSceneButton();
    EXPECT_TRUE(Frame().IsFullScene());
    EXPECT_FALSE(Visible(TitleBar));
    EXPECT_TRUE(Host().TakeCodes().empty());
}

TEST_F(FullSceneInputTest, the_title_bar_slides_in_only_after_the_mouse_was_away)
{
    ClickFullSceneButton();
    Host().MoveMouse(600, 20);
    MoveTo(500, 1);
    EXPECT_FALSE(Visible(TitleBar)) << "the mouse has not left the top of the view yet";
    MoveTo(500, 50);
    EXPECT_FALSE(Visible(TitleBar)) << "just below the hot rectangle";
    MoveTo(500, 49);
    EXPECT_TRUE(Visible(TitleBar));
    EXPECT_EQ(Place(TitleBar), "0,0 - 800,50");
    MoveTo(500, 50);
    EXPECT_FALSE(Visible(TitleBar));
    MoveTo(0, 0);
    EXPECT_TRUE(Visible(TitleBar)) << "any later time at once";
}

TEST_F(FullSceneInputTest, the_title_bar_then_offers_to_leave_in_the_same_slot)
{
    ClickFullSceneButton();
    Host().MoveMouse(400, 300);
    Host().MoveMouse(400, 10);
    EXPECT_TRUE(Visible("TavFullTilteEscBtn"));
    EXPECT_FALSE(Visible("TavTilteMaxboxButtom"));
    EXPECT_EQ(Place("TavFullTilteEscBtn"), "672,13 - 696,37");
    EXPECT_EQ(Place("TavTilteMaxboxButtom"), "672,13 - 696,37");
    ClickFullSceneButton();
    EXPECT_FALSE(Frame().IsFullScene());
    EXPECT_TRUE(Visible("TavTilteMaxboxButtom"));
    EXPECT_FALSE(Visible("TavFullTilteEscBtn"));
    EXPECT_TRUE(Visible(TitleBar));
    EXPECT_TRUE(Host().TakeCodes().empty());
}

TEST_F(FullSceneInputTest, a_double_click_on_the_scene_enters_and_leaves)
{
    Host().DoubleClick(400, 300);
    EXPECT_TRUE(Frame().IsFullScene());
    Host().DoubleClick(420, 310);
    EXPECT_FALSE(Frame().IsFullScene());
    EXPECT_TRUE(Visible(TitleBar));
    EXPECT_TRUE(Host().TakeCodes().empty());
}

TEST_F(FullSceneInputTest, a_double_click_on_the_bare_title_bar_goes_through_to_the_scene)
{
    Host().DoubleClick(400, 25);
    EXPECT_TRUE(Frame().IsFullScene());
    EXPECT_TRUE(Host().TakeCodes().empty());
}

TEST_F(FullSceneInputTest, a_double_click_on_the_tool_bar_or_the_list_is_kept_from_the_scene)
{
    Show({Record(L"one")});
    SlideIn(20, 590);
    ASSERT_TRUE(Visible("TavBotCtrlFrame"));
    Host().DoubleClick(110, 515);
    EXPECT_FALSE(Frame().IsFullScene());
    SlideIn(5, 200);
    ASSERT_TRUE(Visible("TavLeftCtrlFrame"));
    Host().DoubleClick(5, 200);
    EXPECT_FALSE(Frame().IsFullScene());
}

TEST_F(FullSceneInputTest, a_double_click_with_the_right_button_does_nothing)
{
    Host().MoveMouse(410, 300);
    Host().Send(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(410, 300));
    Frame().EnablePopupMenu(false);
    Host().Send(WM_RBUTTONUP, 0, MAKELPARAM(410, 300));
    Host().Send(WM_RBUTTONDBLCLK, MK_RBUTTON, MAKELPARAM(410, 300));
    Frame().EnablePopupMenu(false);
    Host().Send(WM_RBUTTONUP, 0, MAKELPARAM(410, 300));
    EXPECT_FALSE(Frame().IsFullScene());
}

TEST_F(FullSceneInputTest, a_double_click_with_the_middle_button_toggles_as_well)
{
    Host().MoveMouse(410, 300);
    Host().Send(WM_MBUTTONDBLCLK, MK_MBUTTON, MAKELPARAM(410, 300));
    Host().Send(WM_MBUTTONUP, 0, MAKELPARAM(410, 300));
    EXPECT_TRUE(Frame().IsFullScene());
}

TEST_F(FullSceneInputTest, the_tool_bar_slides_in_flush_with_the_edges_and_works)
{
    Frame().OnToolBarFullScene(true);
    SlideIn(0, 599);
    ASSERT_TRUE(Visible("TavBotCtrlFrame"));
    EXPECT_EQ(Place("TavBotCtrlFrame"), "0,510 - 583,600");
    EXPECT_EQ(Place("TavToolButtom_2"), "122,526 - 184,588");
    Host().Click(153, 557);
    EXPECT_EQ(Host().TakeCodes(), (std::vector<WPARAM>{GUI_CMD_ROAM}));
    Host().MoveMouse(583, 557);
    EXPECT_FALSE(Visible("TavBotCtrlFrame")) << "right of the bar";
    SlideIn(582, 510);
    EXPECT_TRUE(Visible("TavBotCtrlFrame"));
}

TEST_F(FullSceneInputTest, the_list_slides_in_at_the_whole_left_edge_down_to_the_tool_bars_strip)
{
    Show({Record(L"one")});
    Frame().OnToolBarFullScene(true);
    const struct
    {
        int x;
        int y;
        bool shown;
    } points[] = {{0, 100, true}, {151, 507, true}, {151, 60, true}, {152, 300, false}, {50, 508, false}};
    for (const auto& point : points)
    {
        SlideIn(point.x, point.y);
        EXPECT_EQ(Visible("TavLeftCtrlFrame"), point.shown) << point.x << "," << point.y;
        Host().MoveMouse(400, 300);
    }
    EXPECT_EQ(Place("TavLeftCtrlFrame"), "0,0 - 152,600");
}

TEST_F(FullSceneInputTest, entries_keep_their_order_and_their_share_of_the_longer_list)
{
    Show({Record(L"one"), Record(L"two")});
    EXPECT_EQ(Place("two_P"), "11,172 - 137,268");
    Frame().OnToolBarFullScene(true);
    // Children are placed in fractions of the bar, which grows from 548 to 600 pixels.
    EXPECT_EQ(Place("one_P"), "10,14 - 136,119");
    EXPECT_EQ(Place("two_P"), "10,134 - 136,239");
    Frame().OnToolBarFullScene(false);
    EXPECT_EQ(Place("two_P"), "11,172 - 137,268");
}

TEST_F(FullSceneInputTest, a_bar_that_was_out_stays_out_at_its_new_place_until_the_mouse_leaves)
{
    SlideIn(110, 550);
    Frame().OnToolBarFullScene(true);
    EXPECT_TRUE(Visible("TavBotCtrlFrame"));
    EXPECT_EQ(Place("TavBotCtrlFrame"), "0,510 - 583,600");
    Host().MoveMouse(400, 300);
    EXPECT_FALSE(Visible("TavBotCtrlFrame"));
}
