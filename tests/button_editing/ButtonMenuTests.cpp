// SPDX-License-Identifier: MIT
// The menu of a control button, and which menu a right click opens.
#include "EditingTest.h"

#include <resources/resource.h>
#include <widgets/Module.h>

using ButtonMenuTest = EditingTest;

TEST_F(ButtonMenuTest, the_mouse_moved_over_a_button_while_the_right_button_is_held_opens_it)
{
    RightClickEntry(First);
    EXPECT_EQ(Log().TakeMenus(), ButtonMenu());
    EXPECT_EQ(Log().TakeCommands(), Commands{});
}

TEST_F(ButtonMenuTest, without_a_move_in_between_it_is_the_scene_menu_on_purpose)
{
    const CPoint centre = GuiHost::CentreOf(First);
    Host().MoveMouse(centre.x, centre.y);
    PressRight(centre);
    ReleaseRight(centre);
    EXPECT_EQ(Log().TakeMenus(), SceneMenu());
    EXPECT_EQ(Edited(), "");
}

TEST_F(ButtonMenuTest, pressed_on_the_scene_and_released_on_a_button_opens_it)
{
    const CPoint centre = GuiHost::CentreOf(Second);
    Host().MoveMouse(SceneX, SceneY);
    PressRight(CPoint(SceneX, SceneY));
    // The list hides as the mouse leaves it, so it is shown again under the mouse.
    SlideIn(50, 300);
    Host().MoveMouse(centre.x, centre.y);
    Host().MoveMouse(centre.x + 1, centre.y);
    ReleaseRight(CPoint(centre.x + 1, centre.y));
    EXPECT_EQ(Log().TakeMenus(), ButtonMenu());
    EXPECT_EQ(Edited(), Second);
}

TEST_F(ButtonMenuTest, each_item_sends_its_command_and_the_host_can_ask_for_the_button)
{
    const std::pair<int, UINT> choices[] = {{1, 40098}, {2, 40101}, {3, 40100}};
    for (const auto& [downs, command] : choices)
    {
        ShowList();
        std::vector<UINT> keys(static_cast<std::size_t>(downs), VK_DOWN);
        keys.push_back(VK_RETURN);
        Log().Answer(keys);
        RightClickEntry(Second);
        EXPECT_EQ(Log().TakeMenus(), ButtonMenu());
        // Commands are posted: when the host gets one, the name is there.
        EXPECT_EQ(Edited(), Second);
        EXPECT_EQ(Log().TakeCommands(), Commands{command});
        EXPECT_EQ(Edited(), Second);
    }
}

TEST_F(ButtonMenuTest, the_name_is_set_after_the_menu_has_closed)
{
    RightClickEntry(First);
    EXPECT_EQ(Log().editedWhileOpen, "");
    EXPECT_EQ(Edited(), First);
    ShowList();
    Log().TakeMenus();
    RightClickEntry(Second);
    EXPECT_EQ(Log().editedWhileOpen, First) << "still the one before";
    EXPECT_EQ(Edited(), Second);
}

TEST_F(ButtonMenuTest, the_name_outlives_the_gesture_until_a_left_press)
{
    RightClickEntry(First);
    Host().MoveMouse(SceneX, SceneY);
    Host().Frames(2);
    EXPECT_EQ(Edited(), First);
    Host().Press(SceneX, SceneY);
    EXPECT_EQ(Edited(), "");
    Host().Release(SceneX, SceneY);
}

TEST_F(ButtonMenuTest, a_window_of_another_name_has_no_menu)
{
    RightClickEntry(Other);
    EXPECT_EQ(Log().TakeMenus(), Menus{});
    EXPECT_EQ(Edited(), "");
}

TEST_F(ButtonMenuTest, a_name_that_only_contains_the_prefix_has_no_menu)
{
    Show({Record(L"xTavGuiButton_0")});
    ShowList();
    RightClickEntry("xTavGuiButton_0_P");
    EXPECT_EQ(Log().TakeMenus(), Menus{});
}

TEST_F(ButtonMenuTest, another_user_has_no_menu_on_buttons)
{
    RestartRestricted();
    RightClickEntry(First);
    EXPECT_EQ(Log().TakeMenus(), Menus{});
    EXPECT_EQ(Edited(), "");
}

TEST_F(ButtonMenuTest, suppressing_the_scene_menu_leaves_it_alone)
{
    Frame().EnablePopupMenu(false);
    RightClickEntry(First);
    EXPECT_EQ(Log().TakeMenus(), ButtonMenu());
}

TEST_F(ButtonMenuTest, a_deleted_button_is_gone_at_once)
{
    Log().Answer({VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN});
    RightClickEntry(First);
    ASSERT_EQ(Log().TakeCommands(), Commands{40100});
    // What a host does then: the entry's name without the ending is the record's.
    const CString name = Frame().GetEditWindowName();
    Frame().DeleteButton(name.Left(name.GetLength() - 2));
    Rebuild();
    EXPECT_EQ(GuiHost::Find(First), nullptr);
    EXPECT_NE(GuiHost::Find(Second), nullptr);
}

TEST_F(ButtonMenuTest, the_menu_and_the_string_of_the_module)
{
    const HMENU menu = LoadMenuW(ModuleInstance(), MAKEINTRESOURCEW(5003));
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(ItemsOf(menu), std::vector<std::string>{"> 编辑"});
    EXPECT_EQ(ItemsOf(GetSubMenu(menu, 0)), ButtonMenu()[0]);
    DestroyMenu(menu);
    wchar_t text[100] = L"";
    LoadStringW(ModuleInstance(), 40101, text, 100);
    EXPECT_EQ(Utf8(text), "添加控制按钮");
    EXPECT_EQ(ID_BUTTON_PROPERTIES, 40098);
    EXPECT_EQ(ID_BUTTON_ADD, 40101);
    EXPECT_EQ(ID_BUTTON_DELETE, 40100);
    EXPECT_EQ(IDR_BUTTON_MENU, 5003);
}
