// SPDX-License-Identifier: MIT
// The rows that the host hands over and reads back.
#include "PanelTest.h"

using PropertyDataTest = PanelTest;

TEST_F(PropertyDataTest, rows_are_copied_in_and_out_in_their_order)
{
    Rows rows = {{L"用途", L"住宅"}, {L"height", L"45.2 m"}, {L"", L""}};
    const Rows given = rows;
    Frame().setPropertyData(rows);
    rows.clear();
    Rows read = {{L"something", L"else"}};
    Frame().getPropertyData(read);
    EXPECT_TRUE(read == given);
    read[0].first = L"changed";
    Rows again;
    Frame().getPropertyData(again);
    EXPECT_TRUE(again == given);
}

TEST_F(PropertyDataTest, target_rows_are_kept_apart_and_handed_out_by_reference)
{
    Rows rows = {{L"a", L"1"}};
    Frame().setTargetData(rows);
    rows.clear();
    ASSERT_EQ(Frame().getTargetData().size(), 1u);
    Frame().getTargetData().emplace_back(L"b", L"2");
    EXPECT_EQ(Frame().getTargetData().size(), 2u);
    EXPECT_EQ(Frame().PropertyRowCount(), 0);
}

TEST_F(PropertyDataTest, target_rows_are_never_drawn)
{
    Rows rows = NumberedRows(40);
    Frame().setTargetData(rows);
    Open({});
    Rows none;
    Frame().setTargetData(none);
    EXPECT_EQ(Place(ListPicture), "538,85 - 798,588");
    EXPECT_EQ(GuiHost::Find("TavTargetCtrlFrame"), nullptr);
}

TEST_F(PropertyDataTest, new_rows_are_not_shown_before_a_refresh)
{
    Open(NumberedRows(3));
    MakeOld(ListFile());
    SetRows(NumberedRows(40));
    Host().Frames(2);
    EXPECT_TRUE(IsOld(ListFile()));
    EXPECT_EQ(Place(ListPicture), "538,85 - 798,588");
}

TEST_F(PropertyDataTest, the_open_flag_is_what_was_asked_for_last)
{
    EXPECT_FALSE(Frame().IsOpenPropertyDlg());
    Frame().OpenPropertyDlg(nullptr, true);
    EXPECT_TRUE(Frame().IsOpenPropertyDlg());
    Frame().OpenPropertyDlg(nullptr, true);
    EXPECT_TRUE(Frame().IsOpenPropertyDlg());
    Frame().OpenPropertyDlg(nullptr, false);
    EXPECT_FALSE(Frame().IsOpenPropertyDlg());
}

TEST_F(PropertyDataTest, closed_at_each_start)
{
    Open(NumberedRows(3));
    Restart(GUI_USER_FULL);
    EXPECT_FALSE(Frame().IsOpenPropertyDlg());
    EXPECT_EQ(GuiHost::Find(PanelFrame), nullptr);
    EXPECT_EQ(Frame().PropertyRowCount(), 3) << "the rows stay";
}
