// SPDX-License-Identifier: MIT
// The slide-out of a bar, tick by tick.
#include "Sheet.h"

#include <CEGUI/Window.h>

namespace
{
constexpr UINT_PTR Tick = 2022;

class ToolBarSlide : public SheetTest
{
protected:
    CeGuiToolBar& SlidingBar(const RECT& rect, UINT type)
    {
        CeGuiToolBar& bar = NewBar(rect, type);
        bar.autoHide = true;
        bar.slideOnHide = true;
        bar.StartHideAnimation(true);
        return bar;
    }
};
} // namespace

TEST_F(ToolBarSlide, keyframes_follow_the_logarithm_in_ten_steps)
{
    CeGuiToolBar& bar = SlidingBar({0, 0, 400, 50}, BAR_TITLE);
    const double fractions[] = {0.13750352, 0.26303441, 0.37851162, 0.48542683, 0.58496250,
                                0.67807191, 0.76553475, 0.84799691, 0.92599942, 1.0};
    for (int start = 0; start < 2; ++start)
    {
        ASSERT_EQ(bar.keyframes.size(), 10u);
        for (std::size_t i = 0; i < 10; ++i)
        {
            EXPECT_NEAR(bar.keyframes[i].first, 0.1 * static_cast<double>(i + 1), 2e-8);
            EXPECT_NEAR(bar.keyframes[i].second, fractions[i], 5e-8);
        }
        bar.StartHideAnimation(true);
    }
    EXPECT_GT(bar.keyframes[9].first, 1.0) << "the step is the single-precision 0.1";
    EXPECT_TRUE(bar.animating);
    EXPECT_TRUE(bar.window->isVisible());
}

TEST_F(ToolBarSlide, bar_moves_out_on_its_side_of_the_view)
{
    const struct
    {
        const char* name;
        UINT type;
        RECT rect;
        int place[10]; ///< x of a list, y of the others
    } rows[] = {
        {"title bar, up", BAR_TITLE, {0, 0, 400, 50}, {-6, -13, -18, -24, -29, -33, -38, -42, -46, -50}},
        {"title bar lower down", BAR_TITLE, {0, 30, 400, 80}, {23, 16, 11, 5, 0, -3, -8, -12, -16, -20}},
        {"tool bar, down", BAR_TOOLS, {0, 210, 400, 300}, {222, 233, 244, 253, 262, 271, 278, 286, 293, 300}},
        {"list, left", BAR_LIST, {0, 50, 150, 250}, {-20, -39, -56, -72, -87, -101, -114, -127, -138, -150}},
        {"list off the edge", BAR_LIST, {10, 50, 110, 250}, {-3, -16, -27, -38, -48, -57, -66, -74, -82, -90}},
        // What is out of the view already goes no further.
        {"list half out", BAR_LIST, {-20, 50, 80, 250}, {-33, -46, -57, -68, -78, -87, -96, -96, -96, -96}},
        {"panel, nowhere", BAR_PANEL, {100, 50, 300, 250}, {50, 50, 50, 50, 50, 50, 50, 50, 50, 50}},
        {"type 0, nowhere", 0, {100, 50, 300, 250}, {50, 50, 50, 50, 50, 50, 50, 50, 50, 50}},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        CeGuiToolBar& bar = SlidingBar(row.rect, row.type);
        for (int tick = 0; tick < 10; ++tick)
        {
            SCOPED_TRACE(tick);
            EXPECT_TRUE(bar.window->isVisible());
            bar.OnHideTimer(Tick);
            RECT place = row.rect;
            row.type == BAR_LIST ? OffsetRect(&place, row.place[tick] - place.left, 0)
                                 : OffsetRect(&place, 0, row.place[tick] - place.top);
            EXPECT_EQ(Place(*bar.window), Text(place));
        }
        EXPECT_FALSE(bar.window->isVisible());
    }
}

TEST_F(ToolBarSlide, clock_counts_in_tenths_and_ten_ticks_hide_the_bar)
{
    CeGuiToolBar& bar = SlidingBar({0, 210, 400, 300}, BAR_TOOLS);
    for (int tick = 1; tick < 10; ++tick)
    {
        bar.OnHideTimer(Tick);
        EXPECT_NEAR(bar.animClock, 0.1 * tick, 2e-8);
        EXPECT_TRUE(bar.animating);
        EXPECT_TRUE(bar.window->isVisible());
    }
    bar.OnHideTimer(Tick);
    EXPECT_EQ(bar.animClock, 0.0);
    EXPECT_FALSE(bar.animating);
    EXPECT_FALSE(bar.window->isVisible());
    bar.OnHideTimer(Tick);
    EXPECT_EQ(bar.animClock, 0.0) << "nothing runs any more";
}

TEST_F(ToolBarSlide, other_timers_do_nothing)
{
    CeGuiToolBar& bar = SlidingBar({0, 210, 400, 300}, BAR_TOOLS);
    for (const UINT_PTR id : {0u, 1u, 2021u, 2023u, 65536u + 2022u})
    {
        bar.OnHideTimer(id);
        EXPECT_EQ(bar.animClock, 0.0) << id;
        EXPECT_EQ(Place(*bar.window), Text({0, 210, 400, 300}));
    }
}

TEST_F(ToolBarSlide, timer_needs_all_three_switches)
{
    CeGuiToolBar& bar = SlidingBar({0, 210, 400, 300}, BAR_TOOLS);
    for (bool CeGuiToolBar::*off : {&CeGuiToolBar::autoHide, &CeGuiToolBar::slideOnHide, &CeGuiToolBar::animating})
    {
        bar.*off = false;
        bar.OnHideTimer(Tick);
        EXPECT_EQ(bar.animClock, 0.0);
        bar.*off = true;
    }
    bar.OnHideTimer(Tick);
    EXPECT_GT(bar.animClock, 0.0);
}

TEST_F(ToolBarSlide, slide_that_is_called_off_hides_at_once)
{
    CeGuiToolBar& bar = SlidingBar({0, 210, 400, 300}, BAR_TOOLS);
    bar.StartHideAnimation(false);
    EXPECT_FALSE(bar.animating);
    EXPECT_FALSE(bar.window->isVisible());
}

TEST_F(ToolBarSlide, mouse_moves_outside_do_not_set_the_clock_back)
{
    CeGuiToolBar& bar = SlidingBar({0, 210, 400, 300}, BAR_TOOLS);
    for (int tick = 0; tick < 10; ++tick)
    {
        bar.AutoHideByMouse(CPoint(10, 10));
        EXPECT_EQ(bar.keyframes.size(), 10u);
        bar.OnHideTimer(Tick);
    }
    EXPECT_FALSE(bar.window->isVisible());
}

TEST_F(ToolBarSlide, bar_that_slid_out_comes_back_whole_and_slides_again)
{
    CeGuiToolBar& bar = SlidingBar({0, 50, 150, 250}, BAR_LIST);
    for (int round = 0; round < 2; ++round)
    {
        for (int tick = 0; tick < 10; ++tick)
        {
            bar.OnHideTimer(Tick);
        }
        EXPECT_FALSE(bar.window->isVisible());
        bar.AutoHideByMouse(CPoint(200, 10));
        bar.AutoHideByMouse(CPoint(50, 100));
        EXPECT_TRUE(bar.window->isVisible());
        EXPECT_EQ(Place(*bar.window), Text({0, 50, 150, 250}));
        bar.AutoHideByMouse(CPoint(200, 10));
        EXPECT_TRUE(bar.animating);
    }
}

TEST_F(ToolBarSlide, every_change_of_the_bars_mode_ends_the_slide_at_home)
{
    const RECT home = {0, 50, 150, 250};
    const struct
    {
        const char* name;
        void (*change)(CeGuiToolBar& bar);
        bool visible;
    } rows[] = {
        {"shown", [](CeGuiToolBar& bar) { bar.ShowBar(); }, true},
        {"hidden", [](CeGuiToolBar& bar) { bar.HideBar(); }, false},
        {"hidden and shown",
         [](CeGuiToolBar& bar)
         {
             bar.HideBar();
             bar.ShowBar();
         },
         true},
        {"moved", [](CeGuiToolBar& bar) { bar.MoveBar(bar.rect, ViewWidth, ViewHeight); }, true},
        {"called off", [](CeGuiToolBar& bar) { bar.StartHideAnimation(false); }, false},
        {"kept from hiding by itself", [](CeGuiToolBar& bar) { bar.SetAutoHide(false); }, true},
        {"kept from sliding", [](CeGuiToolBar& bar) { bar.SetSlideOnHide(false); }, true},
    };
    for (const auto& row : rows)
    {
        for (const int ticks : {0, 1, 5, 9})
        {
            SCOPED_TRACE(std::string(row.name) + " after " + std::to_string(ticks) + " ticks");
            CeGuiToolBar& bar = SlidingBar(home, BAR_LIST);
            for (int tick = 0; tick < ticks; ++tick)
            {
                bar.OnHideTimer(Tick);
            }
            row.change(bar);
            for (int tick = 0; tick < 11; ++tick)
            {
                EXPECT_FALSE(bar.animating);
                EXPECT_EQ(bar.animClock, 0.0);
                EXPECT_EQ(bar.window->isVisible(), row.visible);
                EXPECT_EQ(Place(*bar.window), Text(home));
                bar.OnHideTimer(Tick);
            }
            bar.ShowBar();
            bar.autoHide = true;
            bar.slideOnHide = true;
            bar.StartHideAnimation(true);
            bar.OnHideTimer(Tick);
            EXPECT_EQ(Place(*bar.window), Text({-20, 50, 130, 250})) << "the next slide begins at its beginning";
            bar.DestroyToolBar();
        }
    }
}

TEST_F(ToolBarSlide, bar_placed_for_another_screen_size_comes_back_to_that_place)
{
    CeGuiToolBar& bar = NewBar({0, 0, 150, 200}, BAR_LIST);
    bar.autoHide = true;
    bar.slideOnHide = true;
    bar.MoveBar({20, 60, 220, 260}, 800, 600);
    for (const int ticks : {3, 10})
    {
        bar.StartHideAnimation(true);
        for (int tick = 0; tick < ticks; ++tick)
        {
            bar.OnHideTimer(Tick);
        }
        bar.ShowBar();
        EXPECT_TRUE(bar.window->isVisible());
        EXPECT_EQ(Place(*bar.window), Text({10, 30, 110, 130}));
    }
}

TEST_F(ToolBarSlide, bar_without_a_window_does_not_slide)
{
    CeGuiToolBar& bar = SlidingBar({0, 210, 400, 300}, BAR_TOOLS);
    bar.DestroyToolBar();
    bar.OnHideTimer(Tick);
    EXPECT_EQ(bar.animClock, 0.0);
    bar.StartHideAnimation(false);
    EXPECT_FALSE(bar.animating);
}
