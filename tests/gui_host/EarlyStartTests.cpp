// SPDX-License-Identifier: MIT
// Starts before there is a context to draw in, and drawables that never get CEGUI.
#include "support/HostedFrame.h"
#include "support/NativeGl.h"
#include "support/ViewWindow.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>

#include <osg/Geode>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace
{
constexpr const char* NotStarted = "NxOsgCeGui: interface not started before a size event finds a context: ";

/// A viewer that the test realizes itself, in a window of the host's main window.
class EarlyStart : public HostedFrame
{
protected:
    void SetUp() override
    {
        HostedFrame::SetUp();
        Host().Close();
        TakeLog();
        window_ = std::make_unique<ViewWindow>(Host().MainWindow(), ViewWidth, ViewHeight);
        viewer_ = new osgViewer::Viewer;
        viewer_->setThreadingModel(osgViewer::Viewer::SingleThreaded);
        viewer_->setKeyEventSetsDone(0);
        viewer_->setSceneData(root_);
        viewer_->getCamera()->setViewport(new osg::Viewport(0, 0, ViewWidth, ViewHeight));
        viewer_->getCamera()->setClearColor(osg::Vec4(0.2f, 0.4f, 0.6f, 1.0f));
    }
    void TearDown() override
    {
        Frame().CloseGuiSystem();
        viewer_ = nullptr;
        DestroyWindow(window_->Window());
        HostedFrame::TearDown();
    }

    void GiveContext() { viewer_->getCamera()->setGraphicsContext(window_->Context()); }
    void Frames(int count)
    {
        for (int i = 0; i < count; ++i)
        {
            Host().TakeMessages();
            viewer_->frame();
        }
    }
    void SizeEvent()
    {
        viewer_->getEventQueue()->windowResize(0, 0, ViewWidth, ViewHeight);
        Frames(3);
    }
    /// What the last frame shows in the title bar.
    bool IsShown()
    {
        window_->Context()->makeCurrent();
        viewer_->frame();
        window_->Context()->makeCurrent();
        return !(NativeGl::ReadPixel(400, ViewHeight - 1 - 20) == Background());
    }

    std::unique_ptr<ViewWindow> window_;
    osg::ref_ptr<osgViewer::Viewer> viewer_;
    osg::ref_ptr<osg::Group> root_ = new osg::Group;
};
} // namespace

TEST_F(EarlyStart, before_the_viewer_is_realized_shows_the_interface_with_the_first_size_event_that_has_a_context)
{
    GiveContext();
    EXPECT_TRUE(Frame().Init(viewer_, GUI_USER_FULL));
    EXPECT_TRUE(Frame().IsInit());
    EXPECT_EQ(TakeLog(), Lines{NotStarted + std::string("the viewer is not realized")});
    root_->addChild(Frame().GetGUINode());
    viewer_->realize();
    Frames(4);
    EXPECT_EQ(CEGUI::System::getSingletonPtr(), nullptr);
    EXPECT_FALSE(IsShown());
    SizeEvent();
    EXPECT_TRUE(IsShown());
}

TEST_F(EarlyStart, before_the_camera_has_a_context_shows_the_interface_with_the_first_size_event_that_has_one)
{
    EXPECT_TRUE(Frame().Init(viewer_, GUI_USER_FULL));
    EXPECT_EQ(TakeLog(), Lines{NotStarted + std::string("the viewer's camera has no graphics context")});
    root_->addChild(Frame().GetGUINode());
    GiveContext();
    viewer_->realize();
    Frames(3);
    SizeEvent();
    EXPECT_TRUE(IsShown());
}

TEST_F(EarlyStart, without_a_viewer_draws_nothing)
{
    EXPECT_TRUE(Frame().Init(nullptr, GUI_USER_FULL));
    EXPECT_EQ(TakeLog(), Lines{NotStarted + std::string("Init was given no viewer")});
    root_->addChild(Frame().GetGUINode());
    GiveContext();
    viewer_->realize();
    SizeEvent();
    EXPECT_FALSE(IsShown());
    EXPECT_EQ(Frame().GetHwnd(), nullptr);
}

TEST_F(EarlyStart, with_contexts_at_slave_cameras_alone_draws_nothing_and_says_why)
{
    const osg::ref_ptr<osg::Camera> slave = new osg::Camera;
    slave->setGraphicsContext(window_->Context());
    slave->setViewport(new osg::Viewport(0, 0, ViewWidth, ViewHeight));
    slave->setClearColor(osg::Vec4(0.2f, 0.4f, 0.6f, 1.0f));
    viewer_->addSlave(slave);
    EXPECT_TRUE(Frame().Init(viewer_, GUI_USER_FULL));
    EXPECT_EQ(TakeLog(), Lines{NotStarted + std::string("the viewer's camera has no graphics context; those of slave cameras are "
                                                        "not used")});
    root_->addChild(Frame().GetGUINode());
    viewer_->realize();
    SizeEvent();
    EXPECT_FALSE(IsShown());
}

TEST_F(EarlyStart, with_a_spoilt_skin_is_tried_again_with_the_next_size_event)
{
    GiveContext();
    Frame().Init(viewer_, GUI_USER_FULL);
    root_->addChild(Frame().GetGUINode());
    viewer_->realize();
    TakeLog();
    {
        const FileTaken scheme(SkinDir() + L"TavLookSkin.scheme");
        SizeEvent();
        EXPECT_FALSE(IsShown());
        // Those since the start that failed.
        const Lines log = LogLines();
        ASSERT_EQ(log.size(), 1u);
        EXPECT_NE(log[0].find("TavLookSkin.scheme"), std::string::npos) << log[0];
    }
    SizeEvent();
    EXPECT_TRUE(IsShown());
    EXPECT_EQ(TakeLog(), Lines{});
}

TEST_F(EarlyStart, makes_the_viewer_single_threaded_and_says_so)
{
    for (const auto model :
         {osgViewer::Viewer::AutomaticSelection, osgViewer::Viewer::DrawThreadPerContext,
          osgViewer::Viewer::CullDrawThreadPerContext, osgViewer::Viewer::CullThreadPerCameraDrawThreadPerContext})
    {
        viewer_->setThreadingModel(model);
        Frame().Init(viewer_, GUI_USER_FULL);
        EXPECT_EQ(viewer_->getThreadingModel(), osgViewer::Viewer::SingleThreaded) << model;
        const Lines log = TakeLog();
        ASSERT_EQ(log.size(), 2u) << model;
        EXPECT_EQ(log[0], "NxOsgCeGui: viewer made single-threaded: input, drawing and interface belong to one thread");
    }
    Frame().Init(viewer_, GUI_USER_FULL);
    EXPECT_EQ(TakeLog().size(), 1u) << "a viewer that is single-threaded stays as it is";
}

TEST_F(EarlyStart, other_drawables_of_its_class_draw_nothing)
{
    GiveContext();
    viewer_->realize();
    Frame().Init(viewer_, GUI_USER_FULL);
    const osg::ref_ptr<osg::Group> node = Frame().GetGUINode();
    root_->addChild(node);
    SizeEvent();
    const auto& drawable = dynamic_cast<CeGuiDrawable&>(*node->getChild(0)->asGeode()->getDrawable(0));
    const std::pair<const char*, osg::ref_ptr<osg::Node>> others[] = {
        {"a host's own", new CeGuiDrawable},
        {"a clone", static_cast<CeGuiDrawable*>(drawable.clone(osg::CopyOp::SHALLOW_COPY))},
        {"a copy of the node", static_cast<osg::Node*>(node->clone(osg::CopyOp::DEEP_COPY_ALL))},
    };
    for (const auto& [name, other] : others)
    {
        SCOPED_TRACE(name);
        root_->removeChildren(0, root_->getNumChildren());
        const osg::ref_ptr<osg::Geode> geode = new osg::Geode;
        root_->addChild(other->asDrawable() ? geode.get() : other.get());
        if (osg::Drawable* added = other->asDrawable())
        {
            geode->addDrawable(added);
        }
        SizeEvent();
        EXPECT_FALSE(IsShown());
    }
}

TEST_F(EarlyStart, a_copy_beside_it_leaves_each_event_told_once)
{
    GiveContext();
    viewer_->realize();
    Frame().Init(viewer_, GUI_USER_FULL);
    const osg::ref_ptr<osg::Group> node = Frame().GetGUINode();
    root_->addChild(node);
    const auto drawableOf = [](osg::Group& group) { return group.getChild(0)->asGeode()->getDrawable(0); };
    const osg::ref_ptr<osg::Group> copy =
        static_cast<osg::Group*>(node->clone(osg::CopyOp::DEEP_COPY_NODES | osg::CopyOp::DEEP_COPY_DRAWABLES));
    ASSERT_NE(drawableOf(*copy), drawableOf(*node));
    root_->addChild(copy);
    drawableOf(*copy)->setEventCallback(drawableOf(*node)->getEventCallback());
    SizeEvent();
    EXPECT_TRUE(IsShown());
    int built = 0;
    auto connection = CEGUI::WindowManager::getSingleton().subscribeEvent(
        CEGUI::WindowManager::EventWindowCreated,
        CEGUI::Event::Subscriber(
            [&built](const CEGUI::EventArgs& args)
            { return built += static_cast<const CEGUI::WindowEventArgs&>(args).window->getType() == "DefaultWindow", true; }));
    SizeEvent();
    connection->disconnect();
    EXPECT_EQ(built, 1) << "root sheets";
    viewer_->getEventQueue()->keyPress(osgGA::GUIEventAdapter::KEY_Left);
    viewer_->getEventQueue()->keyRelease(osgGA::GUIEventAdapter::KEY_Left);
    Frames(1);
    Codes codes;
    for (MSG message; PeekMessageW(&message, window_->Window(), GUI_HOST_MESSAGE, GUI_HOST_MESSAGE, PM_REMOVE);)
    {
        codes.push_back(message.wParam);
    }
    EXPECT_EQ(codes, Codes{GUI_CMD_KEY_LEFT});
}

TEST_F(EarlyStart, events_that_name_another_context_leave_the_interface_alone)
{
    GiveContext();
    viewer_->realize();
    Frame().Init(viewer_, GUI_USER_FULL);
    root_->addChild(Frame().GetGUINode());
    SizeEvent();
    const CPoint before = Frame().GetMousePoint();
    const auto give = [&](osg::GraphicsContext* context)
    {
        // Each press counts as a first one.
        CEGUI::System::getSingleton().getDefaultGUIContext().setMouseButtonMultiClickTimeout(1e-6f);
        osgGA::EventQueue& queue = *viewer_->getEventQueue();
        for (const auto type : {osgGA::GUIEventAdapter::MOVE, osgGA::GUIEventAdapter::PUSH, osgGA::GUIEventAdapter::RELEASE})
        {
            const osg::ref_ptr<osgGA::GUIEventAdapter> event = new osgGA::GUIEventAdapter;
            event->setWindowRectangle(0, 0, ViewWidth, ViewHeight);
            event->setX(772);
            event->setY(ViewHeight - 25);
            event->setButton(osgGA::GUIEventAdapter::LEFT_MOUSE_BUTTON);
            event->setEventType(type);
            event->setGraphicsContext(context);
            queue.addEvent(event);
        }
        Frames(1);
    };
    give(Host().Viewer().getCamera()->getGraphicsContext());
    EXPECT_EQ(Frame().GetMousePoint(), before);
    EXPECT_NE(GuiHost::Find("TavTitleBackground"), nullptr) << "the close button was not clicked";
    give(window_->Context());
    EXPECT_EQ(GuiHost::Find("TavTitleBackground"), nullptr);
    SizeEvent();
    EXPECT_NE(GuiHost::Find("TavTitleBackground"), nullptr);
    give(nullptr);
    EXPECT_EQ(GuiHost::Find("TavTitleBackground"), nullptr) << "an event that names no context is taken";
}

TEST_F(EarlyStart, clearing_in_a_window_made_anew_that_is_gone_again_leaves_it_to_the_next_size_event)
{
    GiveContext();
    viewer_->realize();
    Frame().Init(viewer_, GUI_USER_FULL);
    root_->addChild(Frame().GetGUINode());
    SizeEvent();
    window_->Context()->close();
    ViewWindow second(Host().MainWindow(), ViewWidth, ViewHeight);
    viewer_->getCamera()->setGraphicsContext(second.Context());
    viewer_->realize();
    DestroyWindow(second.Window());
    Frame().ClearAllWindows();
    Frame().ClearAllWindows();
    TakeLog();
    ViewWindow third(Host().MainWindow(), ViewWidth, ViewHeight);
    viewer_->getCamera()->setGraphicsContext(third.Context());
    viewer_->realize();
    SizeEvent();
    EXPECT_NE(GuiHost::Find("TavTitleBackground"), nullptr);
    Frame().CloseGuiSystem();
    DestroyWindow(third.Window());
}

TEST_F(EarlyStart, clearing_in_a_window_made_anew_raises_nothing_when_the_scheme_is_missing)
{
    GiveContext();
    viewer_->realize();
    Frame().Init(viewer_, GUI_USER_FULL);
    root_->addChild(Frame().GetGUINode());
    SizeEvent();
    TakeLog();
    window_->Context()->close();
    ViewWindow second(Host().MainWindow(), ViewWidth, ViewHeight);
    viewer_->getCamera()->setGraphicsContext(second.Context());
    viewer_->realize();
    {
        const FileTaken scheme(SkinDir() + L"TavLookSkin.scheme");
        EXPECT_NO_THROW(Frame().ClearAllWindows());
    }
    const Lines log = TakeLog();
    ASSERT_EQ(log.size(), 1u);
    EXPECT_NE(log[0].find("TavLookSkin.scheme"), std::string::npos) << log[0];
    SizeEvent();
    EXPECT_NE(GuiHost::Find("TavTitleBackground"), nullptr);
    Frame().CloseGuiSystem();
    DestroyWindow(second.Window());
}

TEST_F(EarlyStart, a_failed_starts_exception_can_be_read_after_a_close)
{
    GiveContext();
    viewer_->realize();
    std::optional<CEGUI::FileIOException> raised;
    {
        const FileReplaced scheme(SkinDir() + L"TavLookSkin.scheme", {'<', 'G', 'U', 'I'});
        try
        {
            Frame().Init(viewer_, GUI_USER_FULL);
        }
        catch (const CEGUI::FileIOException& failure)
        {
            raised = failure;
        }
    }
    Frame().CloseGuiSystem();
    ASSERT_TRUE(raised.has_value());
    EXPECT_FALSE(raised->getMessage().empty());
    TakeLog();
}
