// SPDX-License-Identifier: MIT
// What a host does while CEGUI draws: in slots of a queue's start and end, with geometry and textures of its own, with
// exceptions.
#include "UnderState.h"

#include "support/NativeGl.h"
#include "widgets/Pictures.h"

#include <widgets/FileImageset.h>
#include <widgets/WindowNames.h>

#include <CEGUI/BasicImage.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/GeometryBuffer.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/Renderer.h>
#include <CEGUI/RenderEffect.h>
#include <CEGUI/System.h>
#include <CEGUI/Texture.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>

#include <stdexcept>

namespace
{
const wchar_t* const File = L"SlotTest.bmp";
constexpr int Side = 16;

CEGUI::GUIContext& Context()
{
    return CEGUI::System::getSingleton().getDefaultGUIContext();
}

CEGUI::Renderer& TheRenderer()
{
    return *CEGUI::System::getSingleton().getRenderer();
}

/// Calls a function at a queue's start or end, frame by frame.
class AtQueue
{
public:
    AtQueue(const CEGUI::String& event, std::function<void()> function, CEGUI::RenderQueueID queue = CEGUI::RQ_BASE)
        : connection_(Context().subscribeEvent(event, CEGUI::SubscriberSlot(
                                                          [=](const CEGUI::EventArgs& args)
                                                          {
                                                              if (static_cast<const CEGUI::RenderQueueEventArgs&>(args).queueID ==
                                                                  queue)
                                                              {
                                                                  function();
                                                              }
                                                              return true;
                                                          })))
    {
    }
    ~AtQueue() { connection_->disconnect(); }

private:
    CEGUI::Event::Connection connection_;
};

class SceneSlot : public UnderState
{
protected:
    void SetUp() override
    {
        HostedFrame::SetUp();
        MakeCurrent();
        ASSERT_TRUE(WriteBytes(SkinDir() + File, Bmp32(Solid(Side, Side, 0xFFFF0000))));
        image_ = &FileImagesets::Create(File);
    }
    void TearDown() override
    {
        MakeCurrent();
        Rebuild();
        DeleteFileW(SkinDir() + File);
        UnderState::TearDown();
    }

    /// The red picture in a window of its own.
    CEGUI::Window& Show(const char* name, float x, float y)
    {
        CEGUI::Window& window = *WindowNames::Create("TavLook/StaticImage", name);
        window.setPosition(CEGUI::UVector2(CEGUI::UDim(0, x), CEGUI::UDim(0, y)));
        window.setSize(CEGUI::USize(CEGUI::UDim(0, Side), CEGUI::UDim(0, Side)));
        FileImagesets::Apply(window, "Image", *image_);
        WindowNames::AddChild(*Context().getRootWindow(), window);
        return window;
    }
    /// The red picture as a host's own geometry, in another colour.
    CEGUI::GeometryBuffer& Geometry(float x, float y, std::uint32_t color)
    {
        CEGUI::GeometryBuffer& buffer = TheRenderer().createGeometryBuffer();
        image_->render(buffer, CEGUI::Vector2f(0, 0), nullptr, CEGUI::ColourRect(color));
        buffer.setTranslation(CEGUI::Vector3f(x, y, 0));
        buffer.setClippingRegion(CEGUI::Rectf(0, 0, ViewWidth, ViewHeight));
        return buffer;
    }

    CEGUI::Image* image_ = nullptr;
};
constexpr Pixel Red = {255, 0, 0};
constexpr Pixel Black = {0, 0, 0};
} // namespace

TEST_F(SceneSlot, that_draws_as_the_windows_queue_starts_lies_under_the_windows_in_every_frame)
{
    Show("window", 300, 200);
    CEGUI::GeometryBuffer& buffer = Geometry(308, 200, 0xFF000000);
    {
        const AtQueue slot(CEGUI::RenderingSurface::EventRenderQueueStarted, [&] { buffer.draw(); });
        for (int frame = 0; frame < 4; ++frame)
        {
            if (frame == 2)
            {
                MarkDirty();
            }
            const Screenshot shot = Host().Shoot();
            EXPECT_EQ(shot.At(312, 208), Red) << "the window, over the host's picture; frame " << frame;
            EXPECT_EQ(shot.At(320, 208), Black) << "the host's picture; frame " << frame;
        }
    }
    EXPECT_EQ(Host().Shoot().At(320, 208), Background()) << "what a slot drew is not kept";
    TheRenderer().destroyGeometryBuffer(buffer);
}

TEST_F(SceneSlot, that_draws_as_the_windows_queue_ends_lies_over_the_windows_in_every_frame)
{
    Show("window", 300, 200);
    CEGUI::GeometryBuffer& buffer = Geometry(308, 200, 0xFF000000);
    const AtQueue slot(CEGUI::RenderingSurface::EventRenderQueueEnded, [&] { buffer.draw(); });
    for (int frame = 0; frame < 4; ++frame)
    {
        if (frame == 2)
        {
            MarkDirty();
        }
        EXPECT_EQ(Host().Shoot().At(312, 208), Black) << frame;
    }
    Host().Frames(1);
    TheRenderer().destroyGeometryBuffer(buffer);
}

TEST_F(SceneSlot, that_draws_as_a_queue_starts_or_ends_reads_textures_as_they_say)
{
    Show("window", 300, 200);
    std::vector<int> samplers;
    const auto look = [&] { samplers.push_back(NativeGl::BoundSampler()); };
    const AtQueue started(CEGUI::RenderingSurface::EventRenderQueueStarted, look);
    const AtQueue ended(CEGUI::RenderingSurface::EventRenderQueueEnded, look);
    Host().Frames(2);
    EXPECT_EQ(samplers, std::vector<int>(4, 0));
}

TEST_F(SceneSlot, with_geometry_among_the_windows_may_destroy_it)
{
    Show("window", 300, 200);
    CEGUI::GeometryBuffer& buffer = Geometry(340, 200, 0xFFFFFFFF);
    Host().Frames(2);
    Context().addGeometryBuffer(CEGUI::RQ_BASE, buffer);
    MarkDirty();
    Host().Frames(1);
    // CEGUI has emptied the queue with that.
    Context().addGeometryBuffer(CEGUI::RQ_BASE, buffer);
    CEGUI::Window& other = Show("other", 400, 200);
    Host().Frames(1);
    Context().addGeometryBuffer(CEGUI::RQ_BASE, buffer);
    EXPECT_EQ(Host().Shoot().At(345, 208), Red);
    Context().removeGeometryBuffer(CEGUI::RQ_BASE, buffer);
    TheRenderer().destroyGeometryBuffer(buffer);
    EXPECT_EQ(Host().Shoot().At(345, 208), Background());
    other.setPosition(CEGUI::UVector2(CEGUI::UDim(0, 420), CEGUI::UDim(0, 200)));
    const Screenshot moved = Host().Shoot();
    EXPECT_EQ(moved.At(425, 208), Red);
    EXPECT_EQ(moved.At(305, 208), Red);
}

TEST_F(SceneSlot, with_geometry_that_was_drawn_as_one_of_the_windows_may_destroy_it)
{
    Show("window", 300, 200);
    CEGUI::Window& moving = Show("moving", 400, 200);
    CEGUI::GeometryBuffer* buffer = &Geometry(340, 200, 0xFFFFFFFF);
    {
        // Added after CEGUI has filled the queue: the buffer is drawn and kept with the windows.
        const AtQueue slot(CEGUI::RenderingSurface::EventRenderQueueStarted,
                           [&] { Context().addGeometryBuffer(CEGUI::RQ_BASE, *buffer); });
        MarkDirty();
        EXPECT_EQ(Host().Shoot().At(345, 208), Red);
    }
    EXPECT_EQ(Host().Shoot().At(345, 208), Red) << "kept";
    TheRenderer().destroyGeometryBuffer(*buffer);
    // Its place is used again.
    buffer = &Geometry(500, 300, 0xFF000000);
    moving.setPosition(CEGUI::UVector2(CEGUI::UDim(0, 420), CEGUI::UDim(0, 200)));
    const Screenshot moved = Host().Shoot();
    EXPECT_EQ(moved.At(345, 208), Background());
    EXPECT_EQ(moved.At(305, 208), Red);
    EXPECT_EQ(moved.At(425, 208), Red);
    EXPECT_EQ(moved.At(505, 308), Background());
    TheRenderer().destroyGeometryBuffer(*buffer);
}

TEST_F(SceneSlot, that_destroyed_a_texture_may_move_the_window_that_showed_it)
{
    CEGUI::Texture& texture = TheRenderer().createTexture("a host's own", CEGUI::Sizef(Side, Side));
    auto& image = static_cast<CEGUI::BasicImage&>(CEGUI::ImageManager::getSingleton().create("BasicImage", "a host's own"));
    image.setTexture(&texture);
    image.setArea(CEGUI::Rectf(0, 0, Side, Side));
    CEGUI::Window& window = *WindowNames::Create("TavLook/StaticImage", "host's");
    window.setSize(CEGUI::USize(CEGUI::UDim(0, Side), CEGUI::UDim(0, Side)));
    window.setProperty("Image", "a host's own");
    WindowNames::AddChild(*Context().getRootWindow(), window);
    Show("other", 300, 200);
    Host().Frames(2);
    MakeCurrent();
    TheRenderer().destroyTexture(texture);
    // What was the texture is something else now.
    std::vector<std::string> others;
    for (int i = 0; i < 64; ++i)
    {
        others.push_back(std::string(sizeof(CEGUI::Texture) * 8, '\xEE'));
    }
    window.setPosition(CEGUI::UVector2(CEGUI::UDim(0, 200), CEGUI::UDim(0, 300)));
    EXPECT_EQ(Host().Shoot().At(305, 208), Red);
    CEGUI::WindowManager::getSingleton().destroyWindow(&window);
    CEGUI::ImageManager::getSingleton().destroy("a host's own");
}

TEST_F(SceneSlot, that_throws_leaves_opengls_state_and_stacks_as_they_were)
{
    Show("window", 300, 200);
    Host().Frames(1);
    const Screenshot before = Host().Shoot();
    const auto raise = [] { throw std::runtime_error("a host's own"); };
    for (const CEGUI::String& event :
         {CEGUI::RenderingSurface::EventRenderQueueStarted, CEGUI::RenderingSurface::EventRenderQueueEnded})
    {
        for (int time = 0; time < 20; ++time)
        {
            MakeCurrent();
            const GlSnapshot found = TakeGlSnapshot();
            osg::RenderInfo info(Host().Viewer().getCamera()->getGraphicsContext()->getState(), nullptr);
            {
                const AtQueue slot(event, raise);
                EXPECT_THROW(Drawable().drawImplementation(info), std::runtime_error);
            }
            EXPECT_EQ(Differences(found, TakeGlSnapshot()), Lines{}) << time;
        }
        EXPECT_EQ(Different(Host().Shoot(), before), 0) << "all windows are there in the next frame";
    }
    EXPECT_FALSE(NativeGl::TakeError());
}

namespace
{
class ThrowingEffect : public CEGUI::RenderEffect
{
public:
    int getPassCount() const override { return 1; }
    void performPreRenderFunctions(const int) override
    {
        native_glEnable(0x0B71);
        native_glUseProgram(0);
        throw std::runtime_error("a host's own");
    }
    void performPostRenderFunctions() override {}
    bool realiseGeometry(CEGUI::RenderingWindow&, CEGUI::GeometryBuffer&) override { return true; }
    bool update(const float, CEGUI::RenderingWindow&) override { return true; }
};
} // namespace

TEST_F(SceneSlot, whose_effect_throws_leaves_opengls_state_and_stacks_as_they_were)
{
    CEGUI::Window& window = Show("window", 300, 200);
    Host().Frames(1);
    const Screenshot before = Host().Shoot();
    ThrowingEffect effect;
    MakeCurrent();
    const GlSnapshot found = TakeGlSnapshot();
    window.getGeometryBuffer().setRenderEffect(&effect);
    osg::RenderInfo info(Host().Viewer().getCamera()->getGraphicsContext()->getState(), nullptr);
    EXPECT_THROW(Drawable().drawImplementation(info), std::runtime_error);
    window.getGeometryBuffer().setRenderEffect(nullptr);
    EXPECT_EQ(Differences(found, TakeGlSnapshot()), Lines{});
    EXPECT_EQ(Different(Host().Shoot(), before), 0);
}

TEST_F(SceneSlot, that_loads_pictures_under_a_scenes_pixel_storage_loads_them_right)
{
    Argb picture = Solid(Side, Side, 0xFF0000FF);
    for (int i = 0; i < Side * Side; ++i)
    {
        if ((i / Side + i % Side) % 2 == 0)
        {
            picture.pixels[static_cast<std::size_t>(i)] = 0xFFFF0000;
        }
    }
    CEGUI::Window& window = Show("window", 300, 200);
    MakeCurrent();
    unsigned int buffer = 0;
    native_glGenBuffers(1, &buffer);
    native_glBindBuffer(0x88EC, buffer);
    native_glBufferData(0x88EC, 65536, nullptr, 0x88E4);
    const std::pair<unsigned int, int> storage[] = {{0x0CF0, 1}, {0x0CF2, 37}, {0x0CF3, 2}, {0x0CF4, 3}, {0x0CF5, 8}};
    for (const auto& [name, value] : storage)
    {
        native_glPixelStorei(name, value);
    }
    const GlSnapshot found = TakeGlSnapshot();
    ASSERT_TRUE(WriteBytes(SkinDir() + File, Bmp32(picture)));
    FileImagesets::Destroy(File);
    image_ = &FileImagesets::Create(File);
    EXPECT_EQ(Differences(found, TakeGlSnapshot()), Lines{});
    for (const auto& [name, value] : storage)
    {
        native_glPixelStorei(name, name == 0x0CF5 ? 4 : 0);
    }
    native_glBindBuffer(0x88EC, 0);
    native_glDeleteBuffers(1, &buffer);
    FileImagesets::Apply(window, "Image", *image_);
    const Screenshot shot = Host().Shoot();
    for (int y = 0; y < Side; ++y)
    {
        for (int x = 0; x < Side; ++x)
        {
            ASSERT_EQ(shot.At(300 + x, 200 + y), ((x + y) % 2 == 0 ? Pixel{255, 0, 0} : Pixel{0, 0, 255})) << x << ", " << y;
        }
    }
}
