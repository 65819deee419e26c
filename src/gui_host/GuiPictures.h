// SPDX-License-Identifier: MIT
#pragma once

#include "GuiRenderer.h"

#include <CEGUI/RenderEffect.h>
#include <CEGUI/RendererModules/OpenGL/GLGeometryBuffer.h>
#include <CEGUI/RendererModules/OpenGL/GlmPimpl.h>
#include <CEGUI/RendererModules/OpenGL/Texture.h>

#include <algorithm>
#include <cmath>

/// Of a pixel; coordinates come from sums of fractions.
constexpr float PixelTolerance = 1.0f / 64;

inline bool IsWhole(float pixels)
{
    return std::fabs(pixels - std::round(pixels)) <= PixelTolerance;
}

/// Everything that is drawn of one window. What is known of it is found out at its first draw after a change.
class GuiRenderer::Pictures : public CEGUI::OpenGLGeometryBuffer
{
public:
    explicit Pictures(GuiRenderer& owner) : CEGUI::OpenGLGeometryBuffer(owner), renderer_(owner) {}
    ~Pictures() override
    {
        if (generation_ == renderer_.generation_)
        {
            renderer_.Forget(*this);
        }
    }

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
        if (plain && d_blendMode == CEGUI::BM_NORMAL && renderer_.mayWait_)
        {
            Wait();
            return;
        }
        renderer_.queueing_ = false;
        renderer_.DrawWaiting();
        DrawAlone(plain && pixelOnPixel_);
    }

    void setActiveTexture(CEGUI::Texture* texture) override
    {
        OpenGLGeometryBuffer::setActiveTexture(texture);
        // The texture may be destroyed before its picture is drawn or moved.
        if (texture)
        {
            textureName_ = d_activeTexture->getOpenGLTexture();
            textureSize_ = d_activeTexture->getSize();
        }
    }

    static const float* Numbers(const CEGUI::mat4Pimpl& matrix) { return &matrix.d_matrix[0][0]; }

private:
    void Change()
    {
        known_ = false;
        renderer_.changed_ = renderer_.changed_ || generation_ == renderer_.generation_;
    }

    /// As CEGUI does.
    void DrawAlone(bool nearest) const
    {
        const float height = renderer_.getActiveViewPort().getHeight();
        SystemGl::Scissor(static_cast<int>(d_clipRect.left()), static_cast<int>(height - d_clipRect.bottom()),
                          static_cast<int>(d_clipRect.getWidth()), static_cast<int>(d_clipRect.getHeight()));
        if (!d_matrixValid)
        {
            updateMatrix();
        }
        renderer_.state_.UseModelMatrix(Numbers(*d_matrix));
        renderer_.setupRenderingBlendMode(d_blendMode);
        const int passes = d_effect ? d_effect->getPassCount() : 1;
        for (int pass = 0; pass < passes; ++pass)
        {
            if (d_effect)
            {
                d_effect->performPreRenderFunctions(pass);
            }
            renderer_.state_.ReadNearestPixels(nearest);
            std::size_t first = 0;
            for (const BatchInfo& batch : d_batches)
            {
                SystemGl::Enable(GL_SCISSOR_TEST, batch.clip);
                SystemGl::BindTexture(batch.texture);
                renderer_.state_.UseVertices(Vertices(first), batch.vertexCount);
                SystemGl::DrawTriangles(0, static_cast<int>(batch.vertexCount));
                first += batch.vertexCount;
            }
            renderer_.state_.ReadNearestPixels(false);
        }
        if (d_effect)
        {
            d_effect->performPostRenderFunctions();
        }
    }

    const SystemGl::Vertex* Vertices(std::size_t first) const
    {
        static_assert(sizeof(GLVertex) == sizeof(SystemGl::Vertex), "CEGUI's vertices are put together like ours");
        return reinterpret_cast<const SystemGl::Vertex*>(d_vertices[first].tex);
    }

    void Wait() const
    {
        std::size_t first = 0;
        for (const BatchInfo& batch : d_batches)
        {
            renderer_.waiting_.Add(
                {batch.texture, pixelOnPixel_, batch.clip && !whole_, d_clipRect, 0, static_cast<int>(batch.vertexCount)},
                Vertices(first), d_translation);
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
        if (d_batches.size() != 1 || textureName_ == 0 || textureName_ != d_batches[0].texture)
        {
            return false;
        }
        const CEGUI::Sizef size = textureSize_;
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
                                      IsWhole(vertex.tex[1] * size.d_height) && std::fabs(x - u) <= PixelTolerance &&
                                      std::fabs(y - v) <= PixelTolerance;
                           });
    }

    GuiRenderer& renderer_;
    unsigned int textureName_ = 0; ///< of the texture that was set last
    CEGUI::Sizef textureSize_;
    bool turned_ = false;
    mutable bool known_ = false;
    mutable bool seen_ = true;
    mutable bool whole_ = false; ///< nothing of it is cut off
    mutable bool pixelOnPixel_ = false;
    mutable unsigned int generation_ = 0; ///< the last one that it belonged to
};
