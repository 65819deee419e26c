// SPDX-License-Identifier: MIT
// What the input bridge answers to the viewer: whether an event is consumed.
#include "support/HostedFrame.h"

#include <gui_host/CeGuiEventHandler.h>
#include <widgets/InputState.h>

#include <CEGUI/Exceptions.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>

#include <stdexcept>

namespace
{
using Event = osgGA::GUIEventAdapter;

/// An action adapter that is no viewer.
class PlainActions : public osgGA::GUIActionAdapter
{
public:
    void requestRedraw() override {}
    void requestContinuousUpdate(bool) override {}
    void requestWarpPointer(float, float) override {}
};

class Handle : public HostedFrame
{
protected:
    void SetUp() override
    {
        HostedFrame::SetUp();
        event = new Event;
        event->setWindowRectangle(0, 0, ViewWidth, ViewHeight);
        event->setX(300);
        event->setY(200);
    }
    void TearDown() override
    {
        mouseFlags = MouseFlags();
        HostedFrame::TearDown();
    }
    bool Give(Event::EventType type, osgGA::GUIActionAdapter& actions, osg::Object* object)
    {
        event->setEventType(type);
        MakeCurrent();
        CapturedOutput trace;
        return dynamic_cast<CeGuiEventHandler&>(*Drawable().getEventCallback()).handle(*event, actions, object, nullptr);
    }
    bool Give(Event::EventType type) { return Give(type, Host().Viewer(), &Drawable()); }
    bool Give(Event::EventType type, int button)
    {
        event->setButton(button);
        return Give(type);
    }
    osg::ref_ptr<Event> event;
    PlainActions plain;
};
} // namespace

TEST_F(Handle, passes_on_every_event_but_a_used_wheel)
{
    const Event::EventType types[] = {Event::NONE,
                                      Event::MOVE,
                                      Event::DRAG,
                                      Event::KEYDOWN,
                                      Event::KEYUP,
                                      Event::FRAME,
                                      Event::RELEASE,
                                      Event::PUSH,
                                      Event::DOUBLECLICK,
                                      Event::RESIZE,
                                      Event::SCROLL,
                                      Event::PEN_PRESSURE,
                                      Event::PEN_ORIENTATION,
                                      Event::CLOSE_WINDOW,
                                      Event::QUIT_APPLICATION,
                                      Event::USER};
    Frame().EnablePopupMenu(false);
    for (const Event::EventType type : types)
    {
        event->setButton(Event::MIDDLE_MOUSE_BUTTON);
        EXPECT_FALSE(Give(type)) << type;
    }
    for (const int button : {Event::LEFT_MOUSE_BUTTON, Event::RIGHT_MOUSE_BUTTON})
    {
        EXPECT_FALSE(Give(Event::PUSH, button)) << button;
        EXPECT_FALSE(Give(Event::DRAG, button)) << button;
        Frame().EnablePopupMenu(false);
        EXPECT_FALSE(Give(Event::RELEASE, button)) << button;
        EXPECT_FALSE(Give(Event::DOUBLECLICK, button)) << button;
    }
}

TEST_F(Handle, stores_the_mouse_point_for_every_type_truncated_with_y_flipped)
{
    float x = 10.9f;
    for (const Event::EventType type : {Event::FRAME, Event::MOVE, Event::KEYDOWN, Event::PUSH, Event::USER, Event::SCROLL})
    {
        event->setX(x);
        event->setY(100.25f);
        Give(type, Event::MIDDLE_MOUSE_BUTTON);
        EXPECT_EQ(Frame().GetMousePoint(), CPoint(static_cast<int>(x), 499)) << type;
        x += 1.0f;
    }
}

TEST_F(Handle, passes_on_events_for_another_object_untouched)
{
    const CPoint before = Frame().GetMousePoint();
    EXPECT_FALSE(Give(Event::MOVE, Host().Viewer(), Frame().GetGUINode()));
    EXPECT_FALSE(Give(Event::MOVE, Host().Viewer(), nullptr));
    const osg::ref_ptr<osg::Geometry> geometry = new osg::Geometry;
    EXPECT_FALSE(Give(Event::RESIZE, Host().Viewer(), geometry));
    EXPECT_EQ(Frame().GetMousePoint(), before);
}

TEST_F(Handle, left_press_and_drag_reach_the_viewer_with_button_edit_mode_off)
{
    EXPECT_FALSE(Give(Event::PUSH, Event::LEFT_MOUSE_BUTTON));
    ASSERT_TRUE(mouseFlags.buttonHeld);
    EXPECT_FALSE(Give(Event::DRAG, Event::LEFT_MOUSE_BUTTON));
}

TEST_F(Handle, wheel_is_consumed_by_a_list_that_scrolls_and_reaches_the_viewer_from_everywhere_else)
{
    std::vector<BTN_UNIT> records(20);
    for (std::size_t i = 0; i < records.size(); ++i)
    {
        records[i].name.Format(L"record %d", static_cast<int>(i));
    }
    Frame().SetCtrlBtnInfo(records);
    Rebuild();
    for (const Event::ScrollingMotion motion : {Event::SCROLL_UP, Event::SCROLL_DOWN})
    {
        event->setScrollingMotion(motion);
        event->setY(200);
        Give(Event::MOVE);
        EXPECT_FALSE(Give(Event::SCROLL)) << "scene, " << motion;
        event->setY(ViewHeight - 20);
        Give(Event::MOVE);
        EXPECT_FALSE(Give(Event::SCROLL)) << "title bar, " << motion;
        event->setX(80);
        event->setY(200);
        Window("TavLeftCtrlFrame").setPosition(CEGUI::UVector2());
        Give(Event::MOVE);
        EXPECT_TRUE(Give(Event::SCROLL)) << "list, " << motion;
        EXPECT_TRUE(Give(Event::SCROLL)) << "list at its end, " << motion;
        event->setX(300);
        Give(Event::MOVE);
    }
    for (const Event::ScrollingMotion motion : {Event::SCROLL_NONE, Event::SCROLL_LEFT, Event::SCROLL_RIGHT, Event::SCROLL_2D})
    {
        event->setScrollingMotion(motion);
        EXPECT_FALSE(Give(Event::SCROLL)) << motion;
    }
}

TEST_F(Handle, wheel_of_another_motion_does_not_reach_cegui)
{
    int wheels = 0;
    Window("TavTitleBackground")
        .subscribeEvent(CEGUI::Window::EventMouseWheel,
                        CEGUI::Event::Subscriber([&](const CEGUI::EventArgs&) { return ++wheels, true; }));
    event->setY(ViewHeight - 20);
    Give(Event::MOVE);
    for (const Event::ScrollingMotion motion : {Event::SCROLL_NONE, Event::SCROLL_LEFT, Event::SCROLL_RIGHT, Event::SCROLL_2D})
    {
        event->setScrollingMotion(motion);
        Give(Event::SCROLL);
    }
    EXPECT_EQ(wheels, 0);
    event->setScrollingMotion(Event::SCROLL_DOWN);
    Give(Event::SCROLL);
    EXPECT_EQ(wheels, 1);
}

TEST_F(Handle, resize_takes_the_viewport_of_a_viewer_and_else_the_size_of_the_event)
{
    UINT width = 0;
    UINT height = 0;
    event->setWindowRectangle(0, 0, 333, 222);
    EXPECT_FALSE(Give(Event::RESIZE));
    Frame().GetWindowSize(width, height);
    EXPECT_EQ(width, 800u);
    EXPECT_EQ(height, 600u);
    EXPECT_FALSE(Give(Event::RESIZE, plain, &Drawable()));
    Frame().GetWindowSize(width, height);
    EXPECT_EQ(width, 333u);
    EXPECT_EQ(height, 222u);
    EXPECT_EQ(Place("rootSheet"), "0,0 - 333,222");
}

TEST_F(Handle, resize_truncates_the_viewport)
{
    Host().Viewer().getCamera()->setViewport(new osg::Viewport(0, 0, 700.9, 500.9));
    EXPECT_FALSE(Give(Event::RESIZE));
    UINT width = 0;
    UINT height = 0;
    Frame().GetWindowSize(width, height);
    EXPECT_EQ(width, 700u);
    EXPECT_EQ(height, 500u);
    Host().Viewer().getCamera()->setViewport(new osg::Viewport(0, 0, ViewWidth, ViewHeight));
}

TEST_F(Handle, minimised_window_without_size_leaves_the_frame_as_it_is)
{
    const CEGUI::Window* root = Host().Find("rootSheet");
    for (const auto& size : {std::pair<int, int>{0, 0}, {0, 600}, {800, 0}, {-1, -1}})
    {
        event->setWindowRectangle(0, 0, size.first, size.second);
        EXPECT_FALSE(Give(Event::RESIZE, plain, &Drawable()));
    }
    EXPECT_EQ(Host().Find("rootSheet"), root);
    UINT width = 0;
    UINT height = 0;
    Frame().GetWindowSize(width, height);
    EXPECT_EQ(width, 800u);
    EXPECT_EQ(height, 600u);
}

TEST_F(Handle, events_without_cegui_are_passed_on)
{
    const osg::ref_ptr<CeGuiDrawable> drawable = &Drawable();
    Host().Close();
    const osg::ref_ptr<CeGuiEventHandler> handler = new CeGuiEventHandler;
    for (const Event::EventType type : {Event::RESIZE, Event::PUSH, Event::RELEASE, Event::MOVE, Event::KEYDOWN, Event::KEYUP,
                                        Event::SCROLL, Event::DOUBLECLICK})
    {
        event->setEventType(type);
        event->setButton(Event::LEFT_MOUSE_BUTTON);
        EXPECT_FALSE(handler->handle(*event, Host().Viewer(), drawable, nullptr)) << type;
    }
}

TEST_F(Handle, never_raises_what_a_slot_raises_but_logs_it)
{
    CEGUI::Window& root = *CEGUI::System::getSingleton().getDefaultGUIContext().getRootWindow();
    root.subscribeEvent(
        CEGUI::Window::EventMouseButtonDown,
        CEGUI::Event::Subscriber([](const CEGUI::EventArgs&) -> bool { throw CEGUI::InvalidRequestException("not so"); }));
    root.subscribeEvent(CEGUI::Window::EventMouseButtonUp,
                        CEGUI::Event::Subscriber([](const CEGUI::EventArgs&) -> bool { throw std::runtime_error("nor so"); }));
    EXPECT_FALSE(Give(Event::PUSH, Event::LEFT_MOUSE_BUTTON));
    EXPECT_FALSE(Give(Event::RELEASE, Event::LEFT_MOUSE_BUTTON));
    const Lines log = TakeLog();
    ASSERT_EQ(log.size(), 2u);
    EXPECT_NE(log[0].find("not so"), std::string::npos) << log[0];
    EXPECT_NE(log[1].find("nor so"), std::string::npos) << log[1];
}
