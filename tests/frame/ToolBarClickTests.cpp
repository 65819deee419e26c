// SPDX-License-Identifier: MIT
// What the tools of the bottom bar do when they are clicked.
#include "Names.h"

#include "support/FrameTest.h"

#include <CEGUI/InputEvent.h>
#include <CEGUI/Window.h>
#include <CEGUI/widgets/PushButton.h>

namespace
{
using Codes = std::vector<WPARAM>;

/// The middle of a tool, counted from 1.
CPoint ToolAt(int number)
{
    return CPoint(31 + 92 * (number - 1) + 31, 555);
}
} // namespace

class ToolBarClickTest : public FrameTest
{
protected:
    static Codes CodesOfClick(int number)
    {
        const CPoint tool = ToolAt(number);
        Host().Click(tool.x, tool.y);
        return Host().TakeCodes();
    }
};

TEST_F(ToolBarClickTest, each_tool_tells_the_host_its_command)
{
    const struct
    {
        int tool;
        WPARAM code;
    } rows[] = {
        {2, GUI_CMD_ROAM},    {3, GUI_CMD_ENVIRONMENT}, {4, GUI_CMD_DISPLAY_PROPERTIES}, {5, GUI_CMD_DATA_MANAGEMENT},
        {6, GUI_CMD_PUBLISH},
    };
    SlideIn(110, 550);
    for (const auto& row : rows)
    {
        const CPoint tool = ToolAt(row.tool);
        Host().Click(tool.x, tool.y);
        const std::vector<HostMessage> messages = Host().TakeMessages();
        ASSERT_EQ(messages.size(), 1u) << "tool " << row.tool;
        EXPECT_EQ(messages[0].code, row.code) << "tool " << row.tool;
        EXPECT_EQ(messages[0].value, 0) << "tool " << row.tool;
    }
    EXPECT_TRUE(Host().TakeMainWindowMessages().empty());
}

TEST_F(ToolBarClickTest, the_commands_have_these_numbers)
{
    SlideIn(110, 550);
    EXPECT_EQ(CodesOfClick(2), Codes{2});
    EXPECT_EQ(CodesOfClick(3), Codes{13});
    EXPECT_EQ(CodesOfClick(4), Codes{11});
    EXPECT_EQ(CodesOfClick(4), Codes{11}) << "closing the panel is told, too";
    EXPECT_EQ(CodesOfClick(5), Codes{31});
    EXPECT_EQ(CodesOfClick(6), Codes{1});
}

TEST_F(ToolBarClickTest, another_user_cannot_publish)
{
    Restart(GUI_USER_RESTRICTED);
    Host().MoveMouse(400, 301);
    SlideIn(110, 550);
    EXPECT_EQ(CodesOfClick(5), Codes{31});
    EXPECT_EQ(CodesOfClick(6), Codes{});
}

TEST_F(ToolBarClickTest, the_first_tool_tells_the_host_nothing_and_toggles_the_list)
{
    SlideIn(110, 550);
    EXPECT_EQ(CodesOfClick(1), Codes{});
    EXPECT_FALSE(Frame().IsShowLeftToolBar());
    EXPECT_EQ(CodesOfClick(1), Codes{});
    EXPECT_TRUE(Frame().IsShowLeftToolBar());
}

TEST_F(ToolBarClickTest, a_press_that_is_released_elsewhere_is_no_click)
{
    SlideIn(110, 550);
    Host().MoveMouse(154, 555);
    Host().Press(154, 555);
    Host().MoveMouse(200, 555);
    Host().Release(200, 555);
    EXPECT_EQ(Host().TakeCodes(), Codes{});
}

TEST_F(ToolBarClickTest, a_right_press_on_a_tool_tells_the_host_nothing)
{
    SlideIn(110, 550);
    Host().MoveMouse(154, 555);
    Frame().EnablePopupMenu(false);
    Host().Send(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(154, 555));
    Host().Send(WM_RBUTTONUP, 0, MAKELPARAM(154, 555));
    EXPECT_EQ(Host().TakeCodes(), Codes{});
}

TEST_F(ToolBarClickTest, the_bar_between_the_tools_swallows_clicks_and_double_clicks)
{
    SlideIn(110, 550);
    Host().Click(110, 555);
    Host().DoubleClick(110, 555);
    EXPECT_EQ(Host().TakeCodes(), Codes{});
    EXPECT_FALSE(Frame().IsFullScene()) << "a double click on the scene would have toggled it";
    EXPECT_TRUE(Visible(ToolBar));
}

TEST_F(ToolBarClickTest, no_press_release_or_click_on_bar_or_list_reaches_the_sheet)
{
    int reached = 0;
    for (const CEGUI::String& event : {CEGUI::Window::EventMouseButtonDown, CEGUI::Window::EventMouseButtonUp,
                                       CEGUI::Window::EventMouseClick, CEGUI::Window::EventMouseDoubleClick})
    {
        GuiHost::Find("rootSheet")
            ->subscribeEvent(event, CEGUI::Event::Subscriber([&reached](const CEGUI::EventArgs&) { return ++reached, true; }));
    }
    SlideIn(110, 550);
    Host().Click(110, 555);
    Host().DoubleClick(110, 555);
    SlideIn(50, 300);
    Host().Click(50, 301);
    Host().DoubleClick(50, 301);
    EXPECT_EQ(reached, 0);
    Host().MoveMouse(400, 300);
    Host().Click(400, 300);
    EXPECT_EQ(reached, 3) << "on the scene the sheet gets them";
}

TEST_F(ToolBarClickTest, a_hidden_bar_takes_no_click)
{
    Rebuild();
    Host().MoveMouse(154, 555);
    Host().Press(154, 555);
    Host().Release(154, 555);
    EXPECT_EQ(Host().TakeCodes(), Codes{});
}

TEST_F(ToolBarClickTest, an_event_without_a_window_is_handled_by_the_commanding_tools_alone)
{
    const auto handled = [](const char* tool)
    {
        CEGUI::WindowEventArgs args(nullptr);
        GuiHost::Find(tool)->fireEvent(CEGUI::PushButton::EventClicked, args);
        return args.handled;
    };
    EXPECT_EQ(handled("TavToolButtom_1"), 0u);
    EXPECT_TRUE(Frame().IsShowLeftToolBar()) << "nothing is toggled";
    EXPECT_EQ(handled("TavToolButtom_4"), 0u);
    EXPECT_FALSE(Frame().IsOpenPropertyDlg());
    EXPECT_EQ(Host().TakeCodes(), Codes{});
    EXPECT_EQ(handled("TavToolButtom_2"), 1u);
    EXPECT_EQ(handled("TavToolButtom_3"), 1u);
    EXPECT_EQ(handled("TavToolButtom_5"), 1u);
    EXPECT_EQ(handled("TavToolButtom_6"), 1u);
    EXPECT_EQ(Host().TakeCodes(), (Codes{2, 13, 31, 1}));
}

TEST_F(ToolBarClickTest, a_double_click_on_a_tool_is_told_once_by_design)
{
    // CEGUI's button takes the system's double click for no press.
    SlideIn(110, 550);
    Host().MoveMouse(154, 555);
    Host().DoubleClick(154, 555);
    EXPECT_FALSE(Frame().IsFullScene());
    EXPECT_EQ(Host().TakeCodes(), Codes{GUI_CMD_ROAM});
}
