// SPDX-License-Identifier: MIT
#include "GuiPictures.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/RenderQueue.h>
#include <CEGUI/RendererModules/OpenGL/ViewportTarget.h>
#include <CEGUI/RenderingSurface.h>

#include <osg/RenderInfo>

#include <algorithm>

namespace
{
constexpr float Identity[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
} // namespace

/// The view. Only here is it seen which geometry belongs to a queue: what a host's slot draws as a queue starts or ends is drawn
/// at once.
class GuiRenderer::ViewTarget : public CEGUI::OpenGLViewportTarget
{
public:
    explicit ViewTarget(GuiRenderer& owner) : CEGUI::OpenGLViewportTarget(owner), renderer_(owner) {}

    using CEGUI::OpenGLViewportTarget::draw;
    void draw(const CEGUI::RenderQueue& queue) override { renderer_.DrawQueue(queue); }

private:
    GuiRenderer& renderer_;
};

GuiRenderer::GuiRenderer() : CEGUI::OpenGLRenderer(TTT_AUTO)
{
    CEGUI_DELETE_AO d_defaultTarget;
    d_defaultTarget = CEGUI_NEW_AO ViewTarget(*this);
}

GuiRenderer::~GuiRenderer()
{
    // CEGUI's context is gone by now, and buffers ask this object about themselves as they go.
    context_ = nullptr;
    destroyAllGeometryBuffers();
}

GuiRenderer& GuiRenderer::Create()
{
    return *new GuiRenderer;
}

GuiRenderer::Frame::Frame(GuiRenderer& renderer, osg::RenderInfo& info) : renderer_(renderer)
{
    renderer_.textureWatch_.Draw(info);
    renderer_.state_.Begin(*info.getState());
}

GuiRenderer::Frame::~Frame()
{
    if (renderer_.rendering_)
    {
        renderer_.waiting_.Clear();
        renderer_.queueing_ = false;
        renderer_.mayWait_ = false;
        renderer_.inContext_ = false;
        if (renderer_.context_)
        {
            renderer_.context_->markAsDirty();
        }
        renderer_.endRendering();
    }
    renderer_.state_.End();
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
}

void GuiRenderer::beginRendering()
{
    if (context_ && context_->isDirty())
    {
        // All windows are queued anew, and those that are gone are not among them.
        ForgetWindows();
    }
    rendering_ = true;
    if (!state_.IsBegun())
    {
        // A host that draws CEGUI by itself.
        OpenGLRenderer::beginRendering();
        return;
    }
    state_.Set();
    setupRenderingBlendMode(CEGUI::BM_NORMAL, true);
}

void GuiRenderer::endRendering()
{
    rendering_ = false;
    if (!state_.IsBegun())
    {
        OpenGLRenderer::endRendering();
        return;
    }
    state_.End();
}

void GuiRenderer::setViewProjectionMatrix(const CEGUI::mat4Pimpl* matrix)
{
    OpenGLRendererBase::setViewProjectionMatrix(matrix);
    state_.UseProjection(Pictures::Numbers(*matrix));
}

void GuiRenderer::BeginQueue(CEGUI::RenderQueueID queue)
{
    queue_ = queue;
    inContext_ = true;
    if (queue != CEGUI::RQ_BASE || (kept_ && !changed_))
    {
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
}

void GuiRenderer::DrawQueue(const CEGUI::RenderQueue& queue)
{
    mayWait_ = true;
    if (inContext_ && queue_ == CEGUI::RQ_BASE)
    {
        DrawWindows(queue);
    }
    else
    {
        queue.draw();
    }
    DrawWaiting();
    mayWait_ = false;
    inContext_ = false;
}

void GuiRenderer::DrawWindows(const CEGUI::RenderQueue& queue)
{
    if (kept_)
    {
        DrawAll(windows_);
        queue.draw();
        return;
    }
    queueing_ = true;
    queue.draw();
    if (queueing_)
    {
        std::swap(waiting_, windows_);
        DrawAll(windows_);
        context_->clearGeometry(CEGUI::RQ_BASE);
        kept_ = true;
        queueing_ = false;
    }
}

void GuiRenderer::ForgetWindows()
{
    ++generation_;
    kept_ = false;
    changed_ = false;
    windows_.Clear();
    queued_.clear();
}

void GuiRenderer::Forget(const Pictures& pictures)
{
    if (std::find(queued_.begin(), queued_.end(), &pictures) == queued_.end())
    {
        return;
    }
    ForgetWindows();
    if (context_)
    {
        context_->markAsDirty();
    }
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
    state_.UseModelMatrix(Identity);
    state_.UseVertices(list.vertices.data(), list.vertices.size());
    const float height = getActiveViewPort().getHeight();
    bool cut = false;
    SystemGl::Enable(GL_SCISSOR_TEST, cut);
    for (const Draw& draw : list.draws)
    {
        state_.ReadNearestPixels(draw.nearest);
        if (draw.cut != cut)
        {
            cut = draw.cut;
            SystemGl::Enable(GL_SCISSOR_TEST, cut);
        }
        if (cut)
        {
            SystemGl::Scissor(static_cast<int>(draw.clip.left()), static_cast<int>(height - draw.clip.bottom()),
                              static_cast<int>(draw.clip.getWidth()), static_cast<int>(draw.clip.getHeight()));
        }
        SystemGl::BindTexture(draw.texture);
        SystemGl::DrawTriangles(draw.first, draw.count);
    }
    // Whatever else is drawn in this frame reads its textures as they say.
    state_.ReadNearestPixels(false);
}

void GuiRenderer::DrawList::Add(Draw draw, const SystemGl::Vertex* first, const CEGUI::Vector3f& moved)
{
    draw.first = static_cast<int>(vertices.size());
    draws.push_back(draw);
    vertices.insert(vertices.end(), first, first + draw.count);
    const auto added = vertices.begin() + draw.first;
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
