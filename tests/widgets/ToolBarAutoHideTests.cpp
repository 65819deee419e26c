// SPDX-License-Identifier: MIT
// Bars that hide when the mouse leaves them, and come back.
#include "Sheet.h"

#include <CEGUI/Window.h>

namespace
{
/// A tool bar at the bottom whose trigger strip reaches out of it at the left and above.
class ToolBarAutoHide : public SheetTest
{
protected:
    void SetUp() override
    {
        SheetTest::SetUp();
        bar_ = &NewBar({100, 200, 300, 280}, BAR_TOOLS);
        bar_->autoHide = true;
        bar_->triggerRect = {80, 180, 290, 290};
    }

    bool Visible() const { return bar_->window->isVisible(); }

    CeGuiToolBar* bar_ = nullptr;
};
} // namespace

TEST_F(ToolBarAutoHide, bar_stays_while_the_mouse_is_in_rectangle_or_trigger)
{
    // The hot area is the box around both: its corners belong to neither.
    for (const CPoint& point : {CPoint(150, 250), CPoint(80, 180), CPoint(85, 250), CPoint(295, 220), CPoint(150, 289),
                                CPoint(299, 289), CPoint(299, 180), CPoint(80, 289)})
    {
        bar_->AutoHideByMouse(point);
        EXPECT_TRUE(Visible()) << point.x << "," << point.y;
    }
}

TEST_F(ToolBarAutoHide, bar_hides_at_once_when_the_mouse_leaves_both)
{
    for (const CPoint& point :
         {CPoint(79, 250), CPoint(300, 250), CPoint(150, 179), CPoint(150, 290), CPoint(-1, -1), CPoint(5000, 5000)})
    {
        bar_->ShowBar();
        bar_->animating = true;
        bar_->AutoHideByMouse(point);
        EXPECT_FALSE(Visible()) << point.x << "," << point.y;
        EXPECT_FALSE(bar_->animating);
        EXPECT_TRUE(bar_->keyframes.empty()) << "nothing slides";
    }
}

TEST_F(ToolBarAutoHide, bar_without_auto_hide_stays)
{
    bar_->autoHide = false;
    bar_->AutoHideByMouse(CPoint(0, 0));
    EXPECT_TRUE(Visible());
    bar_->HideBar();
    bar_->AutoHideByMouse(CPoint(0, 0));
    bar_->AutoHideByMouse(CPoint(150, 250));
    EXPECT_FALSE(Visible());
    EXPECT_FALSE(bar_->showArmed);
}

TEST_F(ToolBarAutoHide, bar_hidden_under_the_mouse_waits_until_the_mouse_has_left)
{
    bar_->HideBar();
    bar_->AutoHideByMouse(CPoint(150, 250));
    EXPECT_FALSE(Visible());
    EXPECT_FALSE(bar_->showArmed);
    bar_->AutoHideByMouse(CPoint(150, 100));
    EXPECT_FALSE(Visible());
    EXPECT_TRUE(bar_->showArmed);
    bar_->AutoHideByMouse(CPoint(150, 250));
    EXPECT_TRUE(Visible());
}

TEST_F(ToolBarAutoHide, only_the_trigger_brings_a_hidden_bar_back)
{
    bar_->HideBar();
    bar_->AutoHideByMouse(CPoint(0, 0));
    bar_->AutoHideByMouse(CPoint(295, 250));
    EXPECT_FALSE(Visible()) << "in the rectangle, but not in the trigger";
    bar_->AutoHideByMouse(CPoint(290, 250));
    EXPECT_FALSE(Visible()) << "the right edge is outside";
    bar_->AutoHideByMouse(CPoint(289, 180));
    EXPECT_TRUE(Visible());
}

TEST_F(ToolBarAutoHide, bar_stays_armed_once_it_was_kept_on_purpose)
{
    bar_->HideBar();
    bar_->AutoHideByMouse(CPoint(0, 0));
    bar_->AutoHideByMouse(CPoint(150, 250));
    ASSERT_TRUE(Visible());
    EXPECT_TRUE(bar_->showArmed);
    bar_->HideBar();
    bar_->AutoHideByMouse(CPoint(150, 250));
    EXPECT_TRUE(Visible()) << "no need to leave a second time";
}

TEST_F(ToolBarAutoHide, bar_comes_back_at_its_home_position)
{
    bar_->HideBar();
    bar_->window->setPosition(CEGUI::UVector2(CEGUI::UDim(0.9f, 5), CEGUI::UDim(0.8f, 7)));
    bar_->AutoHideByMouse(CPoint(0, 0));
    bar_->AutoHideByMouse(CPoint(150, 250));
    EXPECT_EQ(Place(*bar_->window), Text({100, 200, 300, 280}));
}

TEST_F(ToolBarAutoHide, dragging_the_thumb_keeps_the_bar)
{
    bar_->dragging = true;
    bar_->AutoHideByMouse(CPoint(0, 0));
    EXPECT_TRUE(Visible());
    bar_->dragging = false;
    bar_->AutoHideByMouse(CPoint(0, 0));
    EXPECT_FALSE(Visible());
}

TEST_F(ToolBarAutoHide, dragged_thumb_of_a_list_keeps_it_under_real_input)
{
    CeGuiToolBar& list = NewBar({0, 0, 100, 100}, BAR_LIST, L"", L"list");
    list.autoHide = true;
    list.AddImageButton(L"a", L"", L"", L"", L"");
    list.AddStaticImage({0, 100, 90, 200}, L"b", L"");
    ASSERT_TRUE(list.CreateScrollThumb(4, L"thumb", L"", L"", L""));
    Host().MoveMouse(93, 20);
    Host().Press(93, 20);
    Host().MoveMouse(200, 25);
    list.AutoHideByMouse(CPoint(200, 25));
    EXPECT_TRUE(list.window->isVisible());
    Host().Release(200, 25);
    list.AutoHideByMouse(CPoint(200, 25));
    EXPECT_FALSE(list.window->isVisible());
}

TEST_F(ToolBarAutoHide, leaving_a_bar_that_slides_starts_the_slide)
{
    bar_->slideOnHide = true;
    bar_->AutoHideByMouse(CPoint(0, 0));
    EXPECT_TRUE(Visible());
    EXPECT_TRUE(bar_->animating);
    EXPECT_EQ(bar_->keyframes.size(), 10u);
}

TEST_F(ToolBarAutoHide, destroyed_bar_ignores_the_mouse)
{
    bar_->DestroyToolBar();
    bar_->AutoHideByMouse(CPoint(0, 0));
    bar_->AutoHideByMouse(CPoint(150, 250));
    EXPECT_EQ(bar_->window, nullptr);
    EXPECT_FALSE(bar_->showArmed);
}
