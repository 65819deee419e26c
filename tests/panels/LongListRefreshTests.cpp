// SPDX-License-Identifier: MIT
// What a refresh shows of a long property list, and what is shown when it fails.
#include "LongListTest.h"

#include <widgets/WindowNames.h>

namespace
{
const char* const Stretches[] = {"PropertyImage_0_0.bmp", "PropertyImage_0_1.bmp"};
} // namespace

class LongListRefreshTest : public LongListTest
{
protected:
    /// Rows that look like none of `NumberedRows`.
    static Rows OtherRows(int count)
    {
        Rows rows = NumberedRows(count);
        for (auto& [name, value] : rows)
        {
            name = L"W" + name;
            value = L"W" + value;
        }
        return rows;
    }

    static std::vector<Pixel> Shown()
    {
        const Screenshot shot = Host().Shoot();
        MakeContextCurrent();
        return shot.pixels;
    }
};

TEST_F(LongListRefreshTest, rows_set_without_a_refresh_are_not_seen_on_scrolling)
{
    OpenScrolling(1000);
    for (const Rows& rows : {OtherRows(1000), OtherRows(20), Rows()})
    {
        SetRows(rows);
        for (const float by : {100.0f, 1000.0f, -1000.0f})
        {
            Drag(by);
            ExpectRowsInSight(1000);
        }
    }
    Refresh(OtherRows(1000));
    Drag(300);
    const std::vector<Pixel> others = Shown();
    Refresh(NumberedRows(1000));
    Drag(300);
    ExpectRowsInSight(1000);
    EXPECT_FALSE(Shown() == others);
}

TEST_F(LongListRefreshTest, rows_set_while_the_panel_is_closed_are_seen_when_it_opens)
{
    Open(OtherRows(1000));
    Frame().OpenPropertyDlg(nullptr, false);
    SetRows(NumberedRows(1000));
    Frame().OpenPropertyDlg(nullptr, true);
    Host().Frames(1);
    MakeContextCurrent();
    ExpectRowsInSight(1000);
}

TEST_F(LongListRefreshTest, one_without_the_template_keeps_the_old_rows_and_their_scrolling)
{
    for (const int former : {10, 1000})
    {
        SCOPED_TRACE(former);
        Open(NumberedRows(former));
        Refresh(NumberedRows(former));
        Drag(50);
        const std::vector<Pixel> before = Shown();
        const int scrolled = Scrolled();
        {
            const FileTaken taken(TemplateFile());
            EXPECT_TRUE(Refresh(OtherRows(2000)));
            EXPECT_EQ(TakeLog().size(), 1u);
            EXPECT_TRUE(Shown() == before);
            EXPECT_EQ(Scrolled(), scrolled);
        }
        Drag(100);
        ExpectRowsInSight(former);
        Refresh(NumberedRows(2000));
        ExpectRowsInSight(2000);
    }
}

TEST_F(LongListRefreshTest, a_short_one_without_the_template_keeps_a_long_list)
{
    OpenScrolling(1000);
    Drag(100);
    const std::vector<Pixel> before = Shown();
    {
        const FileTaken taken(TemplateFile());
        EXPECT_TRUE(Refresh(NumberedRows(3)));
        EXPECT_EQ(TakeLog().size(), 1u);
        EXPECT_TRUE(Shown() == before);
    }
    Drag(100);
    ExpectRowsInSight(1000);
}

TEST_F(LongListRefreshTest, a_stretch_that_could_not_be_drawn_is_drawn_at_a_later_move)
{
    OpenScrolling(1000);
    {
        const FileTaken taken(TemplateFile());
        Drag(100);
        EXPECT_GE(TakeLog().size(), 1u);
    }
    Drag(50);
    ExpectRowsInSight(1000);
}

TEST_F(LongListRefreshTest, without_the_template_a_list_is_not_made)
{
    {
        const FileTaken taken(TemplateFile());
        Open(NumberedRows(1000));
        EXPECT_EQ(CountOf(ListFrame), 0);
        EXPECT_EQ(CountOf(ListPicture), 0);
        EXPECT_TRUE(Frame().RefreshPropertyDlg()) << "open all the same";
        EXPECT_EQ(CountOf(ListFrame), 0);
        EXPECT_GE(TakeLog().size(), 2u);
    }
    Refresh(NumberedRows(1000));
    ExpectRowsInSight(1000);
}

TEST_F(LongListRefreshTest, its_windows_deleted_by_name_it_goes_on)
{
    for (const char* name : {Stretches[0], Stretches[1], ListPicture, ListFrame, Thumb, PanelPicture, PanelFrame})
    {
        for (const float scrolled : {100.0f, 1000.0f})
        {
            SCOPED_TRACE(name + std::string(" scrolled by ") + std::to_string(scrolled));
            OpenScrolling(1000);
            Drag(scrolled);
            Frame().DeleteButton(CString(name));
            Host().Frames(1);
            MakeContextCurrent();
            Host().Wheel(600, 300, -1);
            Host().Wheel(600, 300, 1);
            MakeContextCurrent();
            if (HasBar(L"TavPropertyCtrlFrame") && List().thumb)
            {
                for (const float by : {7.0f, 200.0f, -1000.0f})
                {
                    Drag(by);
                }
            }
            Refresh(NumberedRows(3));
            Frame().OpenPropertyDlg(nullptr, false);
            Frame().OpenPropertyDlg(nullptr, true);
            Rebuild();
            Refresh(NumberedRows(1000));
            ExpectRowsInSight(1000);
        }
    }
}

TEST_F(LongListRefreshTest, a_stretch_deleted_by_name_is_there_again_when_it_is_scrolled_to)
{
    OpenScrolling(1000);
    for (const char* name : Stretches)
    {
        Drag(-1000);
        Drag(300);
        Frame().DeleteButton(CString(name));
        Drag(-1000);
        ExpectRowsInSight(1000);
        Drag(300);
        ExpectRowsInSight(1000);
    }
}
