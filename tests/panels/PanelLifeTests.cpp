// SPDX-License-Identifier: MIT
// An open panel outlives whatever happens around it.
#include "PanelTest.h"

#include <CEGUI/WindowManager.h>

class PanelLifeTest : public PanelTest
{
protected:
    /// The panel is shown with its first row at a point of the view.
    static void ExpectShown(const char* panel, const char* list, CPoint firstRow)
    {
        EXPECT_EQ(Place(PanelFrame), panel);
        EXPECT_EQ(Place(ListFrame), list);
        EXPECT_EQ(CountOf(PanelFrame), 1);
        EXPECT_EQ(CountOf(ListFrame), 1);
        const PictureFile row = DrawnRow(L"name 0", L"value 0");
        const Screenshot shot = Host().Shoot();
        int differing = 0;
        for (int x = 0; x < 260; ++x)
        {
            differing += !LooksLike(shot.At(firstRow.x + x, firstRow.y + 12), Blend(row.Argb(x, 12), Background()), 4);
        }
        EXPECT_EQ(differing, 0);
    }
};

TEST_F(PanelLifeTest, resize)
{
    Open(NumberedRows(3));
    Host().Resize(1000, 500);
    ExpectShown("738,50 - 998,498", "738,85 - 998,488", CPoint(738, 85));
    Host().Resize(500, 700);
    ExpectShown("238,50 - 498,698", "238,85 - 498,688", CPoint(238, 85));
}

TEST_F(PanelLifeTest, resize_makes_its_windows_anew_so_that_the_scroll_bar_waits_for_a_refresh)
{
    Open(NumberedRows(40));
    Frame().RefreshPropertyDlg();
    Host().Resize(1000, 500);
    EXPECT_EQ(GuiHost::Find(Thumb), nullptr);
    MakeContextCurrent();
    Frame().RefreshPropertyDlg();
    EXPECT_TRUE(Visible(Thumb));
    EXPECT_NEAR(GuiHost::Find(Thumb)->getHeight().d_scale, 403 / 920.0f, 1e-5f);
}

TEST_F(PanelLifeTest, full_scene_and_back)
{
    Open(NumberedRows(3));
    Frame().OnToolBarFullScene(true);
    ExpectShown("540,0 - 800,600", "540,35 - 800,590", CPoint(540, 35));
    Frame().OnToolBarFullScene(false);
    ExpectShown("538,50 - 798,598", "538,85 - 798,588", CPoint(538, 85));
}

TEST_F(PanelLifeTest, full_scene_and_back_with_a_long_list)
{
    Open(NumberedRows(40));
    Frame().OnToolBarFullScene(true);
    EXPECT_EQ(Place(ListPicture), "540,35 - 800,955");
    EXPECT_EQ(GuiHost::RectOf(Thumb).top, 35);
    EXPECT_NEAR(GuiHost::Find(Thumb)->getHeight().d_scale, 555 / 920.0f, 1e-5f);
    Host().Wheel(600, 300, -1);
    Frame().OnToolBarFullScene(false);
    EXPECT_EQ(Place(ListPicture), "538,85 - 798,1005");
    EXPECT_NEAR(GuiHost::Find(Thumb)->getHeight().d_scale, 503 / 920.0f, 1e-5f);
}

TEST_F(PanelLifeTest, full_scene_entered_while_closed)
{
    Open(NumberedRows(3));
    Frame().OpenPropertyDlg(nullptr, false);
    Frame().OnToolBarFullScene(true);
    EXPECT_FALSE(Visible(PanelFrame));
    Frame().OpenPropertyDlg(nullptr, true);
    ExpectShown("540,0 - 800,600", "540,35 - 800,590", CPoint(540, 35));
}

TEST_F(PanelLifeTest, full_scene_by_double_click)
{
    Open(NumberedRows(3));
    Host().DoubleClick(300, 300);
    EXPECT_TRUE(Frame().IsFullScene());
    EXPECT_EQ(Place(PanelFrame), "540,0 - 800,600");
}

TEST_F(PanelLifeTest, end_and_start_of_the_interface)
{
    Open(NumberedRows(3));
    Restart(GUI_USER_FULL);
    EXPECT_FALSE(Frame().IsOpenPropertyDlg());
    Frame().OpenPropertyDlg(nullptr, true);
    Host().Frames(1);
    ExpectShown("538,50 - 798,598", "538,85 - 798,588", CPoint(538, 85));
}

TEST_F(PanelLifeTest, a_view_too_small_for_it_and_grown_again)
{
    Open(NumberedRows(3));
    for (const CSize& size : {CSize(230, 400), CSize(400, 150), CSize(60, 60)})
    {
        Host().Resize(size.cx, size.cy);
        EXPECT_EQ(GuiHost::Find(PanelFrame), nullptr) << size.cx << " x " << size.cy;
        EXPECT_FALSE(Frame().RefreshPropertyDlg());
        EXPECT_TRUE(Frame().IsOpenPropertyDlg());
        Host().Resize(ViewWidth, ViewHeight);
        ExpectShown("538,50 - 798,598", "538,85 - 798,588", CPoint(538, 85));
    }
}

TEST_F(PanelLifeTest, all_bars_destroyed_and_a_resize)
{
    Open(NumberedRows(3));
    Frame().DestoryAllToolBar();
    EXPECT_EQ(GuiHost::Find(PanelFrame), nullptr);
    EXPECT_EQ(GuiHost::Find(ListFrame), nullptr);
    EXPECT_FALSE(Frame().IsNeedRefreshPropertyDlg(CPoint(0, 0)));
    Host().Frames(1);
    Rebuild();
    ExpectShown("538,50 - 798,598", "538,85 - 798,588", CPoint(538, 85));
}

TEST_F(PanelLifeTest, all_bars_destroyed_and_a_refresh)
{
    Open(NumberedRows(3));
    Frame().DestoryAllToolBar();
    EXPECT_TRUE(Frame().RefreshPropertyDlg());
    Host().Frames(1);
    ExpectShown("538,50 - 798,598", "538,85 - 798,588", CPoint(538, 85));
}

TEST_F(PanelLifeTest, its_windows_destroyed_by_others)
{
    Open(NumberedRows(40));
    Frame().RefreshPropertyDlg();
    for (const char* window : {Thumb, ListPicture, PanelPicture, ListFrame, PanelFrame})
    {
        if (CEGUI::Window* found = GuiHost::Find(window))
        {
            CEGUI::WindowManager::getSingleton().destroyWindow(found);
        }
        Host().Frames(1);
        MakeContextCurrent();
        Frame().RefreshPropertyDlg();
        Frame().IsNeedRefreshPropertyDlg(CPoint(0, 0));
        Frame().OpenPropertyDlg(nullptr, false);
        Frame().OpenPropertyDlg(nullptr, true);
    }
    Rebuild();
    ExpectShown("538,50 - 798,598", "538,85 - 798,588", CPoint(538, 85));
}

TEST_F(PanelLifeTest, a_refresh_makes_no_further_windows)
{
    Open(NumberedRows(40));
    Refresh(NumberedRows(40));
    const int windows = WindowCount();
    for (int i = 0; i < 10; ++i)
    {
        Refresh(NumberedRows(i * 10));
        Frame().OnToolBarFullScene(i % 2 == 0);
    }
    Host().Frames(2);
    EXPECT_EQ(WindowCount(), windows);
}
