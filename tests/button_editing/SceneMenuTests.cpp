// SPDX-License-Identifier: MIT
// The scene's menu: a real popup menu, opened by a real right click on the bare scene.
#include "EditingTest.h"

#include <NxConfig/ParamConfig.h>

#include <KernelCommonUse/StringConvert.h>

#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>

#include <functional>
#include <utility>

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

namespace
{
/// Acts once, in the message loop of the next menu.
class InMenuLoop
{
public:
    InMenuLoop(GuiHost& host, std::function<void()> act) : host_(host), former_(host.onMainWindowMessage)
    {
        host_.onMainWindowMessage = [this, act](UINT message, WPARAM wParam, LPARAM lParam)
        {
            former_(message, wParam, lParam);
            if (message == WM_INITMENUPOPUP && !acted_)
            {
                acted_ = true;
                act();
            }
        };
    }
    ~InMenuLoop() { host_.onMainWindowMessage = former_; }
    InMenuLoop(const InMenuLoop&) = delete;
    InMenuLoop& operator=(const InMenuLoop&) = delete;
    bool Acted() const { return acted_; }

private:
    GuiHost& host_;
    std::function<void(UINT, WPARAM, LPARAM)> former_;
    bool acted_ = false;
};

/// The scene's menu and a control button's, with a host that does everything in its loop.
class OpenMenuTest : public EditingTest
{
protected:
    /// Opens each of the menus, and calls the host's code in its loop.
    void InEachMenu(const std::function<void()>& act)
    {
        const std::pair<Menus, std::function<void()>> menus[] = {{SceneMenu(), [] { RightClickScene(); }},
                                                                 {ButtonMenu(), [] { RightClickEntry(First); }}};
        for (const auto& [menu, open] : menus)
        {
            {
                const InMenuLoop loop(Host(), act);
                open();
                EXPECT_TRUE(loop.Acted());
            }
            EXPECT_EQ(Log().TakeMenus(), menu);
            Host().Frames(2);
            if (!Frame().IsInit())
            {
                Host().Start();
            }
            Rebuild();
            ShowList();
            EXPECT_TRUE(Visible("TavTitleBackground"));
            Host().TakeMessages();
            // Each press counts as a first one, also in an interface that was started meanwhile.
            CEGUI::System::getSingleton().getDefaultGUIContext().setMouseButtonMultiClickTimeout(1e-6f);
            Host().Click(772, 25);
            EXPECT_EQ(Host().TakeCodes(), (std::vector<WPARAM>{GUI_CMD_CLOSE}));
            Rebuild();
            ShowList();
        }
    }
};
} // namespace

TEST_F(OpenMenuTest, a_host_clears_the_windows_and_the_records)
{
    InEachMenu([] { Frame().ClearAllWindows(); });
    const InMenuLoop loop(Host(),
                          []
                          {
                              Frame().ClearAllWindows();
                              Frame().SetCtrlBtnInfo({});
                          });
    RightClickScene();
    EXPECT_EQ(Log().TakeMenus(), SceneMenu());
    Rebuild();
    EXPECT_TRUE(HasBar(L"TavLeftCtrlFrame"));
}

TEST_F(OpenMenuTest, a_host_ends_the_interface_and_draws_frames)
{
    InEachMenu(
        []
        {
            Host().Close();
            EXPECT_FALSE(Frame().IsInit());
            Host().Viewer().frame();
            Host().Viewer().frame();
        });
}

TEST_F(OpenMenuTest, a_host_ends_the_interface_and_leaves_its_node_in_the_scene)
{
    const auto removeOldNodes = []
    {
        while (Host().Root().getNumChildren() > 0)
        {
            Host().Root().removeChild(0u);
        }
    };
    InEachMenu(
        [&]
        {
            Frame().CloseGuiSystem();
            Host().Viewer().frame();
            removeOldNodes();
        });
}

TEST_F(OpenMenuTest, a_host_starts_the_interface_anew)
{
    InEachMenu(
        []
        {
            Host().Close();
            Host().InitOnly();
            Host().Viewer().getEventQueue()->windowResize(0, 0, ViewWidth, ViewHeight);
            Host().Viewer().frame();
            Host().Viewer().frame();
            EXPECT_TRUE(HasBar(L"TavTitleBackground"));
        });
}

TEST_F(OpenMenuTest, a_host_sizes_the_view_and_draws_frames)
{
    InEachMenu(
        []
        {
            Host().Viewer().getEventQueue()->windowResize(0, 0, ViewWidth, ViewHeight);
            Host().Viewer().frame();
            Host().Viewer().frame();
            EXPECT_TRUE(HasBar(L"TavTitleBackground"));
        });
}

TEST_F(OpenMenuTest, does_not_open_after_the_interface_has_ended)
{
    Host().MoveMouse(SceneX, SceneY);
    PressRight(CPoint(SceneX, SceneY));
    // The frame that brings the release comes before the message loop that opens the menu.
    Host().Viewer().getEventQueue()->mouseButtonRelease(SceneX, SceneY, osgGA::GUIEventAdapter::RIGHT_MOUSE_BUTTON);
    Host().Viewer().frame();
    Host().Close();
    EXPECT_EQ(Log().TakeMenus(), Menus{});
    Host().Frames(1);
    EXPECT_EQ(Log().TakeMenus(), Menus{});
    Host().Start();
}
