// SPDX-License-Identifier: MIT
#pragma once

// GLRenderer.h brings GLEW, which has to come before any other OpenGL header.
#include <CEGUI/RendererModules/OpenGL/GLRenderer.h>

#include "../../platform/SystemGl.h"

#include <osg/ref_ptr>

#include <vector>

namespace osg
{
class GLExtensions;
class State;
} // namespace osg

/// CEGUI's renderer over OpenGL, which draws the same picture with less work: pictures that are not to be seen cost no call, the
/// others are drawn together out of one array, and those that lie one pixel on one of the view's are shown as they stand instead
/// of being filtered.
class GuiRenderer : public CEGUI::OpenGLRenderer
{
public:
    /// On the current OpenGL context; `CEGUI::OpenGLRenderer::destroy` takes it away.
    static GuiRenderer& Create();

    /// Before the first frame and each later one.
    /// @param state of the context that is current and drawn with from now on
    void UseState(osg::State& state);
    /// Draws what waits whenever a part of this surface is complete. Only what is drawn into its target waits.
    void DrawTogether(CEGUI::RenderingSurface& surface);

    void endRendering() override;

    /// Some triangles of one picture.
    struct Draw
    {
        unsigned int texture;
        bool nearest; ///< each pixel as it stands
        bool cut;     ///< by `clip`
        CEGUI::Rectf clip;
        int first, count;
    };
    /// Whether draws may wait at the moment.
    bool MayWait();
    /// Copies the vertices, moved; `draw.first` is found out.
    void Wait(Draw draw, const float* vertices, const CEGUI::Vector3f& moved);
    /// Draws what waits, before anything else is drawn.
    void DrawWaiting();
    /// How textures are read until told otherwise: the nearest pixel as it stands, or as each texture says, which is a mixture
    /// of neighbours. Without OpenGL 3.3's samplers it is always the latter.
    void ReadNearestPixels(bool nearest);

protected:
    CEGUI::OpenGLGeometryBufferBase* createGeometryBuffer_impl() override;

private:
    GuiRenderer();
    ~GuiRenderer() override;

    osg::ref_ptr<const osg::GLExtensions> extensions_;
    bool asked_ = false;       ///< for a sampler, in the present context
    unsigned int sampler_ = 0; ///< none where OpenGL has none
    bool nearest_ = false;
    CEGUI::RenderingSurface* surface_ = nullptr;
    std::vector<SystemGl::Vertex> vertices_;
    std::vector<Draw> draws_;
};
