// SPDX-License-Identifier: MIT
#include "GuiRenderer.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/RendererModules/OpenGL/GLGeometryBuffer.h>
#include <CEGUI/RendererModules/OpenGL/Texture.h>
#include <CEGUI/RenderingSurface.h>

#include <osg/GLExtensions>
#include <osg/State>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace
{
/// Of a pixel; coordinates come from sums of fractions.
constexpr float Tolerance = 1.0f / 64;

bool IsWhole(float pixels)
{
    return std::fabs(pixels - std::round(pixels)) <= Tolerance;
}
} // namespace

/// Everything that is drawn of one window. What is known of it is found out at its first draw after a change.
class GuiRenderer::Pictures : public CEGUI::OpenGLGeometryBuffer
{
public:
    explicit Pictures(GuiRenderer& owner) : CEGUI::OpenGLGeometryBuffer(owner), renderer_(owner) {}

    void setTranslation(const CEGUI::Vector3f& translation) override
    {
        Change();
        OpenGLGeometryBuffer::setTranslation(translation);
    }
    void setRotation(const CEGUI::Quaternion& rotation) override
    {
        Change();
        turned_ = rotation != CEGUI::Quaternion::IDENTITY;
        OpenGLGeometryBuffer::setRotation(rotation);
    }
    void setClippingRegion(const CEGUI::Rectf& region) override
    {
        Change();
        OpenGLGeometryBuffer::setClippingRegion(region);
    }
    void appendVertex(const CEGUI::Vertex& vertex) override
    {
        Change();
        OpenGLGeometryBuffer::appendVertex(vertex);
    }
    void appendGeometry(const CEGUI::Vertex* vertices, CEGUI::uint count) override
    {
        Change();
        OpenGLGeometryBuffer::appendGeometry(vertices, count);
    }
    void reset() override
    {
        Change();
        OpenGLGeometryBuffer::reset();
    }
    void setRenderEffect(CEGUI::RenderEffect* effect) override
    {
        Change();
        OpenGLGeometryBuffer::setRenderEffect(effect);
    }
    void setBlendMode(const CEGUI::BlendMode mode) override
    {
        Change();
        OpenGLGeometryBuffer::setBlendMode(mode);
    }

    void draw() const override
    {
        // An effect may put the picture anywhere.
        const bool plain = !turned_ && !d_effect;
        if (!known_ && plain)
        {
            known_ = true;
            Look();
            pixelOnPixel_ = IsPixelOnPixel();
        }
        if (renderer_.queueing_)
        {
            generation_ = renderer_.generation_;
            renderer_.queued_.push_back(this);
        }
        if (plain && !seen_)
        {
            return;
        }
        if (plain && d_blendMode == CEGUI::BM_NORMAL && renderer_.MayWait())
        {
            Wait();
            return;
        }
        renderer_.queueing_ = false;
        renderer_.DrawWaiting();
        renderer_.ReadNearestPixels(plain && pixelOnPixel_);
        OpenGLGeometryBuffer::draw();
    }

private:
    void Change()
    {
        known_ = false;
        renderer_.changed_ = renderer_.changed_ || generation_ == renderer_.generation_;
    }

    void Wait() const
    {
        static_assert(sizeof(GLVertex) == sizeof(SystemGl::Vertex), "they are copied as they stand");
        std::size_t first = 0;
        for (const BatchInfo& batch : d_batches)
        {
            renderer_.waiting_.Add(
                {batch.texture, pixelOnPixel_, batch.clip && !whole_, d_clipRect, 0, static_cast<int>(batch.vertexCount)},
                d_vertices[first].tex, d_translation);
            first += batch.vertexCount;
        }
    }

    /// Finds out what of it is seen.
    void Look() const
    {
        seen_ = !d_vertices.empty();
        whole_ = false;
        if (!seen_ || std::any_of(d_batches.begin(), d_batches.end(), [](const BatchInfo& batch) { return !batch.clip; }))
        {
            return;
        }
        CEGUI::Rectf place(d_vertices[0].position[0], d_vertices[0].position[1], d_vertices[0].position[0],
                           d_vertices[0].position[1]);
        for (const GLVertex& vertex : d_vertices)
        {
            place = CEGUI::Rectf(std::min(place.left(), vertex.position[0]), std::min(place.top(), vertex.position[1]),
                                 std::max(place.right(), vertex.position[0]), std::max(place.bottom(), vertex.position[1]));
        }
        place.offset(CEGUI::Vector2f(d_translation.d_x, d_translation.d_y));
        // CEGUI cuts at whole pixels, on either side of the true edge.
        seen_ = place.right() >= d_clipRect.left() - 1 && place.left() <= d_clipRect.right() + 1 &&
                place.bottom() >= d_clipRect.top() - 1 && place.top() <= d_clipRect.bottom() + 1 && d_clipRect.getWidth() > 0 &&
                d_clipRect.getHeight() > 0;
        whole_ = place.left() >= std::ceil(d_clipRect.left()) && place.right() <= std::floor(d_clipRect.right()) &&
                 place.top() >= std::ceil(d_clipRect.top()) && place.bottom() <= std::floor(d_clipRect.bottom());
    }

    /// Whether all of it is one picture of which each pixel fills one of the view's.
    bool IsPixelOnPixel() const
    {
        if (d_batches.size() != 1 || !d_activeTexture || d_activeTexture->getOpenGLTexture() != d_batches[0].texture)
        {
            return false;
        }
        const CEGUI::Sizef size = d_activeTexture->getSize();
        const GLVertex& first = d_vertices.front();
        return std::all_of(d_vertices.begin(), d_vertices.end(),
                           [&](const GLVertex& vertex)
                           {
                               const float x = vertex.position[0] - first.position[0];
                               const float y = vertex.position[1] - first.position[1];
                               const float u = (vertex.tex[0] - first.tex[0]) * size.d_width;
                               const float v = (vertex.tex[1] - first.tex[1]) * size.d_height;
                               return IsWhole(vertex.position[0] + d_translation.d_x) &&
                                      IsWhole(vertex.position[1] + d_translation.d_y) && IsWhole(vertex.tex[0] * size.d_width) &&
                                      IsWhole(vertex.tex[1] * size.d_height) && std::fabs(x - u) <= Tolerance &&
                                      std::fabs(y - v) <= Tolerance;
                           });
    }

    GuiRenderer& renderer_;
    bool turned_ = false;
    mutable bool known_ = false;
    mutable bool seen_ = true;
    mutable bool whole_ = false; ///< nothing of it is cut off
    mutable bool pixelOnPixel_ = false;
    mutable unsigned int generation_ = 0; ///< the last one that it belonged to
};

GuiRenderer::GuiRenderer() : CEGUI::OpenGLRenderer(TTT_AUTO) {}

GuiRenderer::~GuiRenderer()
{
    if (sampler_ != 0)
    {
        extensions_->glDeleteSamplers(1, &sampler_);
    }
}

GuiRenderer& GuiRenderer::Create()
{
    return *new GuiRenderer;
}

void GuiRenderer::UseState(osg::State& state)
{
    extensions_ = state.get<osg::GLExtensions>();
    nearest_ = false;
    // A window that was closed and made again has another context, in which there is none yet.
    if (sampler_ != 0 && !extensions_->glIsSampler(sampler_))
    {
        sampler_ = 0;
        asked_ = false;
    }
    if (!asked_)
    {
        asked_ = true;
        if (!osg::isGLExtensionOrVersionSupported(state.getContextID(), "GL_ARB_sampler_objects", 3.3f))
        {
            return;
        }
        extensions_->glGenSamplers(1, &sampler_);
        extensions_->glSamplerParameteri(sampler_, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
        extensions_->glSamplerParameteri(sampler_, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
        extensions_->glSamplerParameteri(sampler_, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
        extensions_->glSamplerParameteri(sampler_, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    }
}

void GuiRenderer::DrawTogether(CEGUI::GUIContext& context)
{
    context_ = &context;
    context.subscribeEvent(CEGUI::RenderingSurface::EventRenderQueueStarted,
                           [this](const CEGUI::EventArgs& args)
                           {
                               BeginQueue(static_cast<const CEGUI::RenderQueueEventArgs&>(args).queueID);
                               return true;
                           });
    context.subscribeEvent(CEGUI::RenderingSurface::EventRenderQueueEnded,
                           [this](const CEGUI::EventArgs&)
                           {
                               EndQueue();
                               return true;
                           });
}

void GuiRenderer::beginRendering()
{
    if (context_ && context_->isDirty())
    {
        // All windows are queued anew, and those that are gone are not among them.
        ForgetWindows();
    }
    OpenGLRenderer::beginRendering();
}

void GuiRenderer::endRendering()
{
    DrawWaiting();
    ReadNearestPixels(false);
    OpenGLRenderer::endRendering();
}

void GuiRenderer::BeginQueue(CEGUI::RenderQueueID queue)
{
    DrawWaiting();
    if (queue != CEGUI::RQ_BASE)
    {
        return;
    }
    if (kept_ && !changed_)
    {
        DrawAll(windows_);
        return;
    }
    if (kept_)
    {
        // A window that moves is not queued again by CEGUI.
        for (const Pictures* pictures : queued_)
        {
            context_->addGeometryBuffer(queue, *pictures);
        }
    }
    ForgetWindows();
    queueing_ = true;
}

void GuiRenderer::EndQueue()
{
    if (queueing_)
    {
        std::swap(waiting_, windows_);
        DrawAll(windows_);
        context_->clearGeometry(CEGUI::RQ_BASE);
        kept_ = true;
        queueing_ = false;
    }
    DrawWaiting();
}

void GuiRenderer::ForgetWindows()
{
    ++generation_;
    kept_ = false;
    changed_ = false;
    windows_.Clear();
    queued_.clear();
}

bool GuiRenderer::MayWait()
{
    return context_ && getActiveRenderTarget() == &context_->getRenderTarget();
}

void GuiRenderer::DrawWaiting()
{
    DrawAll(waiting_);
    waiting_.Clear();
}

void GuiRenderer::DrawAll(const DrawList& list)
{
    if (list.draws.empty())
    {
        return;
    }
    setupRenderingBlendMode(CEGUI::BM_NORMAL);
    SystemGl::ResetModelMatrix();
    SystemGl::UseVertices(list.vertices.data());
    const float height = getActiveViewPort().getHeight();
    bool cut = false;
    SystemGl::EnableScissor(cut);
    for (const Draw& draw : list.draws)
    {
        ReadNearestPixels(draw.nearest);
        if (draw.cut != cut)
        {
            cut = draw.cut;
            SystemGl::EnableScissor(cut);
        }
        if (cut)
        {
            SystemGl::Scissor(static_cast<int>(draw.clip.left()), static_cast<int>(height - draw.clip.bottom()),
                              static_cast<int>(draw.clip.getWidth()), static_cast<int>(draw.clip.getHeight()));
        }
        SystemGl::BindTexture(draw.texture);
        SystemGl::DrawTriangles(draw.first, draw.count);
    }
}

void GuiRenderer::ReadNearestPixels(bool nearest)
{
    if (nearest != nearest_ && sampler_ != 0)
    {
        nearest_ = nearest;
        extensions_->glBindSampler(0, nearest ? sampler_ : 0);
    }
}

void GuiRenderer::DrawList::Add(Draw draw, const float* first, const CEGUI::Vector3f& moved)
{
    draw.first = static_cast<int>(vertices.size());
    draws.push_back(draw);
    vertices.resize(vertices.size() + static_cast<std::size_t>(draw.count));
    const auto added = vertices.begin() + draw.first;
    // CEGUI's vertices are put together like ours.
    std::memcpy(&*added, first, static_cast<std::size_t>(draw.count) * sizeof(SystemGl::Vertex));
    for (auto vertex = added; vertex != vertices.end(); ++vertex)
    {
        vertex->position[0] += moved.d_x;
        vertex->position[1] += moved.d_y;
        vertex->position[2] += moved.d_z;
    }
}

void GuiRenderer::DrawList::Clear()
{
    vertices.clear();
    draws.clear();
}

CEGUI::OpenGLGeometryBufferBase* GuiRenderer::createGeometryBuffer_impl()
{
    return new Pictures(*this);
}
