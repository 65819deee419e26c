// SPDX-License-Identifier: MIT
// The mouse flags and names that presses and releases leave behind, by real input.
#include "EditingTest.h"

class FlagTest : public EditingTest
{
protected:
    struct Flags
    {
        bool edit;
        bool held;
        bool left;
        bool consumed;
    };

    static void ExpectFlags(Flags flags)
    {
        EXPECT_EQ(mouseFlags.buttonEditMode, flags.edit);
        EXPECT_EQ(mouseFlags.buttonHeld, flags.held);
        EXPECT_EQ(mouseFlags.leftButton, flags.left);
        EXPECT_EQ(mouseFlags.pressConsumed, flags.consumed);
    }

    static std::string UnderMouse() { return InputState::Get().windowUnderMouse.c_str(); }
};

TEST_F(FlagTest, left_press_and_release_on_the_scene)
{
    Host().MoveMouse(SceneX, SceneY);
    Host().Press(SceneX, SceneY);
    ExpectFlags({false, true, true, false});
    Host().Release(SceneX, SceneY);
    ExpectFlags({false, false, true, false});
}

TEST_F(FlagTest, right_press_and_release_on_the_scene)
{
    Host().MoveMouse(SceneX, SceneY);
    PressRight(CPoint(SceneX, SceneY));
    ExpectFlags({false, true, false, false});
    ReleaseRight(CPoint(SceneX, SceneY));
    ExpectFlags({false, false, false, false});
    EXPECT_EQ(Log().TakeMenus().size(), 1u);
}

TEST_F(FlagTest, each_press_and_release_forgets_the_window_under_the_mouse)
{
    const CPoint centre = GuiHost::CentreOf(First);
    Host().MoveMouse(centre.x, centre.y);
    EXPECT_EQ(UnderMouse(), First);
    Host().Press(centre.x, centre.y);
    EXPECT_EQ(UnderMouse(), "");
    Host().MoveMouse(centre.x + 1, centre.y);
    EXPECT_EQ(UnderMouse(), First);
    Host().Release(centre.x + 1, centre.y);
    EXPECT_EQ(UnderMouse(), "");
    Host().MoveMouse(centre.x, centre.y);
    PressRight(centre);
    EXPECT_EQ(UnderMouse(), "");
    Host().MoveMouse(centre.x + 1, centre.y);
    ReleaseRight(CPoint(centre.x + 1, centre.y));
    EXPECT_EQ(UnderMouse(), "");
    Log().TakeMenus();
}

TEST_F(FlagTest, the_middle_button_changes_none)
{
    const CPoint centre = GuiHost::CentreOf(First);
    Host().MoveMouse(centre.x, centre.y);
    Host().Send(WM_MBUTTONDOWN, MK_MBUTTON, MAKELPARAM(centre.x, centre.y));
    ExpectFlags({false, false, false, false});
    EXPECT_EQ(UnderMouse(), First);
    Host().Send(WM_MBUTTONUP, 0, MAKELPARAM(centre.x, centre.y));
    ExpectFlags({false, false, false, false});
    EXPECT_EQ(UnderMouse(), First);
}

TEST_F(FlagTest, a_press_on_a_button_starts_no_editing_on_purpose)
{
    const CPoint centre = GuiHost::CentreOf(First);
    Host().MoveMouse(centre.x, centre.y);
    Host().Press(centre.x, centre.y);
    ExpectFlags({false, true, true, false});
    EXPECT_EQ(Edited(), "");
    Host().Release(centre.x, centre.y);
}

TEST_F(FlagTest, dragging_a_button_stays_inert_on_purpose)
{
    const CPoint centre = GuiHost::CentreOf(First);
    const std::string place = Place(First);
    Host().MoveMouse(centre.x, centre.y);
    Host().Press(centre.x, centre.y);
    for (int step = 1; step <= 5; ++step)
    {
        Host().MoveMouse(centre.x + 10 * step, centre.y);
    }
    ExpectFlags({false, true, true, false});
    EXPECT_EQ(Place(First), place);
    EXPECT_EQ(Frame().GetCtrlBtnInfo()[0].value, -1.0f);
    Host().Release(centre.x + 50, centre.y);
    EXPECT_EQ(Place(First), place);
}

TEST_F(FlagTest, a_plain_click_chooses_the_button)
{
    const CPoint centre = GuiHost::CentreOf(Second);
    Host().Click(centre.x, centre.y);
    const std::vector<HostMessage> messages = Host().TakeMessages();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].code, WPARAM(17));
    EXPECT_EQ(messages[0].value, reinterpret_cast<LPARAM>(&Frame().GetCtrlBtnInfo()[1]));
    EXPECT_EQ(Frame().GetBtnIndex(), 1);
}

TEST_F(FlagTest, without_editing_a_long_drag_still_chooses_the_button)
{
    const CPoint centre = GuiHost::CentreOf(Second);
    Host().MoveMouse(centre.x, centre.y);
    Host().Press(centre.x, centre.y);
    Host().MoveMouse(centre.x + 30, centre.y);
    Host().Release(centre.x + 30, centre.y);
    EXPECT_EQ(Host().TakeCodes(), std::vector<WPARAM>{17});
}
