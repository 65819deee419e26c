// SPDX-License-Identifier: MIT
// The whole name of the row under the mouse, by real mouse moves.
#include "PanelTest.h"

class RowTooltipTest : public PanelTest
{
protected:
    void SetUp() override
    {
        PanelTest::SetUp();
        Open({{L"Footprint area of the building", L"1"}, {L"用途", L"2"}, {L"", L"3"}, {L"abc", L"4"}});
    }
};

TEST_F(RowTooltipTest, centred_over_the_mouse_and_above_it)
{
    MoveTo(600, 96);
    EXPECT_EQ(Place(Tooltip), "510,68 - 702,92") << "30 letters: 90 to the left";
    MoveTo(650, 85 + 23);
    EXPECT_EQ(Place(Tooltip), "644,80 - 680,104") << "2 characters: 6 to the left";
    MoveTo(650, 85 + 3 * 23 + 22);
    EXPECT_EQ(Place(Tooltip), "641,148 - 671,172") << "3 letters: 9 to the left";
    EXPECT_EQ(CountOf(Tooltip), 1);
}

TEST_F(RowTooltipTest, rows_begin_at_85_and_are_23_high)
{
    MoveTo(600, 107);
    EXPECT_EQ(GuiHost::RectOf(Tooltip).left, 510) << "the first row's last line";
    MoveTo(600, 108);
    EXPECT_EQ(GuiHost::RectOf(Tooltip).left, 594) << "the second row's first line";
}

TEST_F(RowTooltipTest, rows_begin_at_35_in_full_scene)
{
    Frame().OnToolBarFullScene(true);
    Host().Frames(1);
    MoveTo(600, 57);
    EXPECT_EQ(Place(Tooltip), "510,29 - 702,53");
    MoveTo(600, 58);
    EXPECT_EQ(Place(Tooltip), "594,30 - 630,54");
}

TEST_F(RowTooltipTest, none_over_the_values)
{
    MoveTo(669, 96);
    EXPECT_EQ(CountOf(Tooltip), 1);
    MoveTo(670, 96);
    EXPECT_EQ(CountOf(Tooltip), 0);
    MoveTo(790, 96);
    EXPECT_EQ(CountOf(Tooltip), 0);
    MoveTo(669, 97);
    EXPECT_EQ(CountOf(Tooltip), 1);
}

TEST_F(RowTooltipTest, none_for_an_empty_name_and_below_the_last_row)
{
    MoveTo(600, 96);
    MoveTo(600, 85 + 2 * 23 + 5);
    EXPECT_EQ(CountOf(Tooltip), 0) << "empty name";
    MoveTo(600, 85 + 3 * 23 + 5);
    EXPECT_EQ(CountOf(Tooltip), 1);
    MoveTo(600, 85 + 4 * 23);
    EXPECT_EQ(CountOf(Tooltip), 0) << "no such row";
}

TEST_F(RowTooltipTest, gone_when_the_mouse_leaves_the_list)
{
    for (const CPoint& outside : {CPoint(500, 96), CPoint(600, 70), CPoint(600, 594)})
    {
        MoveTo(600, 96);
        EXPECT_EQ(CountOf(Tooltip), 1);
        MoveTo(outside.x, outside.y);
        EXPECT_EQ(CountOf(Tooltip), 0) << outside.x << "," << outside.y;
    }
}

TEST_F(RowTooltipTest, follows_the_mouse_also_through_itself)
{
    MoveTo(600, 85 + 3 * 23 + 20);
    ASSERT_EQ(Place(Tooltip), "591,146 - 621,170");
    MoveTo(600, 160);
    EXPECT_EQ(Place(Tooltip), "591,132 - 621,156");
}

TEST_F(RowTooltipTest, follows_new_rows)
{
    Refresh({{L"abcdef", L"1"}});
    MoveTo(600, 96);
    EXPECT_EQ(Place(Tooltip), "582,68 - 630,92");
}

TEST_F(RowTooltipTest, ignores_how_far_the_list_is_scrolled_on_purpose)
{
    Rows rows = NumberedRows(40);
    rows[0].first = L"the first";
    Refresh(rows);
    Frame().RefreshPropertyDlg();
    MoveTo(600, 96);
    const std::string first = Place(Tooltip);
    Host().Wheel(600, 300, -1);
    Host().Wheel(600, 300, -1);
    ASSERT_LT(GuiHost::RectOf(ListPicture).top, 0);
    MoveTo(600, 96);
    EXPECT_EQ(Place(Tooltip), first);
}

TEST_F(RowTooltipTest, hovering_notes_the_window_and_takes_the_mouse)
{
    Frame().SetDisplySystemMouse(false);
    MoveTo(600, 96);
    EXPECT_TRUE(Frame().IsDisplySystemMouse());
    Frame().SetDisplySystemMouse(false);
    MoveTo(600, 70);
    EXPECT_TRUE(Frame().IsDisplySystemMouse()) << "over the panel's header";
    Frame().SetDisplySystemMouse(false);
    MoveTo(300, 300);
    EXPECT_FALSE(Frame().IsDisplySystemMouse());
}

TEST_F(RowTooltipTest, closing_the_panel_under_the_mouse_takes_it_away)
{
    MoveTo(600, 96);
    ASSERT_EQ(CountOf(Tooltip), 1);
    Frame().OpenPropertyDlg(nullptr, false);
    MoveTo(600, 97);
    EXPECT_EQ(CountOf(Tooltip), 0);
}

TEST_F(RowTooltipTest, five_thousand_characters)
{
    CString name;
    for (int i = 0; i < 5000; ++i)
    {
        name += L"a";
    }
    Refresh({{name, L"1"}});
    MoveTo(600, 96);
    EXPECT_EQ(Place(Tooltip), Text(RECT{600 - 15000, 68, 600 - 15000 + 30012, 92}));
}
