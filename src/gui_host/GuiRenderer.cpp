// SPDX-License-Identifier: MIT
#include "GuiRenderer.h"

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

/// Everything that is drawn of one window. What is known of it is found out at its first draw after a change.
class Pictures : public CEGUI::OpenGLGeometryBuffer
{
public:
    explicit Pictures(GuiRenderer& owner) : CEGUI::OpenGLGeometryBuffer(owner), renderer_(owner) {}

    void setTranslation(const CEGUI::Vector3f& translation) override
    {
        known_ = false;
        OpenGLGeometryBuffer::setTranslation(translation);
    }
    void setRotation(const CEGUI::Quaternion& rotation) override
    {
        known_ = false;
        turned_ = rotation != CEGUI::Quaternion::IDENTITY;
        OpenGLGeometryBuffer::setRotation(rotation);
    }
    void setClippingRegion(const CEGUI::Rectf& region) override
    {
        known_ = false;
        OpenGLGeometryBuffer::setClippingRegion(region);
    }
    void appendVertex(const CEGUI::Vertex& vertex) override
    {
        known_ = false;
        OpenGLGeometryBuffer::appendVertex(vertex);
    }
    void appendGeometry(const CEGUI::Vertex* vertices, CEGUI::uint count) override
    {
        known_ = false;
        OpenGLGeometryBuffer::appendGeometry(vertices, count);
    }
    void reset() override
    {
        known_ = false;
        OpenGLGeometryBuffer::reset();
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
        if (plain && !seen_)
        {
            return;
        }
        if (plain && d_blendMode == CEGUI::BM_NORMAL && renderer_.MayWait())
        {
            Wait();
            return;
        }
        renderer_.DrawWaiting();
        renderer_.ReadNearestPixels(plain && pixelOnPixel_);
        OpenGLGeometryBuffer::draw();
    }

private:
    void Wait() const
    {
        static_assert(sizeof(GLVertex) == sizeof(SystemGl::Vertex), "they are copied as they stand");
        std::size_t first = 0;
        for (const BatchInfo& batch : d_batches)
        {
            renderer_.Wait(
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
};
} // namespace

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

void GuiRenderer::DrawTogether(CEGUI::RenderingSurface& surface)
{
    surface_ = &surface;
    surface.subscribeEvent(CEGUI::RenderingSurface::EventRenderQueueEnded,
                           [this](const CEGUI::EventArgs&)
                           {
                               DrawWaiting();
                               return true;
                           });
}

void GuiRenderer::endRendering()
{
    DrawWaiting();
    ReadNearestPixels(false);
    OpenGLRenderer::endRendering();
}

bool GuiRenderer::MayWait()
{
    return surface_ && getActiveRenderTarget() == &surface_->getRenderTarget();
}

void GuiRenderer::Wait(Draw draw, const float* vertices, const CEGUI::Vector3f& moved)
{
    const std::size_t first = vertices_.size();
    draw.first = static_cast<int>(first);
    draws_.push_back(draw);
    vertices_.resize(first + static_cast<std::size_t>(draw.count));
    // CEGUI's vertices are put together like ours.
    std::memcpy(&vertices_[first], vertices, static_cast<std::size_t>(draw.count) * sizeof(SystemGl::Vertex));
    for (auto vertex = vertices_.begin() + draw.first; vertex != vertices_.end(); ++vertex)
    {
        vertex->position[0] += moved.d_x;
        vertex->position[1] += moved.d_y;
        vertex->position[2] += moved.d_z;
    }
}

void GuiRenderer::DrawWaiting()
{
    if (draws_.empty())
    {
        return;
    }
    setupRenderingBlendMode(CEGUI::BM_NORMAL);
    SystemGl::ResetModelMatrix();
    SystemGl::UseVertices(vertices_.data());
    const float height = getActiveViewPort().getHeight();
    bool cut = false;
    SystemGl::EnableScissor(cut);
    for (const Draw& draw : draws_)
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
    draws_.clear();
    vertices_.clear();
}

void GuiRenderer::ReadNearestPixels(bool nearest)
{
    if (nearest != nearest_ && sampler_ != 0)
    {
        nearest_ = nearest;
        extensions_->glBindSampler(0, nearest ? sampler_ : 0);
    }
}

CEGUI::OpenGLGeometryBufferBase* GuiRenderer::createGeometryBuffer_impl()
{
    return new Pictures(*this);
}
