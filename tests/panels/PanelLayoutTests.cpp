// SPDX-License-Identifier: MIT
// Where the property panel lies, and when it can be shown.
#include "PanelTest.h"

using PanelLayoutTest = PanelTest;

TEST_F(PanelLayoutTest, beside_the_right_border_below_the_title_bar)
{
    Open(NumberedRows(3));
    EXPECT_EQ(Place(PanelFrame), "538,50 - 798,598");
    EXPECT_EQ(Place(PanelPicture), "538,50 - 798,598");
    EXPECT_EQ(Place(ListFrame), "538,85 - 798,588");
    EXPECT_EQ(Place(ListPicture), "538,85 - 798,588");
    EXPECT_TRUE(Visible(PanelPicture));
    EXPECT_TRUE(Visible(ListPicture));
}

TEST_F(PanelLayoutTest, over_the_whole_height_in_full_scene)
{
    Frame().OnToolBarFullScene(true);
    Open(NumberedRows(3));
    EXPECT_EQ(Place(PanelFrame), "540,0 - 800,600");
    EXPECT_EQ(Place(PanelPicture), "540,0 - 800,600");
    EXPECT_EQ(Place(ListFrame), "540,35 - 800,590");
    EXPECT_EQ(Place(ListPicture), "540,35 - 800,590");
}

TEST_F(PanelLayoutTest, the_wider_borders_of_a_restricted_user_do_not_move_it_on_purpose)
{
    Restart(GUI_USER_RESTRICTED);
    Open(NumberedRows(3));
    EXPECT_EQ(GuiHost::RectOf("TavRightBorderBackground").left, 795);
    EXPECT_EQ(Place(PanelFrame), "538,50 - 798,598");
    EXPECT_EQ(Place(ListFrame), "538,85 - 798,588");
}

TEST_F(PanelLayoutTest, both_are_scrolling_bars_of_the_root_sheet)
{
    Open(NumberedRows(3));
    for (const wchar_t* name : {L"TavBackCtrlFrame", L"TavPropertyCtrlFrame"})
    {
        ASSERT_TRUE(HasBar(name));
        EXPECT_EQ(Bar(name).barType, UINT(BAR_PANEL));
        EXPECT_EQ(Bar(name).items.size(), 1u);
        EXPECT_EQ(Bar(name).window->getParent(), GuiHost::Find("rootSheet"));
    }
}

TEST_F(PanelLayoutTest, a_long_list_reaches_below_its_place_and_is_cut_there)
{
    Open(NumberedRows(40));
    EXPECT_EQ(Place(ListPicture), "538,85 - 798,1005");
    EXPECT_EQ(Place(ListFrame), "538,85 - 798,588");
    // The footer below the list is the panel's own.
    const PictureFile panel = ReadPictureFile(PanelFile());
    EXPECT_TRUE(LooksLike(Seen(600, 593), Blend(panel.Argb(62, 543), Background())));
}

TEST_F(PanelLayoutTest, refresh_tells_whether_it_is_laid_out)
{
    EXPECT_FALSE(Frame().RefreshPropertyDlg());
    Open(NumberedRows(3));
    EXPECT_TRUE(Frame().RefreshPropertyDlg());
    Frame().OpenPropertyDlg(nullptr, false);
    EXPECT_FALSE(Frame().RefreshPropertyDlg());
}

TEST_F(PanelLayoutTest, closing_hides_and_destroys_nothing)
{
    Open(NumberedRows(3));
    const CEGUI::Window* panel = GuiHost::Find(PanelFrame);
    const CEGUI::Window* list = GuiHost::Find(ListFrame);
    MakeOld(ListFile());
    Frame().OpenPropertyDlg(nullptr, false);
    Host().Frames(1);
    EXPECT_EQ(GuiHost::Find(PanelFrame), panel);
    EXPECT_EQ(GuiHost::Find(ListFrame), list);
    EXPECT_FALSE(Visible(PanelPicture));
    EXPECT_FALSE(Visible(ListPicture));
    EXPECT_EQ(Seen(600, 300), Background());
    EXPECT_TRUE(IsOld(ListFile())) << "the last picture stays";
    Frame().OpenPropertyDlg(nullptr, true);
    EXPECT_EQ(GuiHost::Find(ListFrame), list);
    EXPECT_TRUE(Visible(PanelPicture));
    EXPECT_TRUE(Visible(ListPicture));
}

TEST_F(PanelLayoutTest, a_hidden_panel_is_hidden_by_a_refresh_too)
{
    Open(NumberedRows(3));
    Frame().OpenPropertyDlg(nullptr, false);
    GuiHost::Find(PanelFrame)->show();
    GuiHost::Find(ListFrame)->show();
    EXPECT_FALSE(Frame().RefreshPropertyDlg());
    EXPECT_FALSE(Visible(PanelFrame));
    EXPECT_FALSE(Visible(ListFrame));
}

TEST_F(PanelLayoutTest, nothing_before_the_frame_stands)
{
    Restart(GUI_USER_FULL, false);
    SetRows(NumberedRows(3));
    Frame().OpenPropertyDlg(nullptr, true);
    EXPECT_TRUE(Frame().IsOpenPropertyDlg());
    EXPECT_FALSE(Frame().RefreshPropertyDlg());
    EXPECT_FALSE(Frame().IsNeedRefreshPropertyDlg(CPoint(0, 0)));
    Rebuild();
    EXPECT_EQ(Place(PanelFrame), "538,50 - 798,598") << "the frame builds the open panel";
}

TEST_F(PanelLayoutTest, nothing_without_a_viewer)
{
    Host().Close();
    EXPECT_FALSE(Frame().RefreshPropertyDlg());
    Frame().OpenPropertyDlg(nullptr, true);
    EXPECT_FALSE(Frame().RefreshPropertyDlg());
    Frame().OpenPropertyDlg(nullptr, false);
    Frame().ClosePropertyDlg();
    Restart(GUI_USER_FULL);
}

TEST_F(PanelLayoutTest, a_view_of_240_x_200_is_the_smallest)
{
    const struct
    {
        int width;
        int height;
        bool shown;
    } views[] = {{240, 200, true}, {239, 200, false}, {240, 199, false}, {300, 60, false}};
    SetRows(NumberedRows(3));
    for (const auto& view : views)
    {
        SCOPED_TRACE(std::to_string(view.width) + " x " + std::to_string(view.height));
        Open(NumberedRows(3));
        Host().Resize(view.width, view.height);
        MakeContextCurrent();
        EXPECT_EQ(Frame().RefreshPropertyDlg(), view.shown);
        EXPECT_EQ(Visible(PanelFrame), view.shown);
        EXPECT_EQ(Visible(ListFrame), view.shown);
        EXPECT_TRUE(Frame().IsOpenPropertyDlg());
    }
}

TEST_F(PanelLayoutTest, in_a_view_narrower_than_itself_it_is_cut_and_not_squeezed)
{
    for (const int width : {240, 250, 259})
    {
        SCOPED_TRACE(width);
        Open(NumberedRows(3));
        Host().Resize(width, 400);
        MakeContextCurrent();
        const LONG right = width - 2;
        EXPECT_EQ(Place(PanelFrame), Text({right - 260, 50, right, 398}));
        EXPECT_EQ(Place(PanelPicture), Text({right - 260, 50, right, 398}));
        EXPECT_EQ(Place(ListFrame), Text({right - 260, 85, right, 388}));
        EXPECT_EQ(Place(ListPicture), Text({right - 260, 85, right, 388}));
        // The picture's pixels as they are, from the view's left border on.
        const PictureFile row = DrawnRow(L"name 0", L"value 0");
        const Screenshot shot = Host().Shoot();
        MakeContextCurrent();
        int differing = 0;
        for (int x = 2; x < right; ++x)
        {
            differing += !LooksLike(shot.At(x, ListTop + 12), Blend(row.Argb(x - right + 260, 12), Background()), 4);
        }
        EXPECT_EQ(differing, 0);
        EXPECT_TRUE(Refresh(NumberedRows(40)));
        EXPECT_EQ(Place(ListPicture), Text({right - 260, 85, right, 85 + 40 * RowHeight}));
        Frame().OnToolBarFullScene(true);
        EXPECT_EQ(Place(PanelPicture), Text({width - 260, 0, width, 400}));
        EXPECT_EQ(Place(ListFrame), Text({width - 260, 35, width, 390}));
        Frame().OnToolBarFullScene(false);
    }
}

TEST_F(PanelLayoutTest, opened_again_it_is_where_the_last_refresh_placed_it)
{
    Open(NumberedRows(3));
    // The host stores another size than the last event's, and has the panel laid out for it.
    Frame().SetWindowSize(ViewWidth, ViewHeight * 2);
    EXPECT_TRUE(Frame().RefreshPropertyDlg());
    const std::string panel = Place(PanelFrame);
    const std::string list = Place(ListFrame);
    EXPECT_EQ(panel, "538,25 - 798,599");
    Frame().OpenPropertyDlg(nullptr, false);
    Frame().OpenPropertyDlg(nullptr, true);
    EXPECT_EQ(Place(PanelFrame), panel);
    EXPECT_EQ(Place(ListFrame), list);
    Frame().SetWindowSize(ViewWidth, ViewHeight);
}

TEST_F(PanelLayoutTest, a_first_creation_in_a_view_as_wide_as_the_panel_makes_both_bars_in_their_size)
{
    // By the frame's border it lies two pixels out of the view; in full scene it fills the view's width.
    const struct
    {
        bool full;
        const char* panel;
        const char* list;
        int left;
        int top;
    } views[] = {{false, "-2,50 - 258,398", "-2,85 - 258,388", -2, 85}, {true, "0,0 - 260,400", "0,35 - 260,390", 0, 35}};
    for (const auto& view : views)
    {
        SCOPED_TRACE(view.panel);
        Frame().OpenPropertyDlg(nullptr, false);
        Frame().OnToolBarFullScene(view.full);
        Host().Resize(261, 400);
        Host().Resize(260, 400);
        MakeContextCurrent();
        ASSERT_FALSE(HasBar(L"TavBackCtrlFrame")) << "nothing there yet";
        Open(NumberedRows(3));
        EXPECT_EQ(Place(PanelFrame), view.panel);
        EXPECT_EQ(Place(PanelPicture), view.panel);
        EXPECT_EQ(Place(ListFrame), view.list);
        EXPECT_EQ(Place(ListPicture), view.list);
        const PictureFile row = DrawnRow(L"name 0", L"value 0");
        const PictureFile header = DrawnHeader(L"显示属性");
        const Screenshot shot = Host().Shoot();
        int differing = 0;
        // The left border shines through the panel's first two pixels in the view.
        for (int x = view.full ? 0 : 2; x < view.left + 260; ++x)
        {
            differing += !LooksLike(shot.At(x, view.top + 12), Blend(row.Argb(x - view.left, 12), Background()), 4);
            differing += !LooksLike(shot.At(x, view.top - 17), Blend(header.Argb(x - view.left, 18), Background()), 4);
        }
        EXPECT_EQ(differing, 0);
    }
    Frame().OnToolBarFullScene(false);
}

TEST_F(PanelLayoutTest, too_small_a_view_changes_nothing)
{
    Open(NumberedRows(3));
    // The size alone, without an event that builds the frame anew.
    Frame().SetWindowSize(239, 600);
    MakeOld(ListFile());
    EXPECT_FALSE(Frame().RefreshPropertyDlg());
    Frame().OpenPropertyDlg(nullptr, false);
    EXPECT_TRUE(Visible(PanelFrame)) << "not even hidden";
    EXPECT_TRUE(IsOld(ListFile()));
    Frame().SetWindowSize(ViewWidth, ViewHeight);
}

TEST_F(PanelLayoutTest, only_points_left_of_the_open_panel_need_a_refresh)
{
    EXPECT_FALSE(Frame().IsNeedRefreshPropertyDlg(CPoint(0, 0))) << "not there yet";
    Open(NumberedRows(3));
    EXPECT_TRUE(Frame().IsNeedRefreshPropertyDlg(CPoint(537, 300)));
    EXPECT_FALSE(Frame().IsNeedRefreshPropertyDlg(CPoint(538, 300)));
    EXPECT_TRUE(Frame().IsNeedRefreshPropertyDlg(CPoint(537, -5000))) << "only x counts";
    EXPECT_FALSE(Frame().IsNeedRefreshPropertyDlg(CPoint(5000, 300)));
    Frame().OnToolBarFullScene(true);
    EXPECT_TRUE(Frame().IsNeedRefreshPropertyDlg(CPoint(539, 300)));
    EXPECT_FALSE(Frame().IsNeedRefreshPropertyDlg(CPoint(540, 300)));
    Frame().OpenPropertyDlg(nullptr, false);
    EXPECT_FALSE(Frame().IsNeedRefreshPropertyDlg(CPoint(0, 0))) << "closed";
}

TEST_F(PanelLayoutTest, ClosePropertyDlg_leaves_everything_as_it_is_on_purpose)
{
    Open(NumberedRows(3));
    MakeOld(ListFile());
    Frame().ClosePropertyDlg();
    Host().Frames(1);
    EXPECT_TRUE(Frame().IsOpenPropertyDlg());
    EXPECT_TRUE(Visible(PanelPicture));
    EXPECT_TRUE(Visible(ListPicture));
    EXPECT_EQ(Place(ListFrame), "538,85 - 798,588");
    EXPECT_TRUE(IsOld(ListFile()));
}
