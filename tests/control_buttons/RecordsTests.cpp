// SPDX-License-Identifier: MIT
// The control-button records and the current one, row by row.
#include "support/FrameTest.h"

namespace
{
BTN_UNIT Full(const wchar_t* name, int kind, float value)
{
    BTN_UNIT unit;
    unit.name = name;
    unit.text = CString(name) + L" text";
    unit.target = CString(name) + L" target";
    unit.kind = kind;
    unit.color = 0x00112233;
    unit.value = value;
    unit.lastText = CString(name) + L" last";
    return unit;
}

void ExpectEqual(const BTN_UNIT& a, const BTN_UNIT& b)
{
    EXPECT_EQ(a.name, b.name);
    EXPECT_EQ(a.text, b.text);
    EXPECT_EQ(a.target, b.target);
    EXPECT_EQ(a.kind, b.kind);
    EXPECT_EQ(a.color, b.color);
    EXPECT_EQ(a.value, b.value);
    EXPECT_EQ(a.lastText, b.lastText);
}

using Names = std::vector<std::string>;
} // namespace

class RecordsTest : public FrameTest
{
protected:
    static Names NamesNow()
    {
        Names names;
        for (const BTN_UNIT& unit : Frame().GetCtrlBtnInfo())
        {
            names.push_back(Utf8(unit.name));
        }
        return names;
    }

    static void Give(const std::vector<const wchar_t*>& names)
    {
        std::vector<BTN_UNIT> records;
        records.reserve(names.size());
        for (const wchar_t* name : names)
        {
            records.push_back(Record(name));
        }
        Frame().SetCtrlBtnInfo(records);
    }

    /// From no current record.
    static void MakeNoneCurrent()
    {
        const std::vector<BTN_UNIT> records = Frame().GetCtrlBtnInfo();
        Frame().SetCtrlBtnInfo({});
        Frame().SetBtnIndex(0);
        Frame().SetCtrlBtnInfo(records);
    }
};

TEST_F(RecordsTest, a_new_record_is_white_and_otherwise_empty)
{
    const BTN_UNIT unit;
    EXPECT_TRUE(unit.name.IsEmpty());
    EXPECT_TRUE(unit.text.IsEmpty());
    EXPECT_TRUE(unit.target.IsEmpty());
    EXPECT_EQ(unit.kind, 0);
    EXPECT_EQ(unit.color, COLORREF(0xFFFFFF));
    EXPECT_EQ(unit.value, -1.0f);
    EXPECT_TRUE(unit.lastText.IsEmpty());
}

TEST_F(RecordsTest, records_are_values)
{
    const BTN_UNIT original = Full(L"a", 1, 2.5f);
    BTN_UNIT copy(original);
    ExpectEqual(copy, original);
    copy.name = L"b";
    EXPECT_EQ(original.name, L"a");
    BTN_UNIT assigned;
    assigned = original;
    ExpectEqual(assigned, original);
}

TEST_F(RecordsTest, the_list_is_taken_as_a_copy_and_nothing_else_changes)
{
    Show({Record(L"a"), Record(L"b")});
    Frame().SetBtnIndex(1);
    std::vector<BTN_UNIT> records = {Full(L"x", 0, 1), Full(L"y", 1, 2), Full(L"z", 2, 3)};
    Frame().SetCtrlBtnInfo(records);
    records[0].name = L"changed";
    EXPECT_EQ(NamesNow(), (Names{"x", "y", "z"}));
    ExpectEqual(Frame().GetCtrlBtnInfo()[1], records[1]);
    EXPECT_EQ(Frame().GetBtnIndex(), 1);
    EXPECT_NE(Place("a_P"), "no window") << "no window is built or taken away";
    EXPECT_EQ(Place("x_P"), "no window");
}

TEST_F(RecordsTest, the_list_itself_can_be_edited_in_place)
{
    Give({L"a"});
    Frame().GetCtrlBtnInfo().push_back(Record(L"b"));
    Frame().GetCtrlBtnInfo()[0].name = L"c";
    EXPECT_EQ(NamesNow(), (Names{"c", "b"}));
}

TEST_F(RecordsTest, look_up_by_index)
{
    Give({L"a", L"b", L"c"});
    const struct
    {
        int index;
        bool found;
    } rows[] = {{-2147483647 - 1, false}, {-1, false}, {0, true}, {2, true}, {3, false}, {2147483647, false}};
    for (const auto& row : rows)
    {
        const BTN_UNIT* expected = row.found ? &Frame().GetCtrlBtnInfo()[static_cast<std::size_t>(row.index)] : nullptr;
        EXPECT_EQ(Frame().GetBtnProperty(row.index), expected) << row.index;
    }
    Give({});
    EXPECT_EQ(Frame().GetBtnProperty(0), nullptr);
}

TEST_F(RecordsTest, look_up_by_name_and_kind)
{
    Frame().SetCtrlBtnInfo({Record(L"a", 0), Record(L"a", 1), Record(L"b", 2), Record(L"a", 0), Record(L"", 1)});
    const struct
    {
        const wchar_t* name;
        int kind;
        int found;
    } rows[] = {{L"a", 0, 0},  {L"a", 1, 1}, {L"a", 2, -1}, {L"b", 2, 2}, {L"b", 0, -1},
                {L"A", 0, -1}, {L"", 1, 4},  {L"", 0, -1},  {L"c", 0, -1}};
    for (const auto& row : rows)
    {
        int index = 77;
        const BTN_UNIT* found = Frame().GetBtnProperty(row.name, row.kind, index);
        const BTN_UNIT* expected = row.found < 0 ? nullptr : &Frame().GetCtrlBtnInfo()[static_cast<std::size_t>(row.found)];
        EXPECT_EQ(found, expected) << Utf8(row.name) << " " << row.kind;
        EXPECT_EQ(index, row.found < 0 ? 77 : row.found) << "untouched when there is none";
        EXPECT_EQ(Frame().GetBtnProperty(CString(row.name), row.kind), expected);
    }
    Give({});
    EXPECT_EQ(Frame().GetBtnProperty(CString(L"a"), 0), nullptr);
}

TEST_F(RecordsTest, a_change_of_a_record_reports_false_on_purpose)
{
    Frame().SetCtrlBtnInfo({Record(L"a", 1), Record(L"b", 1), Record(L"b", 0)});
    const BTN_UNIT unit = Full(L"new", 2, 4.5f);
    EXPECT_FALSE(Frame().SetEditBtnProperty(L"b", unit));
    ExpectEqual(Frame().GetCtrlBtnInfo()[1], unit);
    EXPECT_EQ(NamesNow(), (Names{"a", "new", "b"})) << "the first of that name, whatever its kind";
    EXPECT_FALSE(Frame().SetEditBtnProperty(L"unknown", unit));
    EXPECT_FALSE(Frame().SetEditBtnProperty(L"A", unit));
    EXPECT_EQ(NamesNow(), (Names{"a", "new", "b"}));
}

TEST_F(RecordsTest, the_index_is_clamped_into_the_list_and_the_host_is_not_told)
{
    const struct
    {
        std::size_t count;
        int index;
        int current;
    } rows[] = {{3, -5, 0}, {3, 7, 2}, {3, 0, 0},  {3, 1, 1},   {3, 2, 2},
                {3, 3, 2},  {1, 9, 0}, {0, 0, -1}, {0, -3, -1}, {0, 4, -1}};
    for (const auto& row : rows)
    {
        Frame().SetCtrlBtnInfo(std::vector<BTN_UNIT>(row.count, Record(L"r")));
        MakeNoneCurrent();
        Frame().SetBtnIndex(row.index);
        EXPECT_EQ(Frame().GetBtnIndex(), row.current) << row.index << " of " << row.count;
    }
    EXPECT_TRUE(Host().TakeMessages().empty());
}

TEST_F(RecordsTest, steps_forward_and_back)
{
    const struct
    {
        const char* what;
        std::size_t count;
        int from; ///< -1: none
        bool forward;
        bool moved;
        int to;
    } rows[] = {
        {"forward from none", 3, -1, true, true, 0},
        {"forward", 3, 0, true, true, 1},
        {"forward to the last", 3, 1, true, true, 2},
        {"forward at the last", 3, 2, true, false, 2},
        {"forward without records", 0, -1, true, false, -1},
        {"back from none leads to the first", 3, -1, false, true, 0},
        {"back", 3, 2, false, true, 1},
        {"back to the first", 3, 1, false, true, 0},
        {"back at the first", 3, 0, false, false, 0},
        {"back without records", 0, -1, false, false, -1},
        {"back from none with one record", 1, -1, false, true, 0},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.what);
        Frame().SetCtrlBtnInfo(std::vector<BTN_UNIT>(row.count, Record(L"r")));
        MakeNoneCurrent();
        if (row.from >= 0)
        {
            Frame().SetBtnIndex(row.from);
        }
        EXPECT_EQ(row.forward ? Frame().AddBtnIndex() : Frame().SubBtnIndex(), row.moved);
        EXPECT_EQ(Frame().GetBtnIndex(), row.to);
        const std::vector<HostMessage> messages = Host().TakeMessages();
        ASSERT_EQ(messages.size(), row.moved ? 1u : 0u);
        if (row.moved)
        {
            EXPECT_EQ(messages[0].code, WPARAM(17));
            EXPECT_EQ(messages[0].value, reinterpret_cast<LPARAM>(Frame().GetBtnProperty(row.to)));
        }
    }
}

TEST_F(RecordsTest, a_step_forward_past_a_shortened_list_is_refused)
{
    Give({L"a", L"b", L"c"});
    Frame().SetBtnIndex(2);
    Frame().GetCtrlBtnInfo().resize(1);
    EXPECT_FALSE(Frame().AddBtnIndex());
    EXPECT_TRUE(Host().TakeMessages().empty());
}

TEST_F(RecordsTest, a_step_back_in_a_shortened_list_may_report_no_record)
{
    Give({L"a", L"b", L"c"});
    Frame().SetBtnIndex(2);
    Frame().GetCtrlBtnInfo().resize(1);
    EXPECT_TRUE(Frame().SubBtnIndex());
    const std::vector<HostMessage> messages = Host().TakeMessages();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].value, 0);
    EXPECT_TRUE(Frame().SubBtnIndex());
    EXPECT_EQ(Frame().GetBtnIndex(), 0);
}

TEST_F(RecordsTest, the_operations_that_do_nothing_report_true)
{
    Give({L"a"});
    EXPECT_TRUE(Frame().SetEditBtnMoveState(L"a", true));
    EXPECT_TRUE(Frame().SetEditBtnMoveState(L"unknown", false));
    EXPECT_TRUE(Frame().RefreshButton(GUI_BTN_ALL));
    EXPECT_EQ(NamesNow(), Names{"a"});
}

TEST_F(RecordsTest, records_and_list_outlive_windows_and_interface)
{
    Show({Record(L"a"), Record(L"b")});
    Frame().ClearAllWindows();
    EXPECT_EQ(NamesNow(), (Names{"a", "b"}));
    Host().Close();
    EXPECT_EQ(NamesNow(), (Names{"a", "b"}));
    Restart(GUI_USER_FULL);
    EXPECT_EQ(NamesNow(), (Names{"a", "b"}));
    EXPECT_EQ(Place("b_P"), "11,172 - 137,268");
}

TEST_F(RecordsTest, all_of_them_work_without_an_interface)
{
    Host().Close();
    Give({L"a", L"b"});
    MakeNoneCurrent();
    Frame().SetBtnIndex(1);
    EXPECT_TRUE(Frame().SubBtnIndex());
    EXPECT_TRUE(Frame().AddBtnIndex());
    EXPECT_EQ(Frame().GetBtnIndex(), 1);
    Frame().ClearAllCtrlBtn();
    Frame().DeleteButton(L"a");
    EXPECT_EQ(NamesNow(), Names{"b"});
}
