// SPDX-License-Identifier: MIT
// Tooltips at the edges of the view, and of texts that are no usual names.
#include "PanelTest.h"

class TooltipEdgeTest : public PanelTest
{
};

TEST_F(TooltipEdgeTest, a_rows_tooltip_is_not_kept_within_the_view)
{
    // A narrow view: the panel takes it all but a few pixels.
    Host().Resize(262, 300);
    Open({{Repeated(L"a", 30), L"1"}, {Repeated(L"a", 30), L"2"}});
    MoveTo(20, 96);
    EXPECT_EQ(Place(Tooltip), "-70,68 - 122,92") << "beyond the left edge";
    MoveTo(131, 110);
    EXPECT_EQ(Place(Tooltip), "41,82 - 233,106");
    Refresh({{Repeated(L"a", 60), L"1"}});
    MoveTo(120, 96);
    EXPECT_EQ(Place(Tooltip), "-60,68 - 312,92") << "beyond both edges";
}

TEST_F(TooltipEdgeTest, in_full_scene_the_first_row_is_near_the_upper_edge)
{
    Open({{L"abcd", L"1"}});
    Frame().OnToolBarFullScene(true);
    Host().Frames(1);
    MoveTo(600, 35);
    EXPECT_EQ(Place(Tooltip), "588,7 - 624,31");
}

TEST_F(TooltipEdgeTest, the_last_row_at_the_lower_edge)
{
    Open(NumberedRows(40));
    // Of the rows' place the last line that the list still has.
    MoveTo(600, 587);
    EXPECT_EQ(Place(Tooltip), Text(RECT{600 - 7 * 3, 559, 600 - 7 * 3 + 54, 583})) << "\"name 21\"";
    MoveTo(600, 589);
    EXPECT_EQ(CountOf(Tooltip), 0) << "below the list";
}

TEST_F(TooltipEdgeTest, a_name_of_a_hundred_and_fifty_characters)
{
    const struct
    {
        const wchar_t* letter;
        int bytes;
    } rows[] = {{L"a", 1}, {L"高", 2}};
    for (const auto& row : rows)
    {
        Refresh({});
        Open({{Repeated(row.letter, 150), L"1"}});
        MoveTo(600, 95);
        MoveTo(600, 96);
        // Half of six pixels a character to the left; as wide as all of its bytes.
        const int left = 600 - 150 * 6 / 2;
        EXPECT_EQ(Place(Tooltip), Text(RECT{left, 68, left + 150 * row.bytes * 6 + 12, 92}));
    }
}

TEST_F(TooltipEdgeTest, a_name_with_line_breaks)
{
    Open({{L"one\ntwo\nthree", L"1"}, {L"abc", L"2"}});
    MoveTo(600, 96);
    EXPECT_EQ(Place(Tooltip), "561,68 - 651,92") << "13 characters in one line's height";
    MoveTo(600, 119);
    EXPECT_EQ(Place(Tooltip), "591,91 - 621,115");
}

TEST_F(TooltipEdgeTest, the_window_buttons_of_a_narrow_view)
{
    Host().Resize(300, 300);
    for (const auto& [item, key] : {std::pair("TavTilteCloseButtom", L"关闭"), std::pair("TavTilteMinboxButtom", L"最小化")})
    {
        const CPoint centre = GuiHost::CentreOf(item);
        MoveTo(centre.x, centre.y);
        ASSERT_EQ(CountOf(Tooltip), 1) << item;
        const RECT rect = GuiHost::RectOf(Tooltip);
        EXPECT_EQ(rect.right - rect.left, CString(key).GetLength() * 12 + 12) << item;
        EXPECT_LE(rect.right, 296) << item << ": four pixels from the view's edge";
        EXPECT_EQ(rect.top, GuiHost::RectOf(item).bottom + 8) << item;
    }
}
