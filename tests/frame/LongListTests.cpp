// SPDX-License-Identifier: MIT
// A list of a thousand entries, scrolled in every way.
#include "Names.h"

#include "support/FrameTest.h"

#include <CEGUI/Window.h>

#include <cmath>

namespace
{
constexpr int Count = 1000;
constexpr int Top = 50;
constexpr int Bottom = 598;
constexpr int Pitch = 109;
constexpr int FirstY = 13;
constexpr int BarHeight = Bottom - Top;
} // namespace

class LongListTest : public FrameTest
{
protected:
    static void TearDownTestSuite() { built_ = false; }

    /// Thousand thumbnails are shown once for all of these tests; each finds the list at its top and nothing chosen.
    void SetUp() override
    {
        if (built_)
        {
            Host().Resize(ViewWidth, ViewHeight);
            Frame().SetBtnIndex(1);
            Frame().SubBtnIndex();
            Host().TakeMessages();
        }
        else
        {
            FrameTest::SetUp();
            std::vector<BTN_UNIT> records(Count);
            for (int i = 0; i < Count; ++i)
            {
                records[static_cast<std::size_t>(i)].name.Format(L"r%d", i);
            }
            Show(records);
            built_ = true;
        }
        TakeLog();
        SlideIn(145, 300);
    }

    static RECT EntryRect(int index)
    {
        const CEGUI::Rectf area = Bar(ListKey).items[static_cast<std::size_t>(index)].window->getUnclippedOuterRect().get();
        const auto whole = [](float value) { return static_cast<LONG>(std::lround(value)); };
        return {whole(area.left()), whole(area.top()), whole(area.right()), whole(area.bottom())};
    }

    static void ExpectHighlightedInside(int index)
    {
        SCOPED_TRACE(index);
        EXPECT_EQ(Frame().GetBtnIndex(), index);
        const RECT rect = EntryRect(index);
        EXPECT_EQ(rect.left, 11);
        EXPECT_GE(rect.top, Top);
        EXPECT_LE(rect.bottom, Bottom);
        EXPECT_EQ(rect.bottom - rect.top, 96);
        const CEGUI::Window& window = *Bar(ListKey).items[static_cast<std::size_t>(index)].window;
        EXPECT_EQ(window.getProperty("NormalImage"), "new_skin/TavGuiButtonImg" + std::to_string(index) + "_P.bmp/full_image");
    }

    /// The pixels by which the content is scrolled.
    static int Scrolled() { return Top + FirstY - EntryRect(0).top; }
    /// The entry in the middle of what is seen.
    static int MiddleEntry() { return (Scrolled() + BarHeight / 2 - FirstY) / Pitch; }

    static void ClickAndExpectReported(int index)
    {
        const RECT rect = EntryRect(index);
        Host().TakeMessages();
        // A thousand captions would take most of the time that all of these tests take; the one entry gets its target here.
        BTN_UNIT& record = Frame().GetCtrlBtnInfo()[static_cast<std::size_t>(index)];
        record.target = L"target";
        Host().Click(60, (rect.top + rect.bottom) / 2);
        record.target.Empty();
        const std::vector<HostMessage> messages = Host().TakeMessages();
        ASSERT_EQ(messages.size(), 1u);
        EXPECT_EQ(messages[0].value, reinterpret_cast<LPARAM>(Frame().GetBtnProperty(index)));
    }

private:
    static bool built_;
};

bool LongListTest::built_ = false;

TEST_F(LongListTest, all_entries_are_there_below_each_other)
{
    ASSERT_EQ(Bar(ListKey).items.size(), std::size_t(Count));
    EXPECT_EQ(Text(EntryRect(0)), "11,63 - 137,159");
    EXPECT_NEAR(EntryRect(999).top, Top + FirstY + 999 * Pitch, 1);
    // 109013 pixels of entries in 548: the thumb is 548 * 548 / 109013 pixels long.
    EXPECT_EQ(Place("scrollbar"), "144,50 - 150,53");
}

TEST_F(LongListTest, by_the_wheel)
{
    Host().Wheel(145, 301, -1);
    Host().Wheel(145, 302, -1);
    Host().Wheel(145, 303, -1);
    EXPECT_NEAR(Scrolled(), 3 * 30 * 109013.0 / BarHeight, 2) << "30 pixels of the thumb a notch";
    const int middle = MiddleEntry();
    EXPECT_GT(middle, 150);
    ClickAndExpectReported(middle);
    ExpectHighlightedInside(middle);
    Host().Wheel(145, 304, +1);
    EXPECT_NEAR(Scrolled(), 2 * 30 * 109013.0 / BarHeight, 2);
}

TEST_F(LongListTest, by_the_wheel_to_both_ends)
{
    Frame().SetBtnIndex(999);
    for (int i = 0; i < 20; ++i)
    {
        Host().Wheel(i % 2 ? 145 : 146, 300, -1);
    }
    ExpectHighlightedInside(999);
    EXPECT_EQ(EntryRect(999).bottom, Bottom - FirstY);
    EXPECT_EQ(GuiHost::RectOf("scrollbar").bottom, Bottom);
    Frame().SetBtnIndex(0);
    for (int i = 0; i < 20; ++i)
    {
        Host().Wheel(i % 2 ? 145 : 146, 300, +1);
    }
    ExpectHighlightedInside(0);
    EXPECT_EQ(Text(EntryRect(0)), "11,63 - 137,159");
    EXPECT_EQ(Place("scrollbar"), "144,50 - 150,53");
}

TEST_F(LongListTest, by_dragging_the_thumb)
{
    MoveTo(147, 51);
    Host().Press(147, 50);
    MoveTo(147, 151);
    MoveTo(147, 251);
    EXPECT_NEAR(Scrolled(), 200 * 109013.0 / BarHeight, 220) << "the thumb follows the mouse";
    const int middle = MiddleEntry();
    Host().Release(147, 250);
    MoveTo(147, 400);
    EXPECT_EQ(MiddleEntry(), middle) << "released";
    ClickAndExpectReported(middle);
    ExpectHighlightedInside(middle);
}

TEST_F(LongListTest, by_a_drag_beyond_the_end)
{
    Frame().SetBtnIndex(999);
    MoveTo(147, 51);
    Host().Press(147, 50);
    MoveTo(147, 590);
    MoveTo(300, 650);
    Host().Release(300, 650);
    ExpectHighlightedInside(999);
    EXPECT_EQ(GuiHost::RectOf("scrollbar").bottom, Bottom);
}

TEST_F(LongListTest, a_drag_keeps_the_list_while_the_mouse_is_beside_it)
{
    MoveTo(147, 51);
    Host().Press(147, 50);
    MoveTo(300, 200);
    EXPECT_TRUE(Visible("TavLeftCtrlFrame"));
    EXPECT_GT(Scrolled(), 10000);
    Host().Release(300, 200);
    Host().MoveMouse(310, 210);
    EXPECT_FALSE(Visible("TavLeftCtrlFrame"));
}

TEST_F(LongListTest, a_drag_ends_when_the_list_is_switched_off)
{
    MoveTo(147, 51);
    Host().Press(147, 50);
    MoveTo(147, 151);
    Frame().OnToolBarRCList(nullptr);
    Frame().OnToolBarRCList(nullptr);
    const int scrolled = Scrolled();
    MoveTo(147, 300);
    EXPECT_EQ(Scrolled(), scrolled);
    Host().Release(147, 300);
    Host().MoveMouse(310, 210);
    EXPECT_FALSE(Visible("TavLeftCtrlFrame")) << "nothing keeps it";
}

TEST_F(LongListTest, by_stepping_to_the_next_entry)
{
    for (const int from : {0, 498, 997, 998})
    {
        Frame().SetBtnIndex(from);
        ASSERT_TRUE(Frame().AddBtnIndex());
        ExpectHighlightedInside(from + 1);
    }
    EXPECT_FALSE(Frame().AddBtnIndex());
    for (const int from : {999, 500, 2, 1})
    {
        Frame().SetBtnIndex(from);
        ASSERT_TRUE(Frame().SubBtnIndex());
        ExpectHighlightedInside(from - 1);
    }
    EXPECT_EQ(Text(EntryRect(0)), "11,63 - 137,159");
    Frame().SetBtnIndex(500);
    EXPECT_EQ(EntryRect(0).top, 63) << "choosing by index does not scroll";
    Host().TakeMessages();
}

TEST_F(LongListTest, a_step_brings_the_entry_towards_the_middle)
{
    Frame().SetBtnIndex(300);
    Frame().AddBtnIndex();
    EXPECT_NEAR(EntryRect(301).top, Top + BarHeight / 2.0, 1);
    Host().TakeMessages();
}

TEST_F(LongListTest, the_chosen_entry_is_inside_again_after_a_resize)
{
    Frame().SetBtnIndex(700);
    Rebuild();
    ExpectHighlightedInside(700);
    SlideIn(145, 301);
    EXPECT_TRUE(Visible("TavLeftCtrlFrame"));
}
