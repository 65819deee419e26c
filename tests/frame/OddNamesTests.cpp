// SPDX-License-Identifier: MIT
// Records whose names a window cannot be looked up by, or share: every entry is seen, and a click reports its record.
#include "support/FrameTest.h"
#include "widgets/Pictures.h"

#include <widgets/WindowNames.h>

#include <CEGUI/Window.h>

#include <cmath>

namespace
{
/// A colour of its own for every entry.
std::uint32_t ColorOf(std::size_t index)
{
    const std::uint32_t i = static_cast<std::uint32_t>(index);
    return 0xFF000000u | (40 + i * 53 % 200) << 16 | (40 + i * 97 % 200) << 8 | (40 + i * 151 % 200);
}

Pixel PixelOf(std::uint32_t argb)
{
    return {static_cast<int>(argb >> 16 & 0xFF), static_cast<int>(argb >> 8 & 0xFF), static_cast<int>(argb & 0xFF)};
}

CString Repeated(wchar_t unit, int count)
{
    return CString(unit, count);
}
} // namespace

class OddNamesTest : public FrameTest
{
protected:
    void TearDown() override
    {
        for (const CString& file : files_)
        {
            DeleteFileW(file);
        }
        FrameTest::TearDown();
    }

    /// Shows these records, each with a picture of its own colour, and walks them with the Page Down key: each has to be
    /// seen, and a click on it has to report the record that is expected.
    /// @param reported the index of the record that a click on each entry reports; -1 for none
    void ExpectSeenAndReported(std::vector<BTN_UNIT> records, const std::vector<int>& reported)
    {
        ASSERT_EQ(records.size(), reported.size());
        for (std::size_t i = 0; i < records.size(); ++i)
        {
            CString file;
            file.Format(L"%sodd%d.bmp", AppDir().GetString(), static_cast<int>(i));
            files_.push_back(file);
            WriteBytes(file, Bmp32(Solid(120, 90, ColorOf(i))));
            records[i].lastText = file;
        }
        Show(records);
        const CeGuiToolBar& list = Bar(L"TavLeftCtrlFrame");
        ASSERT_EQ(list.items.size(), records.size());
        for (std::size_t i = 0; i < records.size(); ++i)
        {
            SCOPED_TRACE(i);
            const int index = static_cast<int>(i);
            // The step to the entry scrolls it into view.
            Frame().SetBtnIndex(index ? index - 1 : 1);
            index ? Frame().AddBtnIndex() : Frame().SubBtnIndex();
            Host().TakeMessages();
            SlideIn(145, 300);
            const CEGUI::Rectf area = list.items[i].window->getUnclippedOuterRect().get();
            const int left = static_cast<int>(std::lround(area.left()));
            const int top = static_cast<int>(std::lround(area.top()));
            EXPECT_TRUE(LooksLike(Seen(left + 30, top + 30), PixelOf(ColorOf(i)))) << "its picture";
            Host().Click(left + 30, top + 30);
            const std::vector<HostMessage> messages = Host().TakeMessages();
            if (reported[i] < 0)
            {
                EXPECT_TRUE(messages.empty());
                continue;
            }
            ASSERT_EQ(messages.size(), 1u);
            EXPECT_EQ(messages[0].code, WPARAM(GUI_CMD_CONTROL_BUTTON));
            EXPECT_EQ(reinterpret_cast<BTN_UNIT*>(messages[0].value) - Frame().GetCtrlBtnInfo().data(), reported[i]);
            EXPECT_EQ(Frame().GetBtnIndex(), reported[i]);
        }
    }

private:
    std::vector<CString> files_;
};

TEST_F(OddNamesTest, of_equal_names_and_kinds_the_first_is_reported)
{
    ExpectSeenAndReported({Record(L"dup"), Record(L"dup", 1), Record(L"dup"), Record(L"dup", 1), Record(L"dup", 2)},
                          {0, 1, 0, 1, 0});
}

TEST_F(OddNamesTest, slashes_do_no_harm)
{
    ExpectSeenAndReported({Record(L"a/b"), Record(L"/"), Record(L"a/b"), Record(L"a//b/", 1), Record(L"a")}, {0, 1, 0, 3, 4});
}

TEST_F(OddNamesTest, suffixes_inside_a_name_belong_to_the_name)
{
    ExpectSeenAndReported({Record(L"x_V"), Record(L"x_P", 1), Record(L"_V", 1), Record(L"_P"), Record(L"x_P_V")},
                          {0, 1, 2, 3, 4});
}

TEST_F(OddNamesTest, empty_names_are_names)
{
    ExpectSeenAndReported({Record(L""), Record(L"", 1), Record(L""), Record(L" ")}, {0, 1, 0, 3});
}

TEST_F(OddNamesTest, names_of_a_thousand_characters)
{
    const CString first = Repeated(L'n', 1000);
    const CString other = Repeated(L'n', 999) + L"m";
    const CString chinese = Repeated(L'城', 1000);
    ExpectSeenAndReported({Record(first), Record(other), Record(chinese, 1), Record(first)}, {0, 1, 2, 0});
}

TEST_F(OddNamesTest, chinese_names_and_characters_beyond_the_first_plane)
{
    ExpectSeenAndReported({Record(L"中央商务区"), Record(L"中央商务区", 1), Record(L"滨江/漫游_V"), Record(L"\xD83C\xDF03夜景")},
                          {0, 1, 2, 3});
}

TEST_F(OddNamesTest, names_of_the_frames_own_windows_and_of_formats)
{
    ExpectSeenAndReported({Record(L"rootSheet"), Record(L"TavTitleBackground"), Record(L"scrollbar"), Record(L"%s%d%n"),
                           Record(L"renamed window 1"), Record(L"Case"), Record(L"case")},
                          {0, 1, 2, 3, 4, 5, 6});
    EXPECT_NE(Place("scrollbar"), "no window");
    EXPECT_EQ(Place("TavTitleBackground"), "0,0 - 800,50");
}

TEST_F(OddNamesTest, all_of_them_survive_a_resize_and_full_scene)
{
    Show({Record(L"dup"), Record(L"dup"), Record(L"a/b"), Record(L"a/b"), Record(L""), Record(L"")});
    Host().Resize(820, 640);
    Frame().OnToolBarFullScene(true);
    Frame().OnToolBarFullScene(false);
    EXPECT_EQ(Bar(L"TavLeftCtrlFrame").items.size(), 6u);
    EXPECT_EQ(CountOf("dup_P"), 2);
    EXPECT_EQ(CountOf("a/b_P"), 2);
    EXPECT_EQ(CountOf("_P"), 2);
}
