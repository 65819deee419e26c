// SPDX-License-Identifier: MIT
#pragma once

// GLRenderer.h brings GLEW, which has to come before any other OpenGL header.
#include <CEGUI/RendererModules/OpenGL/GLRenderer.h>

#include "GlState.h"
#include "TextureWatch.h"

#include <CEGUI/RenderingSurface.h>

#include <vector>

namespace CEGUI
{
class GUIContext;
} // namespace CEGUI

/// CEGUI's renderer over OpenGL, which draws the same picture with less work: pictures that are not to be seen cost no call, the
/// others are drawn together out of one array, and those that lie one pixel on one of the view's are shown as they stand instead
/// of being filtered. While no window changes, frames are drawn out of what the last one drew, and cost nothing for windows that
/// cannot be seen.
class GuiRenderer : public CEGUI::OpenGLRenderer
{
public:
    /// On the current OpenGL context; `CEGUI::OpenGLRenderer::destroy` takes it away.
    static GuiRenderer& Create();

    /// A frame's drawing, for the life of the object. Where an exception leaves it before CEGUI has ended, it ends what CEGUI has
    /// begun; the next frame is drawn anew.
    class Frame
    {
    public:
        /// @param info of the context that is current and drawn with
        Frame(GuiRenderer& renderer, osg::RenderInfo& info);
        ~Frame();
        Frame(const Frame&) = delete;
        Frame& operator=(const Frame&) = delete;

    private:
        GuiRenderer& renderer_;
    };

    /// Draws what lies in each of this context's queues together. Only what is drawn into its target waits for the others.
    /// Geometry that is no window's belongs into another queue than theirs, which is `CEGUI::RQ_BASE` and emptied as soon as it
    /// is drawn.
    void DrawTogether(CEGUI::GUIContext& context);

    void beginRendering() override;
    void endRendering() override;
    void setViewProjectionMatrix(const CEGUI::mat4Pimpl* matrix) override;

protected:
    CEGUI::OpenGLGeometryBufferBase* createGeometryBuffer_impl() override;

private:
    class Pictures;
    class ViewTarget;

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
        void Add(Draw draw, const SystemGl::Vertex* first, const CEGUI::Vector3f& moved);
        void Clear();
    };

    GuiRenderer();
    ~GuiRenderer() override;

    /// Draws what waits, before anything else is drawn.
    void DrawWaiting();
    void DrawAll(const DrawList& list);
    void BeginQueue(CEGUI::RenderQueueID queue);
    void DrawQueue(const CEGUI::RenderQueue& queue);
    void DrawWindows(const CEGUI::RenderQueue& queue);
    /// The next picture is made of the windows' queue again.
    void ForgetWindows();
    /// Of something that is not to be drawn any more.
    void Forget(const Pictures& pictures);

    GlState state_;
    TextureWatch textureWatch_;
    bool rendering_ = false; ///< between `beginRendering` and `endRendering`
    CEGUI::GUIContext* context_ = nullptr;
    /// The queue of `context_` that is drawn next.
    CEGUI::RenderQueueID queue_ = CEGUI::RQ_UNDERLAY;
    bool inContext_ = false; ///< that queue is one of `context_`
    bool mayWait_ = false;   ///< a queue is being drawn into the view
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
