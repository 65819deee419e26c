// SPDX-License-Identifier: MIT
// The scene's menu: a real popup menu, opened by a real right click on the bare scene.
#include "EditingTest.h"

#include <NxConfig/ParamConfig.h>

#include <KernelCommonUse/StringConvert.h>

using SceneMenuTest = EditingTest;

TEST_F(SceneMenuTest, a_right_click_on_the_bare_scene_opens_it)
{
    RightClickScene();
    EXPECT_EQ(Log().TakeMenus(), SceneMenu());
    EXPECT_EQ(Log().TakeCommands(), Commands{}) << "left without a choice";
}

TEST_F(SceneMenuTest, its_items_are_those_of_the_file)
{
    WriteMenu("<menus><menu text=\"Scene\"><item id=\"40201\" text=\"添加视点\"/><separator/>"
              "<item id=\"40202\" key=\"LKEY8\" checked=\"true\"/><menu text=\"More\"><item id=\"40203\" text=\"Deep\"/></menu>"
              "<item id=\"40204\" text=\"Not now\" enabled=\"false\"/></menu><menu text=\"Never shown\">"
              "<item id=\"40205\" text=\"Hidden\"/></menu></menus>");
    Log().Answer({VK_UP, VK_UP, VK_RIGHT, VK_ESCAPE, VK_ESCAPE});
    RightClickScene();
    const Menus menus = Log().TakeMenus();
    ASSERT_EQ(menus.size(), 2u);
    EXPECT_EQ(menus[0],
              (std::vector<std::string>{"40201 添加视点", "-", "40202 显示属性 checked", "> More", "40204 Not now disabled"}));
    EXPECT_EQ(menus[1], (std::vector<std::string>{"40203 Deep"}));
}

TEST_F(SceneMenuTest, a_choice_reaches_the_main_window_as_a_command)
{
    WriteMenu("<menus><menu text=\"Scene\"><item id=\"40201\" text=\"One\"/><item id=\"40202\" text=\"Two\"/></menu></menus>");
    Log().Answer({VK_DOWN, VK_RETURN});
    RightClickScene();
    EXPECT_EQ(Log().TakeCommands(), Commands{40201});
    Log().TakeMenus();
    Log().Answer({VK_DOWN, VK_DOWN, VK_RETURN});
    RightClickScene();
    EXPECT_EQ(Log().TakeCommands(), Commands{40202});
    Log().TakeMenus();
    Log().Answer({VK_DOWN, VK_ESCAPE});
    RightClickScene();
    EXPECT_EQ(Log().TakeCommands(), Commands{});
}

TEST_F(SceneMenuTest, a_disabled_item_cannot_be_chosen)
{
    WriteMenu("<menus><menu text=\"Scene\"><item id=\"40201\" text=\"One\" enabled=\"false\"/></menu></menus>");
    Log().Answer({VK_DOWN, VK_RETURN, VK_ESCAPE});
    RightClickScene();
    EXPECT_EQ(Log().TakeMenus(), (Menus{{"40201 One disabled"}}));
    EXPECT_EQ(Log().TakeCommands(), Commands{});
}

TEST_F(SceneMenuTest, suppressed_once_by_the_host)
{
    Frame().EnablePopupMenu(false);
    RightClickScene();
    EXPECT_EQ(Log().TakeMenus(), Menus{});
    RightClickScene();
    EXPECT_EQ(Log().TakeMenus(), SceneMenu());
}

TEST_F(SceneMenuTest, any_right_release_ends_the_suppression)
{
    Frame().EnablePopupMenu(false);
    RightClickEntry(Other);
    EXPECT_EQ(Log().TakeMenus(), Menus{});
    RightClickScene();
    EXPECT_EQ(Log().TakeMenus(), SceneMenu());
}

TEST_F(SceneMenuTest, a_left_click_opens_nothing_and_keeps_the_suppression)
{
    Frame().EnablePopupMenu(false);
    Host().Click(SceneX, SceneY);
    EXPECT_EQ(Log().TakeMenus(), Menus{});
    RightClickScene();
    EXPECT_EQ(Log().TakeMenus(), Menus{});
}

TEST_F(SceneMenuTest, allowed_again_by_the_host)
{
    Frame().EnablePopupMenu(false);
    Frame().EnablePopupMenu(true);
    RightClickScene();
    EXPECT_EQ(Log().TakeMenus(), SceneMenu());
}

TEST_F(SceneMenuTest, it_clears_the_edited_window)
{
    RightClickEntry(First);
    Log().TakeMenus();
    EXPECT_EQ(Edited(), First);
    RightClickScene();
    EXPECT_EQ(Log().TakeMenus(), SceneMenu());
    EXPECT_EQ(Edited(), "");
}

TEST_F(SceneMenuTest, the_press_is_where_a_button_is_to_be_added)
{
    Host().MoveMouse(SceneX, SceneY);
    const CPoint pressed = Frame().GetMousePoint();
    PressRight(CPoint(SceneX, SceneY));
    Host().MoveMouse(SceneX + 70, SceneY + 20);
    ReleaseRight(CPoint(SceneX + 70, SceneY + 20));
    EXPECT_EQ(Log().TakeMenus(), SceneMenu());
    EXPECT_TRUE(Frame().GetAddBtnMousePoint() == pressed);
}

TEST_F(SceneMenuTest, another_user_gets_it_too)
{
    RestartRestricted();
    RightClickScene();
    EXPECT_EQ(Log().TakeMenus(), SceneMenu());
}

TEST_F(SceneMenuTest, a_parameter_names_another_file)
{
    const std::string xml = "<menus><menu text=\"x\"><item id=\"77\" text=\"另一个\"/></menu></menus>";
    const CString path = AppDir() + L"另一个.xml";
    const FileReplaced file(path, std::vector<std::uint8_t>(xml.begin(), xml.end()));
    CParamConfig::getInstance()->setStringParam("QMV发布右键菜单", strUtf8ToAnsi(CString2string(path)));
    RightClickScene();
    EXPECT_EQ(Log().TakeMenus(), (Menus{{"77 另一个"}}));
}

TEST_F(SceneMenuTest, a_host_that_ends_the_interface_while_the_menu_is_open)
{
    const auto former = Host().onMainWindowMessage;
    Host().onMainWindowMessage = [&](UINT message, WPARAM wParam, LPARAM lParam)
    {
        former(message, wParam, lParam);
        if (message == WM_INITMENUPOPUP)
        {
            Frame().ClearAllWindows();
            Frame().SetCtrlBtnInfo({});
        }
    };
    RightClickScene();
    EXPECT_EQ(Log().TakeMenus(), SceneMenu());
    Host().onMainWindowMessage = former;
    Rebuild();
    EXPECT_TRUE(HasBar(L"TavLeftCtrlFrame"));
}
