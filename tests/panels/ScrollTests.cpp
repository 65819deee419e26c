// SPDX-License-Identifier: MIT
// The property list's scroll bar and scrolling, in pictures of one piece.
#include "PanelTest.h"

class ScrollTest : public PanelTest
{
protected:
    /// An open list of 40 rows, 920 pixels in a place of 503, with its scroll bar.
    void OpenScrolling()
    {
        Open(NumberedRows(40));
        Refresh(NumberedRows(40));
    }
    static float ThumbY() { return List().thumb->getYPosition().d_scale; }
};

TEST_F(ScrollTest, no_scroll_bar_on_first_creation_but_from_the_second_refresh_on_purpose)
{
    Open(NumberedRows(40));
    EXPECT_EQ(GuiHost::Find(Thumb), nullptr);
    Frame().RefreshPropertyDlg();
    ASSERT_NE(GuiHost::Find(Thumb), nullptr);
    EXPECT_TRUE(Visible(Thumb));
}

TEST_F(ScrollTest, its_size_and_place_follow_the_ratio)
{
    OpenScrolling();
    const float ratio = 920 / 503.0f;
    const CEGUI::Window& thumb = *GuiHost::Find(Thumb);
    for (int times = 0; times < 2; ++times)
    {
        EXPECT_NEAR(List().contentExtent, ratio, 1e-5f);
        EXPECT_NEAR(thumb.getWidth().d_scale, 6 / 260.0f, 1e-6f);
        EXPECT_NEAR(thumb.getHeight().d_scale, 1 / ratio, 1e-5f);
        EXPECT_NEAR(thumb.getXPosition().d_scale, 242 / 260.0f, 1e-6f);
        EXPECT_EQ(thumb.getYPosition(), CEGUI::UDim(0, 0));
        EXPECT_EQ(thumb.getWidth().d_offset + thumb.getHeight().d_offset + thumb.getXPosition().d_offset, 0);
        // The same numbers from the refresh that makes it and from the next.
        Frame().RefreshPropertyDlg();
    }
    EXPECT_EQ(Place(Thumb), "780,85 - 786,360");
    EXPECT_EQ(ImageOf(Thumb, "NormalImage"), "new_skin/verticalscrollbar.png/full_image");
    EXPECT_EQ(ImageOf(Thumb, "HoverImage"), "new_skin/verticalscrollbar_hover.png/full_image");
    EXPECT_EQ(ImageOf(Thumb, "PushedImage"), "new_skin/verticalscrollbar_hover.png/full_image");
    EXPECT_EQ(thumb.getParent(), GuiHost::Find(ListFrame));
}

TEST_F(ScrollTest, its_size_follows_other_rows)
{
    OpenScrolling();
    Refresh(NumberedRows(80));
    EXPECT_NEAR(GuiHost::Find(Thumb)->getHeight().d_scale, 503 / 1840.0f, 1e-5f);
    Refresh(NumberedRows(22));
    EXPECT_NEAR(GuiHost::Find(Thumb)->getHeight().d_scale, 503 / 506.0f, 1e-5f);
}

TEST_F(ScrollTest, hidden_when_all_rows_fit_and_shown_again)
{
    OpenScrolling();
    const CEGUI::Window* thumb = GuiHost::Find(Thumb);
    Refresh(NumberedRows(21));
    EXPECT_FALSE(Visible(Thumb));
    Refresh(NumberedRows(40));
    EXPECT_TRUE(Visible(Thumb));
    EXPECT_EQ(GuiHost::Find(Thumb), thumb);
}

TEST_F(ScrollTest, none_when_all_rows_fit)
{
    Open(NumberedRows(21));
    Frame().RefreshPropertyDlg();
    EXPECT_EQ(GuiHost::Find(Thumb), nullptr);
}

TEST_F(ScrollTest, the_wheel_scrolls_over_the_list)
{
    OpenScrolling();
    Host().Wheel(600, 300, -1);
    EXPECT_NEAR(ThumbY(), 30 / 503.0f, 1e-5f);
    const float scrolled = 30 * 920 / 503.0f;
    EXPECT_EQ(GuiHost::RectOf(ListPicture).top, std::lround(ListTop - scrolled));
    Host().Wheel(600, 300, 1);
    EXPECT_EQ(Place(ListPicture), "538,85 - 798,1005");
}

TEST_F(ScrollTest, the_wheel_ends_with_the_last_row_at_the_bottom)
{
    OpenScrolling();
    for (int i = 0; i < 12; ++i)
    {
        Host().Wheel(600, 300, -1);
    }
    EXPECT_EQ(Place(ListPicture), "538,-332 - 798,588");
    const PictureFile last = DrawnRow(L"name 39", L"value 39");
    const Screenshot shot = Host().Shoot();
    for (const int x : {0, 40, 45, 50, 55, 60, 150, 155, 160, 170})
    {
        EXPECT_TRUE(LooksLike(shot.At(538 + x, 588 - RowHeight + 12), Blend(last.Argb(x, 12), Background()), 4)) << x;
    }
}

TEST_F(ScrollTest, the_thumb_is_dragged)
{
    OpenScrolling();
    Host().MoveMouse(783, 200);
    Host().Press(783, 200);
    Host().MoveMouse(783, 300);
    EXPECT_NEAR(ThumbY(), 100 / 503.0f, 1e-5f);
    EXPECT_EQ(GuiHost::RectOf(ListPicture).top, std::lround(ListTop - 100 * 920 / 503.0));
    Host().MoveMouse(783, 599);
    EXPECT_EQ(Place(ListPicture), "538,-332 - 798,588");
    Host().Release(783, 599);
    Host().MoveMouse(783, 300);
    EXPECT_EQ(Place(ListPicture), "538,-332 - 798,588");
}

TEST_F(ScrollTest, a_refresh_starts_at_the_top_again)
{
    OpenScrolling();
    Host().Wheel(600, 300, -1);
    Frame().RefreshPropertyDlg();
    EXPECT_EQ(Place(ListPicture), "538,85 - 798,1005");
    EXPECT_EQ(ThumbY(), 0);
}

TEST_F(ScrollTest, without_a_scroll_bar_the_wheel_moves_nothing)
{
    Open(NumberedRows(40));
    Host().Wheel(600, 300, -1);
    EXPECT_EQ(Place(ListPicture), "538,85 - 798,1005");
    Refresh(NumberedRows(40));
    Refresh(NumberedRows(3));
    Host().Wheel(600, 300, -1);
    EXPECT_EQ(Place(ListPicture), "538,85 - 798,588");
}
