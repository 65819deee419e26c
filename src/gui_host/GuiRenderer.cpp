// SPDX-License-Identifier: MIT
#include "GuiRenderer.h"

#include "../../platform/SystemGl.h"

#include <CEGUI/RendererModules/OpenGL/GLGeometryBuffer.h>
#include <CEGUI/RendererModules/OpenGL/Texture.h>

#include <algorithm>
#include <cmath>

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
    explicit Pictures(CEGUI::OpenGLRenderer& owner) : CEGUI::OpenGLGeometryBuffer(owner) {}

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
            seen_ = IsSeen();
            pixelOnPixel_ = IsPixelOnPixel();
        }
        if (plain && !seen_)
        {
            return;
        }
        // Another window may have shown the same texture in another way.
        for (const BatchInfo& batch : d_batches)
        {
            SystemGl::FilterTexture(batch.texture, plain && pixelOnPixel_);
        }
        OpenGLGeometryBuffer::draw();
    }

private:
    bool IsSeen() const
    {
        if (d_vertices.empty())
        {
            return false;
        }
        for (const BatchInfo& batch : d_batches)
        {
            if (!batch.clip)
            {
                return true;
            }
        }
        const auto [left, right] =
            std::minmax_element(d_vertices.begin(), d_vertices.end(),
                                [](const GLVertex& a, const GLVertex& b) { return a.position[0] < b.position[0]; });
        const auto [top, bottom] =
            std::minmax_element(d_vertices.begin(), d_vertices.end(),
                                [](const GLVertex& a, const GLVertex& b) { return a.position[1] < b.position[1]; });
        // CEGUI cuts at whole pixels, on either side of the true edge.
        return right->position[0] + d_translation.d_x >= d_clipRect.left() - 1 &&
               left->position[0] + d_translation.d_x <= d_clipRect.right() + 1 &&
               bottom->position[1] + d_translation.d_y >= d_clipRect.top() - 1 &&
               top->position[1] + d_translation.d_y <= d_clipRect.bottom() + 1 && d_clipRect.getWidth() > 0 &&
               d_clipRect.getHeight() > 0;
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

    bool turned_ = false;
    mutable bool known_ = false;
    mutable bool seen_ = true;
    mutable bool pixelOnPixel_ = false;
};
} // namespace

GuiRenderer::GuiRenderer() : CEGUI::OpenGLRenderer(TTT_AUTO) {}

GuiRenderer& GuiRenderer::Create()
{
    return *new GuiRenderer;
}

CEGUI::OpenGLGeometryBufferBase* GuiRenderer::createGeometryBuffer_impl()
{
    return new Pictures(*this);
}
