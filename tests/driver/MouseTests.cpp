// SPDX-License-Identifier: MIT
// What the driver does with the mouse reaches the interface as a user's mouse does.
#include "SeenInput.h"

#include "support/GuiDriver.h"
#include "support/HostedFrame.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>

#include <stdexcept>

using driver::Button;

class DriverMouse : public HostedFrame
{
protected:
    static Codes CodesOf(const std::vector<HostMessage>& messages)
    {
        Codes codes;
        for (const HostMessage& message : messages)
        {
            codes.push_back(message.code);
        }
        return codes;
    }

    GuiDriver driver_{Host()};
    SeenInput seen_{Host()};
};

TEST_F(DriverMouse, moves_in_four_steps_from_where_it_was)
{
    driver_.MoveTo(CPoint(400, 300));
    seen_.Take();
    driver_.MoveTo(CPoint(440, 220));
    EXPECT_EQ(seen_.Take(), (Lines{"move 410,280", "move 420,260", "move 430,240", "move 440,220"}));
    EXPECT_EQ(driver_.Mouse(), CPoint(440, 220));
}

TEST_F(DriverMouse, goes_to_the_middle_of_a_window_by_its_name)
{
    driver_.MoveTo("TavTilteCloseButtom");
    EXPECT_EQ(driver_.Mouse(), GuiHost::CentreOf("TavTilteCloseButtom"));
    const CEGUI::GUIContext& context = CEGUI::System::getSingleton().getDefaultGUIContext();
    EXPECT_EQ(context.getWindowContainingMouse(), &Window("TavTilteCloseButtom"));
}

TEST_F(DriverMouse, says_which_window_is_not_there)
{
    seen_.Take();
    try
    {
        driver_.Click("NoSuchWindow");
        FAIL() << "clicked a window that is not there";
    }
    catch (const std::runtime_error& failure)
    {
        EXPECT_STREQ(failure.what(), "no window is to be seen that is named NoSuchWindow");
    }
    EXPECT_EQ(seen_.Take(), Lines{});
}

TEST_F(DriverMouse, a_hidden_window_cannot_be_clicked)
{
    driver_.MoveTo(CPoint(400, 300));
    ASSERT_TRUE(GuiHost::Find("TavToolButtom_1")) << "the tool bar is there, and hidden";
    EXPECT_FALSE(driver_.Sees("TavToolButtom_1"));
    EXPECT_THROW(driver_.Click("TavToolButtom_1"), std::runtime_error);
    driver_.MoveTo(CPoint(400, 555));
    EXPECT_TRUE(driver_.Sees("TavToolButtom_1"));
}

TEST_F(DriverMouse, a_click_is_a_press_and_a_release)
{
    driver_.MoveTo("TavTilteMinboxButtom");
    seen_.Take();
    driver_.Click(CPoint(728, 25));
    Lines lines = seen_.Take();
    ASSERT_GE(lines.size(), 2u);
    lines.erase(lines.begin(), lines.end() - 2);
    EXPECT_EQ(lines, (Lines{"push 728,25 left", "release 728,25"}));
    EXPECT_EQ(CodesOf(driver_.TakeReceived()), (Codes{GUI_CMD_MINIMISE, GUI_CMD_MINIMISE}));
    EXPECT_EQ(CodesOf(driver_.TakeReceived()), Codes{}) << "taken before";
}

TEST_F(DriverMouse, a_press_that_is_let_go_elsewhere_is_no_click)
{
    driver_.MoveTo("TavTilteMinboxButtom");
    driver_.Press("TavTilteMinboxButtom");
    seen_.Take();
    driver_.MoveTo(CPoint(400, 25));
    EXPECT_EQ(seen_.Take().back(), "drag 400,25 left") << "the button stays down on the way";
    driver_.Release(CPoint(400, 25));
    EXPECT_EQ(CodesOf(driver_.TakeReceived()), Codes{});
}

TEST_F(DriverMouse, a_double_click_comes_as_one)
{
    driver_.DoubleClick("TavTilteText");
    const Lines lines = seen_.Take();
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(), [](const std::string& line) { return line.rfind("double", 0) == 0; }), 1);
    EXPECT_EQ(CodesOf(driver_.TakeReceived()), Codes{GUI_CMD_EDIT_TITLE});
    driver_.KeyToFocus(VK_ESCAPE);
}

TEST_F(DriverMouse, two_clicks_at_one_place_are_two_clicks)
{
    CEGUI::System::getSingleton().getDefaultGUIContext().setMouseButtonMultiClickTimeout(0.2f);
    driver_.Click("TavTilteMinboxButtom");
    driver_.Click("TavTilteMinboxButtom");
    EXPECT_EQ(CodesOf(driver_.TakeReceived()).size(), 4u) << "without waiting, the second press would make a double click";
}

TEST_F(DriverMouse, drags_with_the_button_down)
{
    driver_.MoveTo(CPoint(300, 300));
    seen_.Take();
    driver_.Drag(CPoint(300, 300), CPoint(360, 330));
    const Lines lines = seen_.Take();
    const auto push = std::find(lines.begin(), lines.end(), "push 300,300 left");
    ASSERT_NE(push, lines.end());
    EXPECT_EQ(Lines(push + 1, lines.end()),
              (Lines{"drag 310,305 left", "drag 320,310 left", "drag 330,315 left", "drag 340,320 left", "drag 350,325 left",
                     "drag 360,330 left", "release 360,330"}));
}

TEST_F(DriverMouse, drags_with_the_right_button)
{
    Frame().EnablePopupMenu(false);
    driver_.Drag(CPoint(300, 300), CPoint(360, 330), Button::Right);
    Frame().EnablePopupMenu(true);
    const Lines lines = seen_.Take();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "drag 360,330 right"), 1);
    EXPECT_EQ(lines.back(), "release 360,330");
}

TEST_F(DriverMouse, turns_the_wheel_notch_by_notch)
{
    driver_.MoveTo(CPoint(400, 300));
    seen_.Take();
    driver_.Wheel(CPoint(400, 300), 2);
    driver_.Wheel(CPoint(400, 300), -1);
    Lines lines = seen_.Take();
    lines.erase(std::remove(lines.begin(), lines.end(), "move 400,300"), lines.end());
    EXPECT_EQ(lines, (Lines{"wheel up", "wheel up", "wheel down"}));
}
