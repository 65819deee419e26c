// SPDX-License-Identifier: MIT
// What is drawn with less work is the same picture.
#include "support/HostedFrame.h"
#include "support/NativeGl.h"
#include "widgets/Pictures.h"

#include <widgets/FileImageset.h>
#include <widgets/WindowNames.h>

#include <CEGUI/GUIContext.h>
#include <CEGUI/GeometryBuffer.h>
#include <CEGUI/GlobalEventSet.h>
#include <CEGUI/Image.h>
#include <CEGUI/RenderEffect.h>
#include <CEGUI/RenderQueue.h>
#include <CEGUI/Renderer.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>

#include <algorithm>
#include <string>

namespace
{
constexpr std::uint32_t Red = 0xFFFF0000;
constexpr std::uint32_t Blue = 0xFF0000FF;
constexpr int Side = 8;
const wchar_t* const File = L"RendererTest.bmp";

class Renderer : public HostedFrame
{
protected:
    void SetUp() override
    {
        HostedFrame::SetUp();
        MakeCurrent();
        Argb picture = Solid(Side, Side, Red);
        for (int i = 0; i < Side * Side; ++i)
        {
            if (i % Side >= Side / 2)
            {
                picture.pixels[static_cast<std::size_t>(i)] = Blue;
            }
        }
        ASSERT_TRUE(WriteBytes(SkinDir() + File, Bmp32(picture)));
        image_ = &FileImagesets::Create(File);
    }

    void TearDown() override
    {
        Rebuild();
        DeleteFileW(SkinDir() + File);
        HostedFrame::TearDown();
    }

    /// The picture, red on the left and blue on the right, in a window at these pixels of its parent.
    CEGUI::Window& Show(CEGUI::Window& parent, const char* name, float x, float y, float size)
    {
        CEGUI::Window& window = *WindowNames::Create("TavLook/StaticImage", name);
        window.setPosition(CEGUI::UVector2(CEGUI::UDim(0, x), CEGUI::UDim(0, y)));
        window.setSize(CEGUI::USize(CEGUI::UDim(0, size), CEGUI::UDim(0, size)));
        FileImagesets::Apply(window, "Image", *image_);
        WindowNames::AddChild(parent, window);
        return window;
    }

    static CEGUI::Window& Root() { return *CEGUI::System::getSingleton().getDefaultGUIContext().getRootWindow(); }

    CEGUI::Image* image_ = nullptr;
};

bool IsRed(Pixel seen)
{
    return Distance(seen, {255, 0, 0}) <= 2;
}

bool IsBlue(Pixel seen)
{
    return Distance(seen, {0, 0, 255}) <= 2;
}

/// CEGUI tells nobody what is in its queues; only an explicit instantiation may name what is private.
auto BuffersOfQueue();
template <auto Member>
struct Private
{
    friend auto BuffersOfQueue() { return Member; }
};
template struct Private<&CEGUI::RenderQueue::d_buffers>;

/// How many buffers CEGUI goes through for the windows, frame by frame.
class WindowsQueued
{
public:
    WindowsQueued()
        : connection_(Context().subscribeEvent(CEGUI::RenderingSurface::EventRenderQueueStarted,
                                               CEGUI::SubscriberSlot(&WindowsQueued::Count, this)))
    {
    }
    ~WindowsQueued() { connection_->disconnect(); }
    std::size_t InLastFrame() const { return count_; }

private:
    static CEGUI::GUIContext& Context() { return CEGUI::System::getSingleton().getDefaultGUIContext(); }

    bool Count(const CEGUI::EventArgs& args)
    {
        struct Surface : CEGUI::RenderingSurface
        {
            static const CEGUI::RenderQueue& Windows(CEGUI::RenderingSurface& surface)
            {
                return (surface.*&Surface::d_queues)[CEGUI::RQ_BASE];
            }
        };
        if (static_cast<const CEGUI::RenderQueueEventArgs&>(args).queueID == CEGUI::RQ_BASE)
        {
            count_ = (Surface::Windows(Context()).*BuffersOfQueue()).size();
        }
        return true;
    }

    CEGUI::Event::Connection connection_;
    std::size_t count_ = 0;
};

/// Leaves the picture as it is, and counts how often it is drawn.
class CountingEffect : public CEGUI::RenderEffect
{
public:
    int getPassCount() const override { return 1; }
    void performPreRenderFunctions(const int) override { ++count; }
    void performPostRenderFunctions() override {}
    bool realiseGeometry(CEGUI::RenderingWindow&, CEGUI::GeometryBuffer&) override { return true; }
    bool update(const float, CEGUI::RenderingWindow&) override { return true; }
    int count = 0;
};

bool AreSame(const Screenshot& one, const Screenshot& other)
{
    return one.pixels.size() == other.pixels.size() && std::equal(one.pixels.begin(), one.pixels.end(), other.pixels.begin());
}
} // namespace

TEST_F(Renderer, a_picture_shown_as_it_is_and_enlarged_is_sharp_in_one_place_and_smooth_in_the_other)
{
    Show(Root(), "large before", 300, 200, 80);
    Show(Root(), "as it is", 400, 200, Side);
    Show(Root(), "large after", 500, 200, 80);
    for (int frame = 0; frame < 3; ++frame)
    {
        const Screenshot shot = Host().Shoot();
        EXPECT_TRUE(IsRed(shot.At(403, 204)));
        EXPECT_TRUE(IsBlue(shot.At(404, 204)));
        for (const int middle : {340, 540})
        {
            EXPECT_GT(shot.At(middle, 240).red, 60);
            EXPECT_GT(shot.At(middle, 240).blue, 60);
            EXPECT_TRUE(IsRed(shot.At(middle - 30, 240)));
        }
    }
}

TEST_F(Renderer, a_picture_that_is_made_larger_becomes_smooth)
{
    CEGUI::Window& window = Show(Root(), "growing", 300, 200, Side);
    EXPECT_TRUE(IsBlue(Host().Shoot().At(304, 204)));
    window.setSize(CEGUI::USize(CEGUI::UDim(0, 80), CEGUI::UDim(0, 80)));
    const Pixel middle = Host().Shoot().At(340, 240);
    EXPECT_GT(middle.red, 60);
    EXPECT_GT(middle.blue, 60);
}

TEST_F(Renderer, a_window_that_is_drawn_by_way_of_a_texture_of_its_own_keeps_its_place_among_the_others)
{
    CEGUI::Window& below = Show(Root(), "below", 300, 200, 80);
    CEGUI::Window& between = Show(Root(), "between", 320, 200, 80);
    between.setUsingAutoRenderingSurface(true);
    CEGUI::Window& above = Show(Root(), "above", 340, 200, 80);
    for (int frame = 0; frame < 3; ++frame)
    {
        const Screenshot shot = Host().Shoot();
        EXPECT_TRUE(IsRed(shot.At(303, 240)));
        EXPECT_TRUE(IsRed(shot.At(335, 240))) << "the middle window's left half, over the lowest one's right half";
        EXPECT_TRUE(IsRed(shot.At(355, 240))) << "the uppermost window's left half";
        EXPECT_TRUE(IsBlue(shot.At(415, 240)));
    }
    below.moveToFront();
    above.moveToBack();
    EXPECT_TRUE(IsBlue(Host().Shoot().At(375, 240)));
    EXPECT_TRUE(IsBlue(Host().Shoot().At(395, 240))) << "the middle window, now above what was the uppermost one";
}

TEST_F(Renderer, windows_are_drawn_one_over_the_other_whether_cut_or_whole)
{
    CEGUI::Window& frame = Show(Root(), "frame", 300, 200, 40);
    Show(frame, "cut", 30, 0, 20);
    Show(frame, "whole", 24, 4, 12);
    Show(Root(), "over both", 330, 200, 8);
    const Screenshot shot = Host().Shoot();
    EXPECT_TRUE(IsBlue(shot.At(334, 214))) << "the right half of the whole one";
    EXPECT_TRUE(IsRed(shot.At(338, 218))) << "the left half of the cut one";
    EXPECT_EQ(shot.At(342, 204), Background());
    EXPECT_TRUE(IsRed(shot.At(331, 204)));
    EXPECT_TRUE(IsBlue(shot.At(336, 204)));
}

TEST_F(Renderer, leaves_the_scene_to_read_its_textures_as_they_say)
{
    Show(Root(), "last", 400, 200, Side);
    EXPECT_TRUE(IsBlue(Host().Shoot().At(404, 204)));
    MakeCurrent();
    EXPECT_EQ(NativeGl::BoundSampler(), 0);
}

TEST_F(Renderer, a_window_outside_its_parent_is_seen_when_it_comes_in_and_not_when_it_has_left)
{
    CEGUI::Window& parent = Show(Root(), "parent", 300, 200, 40);
    CEGUI::Window& child = Show(parent, "child", 100, 10, Side);
    EXPECT_EQ(Host().Shoot().At(401, 214), Background());
    const Pixel alone = Host().Shoot().At(327, 214);
    EXPECT_TRUE(IsBlue(alone));
    child.setPosition(CEGUI::UVector2(CEGUI::UDim(0, 26), CEGUI::UDim(0, 10)));
    EXPECT_TRUE(IsRed(Host().Shoot().At(327, 214)));
    child.setPosition(CEGUI::UVector2(CEGUI::UDim(0, 36), CEGUI::UDim(0, 10)));
    EXPECT_TRUE(IsRed(Host().Shoot().At(338, 214))) << "half of it lies inside";
    EXPECT_EQ(Host().Shoot().At(342, 214), Background());
    child.setPosition(CEGUI::UVector2(CEGUI::UDim(0, 100), CEGUI::UDim(0, 10)));
    EXPECT_TRUE(IsBlue(Host().Shoot().At(327, 214)));
    // Out of sight while its parent moves to it.
    parent.setPosition(CEGUI::UVector2(CEGUI::UDim(0, 300), CEGUI::UDim(0, 300)));
    EXPECT_TRUE(IsBlue(Host().Shoot().At(327, 314)));
}

TEST_F(Renderer, events_of_all_windows_reach_who_asks_for_them)
{
    int shown = 0;
    const auto count = [&](const CEGUI::EventArgs&)
    {
        ++shown;
        return true;
    };
    CEGUI::Event::Connection connection =
        CEGUI::GlobalEventSet::getSingleton().subscribeEvent("Window/Shown", CEGUI::SubscriberSlot(count));
    CEGUI::Window& window = Show(Root(), "one", 300, 200, Side);
    window.hide();
    EXPECT_EQ(shown, 0);
    window.show();
    EXPECT_EQ(shown, 1);
    connection->disconnect();
    window.hide();
    window.show();
    EXPECT_EQ(shown, 1);
}

TEST_F(Renderer, a_picture_a_hundredth_of_a_pixel_off_is_shown_as_it_stands)
{
    Argb picture = Solid(Side, Side, 0xFF000000);
    for (int i = 0; i < Side * Side; ++i)
    {
        // A chequered one: whatever is mixed of neighbours is neither black nor white.
        if ((i / Side + i % Side) % 2 == 0)
        {
            picture.pixels[static_cast<std::size_t>(i)] = 0xFFFFFFFF;
        }
    }
    ASSERT_TRUE(WriteBytes(SkinDir() + File, Bmp32(picture)));
    FileImagesets::Destroy(File);
    image_ = &FileImagesets::Create(File);
    CEGUI::Window& window = Show(Root(), "chequered", 300, 200, Side);
    window.setPixelAligned(false);
    window.setPosition(CEGUI::UVector2(CEGUI::UDim(0, 300.01f), CEGUI::UDim(0, 200)));
    const Screenshot shot = Host().Shoot();
    for (int y = 0; y < Side; ++y)
    {
        for (int x = 0; x < Side; ++x)
        {
            const int level = (x + y) % 2 == 0 ? 255 : 0;
            EXPECT_EQ(shot.At(300 + x, 200 + y), (Pixel{level, level, level})) << x << ", " << y;
        }
    }
    // Two hundredths more are too much.
    window.setPosition(CEGUI::UVector2(CEGUI::UDim(0, 300.03f), CEGUI::UDim(0, 200)));
    EXPECT_LT(Host().Shoot().At(304, 204).red, 255);
}

TEST_F(Renderer, a_picture_away_from_its_windows_corner_is_shown_as_it_stands)
{
    CEGUI::GUIContext& context = CEGUI::System::getSingleton().getDefaultGUIContext();
    CEGUI::Renderer& renderer = *CEGUI::System::getSingleton().getRenderer();
    CEGUI::GeometryBuffer& buffer = renderer.createGeometryBuffer();
    image_->render(buffer, CEGUI::Vector2f(6, 6), nullptr, CEGUI::ColourRect(0xFFFFFFFF));
    // At the border between red and blue a mixture of neighbours is neither.
    buffer.setTranslation(CEGUI::Vector3f(300.01f, 200, 0));
    buffer.setClippingRegion(CEGUI::Rectf(0, 0, ViewWidth, ViewHeight));
    context.addGeometryBuffer(CEGUI::RQ_OVERLAY, buffer);
    const Screenshot shot = Host().Shoot();
    context.removeGeometryBuffer(CEGUI::RQ_OVERLAY, buffer);
    renderer.destroyGeometryBuffer(buffer);
    EXPECT_EQ(shot.At(309, 210), (Pixel{255, 0, 0}));
    EXPECT_EQ(shot.At(310, 210), (Pixel{0, 0, 255}));
}

TEST_F(Renderer, windows_cost_nothing_while_none_of_them_changes)
{
    CEGUI::Window& parent = Show(Root(), "parent", 300, 200, 40);
    for (int i = 0; i < 50; ++i)
    {
        Show(parent, ("out of sight " + std::to_string(i)).c_str(), 100, static_cast<float>(i), Side);
    }
    CEGUI::Window& half = Show(Root(), "half seen through", 330, 200, 80);
    half.setAlpha(0.5f);
    const WindowsQueued queued;
    const Screenshot first = Host().Shoot();
    EXPECT_GT(queued.InLastFrame(), 50u);
    for (int frame = 0; frame < 3; ++frame)
    {
        EXPECT_TRUE(AreSame(Host().Shoot(), first)) << frame;
        EXPECT_EQ(queued.InLastFrame(), 0u) << frame;
    }
    // Mixed once, not with each frame anew.
    EXPECT_NEAR(first.At(345, 270).red, (255 + Background().red) / 2, 2);
    EXPECT_NEAR(first.At(345, 270).blue, Background().blue / 2, 2);
}

TEST_F(Renderer, a_window_that_moves_keeps_its_place_among_the_others)
{
    CEGUI::Window& below = Show(Root(), "below", 300, 200, 80);
    Show(Root(), "above", 340, 200, 80);
    EXPECT_TRUE(IsRed(Host().Shoot().At(350, 240)));
    const WindowsQueued queued;
    below.setPosition(CEGUI::UVector2(CEGUI::UDim(0, 320), CEGUI::UDim(0, 200)));
    const Screenshot moved = Host().Shoot();
    EXPECT_EQ(moved.At(310, 240), Background());
    EXPECT_TRUE(IsRed(moved.At(330, 240)));
    EXPECT_TRUE(IsRed(moved.At(370, 240))) << "the left half of the one above, over the right half of the one below";
    EXPECT_GT(queued.InLastFrame(), 1u);
    EXPECT_TRUE(AreSame(Host().Shoot(), moved));
    EXPECT_EQ(queued.InLastFrame(), 0u);
}

TEST_F(Renderer, a_window_costs_nothing_while_it_is_hidden_and_moves)
{
    CEGUI::Window& window = Show(Root(), "window", 300, 200, 80);
    EXPECT_TRUE(IsRed(Host().Shoot().At(310, 240)));
    window.hide();
    Host().Frames(2);
    const WindowsQueued queued;
    window.setPosition(CEGUI::UVector2(CEGUI::UDim(0, 320), CEGUI::UDim(0, 200)));
    EXPECT_EQ(Host().Shoot().At(330, 240), Background());
    EXPECT_EQ(queued.InLastFrame(), 0u);
    window.show();
    EXPECT_TRUE(IsRed(Host().Shoot().At(330, 240)));
}

TEST_F(Renderer, a_window_may_go_while_another_one_moves)
{
    CEGUI::Window& moving = Show(Root(), "moving", 300, 200, 80);
    CEGUI::Window& going = Show(Root(), "going", 400, 200, 80);
    EXPECT_TRUE(IsRed(Host().Shoot().At(410, 240)));
    moving.setPosition(CEGUI::UVector2(CEGUI::UDim(0, 300), CEGUI::UDim(0, 300)));
    CEGUI::WindowManager::getSingleton().destroyWindow(&going);
    CEGUI::WindowManager::getSingleton().cleanDeadPool();
    const Screenshot after = Host().Shoot();
    EXPECT_EQ(after.At(410, 240), Background());
    EXPECT_EQ(after.At(310, 240), Background());
    EXPECT_TRUE(IsRed(after.At(310, 340)));
}

TEST_F(Renderer, an_effect_set_and_taken_between_two_frames_is_seen_in_the_next_one)
{
    CEGUI::Window& window = Show(Root(), "window", 300, 200, 80);
    EXPECT_TRUE(IsRed(Host().Shoot().At(310, 240)));
    CountingEffect effect;
    window.getGeometryBuffer().setRenderEffect(&effect);
    Host().Frames(2);
    EXPECT_EQ(effect.count, 2);
    EXPECT_TRUE(IsRed(Host().Shoot().At(310, 240)));
    window.getGeometryBuffer().setRenderEffect(nullptr);
    const int before = effect.count;
    EXPECT_TRUE(IsRed(Host().Shoot().At(310, 240)));
    EXPECT_EQ(effect.count, before);
}

TEST_F(Renderer, a_way_of_mixing_set_between_two_frames_is_seen_in_the_next_one)
{
    CEGUI::Window& window = Show(Root(), "window", 300, 200, 80);
    window.setAlpha(0.5f);
    EXPECT_NEAR(Host().Shoot().At(310, 240).red, (255 + Background().red) / 2, 2);
    // As if the picture's colours were multiplied by their opacity already.
    window.getGeometryBuffer().setBlendMode(CEGUI::BM_RTT_PREMULTIPLIED);
    EXPECT_EQ(Host().Shoot().At(310, 240).red, 255);
    window.getGeometryBuffer().setBlendMode(CEGUI::BM_NORMAL);
    EXPECT_NEAR(Host().Shoot().At(310, 240).red, (255 + Background().red) / 2, 2);
}

TEST_F(Renderer, geometry_in_a_queue_of_its_own_is_drawn_over_windows_that_do_not_change)
{
    Show(Root(), "window", 300, 200, 80);
    CEGUI::GUIContext& context = CEGUI::System::getSingleton().getDefaultGUIContext();
    CEGUI::Renderer& renderer = *CEGUI::System::getSingleton().getRenderer();
    CEGUI::GeometryBuffer& buffer = renderer.createGeometryBuffer();
    // Half seen through.
    image_->render(buffer, CEGUI::Vector2f(0, 0), nullptr, CEGUI::ColourRect(0x80FFFFFF));
    buffer.setTranslation(CEGUI::Vector3f(366, 200, 0));
    buffer.setClippingRegion(CEGUI::Rectf(0, 0, ViewWidth, ViewHeight));
    // CEGUI empties all queues when a window has changed.
    Host().Frames(2);
    for (const CEGUI::RenderQueueID queue : {CEGUI::RQ_OVERLAY, CEGUI::RQ_UNDERLAY})
    {
        context.addGeometryBuffer(queue, buffer);
        for (int frame = 0; frame < 3; ++frame)
        {
            const Screenshot shot = Host().Shoot();
            EXPECT_NEAR(shot.At(368, 204).red, queue == CEGUI::RQ_OVERLAY ? 128 : 0, 2) << queue << ", frame " << frame;
            EXPECT_NEAR(shot.At(368, 204).blue, queue == CEGUI::RQ_OVERLAY ? 127 : 255, 2) << queue << ", frame " << frame;
        }
        context.removeGeometryBuffer(queue, buffer);
    }
    EXPECT_TRUE(IsBlue(Host().Shoot().At(368, 204)));
    renderer.destroyGeometryBuffer(buffer);
}

TEST_F(Renderer, geometry_drawn_at_a_queues_end_lies_over_that_queue_and_below_the_next_one)
{
    Show(Root(), "window", 300, 200, Side);
    CEGUI::GUIContext& context = CEGUI::System::getSingleton().getDefaultGUIContext();
    CEGUI::Renderer& renderer = *CEGUI::System::getSingleton().getRenderer();
    CEGUI::GeometryBuffer& lowest = renderer.createGeometryBuffer();
    CEGUI::GeometryBuffer& middle = renderer.createGeometryBuffer();
    for (CEGUI::GeometryBuffer* buffer : {&lowest, &middle})
    {
        image_->render(*buffer, CEGUI::Vector2f(0, 0), nullptr, CEGUI::ColourRect(buffer == &lowest ? 0xFFFFFFFF : 0x80FFFFFF));
        buffer->setClippingRegion(CEGUI::Rectf(0, 0, ViewWidth, ViewHeight));
    }
    lowest.setTranslation(CEGUI::Vector3f(300, 206, 0));
    middle.setTranslation(CEGUI::Vector3f(304, 206, 0));
    Pixel whenItEnds;
    CEGUI::Event::Connection connection =
        context.subscribeEvent(CEGUI::RenderingSurface::EventRenderQueueEnded,
                               CEGUI::SubscriberSlot(
                                   [&](const CEGUI::EventArgs& args)
                                   {
                                       if (static_cast<const CEGUI::RenderQueueEventArgs&>(args).queueID == CEGUI::RQ_UNDERLAY)
                                       {
                                           whenItEnds = NativeGl::ReadPixel(301, ViewHeight - 1 - 212);
                                           middle.draw();
                                       }
                                       return true;
                                   }));
    // CEGUI empties all queues when a window has changed.
    Host().Frames(2);
    context.addGeometryBuffer(CEGUI::RQ_UNDERLAY, lowest);
    for (int frame = 0; frame < 3; ++frame)
    {
        const Screenshot shot = Host().Shoot();
        EXPECT_TRUE(IsRed(whenItEnds)) << frame;
        EXPECT_NEAR(shot.At(305, 212).red, 128, 2) << "half the one drawn at the end, half the queue's; frame " << frame;
        EXPECT_NEAR(shot.At(305, 212).blue, 127, 2) << frame;
        EXPECT_EQ(shot.At(305, 207), (Pixel{0, 0, 255})) << "the window lies over both; frame " << frame;
        EXPECT_NEAR(shot.At(310, 212).blue, (255 + Background().blue) / 2, 2) << "mixed once; frame " << frame;
    }
    connection->disconnect();
    context.removeGeometryBuffer(CEGUI::RQ_UNDERLAY, lowest);
    renderer.destroyGeometryBuffer(lowest);
    renderer.destroyGeometryBuffer(middle);
}
