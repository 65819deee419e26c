// SPDX-License-Identifier: MIT
// Lists scrolled with the wheel and by dragging the thumb.
#include "ScrollSheet.h"

namespace
{
using ToolBarScrollInput = ScrollSheet;
} // namespace

TEST_F(ToolBarScrollInput, wheel_down_moves_the_thumb_down_and_the_items_up)
{
    Host().Wheel(170, 100, -1);
    ExpectScrolled(0.3f);
    Host().Wheel(170, 100, 1);
    ExpectScrolled(0);
}

TEST_F(ToolBarScrollInput, wheel_counts_once_over_bar_button_and_thumb)
{
    const CPoint thumb = ThumbCentre();
    for (const CPoint& point : {CPoint(104, 100), CPoint(150, 70), thumb})
    {
        SCOPED_TRACE(point.x);
        Host().Wheel(point.x, point.y, -1);
        ExpectScrolled(0.3f);
        Host().Wheel(point.x, point.y, 1);
        ExpectScrolled(0);
    }
}

TEST_F(ToolBarScrollInput, wheel_outside_the_bar_moves_nothing)
{
    Host().Wheel(50, 100, -1);
    ExpectScrolled(0);
}

TEST_F(ToolBarScrollInput, wheel_is_cut_at_both_ends)
{
    Host().Wheel(170, 100, 1);
    ExpectScrolled(0);
    Host().Wheel(170, 100, -1);
    Host().Wheel(170, 100, -1);
    ExpectScrolled(ThumbEnd);
    EXPECT_NEAR(ItemY(5) + 0.3f + 0.05f, 1.0f, Near) << "the last item with its margin ends at the bar's bottom";
    Host().Wheel(170, 100, -1);
    ExpectScrolled(ThumbEnd);
    Host().Wheel(170, 100, 1);
    ExpectScrolled(ThumbEnd - 0.3f);
    Host().Wheel(170, 100, 1);
    ExpectScrolled(0);
}

TEST_F(ToolBarScrollInput, hidden_thumb_does_not_scroll)
{
    list_->thumb->hide();
    Host().Wheel(170, 100, -1);
    ExpectScrolled(0);
}

TEST_F(ToolBarScrollInput, wheel_takes_the_input_also_when_nothing_scrolls)
{
    EXPECT_FALSE(Host().Frame().IsDisplySystemMouse());
    list_->thumb->hide();
    Host().Wheel(170, 100, -1);
    EXPECT_TRUE(Host().Frame().IsDisplySystemMouse());
}

TEST_F(ToolBarScrollInput, mouse_over_the_thumb_takes_the_input)
{
    Host().MoveMouse(170, 100);
    EXPECT_FALSE(Host().Frame().IsDisplySystemMouse());
    const CPoint point = ThumbCentre();
    Host().MoveMouse(point.x, point.y);
    EXPECT_TRUE(Host().Frame().IsDisplySystemMouse());
    ExpectScrolled(0);
}

TEST_F(ToolBarScrollInput, dragged_thumb_follows_the_mouse)
{
    const CPoint from = ThumbCentre();
    Host().MoveMouse(from.x, from.y);
    Host().Press(from.x, from.y);
    EXPECT_TRUE(list_->dragging);
    Host().MoveMouse(from.x, from.y + 10);
    ExpectScrolled(0.1f);
    Host().MoveMouse(from.x - 60, from.y + 25);
    ExpectScrolled(0.25f);
    Host().MoveMouse(from.x, from.y + 5);
    ExpectScrolled(0.05f);
    Host().Release(from.x, from.y + 5);
    EXPECT_FALSE(list_->dragging);
    Host().MoveMouse(from.x, from.y + 10);
    ExpectScrolled(0.05f);
}

TEST_F(ToolBarScrollInput, dragged_thumb_stops_at_both_ends)
{
    const CPoint from = ThumbCentre();
    Host().MoveMouse(from.x, from.y);
    Host().Press(from.x, from.y);
    Host().MoveMouse(from.x, from.y - 60);
    ExpectScrolled(0);
    Host().MoveMouse(from.x, ViewHeight - 5);
    ExpectScrolled(ThumbEnd);
    Host().MoveMouse(from.x, 2);
    ExpectScrolled(0);
    Host().Release(from.x, 2);
}

TEST_F(ToolBarScrollInput, way_beyond_the_end_is_lost_to_the_drag_kept_on_purpose)
{
    const CPoint from = ThumbCentre();
    Host().MoveMouse(from.x, from.y);
    Host().Press(from.x, from.y);
    Host().MoveMouse(from.x, from.y + 200);
    ExpectScrolled(ThumbEnd);
    // The last position is where the mouse is, not where the thumb stopped: on the way back it moves at once.
    Host().MoveMouse(from.x, from.y + 190);
    ExpectScrolled(ThumbEnd - 0.1f);
    Host().Release(from.x, from.y + 190);
}

TEST_F(ToolBarScrollInput, button_released_outside_the_thumb_ends_the_drag)
{
    const CPoint from = ThumbCentre();
    Host().MoveMouse(from.x, from.y);
    Host().Press(from.x, from.y);
    Host().MoveMouse(20, from.y + 10);
    Host().Release(20, from.y + 10);
    EXPECT_FALSE(list_->dragging);
}
