// SPDX-License-Identifier: MIT
// What happens to and around a long property list.
#include "LongListTest.h"

TEST_F(LongListTest, a_short_list_after_a_long_one_is_one_picture_again)
{
    OpenScrolling(1000);
    Drag(100);
    Refresh(NumberedRows(3));
    EXPECT_EQ(ImageOf(ListPicture), "PropertyImage_0.bmp/full_image");
    EXPECT_EQ(GuiHost::Find(ListPicture)->getChildCount(), 0u);
    EXPECT_EQ(Place(ListPicture), "538,85 - 798,588");
    EXPECT_FALSE(Visible(Thumb));
    ExpectRowsInSight(3);
    Refresh(NumberedRows(1000));
    ExpectRowsInSight(1000);
}

TEST_F(LongListTest, a_long_list_after_a_short_one_shows_nothing_of_that)
{
    const Rows tall = NumberedRows(LargestTexture() / RowHeight + 2);
    Open(tall);
    Refresh(tall);
    const std::vector<Pixel> alone = Host().Shoot().pixels;
    MakeContextCurrent();
    Refresh(NumberedRows(3));
    EXPECT_FALSE(Host().Shoot().pixels == alone);
    MakeContextCurrent();
    Refresh(tall);
    EXPECT_EQ(ImageOf(ListPicture), "");
    EXPECT_TRUE(Host().Shoot().pixels == alone);
}

TEST_F(LongListTest, tooltips_name_the_row_under_the_mouse_as_ever)
{
    Rows rows = NumberedRows(1000);
    rows[1].first = L"a rather long name";
    Open(rows);
    MoveTo(600, ListTop + RowHeight + 5);
    EXPECT_EQ(Place(Tooltip), "546,85 - 666,109");
    MoveTo(680, ListTop + RowHeight + 5);
    EXPECT_EQ(CountOf(Tooltip), 0);
    MoveTo(600, ListTop + RowHeight + 5);
    MoveTo(300, 300);
    EXPECT_EQ(CountOf(Tooltip), 0);
}

TEST_F(LongListTest, survives_resize_full_scene_and_closing)
{
    OpenScrolling(1000);
    Drag(100);
    Frame().OnToolBarFullScene(true);
    EXPECT_EQ(Place(ListFrame), "540,35 - 800,590");
    EXPECT_EQ(GuiHost::RectOf(ListPicture).top, 35);
    Frame().OnToolBarFullScene(false);
    Host().Frames(1);
    MakeContextCurrent();
    ExpectRowsInSight(1000);
    Frame().OpenPropertyDlg(nullptr, false);
    Host().Wheel(600, 300, -1);
    Frame().OpenPropertyDlg(nullptr, true);
    ExpectRowsInSight(1000);
    Rebuild();
    ExpectRowsInSight(1000);
    Frame().DestoryAllToolBar();
    Host().Frames(1);
    Rebuild();
    ExpectRowsInSight(1000);
}

TEST_F(LongListTest, survives_the_end_and_the_start_of_the_interface)
{
    OpenScrolling(1000);
    Drag(100);
    Restart(GUI_USER_FULL);
    MakeContextCurrent();
    EXPECT_EQ(GuiHost::Find(ListPicture), nullptr);
    Frame().OpenPropertyDlg(nullptr, true);
    Refresh(NumberedRows(1000));
    ExpectRowsInSight(1000);
    Drag(150);
    ExpectRowsInSight(1000);
}

TEST_F(LongListTest, survives_a_view_too_small_for_it)
{
    OpenScrolling(1000);
    Drag(100);
    Host().Resize(230, 190);
    EXPECT_EQ(GuiHost::Find(ListPicture), nullptr);
    MakeContextCurrent();
    EXPECT_FALSE(Frame().RefreshPropertyDlg());
    Host().Resize(ViewWidth, ViewHeight);
    MakeContextCurrent();
    ExpectRowsInSight(1000);
    Refresh(NumberedRows(1000));
    Drag(150);
    ExpectRowsInSight(1000);
}

TEST_F(LongListTest, rows_taken_away_under_a_scrolled_list_do_no_harm)
{
    OpenScrolling(1000);
    Drag(200);
    SetRows({});
    Host().Wheel(600, 300, -1);
    Drag(1000);
    Drag(-1000);
    EXPECT_EQ(CountOf(ListPicture), 1);
    Frame().RefreshPropertyDlg();
    EXPECT_EQ(Place(ListPicture), "538,85 - 798,588");
}
