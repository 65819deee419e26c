// SPDX-License-Identifier: MIT
// What the chrome does when it is clicked.
#include "support/HostedFrame.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>

#include <widgets/InputState.h>

#include <algorithm>

namespace
{
class ChromeActions : public HostedFrame
{
protected:
    static CPoint Title() { return GuiHost::CentreOf("TavTilteText"); }
    static CEGUI::Window& Root() { return *CEGUI::System::getSingleton().getDefaultGUIContext().getRootWindow(); }
    /// How often an event reaches the root sheet.
    int& Count(const CEGUI::String& event)
    {
        Root().subscribeEvent(event, CEGUI::Event::Subscriber([this](const CEGUI::EventArgs&) { return ++count_, false; }));
        return count_;
    }
    /// Clicks the minimise button. @return who got code 16, in the order of posting
    static std::vector<HWND> WindowsToldByMinimise()
    {
        Host().MoveMouse(728, 25);
        Host().Press(728, 25);
        SendMessageW(Host().Window(), WM_LBUTTONUP, 0, MAKELPARAM(728, 25));
        Host().Viewer().frame();
        std::vector<HWND> order;
        MSG message;
        while (PeekMessageW(&message, nullptr, GUI_HOST_MESSAGE, GUI_HOST_MESSAGE, PM_REMOVE))
        {
            EXPECT_EQ(message.wParam, 16u);
            EXPECT_EQ(message.lParam, 0);
            order.push_back(message.hwnd);
        }
        return order;
    }
    /// Right clicks without a menu of the scene.
    void RightClick(int x, int y)
    {
        Frame().EnablePopupMenu(false);
        Host().RightClick(x, y);
        Frame().EnablePopupMenu(true);
    }

private:
    int count_ = 0;
};
const char* const frameNames[] = {"TavTitleBackground",        "TavLeftBorderBackground", "TavRightBorderBackground",
                                  "TavBottomBorderBackground", "TavBotCtrlFrame",         "TavLeftCtrlFrame"};
} // namespace

TEST_F(ChromeActions, close_posts_15_to_the_viewers_window_alone)
{
    Host().Click(772, 25);
    const std::vector<HostMessage> messages = Host().TakeMessages();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].code, 15u);
    EXPECT_EQ(messages[0].value, 0);
    EXPECT_TRUE(Host().TakeMainWindowMessages().empty());
}

TEST_F(ChromeActions, close_destroys_every_frame_before_the_host_is_told)
{
    // Asked at the very moments at which they go.
    bool told = false;
    Lines gone;
    {
        const CEGUI::Event::ScopedConnection watch = CEGUI::WindowManager::getSingleton().subscribeEvent(
            CEGUI::WindowManager::EventWindowDestroyed,
            CEGUI::Event::Subscriber(
                [&](const CEGUI::EventArgs& args)
                {
                    const std::string name = static_cast<const CEGUI::WindowEventArgs&>(args).window->getName().c_str();
                    if (std::find(std::begin(frameNames), std::end(frameNames), name) != std::end(frameNames))
                    {
                        gone.push_back(name);
                    }
                    MSG message;
                    told = told || PeekMessageW(&message, Host().Window(), GUI_HOST_MESSAGE, GUI_HOST_MESSAGE, PM_NOREMOVE);
                    return false;
                }));
        Host().Click(772, 25);
    }
    std::sort(gone.begin(), gone.end());
    Lines all(std::begin(frameNames), std::end(frameNames));
    std::sort(all.begin(), all.end());
    EXPECT_EQ(gone, all);
    EXPECT_FALSE(told);
    EXPECT_EQ(Host().TakeCodes(), Codes{15});
    for (const char* name : frameNames)
    {
        EXPECT_EQ(Host().Find(name), nullptr) << name;
    }
    for (const char* name : {"TavTilteCloseButtom", "TavTilteLogo", "TavTilteText", "TavToolButtom_1", "scrollbar"})
    {
        EXPECT_EQ(Host().Find(name), nullptr) << name;
    }
    EXPECT_NE(Host().Find("rootSheet"), nullptr) << "the sheet stays";
    EXPECT_EQ(Host().Shoot().At(400, 20), Background());
}

TEST_F(ChromeActions, minimise_posts_16_to_the_main_window_and_then_to_the_viewers)
{
    EXPECT_EQ(WindowsToldByMinimise(), (std::vector<HWND>{Host().MainWindow(), Host().Window()}));
    EXPECT_NE(Host().Find("TavTitleBackground"), nullptr);
}

TEST_F(ChromeActions, minimise_without_a_main_window_still_reaches_the_viewers_window)
{
    CWnd* const main = AfxGetApp()->m_pMainWnd;
    AfxGetApp()->m_pMainWnd = nullptr;
    EXPECT_EQ(WindowsToldByMinimise(), (std::vector<HWND>{nullptr, Host().Window()}));
    AfxGetApp()->m_pMainWnd = main;
}

TEST_F(ChromeActions, enter_button_enters_full_scene_and_leave_button_leaves_it)
{
    Host().Click(684, 25);
    EXPECT_TRUE(Frame().IsFullScene());
    EXPECT_FALSE(Window("TavTilteMaxboxButtom").isVisible());
    Window("TavTitleBackground").show();
    EXPECT_TRUE(Window("TavFullTilteEscBtn").isVisible());
    Host().MoveMouse(600, 20);
    Host().Click(684, 25);
    EXPECT_FALSE(Frame().IsFullScene());
    EXPECT_TRUE(Window("TavTilteMaxboxButtom").isVisible());
    EXPECT_FALSE(Window("TavFullTilteEscBtn").isVisible());
    EXPECT_TRUE(Host().TakeMessages().empty());
}

TEST_F(ChromeActions, right_clicks_on_the_buttons_do_nothing)
{
    for (const int x : {772, 728, 684})
    {
        RightClick(x, 25);
    }
    EXPECT_TRUE(Host().TakeMessages().empty());
    EXPECT_TRUE(Host().TakeMainWindowMessages().empty());
    EXPECT_FALSE(Frame().IsFullScene());
    EXPECT_NE(Host().Find("TavTitleBackground"), nullptr);
}

TEST_F(ChromeActions, clicks_on_the_title_bar_are_swallowed)
{
    int& reached = Count(CEGUI::Window::EventMouseButtonDown);
    Count(CEGUI::Window::EventMouseButtonUp);
    Count(CEGUI::Window::EventMouseClick);
    Host().Click(400, 20);
    RightClick(400, 20);
    EXPECT_EQ(reached, 0);
    EXPECT_TRUE(Host().TakeMessages().empty());
    Host().Click(400, 300);
    EXPECT_EQ(reached, 3) << "below the bar the sheet gets them";
}

TEST_F(ChromeActions, bars_report_clicks_on_them_as_handled)
{
    const auto handled = [](const char* name, const CEGUI::String& event)
    {
        CEGUI::MouseEventArgs args(&Window(name));
        args.button = CEGUI::LeftButton;
        args.clickCount = 1;
        Window(name).fireEvent(event, args);
        return args.handled;
    };
    for (const char* name : {"TavTitleBackground", "TavBotCtrlFrame", "TavLeftCtrlFrame"})
    {
        for (const CEGUI::String& event :
             {CEGUI::Window::EventMouseClick, CEGUI::Window::EventMouseButtonDown, CEGUI::Window::EventMouseButtonUp})
        {
            EXPECT_EQ(handled(name, event), 1u) << name << " " << event;
        }
    }
    EXPECT_EQ(handled("TavBotCtrlFrame", CEGUI::Window::EventMouseDoubleClick), 1u);
    EXPECT_EQ(handled("TavLeftCtrlFrame", CEGUI::Window::EventMouseDoubleClick), 1u);
    EXPECT_EQ(handled("TavTitleBackground", CEGUI::Window::EventMouseDoubleClick), 0u) << "this one is left alone, on purpose";
    EXPECT_EQ(handled("TavLeftBorderBackground", CEGUI::Window::EventMouseButtonDown), 0u);
}

TEST_F(ChromeActions, a_hover_without_a_window_or_an_input_state_is_left_unhandled)
{
    CEGUI::Window& logo = Window("TavTilteLogo");
    const auto handled = [&](CEGUI::Window* window)
    {
        CEGUI::WindowEventArgs args(window);
        logo.fireEvent(CEGUI::Window::EventMouseMove, args);
        return args.handled;
    };
    EXPECT_EQ(handled(&logo), 1u);
    EXPECT_EQ(InputState::Get().windowUnderMouse, "TavTilteLogo");
    InputState::Get().windowUnderMouse = "before";
    Frame().SetDisplySystemMouse(false);
    EXPECT_EQ(handled(nullptr), 0u);
    EXPECT_EQ(InputState::Get().windowUnderMouse, "before");
    InputState::Release();
    EXPECT_EQ(handled(&logo), 0u);
    EXPECT_EQ(InputState::GetIfThere(), nullptr);
    EXPECT_FALSE(Frame().IsDisplySystemMouse());
}

TEST_F(ChromeActions, hovering_the_chrome_asks_for_the_system_s_cursor)
{
    for (const char* name : {"TavTitleBackground", "TavTilteCloseButtom", "TavTilteLogo", "TavLeftBorderBackground",
                             "TavRightBorderBackground", "TavBottomBorderBackground"})
    {
        const RECT rect = GuiHost::RectOf(name);
        Host().MoveMouse(400, 300);
        Frame().SetDisplySystemMouse(false);
        // Low on the side borders, where no bar lies next to them; and right of the middle of the bottom one.
        const bool side = rect.bottom - rect.top > 100;
        const bool bar = rect.right - rect.left > 100;
        Host().MoveMouse(bar ? 640 : (rect.left + rect.right) / 2, side ? 400 : (rect.top + rect.bottom) / 2);
        EXPECT_TRUE(Frame().IsDisplySystemMouse()) << name;
    }
    Frame().SetDisplySystemMouse(false);
    Host().MoveMouse(400, 300);
    EXPECT_FALSE(Frame().IsDisplySystemMouse()) << "the scene asks for nothing";
}
