// SPDX-License-Identifier: MIT
// Where menus open, and what is left of them.
#include "EditingTest.h"

class MenuPlaceTest : public EditingTest
{
protected:
    void TearDown() override
    {
        SetCursorPos(former_.x, former_.y);
        EditingTest::TearDown();
    }

    /// The machine's own pointer, which menus open at.
    void PointAt(int x, int y)
    {
        SetCursorPos(x, y);
        POINT now = {};
        GetCursorPos(&now);
        ASSERT_EQ(now.x, x);
        ASSERT_EQ(now.y, y);
    }

    static void ExpectUpperLeft(LONG x, LONG y)
    {
        // The system's border may stand out.
        EXPECT_NEAR(Log().place.left, x, 4);
        EXPECT_NEAR(Log().place.top, y, 4);
        EXPECT_GT(Log().place.right - Log().place.left, 30) << "a window with entries";
    }

private:
    POINT former_ = []
    {
        POINT point = {};
        GetCursorPos(&point);
        return point;
    }();
};

TEST_F(MenuPlaceTest, the_scenes_menu_opens_at_the_machines_pointer)
{
    for (const CPoint& point : {CPoint(300, 200), CPoint(411, 355)})
    {
        PointAt(point.x, point.y);
        RightClickScene();
        EXPECT_EQ(Log().TakeMenus(), SceneMenu());
        ExpectUpperLeft(point.x, point.y);
    }
}

TEST_F(MenuPlaceTest, a_buttons_menu_opens_at_the_machines_pointer)
{
    PointAt(320, 240);
    RightClickEntry(First);
    EXPECT_EQ(Log().TakeMenus(), ButtonMenu());
    ExpectUpperLeft(320, 240);
}

TEST_F(MenuPlaceTest, both_menus_are_destroyed_once_they_have_closed)
{
    RightClickScene();
    EXPECT_EQ(Log().TakeMenus(), SceneMenu());
    ASSERT_NE(Log().menu, nullptr);
    EXPECT_FALSE(IsMenu(Log().menu));
    ShowList();
    RightClickEntry(First);
    EXPECT_EQ(Log().TakeMenus(), ButtonMenu());
    ASSERT_NE(Log().menu, nullptr);
    EXPECT_FALSE(IsMenu(Log().menu));
}

TEST_F(MenuPlaceTest, without_a_main_window_there_is_no_menu)
{
    CWnd* const former = AfxGetApp()->m_pMainWnd;
    AfxGetApp()->m_pMainWnd = nullptr;
    RightClickScene();
    RightClickEntry(First);
    AfxGetApp()->m_pMainWnd = former;
    EXPECT_EQ(Log().TakeMenus(), Menus{});
    EXPECT_EQ(Edited(), First) << "remembered all the same";
}
