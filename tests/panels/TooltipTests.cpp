// SPDX-License-Identifier: MIT
// The tooltip window: one at a time, at its size and place, above everything else.
#include "PanelTest.h"

#include <widgets/FileImageset.h>

#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/WindowManager.h>

#include <algorithm>

using TooltipTest = PanelTest;

namespace
{
CString Letters(const wchar_t* letter, int count)
{
    CString text;
    for (int i = 0; i < count; ++i)
    {
        text += letter;
    }
    return text;
}
} // namespace

TEST_F(TooltipTest, six_pixels_a_byte_and_twelve_more)
{
    const struct
    {
        CString text;
        int width;
    } rows[] = {
        {L"a", 18},
        {L"abcdefghij", 72},
        {L"漫游", 36},
        {L"高度 45 m", 66},
        {L" ", 18},
        {L"first\nsecond", 84},
        {Letters(L"a", 100), 612},
        {Letters(L"a", 150), 912},
        {Letters(L"游", 150), 1812},
        {Letters(L"a", 5000), 30012},
    };
    for (const auto& row : rows)
    {
        Frame().CreateTooltipWindow(100, 200, row.text);
        EXPECT_EQ(Place(Tooltip), "100,200 - " + std::to_string(100 + row.width) + ",224") << Utf8(row.text.Left(20));
    }
}

TEST_F(TooltipTest, placed_where_it_was_asked_for_also_beyond_the_view)
{
    const CPoint places[] = {{0, 0}, {728, 576}, {799, 599}, {-30, -10}, {790, 300}, {2000, -2000}};
    for (const CPoint& place : places)
    {
        Frame().CreateTooltipWindow(place.x, place.y, L"abcdefghij");
        EXPECT_EQ(Place(Tooltip), Text(RECT{place.x, place.y, place.x + 72, place.y + 24}));
    }
    const CEGUI::Window& window = *GuiHost::Find(Tooltip);
    EXPECT_EQ(window.getXPosition().d_offset + window.getYPosition().d_offset, 0) << "relative only";
    EXPECT_EQ(window.getWidth().d_offset + window.getHeight().d_offset, 0);
}

TEST_F(TooltipTest, a_picture_window_on_the_root_sheet_above_everything)
{
    Open(NumberedRows(3));
    Frame().CreateTooltipWindow(600, 90, L"abcdefghij");
    const CEGUI::Window& window = *GuiHost::Find(Tooltip);
    EXPECT_EQ(window.getType(), "TavLook/StaticImage");
    EXPECT_TRUE(window.isAlwaysOnTop());
    EXPECT_EQ(window.getParent(), GuiHost::Find("rootSheet"));
    EXPECT_EQ(ImageOf(Tooltip), "tavtooltipimgfile.bmp/full_image");
    GuiHost::Find(ListFrame)->moveToFront();
    EXPECT_TRUE(LooksLike(Seen(600, 90), {0x97, 0x99, 0xA8})) << "its outline lies over the list";
}

TEST_F(TooltipTest, one_window_however_often_it_is_made)
{
    const int windows = WindowCount();
    Frame().CreateTooltipWindow(10, 300, L"first");
    Host().Frames(1);
    MakeContextCurrent();
    Frame().CreateTooltipWindow(200, 100, L"second text");
    Host().Frames(1);
    EXPECT_EQ(CountOf(Tooltip), 1);
    EXPECT_EQ(WindowCount(), windows + 1);
    EXPECT_EQ(Place(Tooltip), "200,100 - 278,124");
    EXPECT_EQ(Seen(10, 300), Background()) << "nothing is left of the first";
}

TEST_F(TooltipTest, never_shows_stale_text)
{
    Frame().CreateTooltipWindow(100, 300, L"iiiiiiiiii");
    const Screenshot first = Host().Shoot();
    MakeContextCurrent();
    Frame().CreateTooltipWindow(100, 300, L"wwwwwwwwww");
    const Screenshot second = Host().Shoot();
    MakeContextCurrent();
    Frame().CreateTooltipWindow(100, 300, L"iiiiiiiiii");
    const Screenshot third = Host().Shoot();
    EXPECT_FALSE(std::equal(first.pixels.begin(), first.pixels.end(), second.pixels.begin()));
    EXPECT_TRUE(std::equal(first.pixels.begin(), first.pixels.end(), third.pixels.begin()));
}

TEST_F(TooltipTest, an_empty_text_takes_the_tooltip_away)
{
    Frame().CreateTooltipWindow(100, 300, L"text");
    MakeOld(TooltipFile());
    Frame().CreateTooltipWindow(100, 300, L"");
    EXPECT_EQ(CountOf(Tooltip), 0);
    EXPECT_TRUE(IsOld(TooltipFile()));
    Frame().CreateTooltipWindow(100, 300, L"");
    EXPECT_EQ(CountOf(Tooltip), 0);
}

TEST_F(TooltipTest, taken_away_with_its_picture)
{
    Frame().CreateTooltipWindow(100, 300, L"text");
    EXPECT_FALSE(Seen(110, 302) == Background());
    Frame().DestroyTooltipWindow();
    EXPECT_EQ(CountOf(Tooltip), 0);
    EXPECT_EQ(Seen(110, 302), Background());
    Frame().DestroyTooltipWindow();
    Frame().CreateTooltipWindow(100, 300, L"text");
    EXPECT_EQ(CountOf(Tooltip), 1) << "its imageset was free again";
}

TEST_F(TooltipTest, without_its_window_the_picture_is_left_alone_and_the_next_tooltip_shows_all_the_same)
{
    Frame().CreateTooltipWindow(100, 300, L"text");
    CEGUI::WindowManager::getSingleton().destroyWindow(GuiHost::Find(Tooltip));
    Host().Frames(1);
    MakeContextCurrent();
    Frame().DestroyTooltipWindow();
    EXPECT_TRUE(FileImagesets::IsPresent(L"tavtooltipimgfile.bmp"));
    Frame().CreateTooltipWindow(200, 300, L"other text");
    EXPECT_EQ(CountOf(Tooltip), 1);
    EXPECT_EQ(Place(Tooltip), "200,300 - 272,324");
    EXPECT_FALSE(Seen(210, 302) == Background());
}

TEST_F(TooltipTest, none_without_a_root_sheet)
{
    Restart(GUI_USER_FULL, false);
    Frame().CreateTooltipWindow(100, 300, L"text");
    EXPECT_EQ(GuiHost::Find(Tooltip), nullptr);
    Frame().DestroyTooltipWindow();
    Host().Close();
    Frame().CreateTooltipWindow(100, 300, L"text");
    Frame().DestroyTooltipWindow();
    Restart(GUI_USER_FULL);
    EXPECT_EQ(GuiHost::Find(Tooltip), nullptr);
}

TEST_F(TooltipTest, a_resize_takes_it_away)
{
    Frame().CreateTooltipWindow(100, 300, L"text");
    Rebuild();
    EXPECT_EQ(CountOf(Tooltip), 0);
    Frame().CreateTooltipWindow(100, 300, L"text");
    EXPECT_EQ(CountOf(Tooltip), 1);
}

TEST_F(TooltipTest, a_file_that_cannot_be_written_leaves_no_tooltip)
{
    Frame().CreateTooltipWindow(100, 300, L"text");
    const FileHeld held(TooltipFile());
    Frame().CreateTooltipWindow(100, 300, L"other text");
    EXPECT_EQ(CountOf(Tooltip), 0) << "the old one is gone already";
    EXPECT_EQ(TakeLog().size(), 1u);
}

TEST_F(TooltipTest, no_font_family_no_tooltip)
{
    const std::string text = "[Common]\nLKEY11=\n";
    const FileReplaced file(AppDir() + L"languages\\none.ini", std::vector<std::uint8_t>(text.begin(), text.end()));
    // The picture of the last one is there all the while.
    Frame().CreateTooltipWindow(100, 300, L"text");
    const FileReplaced former(TooltipFile(), ReadBytes(TooltipFile()));
    const LanguageSpoken none("none");
    Frame().CreateTooltipWindow(100, 300, L"text");
    EXPECT_EQ(CountOf(Tooltip), 0);
    EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: tooltip picture not written: " + Utf8(TooltipFile())});
}

TEST_F(TooltipTest, the_mouse_goes_through_it_to_what_lies_below)
{
    Open(NumberedRows(3));
    Frame().CreateTooltipWindow(560, 90, L"abcdefghij");
    CEGUI::GUIContext& gui = CEGUI::System::getSingleton().getDefaultGUIContext();
    gui.injectMousePosition(600, 100);
    ASSERT_NE(gui.getWindowContainingMouse(), nullptr);
    EXPECT_EQ(gui.getWindowContainingMouse()->getName(), ListPicture);
}
