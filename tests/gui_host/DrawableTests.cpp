// SPDX-License-Identifier: MIT
// The drawable: what it is, when it draws, how it ends.
#include "support/HostedFrame.h"
#include "support/NativeGl.h"

#include <gui_host/CeGuiEventHandler.h>
#include <widgets/FileImageset.h>
#include <widgets/WindowNames.h>

#include <CEGUI/Exceptions.h>
#include <CEGUI/Font.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/Logger.h>
#include <CEGUI/Scheme.h>
#include <CEGUI/ScriptModule.h>
#include <CEGUI/System.h>
#include <CEGUI/WindowManager.h>
#include <CEGUI/falagard/WidgetLookManager.h>

#include <osg/Notify>
#include <osg/RenderInfo>
#include <osg/State>

#include <cstring>
#include <fstream>
#include <vector>

namespace
{
const Pixel red = {255, 0, 0};

class DrawableTest : public HostedFrame
{
protected:
    static osg::State& State() { return *Host().Viewer().getCamera()->getGraphicsContext()->getState(); }

    /// Draws once with this state on a cleared screen, and reads the pixel where the close button stands.
    static Pixel DrawWith(osg::State& state, const CeGuiDrawable& drawable)
    {
        MakeCurrent();
        NativeGl::ClearScreen(red);
        osg::RenderInfo info(&state, nullptr);
        drawable.drawImplementation(info);
        return BarPixel();
    }

    static std::string LogText()
    {
        std::ifstream log("CEGUI.log");
        return std::string((std::istreambuf_iterator<char>(log)), {});
    }

    static Pixel BarPixel() { return NativeGl::ReadPixel(400, ViewHeight - 1 - 20); }
};

/// The state under another context's id for the life of the object.
class OtherContextId
{
public:
    explicit OtherContextId(osg::State& state, unsigned int id = 77) : state_(state), former_(state.getContextID())
    {
        state_.setContextID(id);
    }
    ~OtherContextId() { state_.setContextID(former_); }

private:
    osg::State& state_;
    unsigned int former_;
};

/// Collects what OSG reports.
class Notices : public osg::NotifyHandler
{
public:
    void notify(osg::NotifySeverity, const char* message) override { text += message; }
    std::string text;
};

class NoticesTaken
{
public:
    NoticesTaken() : former_(osg::getNotifyHandler()) { osg::setNotifyHandler(notices_); }
    ~NoticesTaken() { osg::setNotifyHandler(former_); }
    const std::string& Text() const { return notices_->text; }

private:
    osg::ref_ptr<osg::NotifyHandler> former_;
    osg::ref_ptr<Notices> notices_ = new Notices;
};
} // namespace

TEST_F(DrawableTest, first_draw_after_init_renders_nothing_and_the_second_renders)
{
    Host().Close();
    Host().InitOnly();
    CEGUI::System::getSingleton().notifyDisplaySizeChanged(CEGUI::Sizef(ViewWidth, ViewHeight));
    ASSERT_TRUE(Frame().CreateMainFrame());
    // In the title bar, away from its buttons and title.
    EXPECT_EQ(Host().Shoot().At(400, 20), Background());
    EXPECT_FALSE(Host().Shoot().At(400, 20) == Background());
}

TEST_F(DrawableTest, draws_in_its_own_context_and_in_no_other)
{
    EXPECT_FALSE(DrawWith(State(), Drawable()) == red);
    {
        const OtherContextId other(State());
        EXPECT_EQ(DrawWith(State(), Drawable()), red);
    }
    EXPECT_FALSE(DrawWith(State(), Drawable()) == red);
}

TEST_F(DrawableTest, reports_gl_errors_of_its_own_context_under_its_name)
{
    MakeCurrent();
    NativeGl::RaiseError();
    NoticesTaken notices;
    osg::RenderInfo info(&State(), nullptr);
    Drawable().drawImplementation(info);
    EXPECT_NE(notices.Text().find("CEGUIDrawable::drawImplementation"), std::string::npos) << notices.Text();
    EXPECT_FALSE(NativeGl::TakeError());
}

TEST_F(DrawableTest, reports_gl_errors_in_the_skipped_first_draw_too)
{
    Host().Close();
    Host().InitOnly();
    MakeCurrent();
    NativeGl::RaiseError();
    NoticesTaken notices;
    osg::RenderInfo info(&State(), nullptr);
    Drawable().drawImplementation(info);
    EXPECT_NE(notices.Text().find("CEGUIDrawable::drawImplementation"), std::string::npos) << notices.Text();
}

TEST_F(DrawableTest, leaves_gl_errors_of_another_context_alone)
{
    MakeCurrent();
    const OtherContextId other(State());
    NativeGl::RaiseError();
    NoticesTaken notices;
    osg::RenderInfo info(&State(), nullptr);
    Drawable().drawImplementation(info);
    EXPECT_EQ(notices.Text(), "");
    EXPECT_TRUE(NativeGl::TakeError());
}

TEST_F(DrawableTest, draws_for_the_context_id_that_init_was_given)
{
    Host().Close();
    MakeCurrent();
    const osg::ref_ptr<CeGuiDrawable> drawable = new CeGuiDrawable;
    drawable->Init(41);
    CEGUI::GUIContext& gui = CEGUI::System::getSingleton().getDefaultGUIContext();
    int drawn = 0;
    gui.subscribeEvent(CEGUI::RenderingSurface::EventRenderQueueStarted,
                       CEGUI::Event::Subscriber([&drawn](const CEGUI::EventArgs&) { return ++drawn, true; }));
    gui.setRootWindow(CEGUI::WindowManager::getSingleton().createWindow("DefaultWindow", "sheet"));
    {
        const OtherContextId its(State(), 41);
        DrawWith(State(), *drawable);
        EXPECT_EQ(drawn, 0);
        DrawWith(State(), *drawable);
        EXPECT_GT(drawn, 0);
    }
    const int before = drawn;
    DrawWith(State(), *drawable);
    EXPECT_EQ(drawn, before);
    drawable->Finish();
}

TEST_F(DrawableTest, finish_twice_is_harmless)
{
    Host().Close();
    MakeCurrent();
    const osg::ref_ptr<CeGuiDrawable> drawable = new CeGuiDrawable;
    drawable->Init(0);
    ASSERT_NE(CEGUI::System::getSingletonPtr(), nullptr);
    drawable->Finish();
    EXPECT_EQ(CEGUI::System::getSingletonPtr(), nullptr);
    drawable->Finish();
    EXPECT_EQ(CEGUI::System::getSingletonPtr(), nullptr);
}

TEST_F(DrawableTest, started_again_it_renders_at_once_since_its_first_frame_is_drawn)
{
    Host().Close();
    MakeCurrent();
    const osg::ref_ptr<CeGuiDrawable> drawable = new CeGuiDrawable;
    const OtherContextId its(State(), 42);
    std::vector<int> drawn;
    for (int start = 0; start < 2; ++start)
    {
        drawable->Init(42);
        CEGUI::GUIContext& gui = CEGUI::System::getSingleton().getDefaultGUIContext();
        int count = 0;
        gui.subscribeEvent(CEGUI::RenderingSurface::EventRenderQueueStarted,
                           CEGUI::Event::Subscriber([&count](const CEGUI::EventArgs&) { return ++count, true; }));
        gui.setRootWindow(CEGUI::WindowManager::getSingleton().createWindow("DefaultWindow", "sheet"));
        DrawWith(State(), *drawable);
        drawn.push_back(count > 0);
        drawable->Finish();
    }
    EXPECT_EQ(drawn, (std::vector<int>{0, 1}));
}

TEST_F(DrawableTest, its_own_operations_follow_each_other_in_the_table)
{
    // The order is part of the binary interface.
    struct Reach : CeGuiDrawable
    {
        static auto Setup() { return &Reach::SetupCeGui; }
        static auto Resource() { return &Reach::InitResource; }
        static auto Configure() { return &Reach::Config; }
    };
    const auto slot = [](auto operation)
    {
        std::ptrdiff_t offset = 0;
        std::memcpy(&offset, &operation, sizeof(offset));
        return offset / static_cast<std::ptrdiff_t>(sizeof(void*));
    };
    const std::ptrdiff_t first = slot(&CeGuiDrawable::Init);
    EXPECT_GT(first, slot(&osg::Drawable::drawImplementation));
    EXPECT_EQ(slot(Reach::Setup()), first + 1);
    EXPECT_EQ(slot(Reach::Resource()), first + 2);
    EXPECT_EQ(slot(Reach::Configure()), first + 3);
}

TEST_F(DrawableTest, finish_of_a_drawable_that_was_never_initialised_touches_no_cegui)
{
    const osg::ref_ptr<CeGuiDrawable> drawable = new CeGuiDrawable;
    drawable->Finish();
    EXPECT_NE(CEGUI::System::getSingletonPtr(), nullptr);
    EXPECT_NE(Host().Find("TavTitleBackground"), nullptr);
}

TEST_F(DrawableTest, clone_has_no_renderer_no_system_and_no_context_id)
{
    Host().Close();
    MakeCurrent();
    const osg::ref_ptr<CeGuiDrawable> drawable = new CeGuiDrawable;
    drawable->Init(41);
    CEGUI::System::getSingleton().notifyDisplaySizeChanged(CEGUI::Sizef(ViewWidth, ViewHeight));
    CEGUI::Window& picture = *WindowNames::Create("TavLook/StaticImage", "picture");
    FileImagesets::Apply(picture, "Image", FileImagesets::Create(L"new_skin/topBG.png"));
    CEGUI::System::getSingleton().getDefaultGUIContext().setRootWindow(&picture);
    {
        const OtherContextId its(State(), 41);
        DrawWith(State(), *drawable);
        ASSERT_FALSE(DrawWith(State(), *drawable) == red) << "the original shows the picture";
    }
    const osg::ref_ptr<osg::Object> copy = drawable->clone(osg::CopyOp::DEEP_COPY_ALL);
    auto* clone = dynamic_cast<CeGuiDrawable*>(copy.get());
    ASSERT_NE(clone, nullptr);
    for (const unsigned int id : {0u, 41u, 77u})
    {
        const OtherContextId its(State(), id);
        for (int draw = 0; draw < 3; ++draw)
        {
            EXPECT_EQ(DrawWith(State(), *clone), red) << "draw " << draw << " under context " << id;
        }
    }
    {
        // A drawable looks at the errors of its own context alone, in the draw that it skips as well.
        const OtherContextId its(State(), 41);
        NativeGl::RaiseError();
        DrawWith(State(), *clone);
        EXPECT_TRUE(NativeGl::TakeError()) << "the original's context";
    }
    // It owns nothing that it could take down.
    clone->Finish();
    EXPECT_NE(CEGUI::System::getSingletonPtr(), nullptr);
    drawable->Finish();
    EXPECT_EQ(CEGUI::System::getSingletonPtr(), nullptr);
    for (int draw = 0; draw < 3; ++draw)
    {
        const OtherContextId its(State(), 0);
        EXPECT_EQ(DrawWith(State(), *clone), red) << "draw " << draw << " without CEGUI";
    }
}

TEST_F(DrawableTest, clone_copies_the_osg_drawable)
{
    const osg::ref_ptr<CeGuiDrawable> drawable = new CeGuiDrawable;
    drawable->setName("drawn");
    const osg::ref_ptr<osg::Object> clone = drawable->clone(osg::CopyOp::SHALLOW_COPY);
    EXPECT_EQ(clone->getName(), "drawn");
    EXPECT_NE(clone.get(), drawable.get());
}

TEST_F(DrawableTest, assignment_shares_renderer_system_and_context_id)
{
    const osg::ref_ptr<CeGuiDrawable> second = new CeGuiDrawable;
    *second = Drawable();
    // The first-frame flag comes along, so the very first draw of the copy renders.
    EXPECT_FALSE(DrawWith(State(), *second) == red);
}

TEST_F(DrawableTest, tells_osg_what_it_is)
{
    const osg::ref_ptr<CeGuiDrawable> drawable = new CeGuiDrawable;
    EXPECT_STREQ(drawable->libraryName(), "osg");
    EXPECT_STREQ(drawable->className(), "CeGuiDrawable");
    EXPECT_TRUE(drawable->isSameKindAs(&Drawable()));
    EXPECT_FALSE(drawable->isSameKindAs(Frame().GetGUINode()));
    EXPECT_FALSE(drawable->isSameKindAs(nullptr));
    const osg::ref_ptr<osg::Object> another = drawable->cloneType();
    EXPECT_NE(dynamic_cast<CeGuiDrawable*>(another.get()), nullptr);
}

TEST_F(DrawableTest, has_no_display_list_and_carries_the_input_bridge_as_its_event_callback)
{
    const osg::ref_ptr<CeGuiDrawable> drawable = new CeGuiDrawable;
    EXPECT_FALSE(drawable->getSupportsDisplayList());
    EXPECT_NE(dynamic_cast<CeGuiEventHandler*>(drawable->getEventCallback()), nullptr);
    EXPECT_EQ(drawable->getEventCallback()->referenceCount(), 1);
}

TEST_F(DrawableTest, skin_directory_is_the_default_group_of_everything_cegui_loads)
{
    EXPECT_EQ(CEGUI::Font::getDefaultResourceGroup(), "skindir");
    EXPECT_EQ(CEGUI::Scheme::getDefaultResourceGroup(), "skindir");
    EXPECT_EQ(CEGUI::ImageManager::getImagesetDefaultResourceGroup(), "skindir");
    EXPECT_EQ(CEGUI::WidgetLookManager::getDefaultResourceGroup(), "skindir");
    EXPECT_EQ(CEGUI::WindowManager::getDefaultResourceGroup(), "skindir");
    EXPECT_EQ(CEGUI::ScriptModule::getDefaultResourceGroup(), "skindir");
}

TEST_F(DrawableTest, cegui_logs_to_cegui_log_in_the_working_directory)
{
    const std::string text = LogText();
    EXPECT_NE(text.find("NxOsgCeGui starts"), std::string::npos);
    EXPECT_NE(text.find("OpenGLRenderer"), std::string::npos);
    EXPECT_NE(text.find("'TavLook"), std::string::npos) << "the skin's types";
}

TEST_F(DrawableTest, the_end_of_cegui_is_in_the_log)
{
    Host().Close();
    const std::string text = LogText();
    EXPECT_NE(text.find("CEGUI System destruction completed"), std::string::npos);
    Host().Start(GUI_USER_FULL);
}

TEST_F(DrawableTest, a_log_of_the_hosts_own_stays_ceguis_log)
{
    struct HostLog : CEGUI::Logger
    {
        void logEvent(const CEGUI::String& message, CEGUI::LoggingLevel) override { lines.push_back(message); }
        void setLogFilename(const CEGUI::String&, bool) override {}
        std::vector<CEGUI::String> lines;
    };
    Host().Close();
    {
        HostLog log;
        Host().Start(GUI_USER_FULL);
        EXPECT_EQ(CEGUI::Logger::getSingletonPtr(), &log);
        EXPECT_FALSE(log.lines.empty());
        Host().Close();
        EXPECT_EQ(CEGUI::Logger::getSingletonPtr(), &log);
    }
    Host().Start(GUI_USER_FULL);
    EXPECT_NE(CEGUI::Logger::getSingletonPtr(), nullptr);
}
