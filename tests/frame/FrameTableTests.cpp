// SPDX-License-Identifier: MIT
// The table of the frame's bars, by the names of their windows.
#include "support/FrameTest.h"

namespace
{
const wchar_t* const Bars[] = {L"TavTitleBackground",        L"TavLeftBorderBackground", L"TavRightBorderBackground",
                               L"TavBottomBorderBackground", L"TavBotCtrlFrame",         L"TavLeftCtrlFrame"};
} // namespace

class FrameTableTest : public FrameTest
{
};

TEST_F(FrameTableTest, holds_each_bar_under_its_windows_name)
{
    for (const wchar_t* name : Bars)
    {
        ASSERT_TRUE(HasBar(name)) << Utf8(name);
        EXPECT_EQ(Bar(name).name, name);
        EXPECT_EQ(Bar(name).window, GuiHost::Find(Utf8(name).c_str()));
    }
    EXPECT_FALSE(HasBar(L"tavtitlebackground")) << "upper and lower case differ";
}

TEST_F(FrameTableTest, clearing_all_windows_leaves_the_bars_in_it_without_windows)
{
    Frame().ClearAllWindows();
    for (const wchar_t* name : Bars)
    {
        ASSERT_TRUE(HasBar(name)) << Utf8(name);
        EXPECT_EQ(Bar(name).window, nullptr) << Utf8(name);
    }
}

TEST_F(FrameTableTest, destroying_the_bars_empties_it)
{
    Frame().DestoryAllToolBar();
    for (const wchar_t* name : Bars)
    {
        EXPECT_FALSE(HasBar(name)) << Utf8(name);
    }
    Rebuild();
    EXPECT_TRUE(HasBar(Bars[0]));
}
