// SPDX-License-Identifier: MIT
// Real mouse and window messages, and what CEGUI gets of them.
#include "support/HostedFrame.h"

#include <widgets/InputState.h>

#include <CEGUI/GUIContext.h>
#include <CEGUI/InputEvent.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>

#include <set>

namespace
{
/// Everything of one kind that reaches a window.
class InputBridge : public HostedFrame
{
protected:
    struct Seen
    {
        float x;
        float y;
        CEGUI::MouseButton button;
        float wheel;
    };
    static CEGUI::GUIContext& Gui() { return CEGUI::System::getSingleton().getDefaultGUIContext(); }
    /// Records an event of the root sheet. The event goes on unless it is taken.
    void Watch(const CEGUI::String& event, bool take = false)
    {
        Gui().getRootWindow()->subscribeEvent(
            event, CEGUI::Event::Subscriber(
                       [this, take](const CEGUI::EventArgs& args)
                       {
                           const auto& mouse = static_cast<const CEGUI::MouseEventArgs&>(args);
                           seen.push_back({mouse.position.d_x, mouse.position.d_y, mouse.button, mouse.wheelChange});
                           return take;
                       }));
    }
    void TearDown() override
    {
        mouseFlags = MouseFlags();
        HostedFrame::TearDown();
    }
    std::vector<Seen> seen;
};
} // namespace

TEST_F(InputBridge, move_brings_the_position_from_the_top_left)
{
    Watch(CEGUI::Window::EventMouseMove);
    Host().MoveMouse(310, 40);
    ASSERT_EQ(seen.size(), 0u) << "that is the title bar";
    Host().MoveMouse(310, 140);
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_NEAR(seen[0].x, 310, 1);
    EXPECT_NEAR(seen[0].y, 140, 1);
    EXPECT_NEAR(Frame().GetMousePoint().x, 310, 1);
    EXPECT_NEAR(Frame().GetMousePoint().y, 140, 1);
}

TEST_F(InputBridge, left_press_and_release_reach_cegui_and_set_the_flags)
{
    Watch(CEGUI::Window::EventMouseButtonDown);
    Watch(CEGUI::Window::EventMouseButtonUp);
    Host().MoveMouse(400, 300);
    InputState::Get().windowUnderMouse = "w";
    Host().Press(400, 300);
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_EQ(seen[0].button, CEGUI::LeftButton);
    EXPECT_TRUE(mouseFlags.buttonHeld);
    EXPECT_TRUE(mouseFlags.leftButton);
    EXPECT_EQ(InputState::Get().windowUnderMouse, "");
    InputState::Get().windowUnderMouse = "w";
    Host().Release(400, 300);
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_EQ(seen[1].button, CEGUI::LeftButton);
    EXPECT_FALSE(mouseFlags.buttonHeld);
    EXPECT_TRUE(mouseFlags.leftButton);
    EXPECT_EQ(InputState::Get().windowUnderMouse, "");
}

TEST_F(InputBridge, right_press_stores_the_add_button_point)
{
    Watch(CEGUI::Window::EventMouseButtonDown);
    Watch(CEGUI::Window::EventMouseButtonUp);
    Frame().SetAddBtnMousePoint(CPoint(1, 1));
    mouseFlags.leftButton = true;
    Host().MoveMouse(123, 234);
    InputState::Get().windowUnderMouse = "w";
    Host().Send(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(123, 234));
    EXPECT_EQ(Frame().GetAddBtnMousePoint(), Frame().GetMousePoint());
    EXPECT_NEAR(Frame().GetAddBtnMousePoint().x, 123, 1);
    EXPECT_NEAR(Frame().GetAddBtnMousePoint().y, 234, 1);
    EXPECT_TRUE(mouseFlags.buttonHeld);
    EXPECT_FALSE(mouseFlags.leftButton);
    EXPECT_EQ(InputState::Get().windowUnderMouse, "");
    Frame().EnablePopupMenu(false);
    Host().Send(WM_RBUTTONUP, 0, MAKELPARAM(123, 234));
    EXPECT_FALSE(mouseFlags.buttonHeld);
    EXPECT_FALSE(mouseFlags.leftButton);
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_EQ(seen[0].button, CEGUI::RightButton);
    EXPECT_EQ(seen[1].button, CEGUI::RightButton);
}

TEST_F(InputBridge, left_press_leaves_the_add_button_point)
{
    Frame().SetAddBtnMousePoint(CPoint(1, 1));
    Host().Click(123, 234);
    EXPECT_EQ(Frame().GetAddBtnMousePoint(), CPoint(1, 1));
}

TEST_F(InputBridge, presses_releases_and_double_clicks_bring_their_own_position_without_a_move_before_them)
{
    const struct
    {
        const char* name;
        UINT message;
        WPARAM held;
        const CEGUI::String& event;
        CEGUI::MouseButton button;
    } rows[] = {
        {"left press", WM_LBUTTONDOWN, MK_LBUTTON, CEGUI::Window::EventMouseButtonDown, CEGUI::LeftButton},
        {"left release", WM_LBUTTONUP, 0, CEGUI::Window::EventMouseButtonUp, CEGUI::LeftButton},
        {"left double click", WM_LBUTTONDBLCLK, MK_LBUTTON, CEGUI::Window::EventMouseDoubleClick, CEGUI::LeftButton},
        {"right press", WM_RBUTTONDOWN, MK_RBUTTON, CEGUI::Window::EventMouseButtonDown, CEGUI::RightButton},
        {"right release", WM_RBUTTONUP, 0, CEGUI::Window::EventMouseButtonUp, CEGUI::RightButton},
        {"right double click", WM_RBUTTONDBLCLK, MK_RBUTTON, CEGUI::Window::EventMouseDoubleClick, CEGUI::RightButton},
        {"middle double click", WM_MBUTTONDBLCLK, MK_MBUTTON, CEGUI::Window::EventMouseDoubleClick, CEGUI::MiddleButton},
    };
    for (const CEGUI::String* event : {&CEGUI::Window::EventMouseButtonDown, &CEGUI::Window::EventMouseButtonUp})
    {
        Watch(*event);
    }
    Watch(CEGUI::Window::EventMouseDoubleClick, true);
    int x = 300;
    for (const auto& row : rows)
    {
        Host().MoveMouse(200, 200);
        seen.clear();
        Frame().EnablePopupMenu(false);
        x += 20;
        Host().Send(row.message, row.held, MAKELPARAM(x, 400));
        ASSERT_EQ(seen.size(), 1u) << row.name;
        EXPECT_EQ(seen[0].button, row.button) << row.name;
        EXPECT_NEAR(seen[0].x, x, 1) << row.name;
        EXPECT_NEAR(seen[0].y, 400, 1) << row.name;
    }
}

TEST_F(InputBridge, a_button_is_clicked_without_a_move_before_the_press)
{
    Host().MoveMouse(400, 300);
    Host().Press(772, 25);
    Host().Release(772, 25);
    EXPECT_EQ(Host().TakeCodes(), Codes{15});
}

TEST_F(InputBridge, a_release_beside_the_pressed_button_is_no_click_even_without_a_move_before_it)
{
    Host().MoveMouse(772, 25);
    Host().Press(772, 25);
    Host().Release(400, 300);
    EXPECT_EQ(Host().TakeCodes(), Codes{});
}

TEST_F(InputBridge, middle_press_and_release_are_ignored)
{
    Watch(CEGUI::Window::EventMouseButtonDown);
    Watch(CEGUI::Window::EventMouseButtonUp);
    Host().MoveMouse(400, 300);
    InputState::Get().windowUnderMouse = "w";
    Host().Send(WM_MBUTTONDOWN, MK_MBUTTON, MAKELPARAM(400, 300));
    EXPECT_FALSE(mouseFlags.buttonHeld);
    Host().Send(WM_MBUTTONUP, 0, MAKELPARAM(400, 300));
    EXPECT_TRUE(seen.empty());
    EXPECT_EQ(InputState::Get().windowUnderMouse, "w");
}

TEST_F(InputBridge, wheel_up_reaches_cegui_as_minus_one_on_purpose)
{
    Watch(CEGUI::Window::EventMouseWheel);
    Host().Wheel(400, 300, 1);
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_EQ(seen[0].wheel, -1.0f);
}

TEST_F(InputBridge, wheel_down_reaches_cegui_as_plus_one)
{
    Watch(CEGUI::Window::EventMouseWheel);
    Host().Wheel(400, 300, -1);
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_EQ(seen[0].wheel, 1.0f);
}

TEST_F(InputBridge, each_button_s_double_click_reaches_cegui_once)
{
    const struct
    {
        UINT message;
        UINT up;
        WPARAM held;
        CEGUI::MouseButton button;
    } rows[] = {
        {WM_LBUTTONDBLCLK, WM_LBUTTONUP, MK_LBUTTON, CEGUI::LeftButton},
        {WM_MBUTTONDBLCLK, WM_MBUTTONUP, MK_MBUTTON, CEGUI::MiddleButton},
        {WM_RBUTTONDBLCLK, WM_RBUTTONUP, MK_RBUTTON, CEGUI::RightButton},
    };
    Watch(CEGUI::Window::EventMouseDoubleClick, true);
    for (const auto& row : rows)
    {
        seen.clear();
        Host().MoveMouse(400, 300);
        Host().Send(row.message, row.held, MAKELPARAM(400, 300));
        Frame().EnablePopupMenu(false);
        Host().Send(row.up, 0, MAKELPARAM(400, 300));
        ASSERT_EQ(seen.size(), 1u) << row.message;
        EXPECT_EQ(seen[0].button, row.button);
        EXPECT_NEAR(seen[0].y, 300, 1);
    }
    Frame().OnToolBarFullScene(false);
}

TEST_F(InputBridge, left_double_click_toggles_full_scene_exactly_once)
{
    ASSERT_FALSE(Frame().IsFullScene());
    Host().DoubleClick(400, 300);
    EXPECT_TRUE(Frame().IsFullScene());
    Host().DoubleClick(400, 300);
    EXPECT_FALSE(Frame().IsFullScene());
}

TEST_F(InputBridge, middle_double_click_toggles_full_scene_too)
{
    Host().MoveMouse(400, 300);
    Host().Send(WM_MBUTTONDBLCLK, MK_MBUTTON, MAKELPARAM(400, 300));
    Host().Send(WM_MBUTTONUP, 0, MAKELPARAM(400, 300));
    EXPECT_TRUE(Frame().IsFullScene());
}

TEST_F(InputBridge, right_double_click_does_not_toggle_full_scene)
{
    Host().MoveMouse(400, 300);
    Host().Send(WM_RBUTTONDBLCLK, MK_RBUTTON, MAKELPARAM(400, 300));
    Frame().EnablePopupMenu(false);
    Host().Send(WM_RBUTTONUP, 0, MAKELPARAM(400, 300));
    EXPECT_FALSE(Frame().IsFullScene());
}

TEST_F(InputBridge, release_is_traced_on_standard_output_word_for_word)
{
    Host().MoveMouse(400, 300);
    CapturedOutput output;
    Host().Press(400, 300);
    EXPECT_EQ(output.Text(), "");
    Host().Release(400, 300);
    EXPECT_EQ(output.Text(), "release:,button:1 buttonMask:0\n");
}

TEST_F(InputBridge, release_trace_names_the_event_object_and_the_buttons_still_held)
{
    Drawable().setName("gui");
    Host().MoveMouse(400, 300);
    Host().Press(400, 300);
    CapturedOutput output;
    Host().Send(WM_MBUTTONDOWN, MK_MBUTTON | MK_LBUTTON, MAKELPARAM(400, 300));
    Host().Send(WM_MBUTTONUP, MK_LBUTTON, MAKELPARAM(400, 300));
    Host().Release(400, 300);
    EXPECT_EQ(output.Text(), "release:gui,button:2 buttonMask:1\nrelease:gui,button:1 buttonMask:0\n");
}

TEST_F(InputBridge, prints_nothing_else_whatever_the_user_does)
{
    CapturedOutput output;
    Rebuild();
    Host().MoveMouse(20, 300);
    Host().MoveMouse(772, 25);
    Host().Wheel(400, 300, 1);
    Host().Key(VK_ESCAPE);
    Host().Key('A');
    Host().Resize(640, 480);
    Host().Resize(ViewWidth, ViewHeight);
    Frame().OnToolBarFullScene(true);
    Frame().OnToolBarFullScene(false);
    Frame().ChangeTitleText(L"title", 0, TitleFont, 16);
    Restart();
    EXPECT_EQ(output.Text(), "");
}

TEST_F(InputBridge, resize_sets_display_size_and_window_size_and_builds_the_frame_anew)
{
    int gone = 0;
    Window("TavTilteLogo")
        .subscribeEvent(CEGUI::Window::EventDestructionStarted,
                        CEGUI::Event::Subscriber([&](const CEGUI::EventArgs&) { return ++gone, true; }));
    Host().Resize(720, 500);
    EXPECT_EQ(gone, 1) << "built anew";
    UINT width = 0;
    UINT height = 0;
    Frame().GetWindowSize(width, height);
    EXPECT_EQ(width, 720u);
    EXPECT_EQ(height, 500u);
    EXPECT_EQ(CEGUI::System::getSingleton().getRenderer()->getDisplaySize(), CEGUI::Sizef(720, 500));
    EXPECT_EQ(Place("rootSheet"), "0,0 - 720,500");
    EXPECT_EQ(Place("TavTilteCloseButtom"), "680,13 - 704,37");
}

TEST_F(InputBridge, resize_makes_every_window_anew)
{
    const auto live = []
    {
        std::set<const CEGUI::Window*> windows;
        for (auto window = CEGUI::WindowManager::getSingleton().getIterator(); !window.isAtEnd(); ++window)
        {
            windows.insert(*window);
        }
        return windows;
    };
    std::set<const CEGUI::Window*> former = live();
    const std::size_t count = former.size();
    ASSERT_GT(count, 15u);
    const CEGUI::Event::ScopedConnection watch = CEGUI::WindowManager::getSingleton().subscribeEvent(
        CEGUI::WindowManager::EventWindowDestroyed, CEGUI::Event::Subscriber(
                                                        [&](const CEGUI::EventArgs& args)
                                                        {
                                                            former.erase(static_cast<const CEGUI::WindowEventArgs&>(args).window);
                                                            return false;
                                                        }));
    Rebuild();
    EXPECT_EQ(former.size(), 0u) << "windows that outlived the resize";
    EXPECT_EQ(live().size(), count);
}

TEST_F(InputBridge, close_button_works_again_when_the_mouse_has_not_moved_since_it_was_pressed)
{
    Host().Click(772, 25);
    EXPECT_EQ(Host().TakeCodes(), Codes{15});
    Rebuild();
    Host().Press(772, 25);
    Host().Release(772, 25);
    EXPECT_EQ(Host().TakeCodes(), Codes{15});
}

TEST_F(InputBridge, input_after_a_resize_meets_the_new_places)
{
    Host().Resize(640, 480);
    Host().Click(640 - 28, 25);
    EXPECT_EQ(Host().TakeCodes(), Codes{15});
}
