// SPDX-License-Identifier: MIT
#pragma once

// GLRenderer.h brings GLEW, which has to come before any other OpenGL header.
#include <CEGUI/RendererModules/OpenGL/GLRenderer.h>

#include "../../platform/SystemGl.h"

#include <CEGUI/RenderingSurface.h>

#include <osg/ref_ptr>

#include <vector>

namespace CEGUI
{
class GUIContext;
} // namespace CEGUI

namespace osg
{
class GLExtensions;
class State;
} // namespace osg

/// CEGUI's renderer over OpenGL, which draws the same picture with less work: pictures that are not to be seen cost no call, the
/// others are drawn together out of one array, and those that lie one pixel on one of the view's are shown as they stand instead
/// of being filtered. While no window changes, frames are drawn out of what the last one drew, and cost nothing for windows that
/// cannot be seen.
class GuiRenderer : public CEGUI::OpenGLRenderer
{
public:
    /// On the current OpenGL context; `CEGUI::OpenGLRenderer::destroy` takes it away.
    static GuiRenderer& Create();

    /// Before the first frame and each later one.
    /// @param state of the context that is current and drawn with from now on
    void UseState(osg::State& state);
    /// Draws what lies in each of this context's queues together. Only what is drawn into its target waits for the others.
    /// Geometry that is no window's belongs into another queue than theirs, which is `CEGUI::RQ_BASE` and emptied as soon as it
    /// is drawn.
    void DrawTogether(CEGUI::GUIContext& context);

    void beginRendering() override;
    void endRendering() override;

protected:
    CEGUI::OpenGLGeometryBufferBase* createGeometryBuffer_impl() override;

private:
    class Pictures;

    /// Some triangles of one picture.
    struct Draw
    {
        unsigned int texture;
        bool nearest; ///< each pixel as it stands
        bool cut;     ///< by `clip`
        CEGUI::Rectf clip;
        int first, count;
    };
    struct DrawList
    {
        std::vector<SystemGl::Vertex> vertices;
        std::vector<Draw> draws;

        /// Copies the vertices, moved; `draw.first` is found out.
        void Add(Draw draw, const float* first, const CEGUI::Vector3f& moved);
        void Clear();
    };

    GuiRenderer();
    ~GuiRenderer() override;

    /// Whether draws may wait at the moment.
    bool MayWait();
    /// Draws what waits, before anything else is drawn.
    void DrawWaiting();
    void DrawAll(const DrawList& list);
    void BeginQueue(CEGUI::RenderQueueID queue);
    void EndQueue();
    /// The next picture is made of the windows' queue again.
    void ForgetWindows();
    /// How textures are read until told otherwise: the nearest pixel as it stands, or as each texture says, which is a mixture
    /// of neighbours. Without OpenGL 3.3's samplers it is always the latter.
    void ReadNearestPixels(bool nearest);

    osg::ref_ptr<const osg::GLExtensions> extensions_;
    bool asked_ = false;       ///< for a sampler, in the present context
    unsigned int sampler_ = 0; ///< none where OpenGL has none
    bool nearest_ = false;
    CEGUI::GUIContext* context_ = nullptr;
    DrawList waiting_;

    /// What the windows show. While it is kept, it is drawn in place of their queue, which is empty.
    DrawList windows_;
    bool kept_ = false;
    bool changed_ = false; ///< some of them has, without CEGUI queueing it again
    /// What the windows' queue held, in its order, with what is not seen.
    std::vector<const Pictures*> queued_;
    bool queueing_ = false;       ///< the windows' queue is being drawn, and so far all of it can wait
    unsigned int generation_ = 1; ///< of what is kept
};
