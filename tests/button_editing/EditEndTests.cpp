// SPDX-License-Identifier: MIT
// How the editing of a control button ends, and for whom it does not begin.
#include "DragTest.h"
#include "support/RefreshesCounted.h"

TEST_F(DragTest, the_release_ends_editing_and_forgets_the_name)
{
    Press();
    DragBy(3);
    ReleaseAt(3);
    EXPECT_FALSE(mouseFlags.buttonEditMode);
    EXPECT_EQ(Edited(), "");
    const float x = X();
    DragBy(60);
    EXPECT_EQ(X(), x);
}

TEST_F(DragTest, the_release_asks_for_a_refresh_once)
{
    const RefreshesCounted counted;
    Press();
    DragBy(20);
    EXPECT_EQ(counted.count, 0);
    ReleaseAt(20);
    EXPECT_EQ(counted.count, 1);
}

TEST_F(DragTest, a_release_without_a_move_ends_editing_and_keeps_the_name)
{
    Press();
    // No move: the release finds no window under the mouse.
    InputState::Get().windowUnderMouse.clear();
    ReleaseAt(0);
    EXPECT_FALSE(mouseFlags.buttonEditMode);
    EXPECT_EQ(Edited(), First);
}

TEST_F(DragTest, a_second_press_while_editing_is_consumed)
{
    Press();
    Press();
    EXPECT_TRUE(mouseFlags.pressConsumed);
    EXPECT_TRUE(mouseFlags.buttonEditMode);
    ReleaseAt(0);
    EXPECT_EQ(Host().TakeCodes(), std::vector<WPARAM>{}) << "it chooses nothing";
    Press();
    ReleaseAt(0);
    EXPECT_EQ(Host().TakeCodes(), std::vector<WPARAM>{17}) << "and the next click does again";
}

TEST_F(DragTest, a_press_elsewhere_ends_editing)
{
    Press();
    // A pressed button gets every further press until it loses the capture.
    GuiHost::Find(First)->releaseInput();
    Host().Press(SceneX, SceneY);
    EXPECT_FALSE(mouseFlags.buttonEditMode);
    EXPECT_EQ(Edited(), "");
    Host().Release(SceneX, SceneY);
}

TEST_F(DragTest, a_right_click_while_editing_ends_it)
{
    Press();
    Host().MoveMouse(start_.x + 1, start_.y);
    PressRight(start_);
    Host().MoveMouse(start_.x + 2, start_.y);
    ReleaseRight(CPoint(start_.x + 2, start_.y));
    EXPECT_FALSE(mouseFlags.buttonEditMode);
    EXPECT_EQ(Log().TakeMenus(), ButtonMenu());
    EXPECT_EQ(Edited(), First) << "now as the menu's button";
    ReleaseAt(2);
}

TEST_F(DragTest, editing_with_the_right_button_held_drags_nothing)
{
    Press();
    const float x = X();
    PressRight(start_);
    DragBy(40);
    EXPECT_EQ(X(), x);
    ReleaseRight(CPoint(start_.x + 40, start_.y));
    ReleaseAt(40);
    Log().TakeMenus();
}

TEST_F(DragTest, a_name_that_only_contains_the_prefix_starts_editing_but_is_not_dragged)
{
    Show({Record(L"xTavGuiButton_0")});
    ShowList();
    CEGUI::Window& window = *GuiHost::Find("xTavGuiButton_0_P");
    window.subscribeEvent(CEGUI::Window::EventMouseButtonDown, CEGUI::SubscriberSlot(NameIt{"xTavGuiButton_0_P"}));
    Host().MoveMouse(start_.x, start_.y);
    Press();
    EXPECT_TRUE(mouseFlags.buttonEditMode);
    EXPECT_EQ(Edited(), "xTavGuiButton_0_P");
    const CEGUI::UDim x = window.getXPosition();
    DragBy(40);
    EXPECT_EQ(window.getXPosition(), x);
    ReleaseAt(40);
}

TEST_F(DragTest, a_window_that_vanished_is_dragged_no_more)
{
    Press();
    Frame().DeleteButton(L"TavGuiButton_0_P");
    EXPECT_EQ(GuiHost::Find(First), nullptr);
    DragBy(40);
    EXPECT_TRUE(mouseFlags.buttonEditMode);
    ReleaseAt(40);
    EXPECT_FALSE(mouseFlags.buttonEditMode);
}

TEST_F(DragTest, another_user_edits_nothing)
{
    RestartRestricted();
    Frame().SetCtrlBtnInfo({Record(L"TavGuiButton_0")});
    Rebuild();
    ShowList();
    start_ = GuiHost::CentreOf(First);
    GuiHost::Find(First)->subscribeEvent(CEGUI::Window::EventMouseButtonDown, CEGUI::SubscriberSlot(NameIt{First}));
    Host().MoveMouse(start_.x, start_.y);
    Press();
    EXPECT_FALSE(mouseFlags.buttonEditMode);
    EXPECT_EQ(Edited(), "");
    const float x = X();
    DragBy(5);
    EXPECT_EQ(X(), x);
    // Not even with the flags and the name of an edit that began before.
    mouseFlags.buttonEditMode = true;
    InputState::Get().editedWindow = First;
    DragBy(8);
    EXPECT_EQ(X(), x);
    ReleaseAt(8);
    EXPECT_TRUE(mouseFlags.buttonEditMode) << "the release leaves it, too";
    EXPECT_EQ(Host().TakeCodes(), std::vector<WPARAM>{17}) << "buttons are chosen all the same";
}

TEST_F(DragTest, a_third_kind_of_user_may_drag_but_has_no_menu_on_purpose)
{
    Restart(static_cast<GUIUserType>(2));
    Host().MoveMouse(402, 300);
    ShowList();
    GuiHost::Find(First)->subscribeEvent(CEGUI::Window::EventMouseButtonDown, CEGUI::SubscriberSlot(NameIt{First}));
    Host().MoveMouse(start_.x, start_.y);
    Press();
    EXPECT_TRUE(mouseFlags.buttonEditMode);
    DragBy(5);
    EXPECT_EQ(X(), static_cast<float>((start_.x + 5) / 800.0));
    ReleaseAt(5);
    RightClickEntry(First);
    EXPECT_EQ(Log().TakeMenus(), Menus{});
}
