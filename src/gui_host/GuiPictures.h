// SPDX-License-Identifier: MIT
#pragma once

#include "GuiRenderer.h"

#include <CEGUI/RendererModules/OpenGL/GLGeometryBuffer.h>
#include <CEGUI/RendererModules/OpenGL/Texture.h>

#include <cstddef>

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

    void draw() const override;

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

private:
    void Change()
    {
        known_ = false;
        renderer_.changed_ = renderer_.changed_ || generation_ == renderer_.generation_;
    }

    /// As CEGUI does.
    void DrawAlone(bool nearest) const;

    const SystemGl::Vertex* Vertices(std::size_t first) const
    {
        static_assert(sizeof(GLVertex) == sizeof(SystemGl::Vertex), "CEGUI's vertices are put together like ours");
        return reinterpret_cast<const SystemGl::Vertex*>(d_vertices[first].tex);
    }

    void Wait() const;

    /// Finds out what of it is seen.
    void Look() const;

    /// Whether all of it is one picture of which each pixel fills one of the view's.
    bool IsPixelOnPixel() const;

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
