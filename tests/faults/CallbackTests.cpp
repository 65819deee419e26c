// SPDX-License-Identifier: MIT
// Exceptions that come out of what a host hands in: its scene, its event handlers, its slots, its message loop.
#include "FaultTest.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/Window.h>

#include <osg/Geometry>
#include <osg/MatrixTransform>
#include <osgGA/GUIEventHandler>

#include <functional>
#include <stdexcept>
#include <utility>

namespace
{
/// Throws once, when it is told to.
class Thrower
{
public:
    void Arm(std::function<void()> thrown)
    {
        thrown_ = std::move(thrown);
        hasThrown_ = false;
    }
    void Pass() const
    {
        if (thrown_)
        {
            const std::function<void()> thrown = std::exchange(thrown_, nullptr);
            hasThrown_ = true;
            thrown();
        }
    }
    /// Since it was armed last.
    bool HasThrown() const { return hasThrown_; }

private:
    mutable std::function<void()> thrown_;
    mutable bool hasThrown_ = false;
};

Thrower thrower;

struct ThrowingNodeCallback : osg::NodeCallback
{
    void operator()(osg::Node* node, osg::NodeVisitor* visitor) override
    {
        thrower.Pass();
        traverse(node, visitor);
    }
};

struct ThrowingEventHandler : osgGA::GUIEventHandler
{
    bool handle(const osgGA::GUIEventAdapter&, osgGA::GUIActionAdapter&) override
    {
        thrower.Pass();
        return false;
    }
};

struct ThrowingCameraCallback : osg::Camera::DrawCallback
{
    void operator()(osg::RenderInfo&) const override { thrower.Pass(); }
};

struct ThrowingDrawable : osg::Drawable
{
    ThrowingDrawable() { setCullingActive(false); }
    void drawImplementation(osg::RenderInfo&) const override { thrower.Pass(); }
};

struct Callee
{
    const char* name;
    std::function<void()> add;
    std::function<void()> remove;
};

const std::pair<const char*, std::function<void()>> kinds[] = {
    {"a standard exception", [] { throw std::runtime_error("the host's own"); }},
    {"CEGUI's exception", [] { throw CEGUI::InvalidRequestException("the host's own"); }},
    {"a number", [] { throw 7; }},
};

class Callbacks : public FaultTest
{
protected:
    void SetUp() override
    {
        FaultTest::SetUp();
        good_ = SeenAfterRebuild();
    }
    void TearDown() override
    {
        thrower.Arm(nullptr);
        FaultTest::TearDown();
    }
    /// Runs a frame with a move of the mouse in it. @return whether an exception has come back to the host
    static bool RunFrame()
    {
        try
        {
            Host().MoveMouse(Width / 2, Height / 2 + 1);
            Host().Frames(1);
        }
        catch (...)
        {
            return true;
        }
        return false;
    }
    void ExpectBack()
    {
        Host().MoveMouse(Width / 2, Height / 2);
        Host().Frames(1);
        EXPECT_TRUE(Seen() == good_);
        ExpectAnswers();
        EXPECT_TRUE(Seen() == good_);
        EXPECT_EQ(NewLog(), Lines{});
    }

    std::vector<std::uint8_t> good_;
};
} // namespace

TEST_F(Callbacks, that_throw_in_the_hosts_scene_or_viewer_leave_the_interface_as_it_was)
{
    osg::Camera& camera = *Host().Viewer().getCamera();
    const osg::ref_ptr<osg::MatrixTransform> node = new osg::MatrixTransform;
    const osg::ref_ptr<osg::Drawable> drawable = new ThrowingDrawable;
    const osg::ref_ptr<osgGA::GUIEventHandler> handler = new ThrowingEventHandler;
    Host().Root().insertChild(0, node);
    const Callee callees[] = {
        {"the scene's update", [&] { node->setUpdateCallback(new ThrowingNodeCallback); },
         [&] { node->setUpdateCallback(nullptr); }},
        {"the scene's events", [&] { node->setEventCallback(new ThrowingNodeCallback); },
         [&] { node->setEventCallback(nullptr); }},
        {"the scene's culling", [&] { node->setCullCallback(new ThrowingNodeCallback); },
         [&] { node->setCullCallback(nullptr); }},
        {"the scene's drawing", [&] { node->addChild(drawable); }, [&] { node->removeChild(drawable); }},
        {"an event handler of the viewer", [&] { Host().Viewer().addEventHandler(handler); },
         [&] { Host().Viewer().removeEventHandler(handler); }},
        {"the camera before it draws", [&] { camera.setPreDrawCallback(new ThrowingCameraCallback); },
         [&] { camera.setPreDrawCallback(nullptr); }},
        {"the camera after it has drawn", [&] { camera.setFinalDrawCallback(new ThrowingCameraCallback); },
         [&] { camera.setFinalDrawCallback(nullptr); }},
    };
    for (const Callee& callee : callees)
    {
        for (const auto& [kind, thrown] : kinds)
        {
            Fault fault(std::string(kind) + " from " + callee.name);
            callee.add();
            thrower.Arm(thrown);
            EXPECT_TRUE(RunFrame());
            fault.Bites(thrower.HasThrown());
            callee.remove();
            ExpectBack();
        }
    }
    Host().Root().removeChild(node);
}

TEST_F(Callbacks, that_throw_in_a_slot_of_the_hosts_end_in_the_log)
{
    const std::pair<const char*, const CEGUI::String*> events[] = {
        {"a mouse move", &CEGUI::Window::EventMouseMove},  {"a press", &CEGUI::Window::EventMouseButtonDown},
        {"a release", &CEGUI::Window::EventMouseButtonUp}, {"a wheel", &CEGUI::Window::EventMouseWheel},
        {"a key", &CEGUI::Window::EventKeyDown},
    };
    for (const auto& [name, event] : events)
    {
        for (const auto& [kind, thrown] : kinds)
        {
            Fault fault(std::string(kind) + " from a slot for " + name);
            const bool key = *event == CEGUI::Window::EventKeyDown;
            CEGUI::Window& window = Window(key ? "rootSheet" : "TavTitleBackground");
            CEGUI::Event::Connection slot = window.subscribeEvent(
                *event, CEGUI::Event::Subscriber([](const CEGUI::EventArgs&) { return thrower.Pass(), false; }));
            thrower.Arm(thrown);
            EXPECT_NO_THROW({
                Host().MoveMouse(Width / 2, 20);
                Host().Press(Width / 2, 20);
                Host().Release(Width / 2, 20);
                Host().Wheel(Width / 2, 20, 1);
                Host().Key(VK_F5);
            });
            fault.Bites(thrower.HasThrown());
            slot->disconnect();
            const Lines log = NewLog();
            EXPECT_EQ(log.size(), 1u) << testing::PrintToString(log);
            EXPECT_EQ(Without(log, "event not carried out"), Lines{});
            ExpectBack();
        }
    }
}

TEST_F(Callbacks, that_throw_while_the_interface_draws_reach_the_host_and_the_next_frame_is_whole)
{
    for (const auto& [kind, thrown] : kinds)
    {
        Fault fault(std::string(kind) + " from a slot of a window that is drawn");
        CEGUI::Event::Connection slot =
            Window("TavTilteLogo")
                .subscribeEvent(CEGUI::Window::EventRenderingStarted,
                                CEGUI::Event::Subscriber([](const CEGUI::EventArgs&) { return thrower.Pass(), false; }));
        thrower.Arm(thrown);
        Window("TavTilteLogo").invalidate();
        EXPECT_TRUE(RunFrame());
        fault.Bites(thrower.HasThrown());
        slot->disconnect();
        thrower.Arm(nullptr);
        ExpectBack();
    }
}

TEST_F(Callbacks, that_throw_out_of_the_hosts_message_loop_lose_nothing)
{
    Fault fault("an exception out of the host's handling of a command");
    Host().TakeMessages();
    try
    {
        Host().Click(Width - 28, 25);
        if (!Host().TakeMessages().empty())
        {
            throw std::runtime_error("the host's own");
        }
        FAIL() << "no command";
    }
    catch (const std::runtime_error&)
    {
        fault.Bites(true);
    }
    EXPECT_FALSE(Stands()) << "the close button takes the frame away before it asks the host to close";
    Host().MoveMouse(Width / 2, Height / 2);
    Rebuild();
    ExpectBack();
}
