// SPDX-License-Identifier: MIT
// The chosen entry of the left list: its look, and how it is chosen.
#include "support/FrameTest.h"
#include "widgets/Pictures.h"

#include <CEGUI/Window.h>
#include <CEGUI/widgets/PushButton.h>

using ChangeLook = bool (CeGuiMainFrame::*)(int, int, bool);
bool MoveLook(CeGuiMainFrame& frame, int from, int to, bool scroll);

// An explicit instantiation may name a private member: the move of the look by itself, which records and clicks only lead to.
template <ChangeLook Member>
struct ChangeLookReach
{
    friend bool MoveLook(CeGuiMainFrame& frame, int from, int to, bool scroll) { return (frame.*Member)(from, to, scroll); }
};
template struct ChangeLookReach<&CeGuiMainFrame::ChangeLeftBtnState>;

namespace
{
using Codes = std::vector<WPARAM>;

std::string Picture(int index, const char* state)
{
    return "new_skin/TavGuiButtonImg" + std::to_string(index) + state + ".bmp/full_image";
}
} // namespace

class SelectionTest : public FrameTest
{
protected:
    void SetUp() override
    {
        FrameTest::SetUp();
        Show({Record(L"a"), Record(L"b", 1), Record(L"c"), Record(L"d", 0, L""), Record(L"e", 2)});
    }

    static void ExpectPushed(const char* window, int index)
    {
        EXPECT_EQ(ImageOf(window, "NormalImage"), Picture(index, "_P"));
        EXPECT_EQ(ImageOf(window, "HoverImage"), Picture(index, "_P"));
        EXPECT_EQ(ImageOf(window, "PushedImage"), Picture(index, "_N"));
    }

    static void ExpectAtRest(const char* window, int index)
    {
        EXPECT_EQ(ImageOf(window, "NormalImage"), Picture(index, "_N"));
        EXPECT_EQ(ImageOf(window, "HoverImage"), Picture(index, "_N"));
        EXPECT_EQ(ImageOf(window, "PushedImage"), Picture(index, "_P"));
    }

    /// Where the entries and the thumb are.
    static Lines PlacesInList()
    {
        Lines places;
        for (const char* window : {"a_P", "b_V", "c_P", "d_P", "e_P", "scrollbar"})
        {
            places.push_back(Place(window));
        }
        return places;
    }

    /// Clicks an entry's middle in the list that has slid in.
    static std::vector<HostMessage> ClickEntry(const char* window)
    {
        SlideIn(50, 300);
        const CPoint centre = GuiHost::CentreOf(window);
        Host().Click(centre.x, centre.y);
        return Host().TakeMessages();
    }

    static void ExpectReported(const std::vector<HostMessage>& messages, int index)
    {
        ASSERT_EQ(messages.size(), 1u);
        EXPECT_EQ(messages[0].code, WPARAM(17));
        EXPECT_EQ(messages[0].value, reinterpret_cast<LPARAM>(&Frame().GetCtrlBtnInfo()[static_cast<std::size_t>(index)]));
    }
};

TEST_F(SelectionTest, no_entry_is_pushed_at_first)
{
    EXPECT_EQ(Frame().GetBtnIndex(), -1);
    ExpectAtRest("a_P", 0);
    ExpectAtRest("b_V", 1);
    ExpectAtRest("e_P", 4);
}

TEST_F(SelectionTest, from_none_only_the_new_entry_is_pushed)
{
    Frame().SetBtnIndex(0);
    ExpectPushed("a_P", 0);
    ExpectAtRest("b_V", 1);
    ExpectAtRest("c_P", 2);
    EXPECT_TRUE(Host().TakeCodes().empty());
}

TEST_F(SelectionTest, choosing_by_index_scrolls_nothing_wherever_the_entry_and_the_list_are)
{
    ASSERT_NE(Bar(L"TavLeftCtrlFrame").thumb, nullptr) << "a list that scrolls";
    for (const int notches : {0, -1, -1})
    {
        SlideIn(50, 300);
        Host().Wheel(50, 300, notches);
        const Lines places = PlacesInList();
        for (const int index : {4, 0, 2, 3})
        {
            Frame().SetBtnIndex(index);
            EXPECT_EQ(PlacesInList(), places) << "entry " << index;
        }
    }
    EXPECT_NE(Place("a_P"), "11,63 - 137,159") << "it was scrolled in the end";
}

TEST_F(SelectionTest, stepping_to_the_first_entry_of_a_list_at_its_top_leaves_everything_in_place)
{
    const Lines places = PlacesInList();
    EXPECT_EQ(places.front(), "11,63 - 137,159");
    EXPECT_TRUE(Frame().AddBtnIndex());
    EXPECT_EQ(Frame().GetBtnIndex(), 0);
    EXPECT_EQ(PlacesInList(), places);
    EXPECT_TRUE(Bar(L"TavLeftCtrlFrame").ScrollToItem(0));
    EXPECT_EQ(PlacesInList(), places);
    // The last one is not at the top, so that the list does scroll for it.
    Frame().SetBtnIndex(3);
    Frame().AddBtnIndex();
    EXPECT_NE(PlacesInList(), places);
    Frame().SetBtnIndex(1);
    Frame().SubBtnIndex();
    EXPECT_EQ(PlacesInList(), places) << "and back to the top for the first";
}

TEST_F(SelectionTest, the_look_moves_on_with_the_index)
{
    Frame().SetBtnIndex(0);
    Frame().SetBtnIndex(2);
    ExpectAtRest("a_P", 0);
    ExpectPushed("c_P", 2);
    Frame().AddBtnIndex();
    ExpectAtRest("c_P", 2);
    ExpectPushed("d_P", 3);
    Frame().SubBtnIndex();
    ExpectAtRest("d_P", 3);
    ExpectPushed("c_P", 2);
}

TEST_F(SelectionTest, the_same_index_again_changes_nothing)
{
    Frame().SetBtnIndex(2);
    Frame().SetBtnIndex(2);
    ExpectPushed("c_P", 2);
    EXPECT_EQ(Frame().GetBtnIndex(), 2);
}

TEST_F(SelectionTest, moving_the_look_from_an_entry_to_itself_is_refused)
{
    Frame().SetBtnIndex(3);
    EXPECT_FALSE(MoveLook(Frame(), 3, 3, true));
    ExpectPushed("d_P", 3);
    EXPECT_TRUE(MoveLook(Frame(), -1, 0, false));
    ExpectPushed("a_P", 0);
    ExpectPushed("d_P", 3);
    ExpectAtRest("b_V", 1);
    EXPECT_TRUE(MoveLook(Frame(), 3, 99, true)) << "out of range is passed over";
    ExpectAtRest("d_P", 3);
    EXPECT_EQ(Frame().GetBtnIndex(), 3) << "the look alone moves";
    Frame().DestoryAllToolBar();
    EXPECT_TRUE(MoveLook(Frame(), 0, 1, true));
    EXPECT_FALSE(MoveLook(Frame(), 1, 1, true));
}

TEST_F(SelectionTest, an_index_without_a_record_is_passed_over)
{
    Frame().SetBtnIndex(4);
    Frame().GetCtrlBtnInfo().resize(2);
    Frame().SetBtnIndex(1);
    ExpectPushed("e_P", 4);
    ExpectPushed("b_V", 1);
}

TEST_F(SelectionTest, without_a_list_only_the_index_moves)
{
    Frame().DestoryAllToolBar();
    Frame().SetBtnIndex(1);
    EXPECT_EQ(Frame().GetBtnIndex(), 1);
    EXPECT_TRUE(Frame().AddBtnIndex());
    EXPECT_EQ(Frame().GetBtnIndex(), 2);
}

TEST_F(SelectionTest, survives_a_resize)
{
    Frame().SetBtnIndex(2);
    Host().Resize(900, 700);
    EXPECT_EQ(Frame().GetBtnIndex(), 2);
    ExpectPushed("c_P", 2);
    ExpectAtRest("a_P", 0);
    EXPECT_TRUE(Host().TakeCodes().empty());
}

TEST_F(SelectionTest, of_the_first_entry_survives_a_resize)
{
    Frame().SetBtnIndex(0);
    Host().Resize(900, 700);
    EXPECT_EQ(Frame().GetBtnIndex(), 0);
    ExpectPushed("a_P", 0);
    ExpectAtRest("c_P", 2);
}

TEST_F(SelectionTest, a_resize_with_fewer_records_than_before_does_no_harm)
{
    Frame().SetBtnIndex(4);
    Frame().GetCtrlBtnInfo().resize(1);
    Host().Resize(900, 700);
    EXPECT_EQ(Frame().GetBtnIndex(), 4);
    ExpectAtRest("a_P", 0);
}

TEST_F(SelectionTest, a_click_chooses_the_entry_and_tells_the_host_its_record)
{
    ExpectReported(ClickEntry("a_P"), 0);
    EXPECT_EQ(Frame().GetBtnIndex(), 0);
    ExpectPushed("a_P", 0);
    ExpectReported(ClickEntry("b_V"), 1);
    EXPECT_EQ(Frame().GetBtnIndex(), 1);
    ExpectAtRest("a_P", 0);
    ExpectPushed("b_V", 1);
}

TEST_F(SelectionTest, a_click_on_the_chosen_entry_tells_the_host_again)
{
    ExpectReported(ClickEntry("c_P"), 2);
    ExpectReported(ClickEntry("c_P"), 2);
    ExpectPushed("c_P", 2);
}

TEST_F(SelectionTest, an_entry_without_a_target_cannot_be_chosen_by_a_click)
{
    EXPECT_TRUE(ClickEntry("d_P").empty());
    EXPECT_EQ(Frame().GetBtnIndex(), -1);
    ExpectAtRest("d_P", 3);
}

TEST_F(SelectionTest, an_entry_of_kind_2_is_not_found_by_a_click_on_purpose)
{
    EXPECT_NE(Place("e_P"), "no window") << "it is named as one of kind 0";
    EXPECT_TRUE(ClickEntry("e_P").empty());
    EXPECT_EQ(Frame().GetBtnIndex(), -1);
}

TEST_F(SelectionTest, a_click_on_a_window_of_another_ending_looks_for_kind_1)
{
    Show({Record(L"n", 0), Record(L"n", 1), Record(L"m", 0)});
    CeGuiToolBar& list = Bar(L"TavLeftCtrlFrame");
    // A host's own entries, with the list's events on them.
    ASSERT_EQ(list.AddImageButton(L"n_X", L"", L"", L"", L""), 3);
    ASSERT_EQ(list.AddImageButton(L"mab", L"", L"", L"", L""), 4);
    ExpectReported(ClickEntry("n_X"), 1);
    EXPECT_EQ(Frame().GetBtnIndex(), 1);
    EXPECT_TRUE(ClickEntry("mab").empty()) << "there is no such record of kind 1";
    ExpectReported(ClickEntry("n_P"), 0);
}

TEST_F(SelectionTest, a_click_without_a_window_is_left_unhandled)
{
    CEGUI::WindowEventArgs args(nullptr);
    GuiHost::Find("a_P")->fireEvent(CEGUI::PushButton::EventClicked, args);
    EXPECT_EQ(args.handled, 0u);
    EXPECT_TRUE(Host().TakeMessages().empty());
}

TEST_F(SelectionTest, a_click_that_chooses_is_handled)
{
    CEGUI::WindowEventArgs args(GuiHost::Find("a_P"));
    GuiHost::Find("a_P")->fireEvent(CEGUI::PushButton::EventClicked, args);
    EXPECT_EQ(args.handled, 1u);
    ExpectReported(Host().TakeMessages(), 0);
}

TEST_F(SelectionTest, a_click_after_the_record_was_taken_away_chooses_nothing)
{
    Frame().GetCtrlBtnInfo().erase(Frame().GetCtrlBtnInfo().begin());
    EXPECT_TRUE(ClickEntry("a_P").empty());
    ExpectReported(ClickEntry("b_V"), 0);
}

TEST_F(SelectionTest, a_press_that_is_released_on_another_entry_is_no_click)
{
    SlideIn(50, 300);
    Host().MoveMouse(60, 100);
    Host().Press(60, 100);
    Host().MoveMouse(60, 210);
    Host().Release(60, 210);
    EXPECT_TRUE(Host().TakeCodes().empty());
}

TEST_F(SelectionTest, page_keys_walk_the_list_and_tell_the_host)
{
    Host().MoveMouse(500, 300);
    Host().Key(VK_PRIOR);
    ExpectReported(Host().TakeMessages(), 0);
    Host().Key(VK_NEXT);
    ExpectReported(Host().TakeMessages(), 1);
    ExpectPushed("b_V", 1);
    Host().Key(VK_PRIOR);
    ExpectReported(Host().TakeMessages(), 0);
    Host().Key(VK_PRIOR);
    EXPECT_EQ(Host().TakeCodes(), Codes{}) << "at the first";
    for (int i = 1; i < 5; ++i)
    {
        Host().Key(VK_NEXT);
        ExpectReported(Host().TakeMessages(), i);
    }
    Host().Key(VK_NEXT);
    EXPECT_EQ(Host().TakeCodes(), Codes{}) << "at the last";
    ExpectPushed("e_P", 4);
}

TEST_F(SelectionTest, the_pushed_look_is_seen)
{
    const FileReplaced normal(SkinDir() + L"new_skin/borderN.png", Bmp32(Solid(126, 96, 0xFFFF0000)));
    const FileReplaced pushed(SkinDir() + L"new_skin/borderP.png", Bmp32(Solid(126, 96, 0xFF00FF00)));
    Rebuild();
    SlideIn(145, 300);
    Screenshot shot = Host().Shoot();
    EXPECT_TRUE(LooksLike(shot.At(12, 100), {255, 0, 0})) << "the frame of the first entry";
    EXPECT_TRUE(LooksLike(shot.At(12, 200), {255, 0, 0})) << "the frame of the second entry";
    Frame().SetBtnIndex(1);
    shot = Host().Shoot();
    EXPECT_TRUE(LooksLike(shot.At(12, 100), {255, 0, 0}));
    EXPECT_TRUE(LooksLike(shot.At(12, 200), {0, 255, 0}));
    Host().MoveMouse(60, 100);
    Host().Press(60, 100);
    EXPECT_TRUE(LooksLike(Seen(12, 100), {0, 255, 0}));
    Host().Release(60, 100);
    EXPECT_TRUE(LooksLike(Seen(12, 100), {0, 255, 0})) << "chosen now";
    EXPECT_TRUE(LooksLike(Seen(12, 200), {255, 0, 0}));
}
