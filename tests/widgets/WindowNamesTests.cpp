// SPDX-License-Identifier: MIT
// Windows whose names come from hosts' records and fit no rules.
#include "Sheet.h"

#include <widgets/Names.h>
#include <widgets/WindowNames.h>

#include <CEGUI/Exceptions.h>
#include <CEGUI/Window.h>

namespace
{
class WindowNamesTest : public SheetTest
{
};

CString Long()
{
    return CString(L'x', 1000);
}
} // namespace

TEST_F(WindowNamesTest, every_name_is_found_again)
{
    const CString names[] = {L"plain", L"a/b", L"/", L"//a//", L"", L"中央公园", L"a b\\c.d:e", Long(), L"renamed window 1"};
    CeGuiToolBar& bar = NewBar({0, 0, 100, 100}, BAR_LIST);
    for (const CString& name : names)
    {
        SCOPED_TRACE(Utf8(name));
        const int index = bar.AddImageButton(name, L"", L"", L"", L"");
        ASSERT_GE(index, 0);
        CEGUI::Window* window = bar.items[static_cast<std::size_t>(index)].window;
        EXPECT_EQ(WindowNames::Find(GuiName(name)), window);
        EXPECT_EQ(WindowNames::Of(*window), GuiName(name));
        EXPECT_EQ(NameBytes(WindowNames::Of(*window)), Utf8(name));
        EXPECT_EQ(window->getParent(), bar.window);
    }
    Host().Frames(2);
}

TEST_F(WindowNamesTest, siblings_may_share_a_name)
{
    CeGuiToolBar& bar = NewBar({0, 0, 100, 100}, BAR_LIST);
    for (const wchar_t* name : {L"twin", L"twin", L"a/b", L"a/b", L"", L"", L"中", L"中", L"twin"})
    {
        bar.AddImageButton(name, L"", L"", L"", L"");
    }
    ASSERT_EQ(bar.items.size(), 9u);
    EXPECT_EQ(bar.window->getChildCount(), 9u);
    for (std::size_t i = 0; i < 9; ++i)
    {
        EXPECT_EQ(WindowNames::Of(*bar.items[i].window), GuiName(bar.items[i].name)) << i;
        for (std::size_t j = 0; j < i; ++j)
        {
            EXPECT_NE(bar.items[i].window, bar.items[j].window);
        }
    }
    EXPECT_EQ(WindowNames::Find("twin"), bar.items[0].window) << "the one made first";
    WindowNames::Destroy(*bar.items[0].window);
    EXPECT_EQ(WindowNames::Find("twin"), bar.items[1].window);
    bar.DestroyToolBar();
    EXPECT_EQ(WindowNames::Find("twin"), nullptr);
}

TEST_F(WindowNamesTest, record_may_have_the_name_that_a_window_would_be_given_next)
{
    CeGuiToolBar& bar = NewBar({0, 0, 100, 100}, BAR_LIST);
    bar.AddImageButton(L"/", L"", L"", L"", L"");
    const CString given = TextOfName(bar.items[0].window->getName());
    const int number = std::stoi(Utf8(given.Mid(given.ReverseFind(L' ') + 1)));
    ASSERT_GT(number, 0) << Utf8(given);
    for (int next = 1; next <= 4; ++next)
    {
        CString name;
        name.Format(L"renamed window %d", number + next);
        bar.AddImageButton(name, L"", L"", L"", L"");
        EXPECT_EQ(WindowNames::Find(GuiName(name)), bar.items.back().window);
    }
    for (const wchar_t* name : {L"/", L"renamed window 1", L"/", L""})
    {
        bar.AddImageButton(name, L"", L"", L"", L"");
    }
    EXPECT_EQ(bar.window->getChildCount(), 9u);
}

TEST_F(WindowNamesTest, items_may_be_named_like_their_bar_and_its_thumb)
{
    CeGuiToolBar& bar = NewBar({0, 0, 100, 100}, BAR_LIST);
    bar.AddImageButton(L"bar", L"", L"", L"", L"");
    bar.AddImageButton(L"thumb", L"", L"", L"", L"");
    ASSERT_TRUE(bar.CreateScrollThumb(0, L"thumb", L"", L"", L""));
    EXPECT_EQ(WindowNames::Of(*bar.thumb), "thumb");
    EXPECT_EQ(WindowNames::Find("thumb"), bar.items[1].window);
    EXPECT_EQ(WindowNames::Find("bar"), bar.window);
}

TEST_F(WindowNamesTest, bars_may_share_a_name)
{
    const CeGuiToolBar& first = NewBar({0, 0, 100, 100}, BAR_LIST, L"", L"same");
    const CeGuiToolBar& second = NewBar({0, 0, 100, 100}, BAR_LIST, L"", L"same");
    EXPECT_EQ(WindowNames::Of(*first.window), "same");
    EXPECT_EQ(WindowNames::Of(*second.window), "same");
    EXPECT_EQ(second.window->getParent(), &Root());
}

TEST_F(WindowNamesTest, name_that_no_window_has_is_not_found)
{
    NewBar({0, 0, 100, 100}, BAR_LIST, L"", L"Bar");
    for (const char* name : {"bar", "BAR", "Ba", "Bar ", "", "sheet/Bar", "renamed window"})
    {
        EXPECT_EQ(WindowNames::Find(name), nullptr) << name;
    }
}

TEST_F(WindowNamesTest, chinese_name_is_one_code_point_a_byte)
{
    const CeGuiToolBar& bar = NewBar({0, 0, 100, 100}, BAR_LIST, L"", L"中");
    const CEGUI::String& name = bar.window->getName();
    ASSERT_EQ(name.length(), 3u);
    EXPECT_EQ(name[0], 0xE4u);
    EXPECT_EQ(name[1], 0xB8u);
    EXPECT_EQ(name[2], 0xADu);
}

TEST_F(WindowNamesTest, unknown_window_type_raises)
{
    EXPECT_THROW(WindowNames::Create("TavLook/NoSuchType", "a"), CEGUI::Exception);
    EXPECT_EQ(WindowNames::Find("a"), nullptr);
}

TEST_F(WindowNamesTest, destroyed_window_leaves_its_parent_at_once)
{
    CeGuiToolBar& bar = NewBar({0, 0, 100, 100}, BAR_LIST);
    bar.AddImageButton(L"a", L"", L"", L"", L"");
    CEGUI::Window* window = bar.items[0].window;
    WindowNames::Destroy(*window);
    EXPECT_EQ(bar.window->getChildCount(), 0u);
    EXPECT_EQ(WindowNames::Find("a"), nullptr);
}
