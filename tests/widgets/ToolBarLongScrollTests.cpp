// SPDX-License-Identifier: MIT
// A column thousands of times as tall as its bar, scrolled step by step.
#include "Sheet.h"

#include <CEGUI/InputEvent.h>
#include <CEGUI/Window.h>

class ToolBarLongScroll : public SheetTest
{
protected:
    static constexpr int BarHeight = 200;
    static constexpr int ColumnHeight = 1000000;

    void SetUp() override
    {
        SheetTest::SetUp();
        bar_ = &NewBar({100, 50, 250, 250}, BAR_PANEL);
        bar_->AddStaticImage({0, 0, 150, ColumnHeight}, L"column", L"");
        bar_->CreateScrollThumb(4, L"thumb", L"", L"", L"");
    }

    /// One notch, as the bar gets it.
    bool Notch(float change)
    {
        CEGUI::MouseEventArgs args(bar_->window);
        args.wheelChange = change;
        return bar_->OnMouseWheel(args);
    }
    /// How far the column is scrolled, pixels.
    float Scrolled() const { return -bar_->items[0].window->getYPosition().d_scale * BarHeight; }

    CeGuiToolBar* bar_ = nullptr;
};

TEST_F(ToolBarLongScroll, without_a_limit_a_notch_moves_the_thumb_by_thirty_pixels)
{
    Notch(1);
    EXPECT_NEAR(Scrolled(), 30.0f / BarHeight * ColumnHeight, 1);
}

TEST_F(ToolBarLongScroll, a_limit_keeps_a_notch_short_in_both_directions)
{
    bar_->longestWheelStep = 0.9f;
    Notch(1);
    EXPECT_NEAR(Scrolled(), 180, 1);
    Notch(1);
    EXPECT_NEAR(Scrolled(), 360, 1);
    Notch(-1);
    EXPECT_NEAR(Scrolled(), 180, 1);
}

TEST_F(ToolBarLongScroll, many_small_steps_end_exactly_at_the_end)
{
    bar_->longestWheelStep = 0.9f;
    const int needed = (ColumnHeight - BarHeight) / 180 + 1;
    for (int i = 0; i < needed + 20; ++i)
    {
        Notch(1);
    }
    EXPECT_NEAR(Scrolled(), ColumnHeight - BarHeight, 1);
    for (int i = 0; i < needed + 20; ++i)
    {
        Notch(-1);
    }
    EXPECT_NEAR(Scrolled(), 0, 0.01f);
}
