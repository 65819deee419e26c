// SPDX-License-Identifier: MIT
// What a host does in slots of CEGUI's events, out of which CEGUI and the viewer go on with what they were doing.
#include "support/HostedFrame.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/RenderingSurface.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/PushButton.h>

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <utility>

namespace
{
class CallbackTest : public HostedFrame
{
protected:
    using Input = std::pair<std::string, std::function<void(CallbackTest& test)>>;

    void TearDown() override
    {
        // The node of an interface that was closed in a slot.
        while (Host().Root().getNumChildren() > 0 && Host().Root().getChild(0) != Frame().GetGUINode())
        {
            Host().Root().removeChild(0u);
        }
        HostedFrame::TearDown();
    }

    /// Has the next event of this name on a window call the action, once.
    void Subscribe(CEGUI::EventSet& sender, const CEGUI::String& event, const std::function<void()>& action)
    {
        // The slot outlives the test where its sender does.
        const auto called = called_;
        sender.subscribeEvent(event, CEGUI::Event::Subscriber(
                                         [called, action](const CEGUI::EventArgs&)
                                         {
                                             if (!*called)
                                             {
                                                 *called = true;
                                                 action();
                                             }
                                             return false;
                                         }));
    }

    std::shared_ptr<bool> called_ = std::make_shared<bool>(false);
    static constexpr int CloseX = 772;
    static constexpr int CloseY = 25;

    /// Each lets an event of CEGUI come by real input; the slot of it is the one that is called.
    static std::vector<Input> Inputs()
    {
        const auto on = [](const char* window, const CEGUI::String& event, const std::function<void()>& input)
        {
            return [=](CallbackTest& test)
            {
                test.Subscribe(HostedFrame::Window(window), event, test.action_);
                input();
            };
        };
        const char* const tool = "TavTilteMinboxButtom";
        const CPoint place(728, 25);
        return {
            {"press", on(tool, CEGUI::Window::EventMouseButtonDown, [=] { Host().Click(place.x, place.y); })},
            {"release", on(tool, CEGUI::Window::EventMouseButtonUp, [=] { Host().Click(place.x, place.y); })},
            {"click", on(tool, CEGUI::PushButton::EventClicked, [=] { Host().Click(place.x, place.y); })},
            {"close button's click",
             on("TavTilteCloseButtom", CEGUI::PushButton::EventClicked, [] { Host().Click(CloseX, CloseY); })},
            {"move", on(tool, CEGUI::Window::EventMouseMove, [=] { Host().MoveMouse(place.x, place.y); })},
            {"enter", on(tool, CEGUI::Window::EventMouseEntersSurface, [=] { Host().MoveMouse(place.x, place.y); })},
            {"wheel", on("TavTitleBackground", CEGUI::Window::EventMouseWheel, [] { Host().Wheel(400, 25, 1); })},
            {"key", on("rootSheet", CEGUI::Window::EventKeyDown, [] { Host().Key(VK_LEFT); })},
            {"double click", on("TavTilteText", CEGUI::Window::EventMouseDoubleClick, [] { Host().DoubleClick(60, 25); })},
            {"right press", on("TavTitleBackground", CEGUI::Window::EventMouseButtonDown,
                               []
                               {
                                   Frame().EnablePopupMenu(false);
                                   Host().RightClick(400, 25);
                               })},
            {"render queue",
             [](CallbackTest& test)
             {
                 test.Subscribe(CEGUI::System::getSingleton().getDefaultGUIContext(),
                                CEGUI::RenderingSurface::EventRenderQueueStarted, test.action_);
                 Host().Frames(1);
             }},
            {"size of the display",
             [](CallbackTest& test)
             {
                 test.Subscribe(CEGUI::System::getSingleton(), CEGUI::System::EventDisplaySizeChanged, test.action_);
                 Host().Viewer().getEventQueue()->windowResize(0, 0, ViewWidth, ViewHeight);
                 Host().Frames(1);
             }},
        };
    }

    /// Runs each kind of input with this action in its slot, each on a frame just built.
    /// @param left kinds that are left out
    void AtEachInput(const std::function<void()>& action, const std::function<void()>& expect,
                     const std::set<std::string>& left = {})
    {
        for (const auto& [name, input] : Inputs())
        {
            if (left.count(name) > 0)
            {
                continue;
            }
            SCOPED_TRACE(name);
            SetUp();
            called_ = std::make_shared<bool>(false);
            action_ = action;
            input(*this);
            CloseTitleDialog();
            EXPECT_TRUE(*called_);
            expect();
            TearDown();
        }
    }

    static void CloseTitleDialog()
    {
        if (const HWND dialog = FindWindowW(L"#32770", nullptr))
        {
            SendMessageW(dialog, WM_CLOSE, 0, 0);
        }
    }

    static bool IsShown() { return !(Host().Shoot().At(400, 20) == Background()); }

    static void ExpectWorking()
    {
        EXPECT_TRUE(IsShown());
        Host().TakeMessages();
        CEGUI::System::getSingleton().getDefaultGUIContext().setMouseButtonMultiClickTimeout(1e-6f);
        Host().Click(CloseX, CloseY);
        EXPECT_EQ(Host().TakeCodes(), Codes{GUI_CMD_CLOSE});
        Host().MoveMouse(ViewWidth / 2, ViewHeight / 2);
    }

    static void AddNode()
    {
        if (!Host().Root().containsNode(Frame().GetGUINode()))
        {
            Host().Root().removeChildren(0, Host().Root().getNumChildren());
            Host().Root().addChild(Frame().GetGUINode());
        }
    }

private:
    std::function<void()> action_;
};
} // namespace

TEST_F(CallbackTest, ends_the_interface_which_counts_as_closed_at_once)
{
    AtEachInput(
        []
        {
            const osg::ref_ptr<osg::Group> node = Frame().GetGUINode();
            Frame().CloseGuiSystem();
            EXPECT_FALSE(Frame().IsInit());
            EXPECT_FALSE(Frame().GetGUINode().valid());
            EXPECT_FALSE(Frame().CreateMainFrame());
            EXPECT_FALSE(Frame().RefreshPropertyDlg());
            Frame().OnToolBarFullScene(true);
            Frame().OpenPropertyDlg(nullptr, true);
            Frame().DestoryAllToolBar();
            Frame().DeleteButton(L"TavTitleBackground");
            Frame().OnMouseMove(0, CPoint(3, 300));
            EXPECT_GT(node->getNumChildren(), 0u) << "the viewer's traversal goes on over it";
        },
        []
        {
            EXPECT_EQ(CEGUI::System::getSingletonPtr(), nullptr);
            EXPECT_FALSE(IsShown());
            EXPECT_EQ(Host().Root().getChild(0)->asGroup()->getNumChildren(), 0u) << "taken away out of the message loop";
            Host().Root().removeChild(0u);
            Host().Start();
            ExpectWorking();
        });
}

TEST_F(CallbackTest, starts_the_interface_anew)
{
    AtEachInput([] { EXPECT_TRUE(Frame().Init(&Host().Viewer(), GUI_USER_FULL)); },
                []
                {
                    EXPECT_TRUE(Frame().IsInit());
                    EXPECT_NE(CEGUI::System::getSingletonPtr(), nullptr) << "started when the slot had returned";
                    AddNode();
                    Host().Frames(1);
                    Rebuild();
                    ExpectWorking();
                });
}

TEST_F(CallbackTest, ends_and_starts_it_in_turn_and_the_last_request_counts)
{
    AtEachInput(
        []
        {
            for (int i = 0; i < 3; ++i)
            {
                Frame().CloseGuiSystem();
                EXPECT_TRUE(Frame().Init(&Host().Viewer(), GUI_USER_FULL));
            }
            Frame().CloseGuiSystem();
        },
        []
        {
            EXPECT_FALSE(Frame().IsInit());
            EXPECT_EQ(CEGUI::System::getSingletonPtr(), nullptr);
            Host().Root().removeChildren(0, Host().Root().getNumChildren());
            Host().Start();
            ExpectWorking();
        });
}

TEST_F(CallbackTest, builds_the_frame_anew)
{
    AtEachInput(
        []
        {
            Frame().ClearAllWindows();
            EXPECT_TRUE(Frame().CreateMainFrame());
        },
        [] { ExpectWorking(); });
}

TEST_F(CallbackTest, draws_frames_and_sizes_the_view)
{
    // As the message loop of a dialog does that a slot shows. The viewer cannot draw a frame while it draws one. The close button
    // has destroyed the chrome before the host's slot is called.
    bool drawn = false;
    AtEachInput(
        [&]
        {
            Host().Frames(2);
            Host().Viewer().getEventQueue()->windowResize(0, 0, ViewWidth, ViewHeight);
            Host().Frames(2);
            drawn = IsShown();
        },
        [&]
        {
            EXPECT_TRUE(std::exchange(drawn, false)) << "the slot's own frames show the interface";
            ExpectWorking();
        },
        {"render queue", "close button's click"});
}

TEST_F(CallbackTest, destroys_the_window_that_the_event_is_for_and_draws_frames)
{
    AtEachInput(
        []
        {
            Frame().DestoryAllToolBar();
            Host().Frames(3);
        },
        []
        {
            Host().Frames(2);
            Rebuild();
            ExpectWorking();
        },
        {"render queue"});
}

TEST_F(CallbackTest, of_an_operation_ends_the_interface_that_the_operation_works_on)
{
    const std::pair<const char*, std::function<void()>> operations[] = {
        {"TavTitleBackground", [] { Frame().OnToolBarFullScene(true); }},
        {"TavLeftBorderBackground", [] { Frame().OnToolBarFullScene(true); }},
        {"TavBotCtrlFrame", [] { Frame().OnMouseMove(0, CPoint(300, 300)); }},
        {"TavBackCtrlFrame", [] { Frame().OpenPropertyDlg(nullptr, false); }},
    };
    for (const auto& [window, operation] : operations)
    {
        SCOPED_TRACE(window);
        SetUp();
        Frame().OpenPropertyDlg(nullptr, true);
        Frame().OnMouseMove(0, CPoint(300, 300));
        Frame().OnMouseMove(0, CPoint(300, 595));
        called_ = std::make_shared<bool>(false);
        Subscribe(Window(window), CEGUI::Window::EventHidden, [] { Frame().CloseGuiSystem(); });
        operation();
        EXPECT_TRUE(*called_);
        EXPECT_EQ(CEGUI::System::getSingletonPtr(), nullptr) << "ended with the operation";
        Host().Root().removeChildren(0, Host().Root().getNumChildren());
        Host().Frames(2);
        Host().Start();
        ExpectWorking();
        TearDown();
    }
}

TEST_F(CallbackTest, a_start_that_fails_after_the_slot_is_one_line_of_the_log)
{
    const FileTaken scheme(SkinDir() + L"TavLookSkin.scheme");
    Subscribe(Window("TavTilteMinboxButtom"), CEGUI::PushButton::EventClicked,
              [] { EXPECT_TRUE(Frame().Init(&Host().Viewer(), GUI_USER_FULL)); });
    Host().Click(728, 25);
    EXPECT_EQ(CEGUI::System::getSingletonPtr(), nullptr);
    EXPECT_TRUE(Frame().IsInit()) << "it starts when the skin is mended";
    Frame().CloseGuiSystem();
    Host().Root().removeChildren(0, Host().Root().getNumChildren());
    const Lines log = TakeLog();
    ASSERT_EQ(log.size(), 1u);
    EXPECT_NE(log[0].find("TavLookSkin.scheme"), std::string::npos) << log[0];
}
