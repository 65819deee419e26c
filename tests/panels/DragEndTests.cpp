// SPDX-License-Identifier: MIT
// A drag of the property list's thumb ends when the thumb is no longer seen.
#include "PanelTest.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>

#include <functional>

class DragEndTest : public PanelTest
{
protected:
    static constexpr int ThumbX = 783;

    /// 40 rows are one picture, 750 are taller than a texture here.
    static constexpr int RowCounts[] = {40, 750};

    static void OpenAndDrag(int rows)
    {
        Open(NumberedRows(rows));
        Refresh(NumberedRows(rows));
        Host().MoveMouse(ThumbX, 90);
        Host().Press(ThumbX, 90);
        Host().MoveMouse(ThumbX, 150);
        ASSERT_TRUE(List().dragging);
        EXPECT_LT(GuiHost::RectOf(ListPicture).top, ListTop - 50);
        MakeContextCurrent();
    }

    static void ExpectNothingMoves()
    {
        EXPECT_FALSE(List().dragging);
        for (const int y : {200, 300, 500, 100})
        {
            Host().MoveMouse(ThumbX, y);
            EXPECT_EQ(GuiHost::RectOf(ListPicture).top, ListTop) << y;
        }
        Host().Release(ThumbX, 100);
        MakeContextCurrent();
        EXPECT_EQ(CEGUI::System::getSingleton().getDefaultGUIContext().getInputCaptureWindow(), nullptr);
    }

    static void ExpectScrollsAgain(int rows)
    {
        Refresh(NumberedRows(rows));
        EXPECT_TRUE(Visible(Thumb));
        EXPECT_EQ(GuiHost::RectOf(ListPicture).top, ListTop);
        Host().MoveMouse(ThumbX, 90);
        Host().MoveMouse(ThumbX, 190);
        EXPECT_EQ(GuiHost::RectOf(ListPicture).top, ListTop) << "nothing is pressed";
        Host().MoveMouse(ThumbX, 90);
        Host().Press(ThumbX, 90);
        Host().MoveMouse(ThumbX, 120);
        EXPECT_LT(GuiHost::RectOf(ListPicture).top, ListTop - 20);
        Host().Release(ThumbX, 120);
        MakeContextCurrent();
    }
};

TEST_F(DragEndTest, when_a_refresh_hides_it)
{
    for (const int rows : RowCounts)
    {
        SCOPED_TRACE(rows);
        OpenAndDrag(rows);
        Refresh(NumberedRows(3));
        ASSERT_FALSE(Visible(Thumb));
        ExpectNothingMoves();
        ExpectScrollsAgain(rows);
    }
}

TEST_F(DragEndTest, when_the_panel_is_closed_and_opened)
{
    for (const int rows : RowCounts)
    {
        SCOPED_TRACE(rows);
        OpenAndDrag(rows);
        Frame().OpenPropertyDlg(nullptr, false);
        Frame().OpenPropertyDlg(nullptr, true);
        ExpectNothingMoves();
        ExpectScrollsAgain(rows);
    }
}

TEST_F(DragEndTest, when_a_size_event_makes_the_list_anew)
{
    for (const int rows : RowCounts)
    {
        SCOPED_TRACE(rows);
        OpenAndDrag(rows);
        Rebuild();
        ExpectNothingMoves();
        ExpectScrollsAgain(rows);
    }
}

TEST_F(DragEndTest, but_goes_on_over_a_refresh_that_leaves_the_thumb)
{
    OpenAndDrag(40);
    Refresh(NumberedRows(60));
    EXPECT_EQ(GuiHost::RectOf(ListPicture).top, ListTop);
    Host().MoveMouse(ThumbX, 200);
    EXPECT_LT(GuiHost::RectOf(ListPicture).top, ListTop - 50);
    Host().Release(ThumbX, 200);
    EXPECT_FALSE(List().dragging);
    MakeContextCurrent();
}
