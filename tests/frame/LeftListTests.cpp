// SPDX-License-Identifier: MIT
// The left list: where it and its entries lie, and when it is seen.
#include "Names.h"

#include "support/FrameTest.h"

#include <CEGUI/Window.h>

namespace
{
std::vector<BTN_UNIT> Records(int count)
{
    std::vector<BTN_UNIT> records;
    for (int i = 0; i < count; ++i)
    {
        CString name;
        name.Format(L"r%d", i);
        records.push_back(Record(name));
    }
    return records;
}
} // namespace

class LeftListTest : public FrameTest
{
};

TEST_F(LeftListTest, lies_between_title_bar_and_lower_border)
{
    EXPECT_EQ(Place(List), "1,50 - 153,598");
    EXPECT_EQ(Text(Bar(ListKey).triggerRect), "0,50 - 153,508");
    EXPECT_EQ(ImageOf(List), "new_skin/leftBG.png/full_image");
    EXPECT_TRUE(Bar(ListKey).autoHide);
    EXPECT_FALSE(Bar(ListKey).slideOnHide);
}

TEST_F(LeftListTest, lies_the_same_for_another_user)
{
    Restart(GUI_USER_RESTRICTED);
    EXPECT_EQ(Place(List), "1,50 - 153,598");
    EXPECT_EQ(Text(Bar(ListKey).triggerRect), "0,50 - 153,508");
}

TEST_F(LeftListTest, without_records_is_an_empty_frame_without_a_scroll_bar)
{
    EXPECT_EQ(Place("scrollbar"), "no window");
    EXPECT_EQ(GuiHost::Find(List)->getChildCount(), 0u);
    SlideIn(50, 300);
    EXPECT_TRUE(Visible(List));
    Host().Wheel(50, 310, -3);
    EXPECT_TRUE(Visible(List)) << "the wheel does no harm";
}

TEST_F(LeftListTest, entries_go_from_top_to_bottom)
{
    Show(Records(4));
    EXPECT_EQ(Place("r0_P"), "11,63 - 137,159");
    EXPECT_EQ(Place("r1_P"), "11,172 - 137,268");
    EXPECT_EQ(Place("r2_P"), "11,281 - 137,377");
    EXPECT_EQ(Place("r3_P"), "11,390 - 137,486");
    EXPECT_EQ(Place("scrollbar"), "no window") << "449 of 548 pixels are used";
}

TEST_F(LeftListTest, entries_that_are_taller_than_the_list_get_a_scroll_bar)
{
    Show(Records(5));
    EXPECT_EQ(Place("r4_P"), "11,499 - 137,595");
    // 558 pixels of entries in 548 pixels: the thumb has 548 / 558 of the height.
    EXPECT_EQ(Place("scrollbar"), "144,50 - 150,588");
    EXPECT_EQ(ImageOf("scrollbar", "NormalImage"), "new_skin/verticalscrollbar.png/full_image");
    EXPECT_EQ(ImageOf("scrollbar", "HoverImage"), "new_skin/verticalscrollbar_hover.png/full_image");
    EXPECT_EQ(ImageOf("scrollbar", "PushedImage"), "new_skin/verticalscrollbar_hover.png/full_image");
}

TEST_F(LeftListTest, the_scroll_bar_goes_when_the_view_grows)
{
    Show(Records(5));
    ASSERT_NE(Place("scrollbar"), "no window");
    Host().Resize(800, 700);
    EXPECT_EQ(Place("scrollbar"), "no window");
    EXPECT_EQ(Place("r4_P"), "11,499 - 137,595") << "entries keep their pixels in another view";
}

TEST_F(LeftListTest, entries_are_named_by_name_and_kind)
{
    Show({Record(L"A", 1), Record(L"A", 0), Record(L"B", 2), Record(L"C", -1)});
    EXPECT_EQ(Place("A_V"), "11,63 - 137,159");
    EXPECT_EQ(Place("A_P"), "11,172 - 137,268");
    EXPECT_EQ(Place("B_P"), "11,281 - 137,377");
    EXPECT_EQ(Place("C_P"), "11,390 - 137,486");
}

TEST_F(LeftListTest, entries_show_their_own_thumbnails_and_no_tooltip)
{
    Show(Records(2));
    EXPECT_EQ(ImageOf("r0_P", "NormalImage"), "new_skin/TavGuiButtonImg0_N.bmp/full_image");
    EXPECT_EQ(ImageOf("r0_P", "HoverImage"), "new_skin/TavGuiButtonImg0_N.bmp/full_image");
    EXPECT_EQ(ImageOf("r0_P", "PushedImage"), "new_skin/TavGuiButtonImg0_P.bmp/full_image");
    EXPECT_EQ(ImageOf("r1_P", "NormalImage"), "new_skin/TavGuiButtonImg1_N.bmp/full_image");
    EXPECT_EQ(GuiHost::Find("r0_P")->getTooltipText(), "");
}

TEST_F(LeftListTest, slides_in_at_the_left_edge_between_title_bar_and_tool_bar)
{
    const struct
    {
        const char* what;
        int x;
        int y;
        bool shown;
    } points[] = {
        {"left edge of the view", 0, 300, true},      {"top of the strip", 100, 50, true},
        {"in the title bar", 100, 49, false},         {"right end of the strip", 152, 300, true},
        {"right of the strip", 153, 300, false},      {"lower end of the strip", 100, 507, true},
        {"in the tool bar's strip", 100, 508, false},
    };
    ASSERT_FALSE(Visible(List)) << "hidden when the frame is built";
    for (const auto& point : points)
    {
        SlideIn(point.x, point.y);
        EXPECT_EQ(Visible(List), point.shown) << point.what;
        Host().MoveMouse(400, 300);
        EXPECT_FALSE(Visible(List)) << "after " << point.what;
    }
}

TEST_F(LeftListTest, once_out_it_stays_down_to_its_own_lower_edge)
{
    SlideIn(50, 300);
    MoveTo(50, 597);
    EXPECT_TRUE(Visible(List));
    EXPECT_FALSE(Visible("TavBotCtrlFrame")) << "the two overlap, and the list wins";
    MoveTo(50, 598);
    EXPECT_FALSE(Visible(List)) << "on the lower border";
}

TEST_F(LeftListTest, stays_hidden_while_the_mouse_has_not_been_outside_since_it_was_built)
{
    Host().MoveMouse(50, 300);
    Rebuild();
    Host().MoveMouse(60, 300);
    EXPECT_FALSE(Visible(List));
    SlideIn(60, 300);
    EXPECT_TRUE(Visible(List));
}

TEST_F(LeftListTest, swallows_clicks_beside_its_entries)
{
    Show(Records(1));
    SlideIn(50, 300);
    Host().Click(50, 400);
    Host().DoubleClick(50, 400);
    EXPECT_FALSE(Frame().IsFullScene());
    EXPECT_TRUE(Host().TakeCodes().empty());
    EXPECT_EQ(Frame().GetBtnIndex(), -1);
}

TEST_F(LeftListTest, changed_records_are_seen_after_the_next_build)
{
    Show(Records(2));
    Frame().SetCtrlBtnInfo({Record(L"other")});
    EXPECT_NE(Place("r1_P"), "no window");
    EXPECT_EQ(Place("other_P"), "no window");
    Rebuild();
    EXPECT_EQ(Place("r1_P"), "no window");
    EXPECT_EQ(Place("other_P"), "11,63 - 137,159");
}

TEST_F(LeftListTest, that_ends_exactly_at_the_bars_bottom_has_no_scroll_bar)
{
    for (const int count : {2, 3, 4, 5, 6, 7, 8})
    {
        SCOPED_TRACE(count);
        Frame().SetCtrlBtnInfo(Records(count));
        // 52 of title bar and border, 13 above each entry and below the last.
        const int exact = 52 + 13 + count * (96 + 13);
        Host().Resize(ViewWidth, exact);
        EXPECT_EQ(Place("scrollbar"), "no window");
        SlideIn(50, 100);
        ASSERT_TRUE(Visible(List));
        Host().Wheel(50, 100, -1);
        EXPECT_EQ(Place("r0_P"), "11,63 - 137,159");
        Host().Resize(ViewWidth, exact - 1);
        EXPECT_NE(Place("scrollbar"), "no window");
    }
}

TEST_F(LeftListTest, in_a_view_narrower_than_itself_is_cut_and_not_squeezed)
{
    Frame().SetCtrlBtnInfo(Records(7));
    for (const int width : {151, 110, 60})
    {
        SCOPED_TRACE(width);
        Host().Resize(width, ViewHeight);
        EXPECT_EQ(Place(List), "1,50 - 153,598");
        EXPECT_EQ(Place("r0_P"), "11,63 - 137,159");
        EXPECT_EQ(Text({GuiHost::RectOf("scrollbar").left, 0, GuiHost::RectOf("scrollbar").right, 0}), "144,0 - 150,0");
    }
}
