// SPDX-License-Identifier: MIT
#pragma once

#include <NxOsgCeGui/Export.h>

#include <osg/Drawable>

#include <memory>

namespace CEGUI
{
class OpenGLRenderer;
class ResourceProvider;
class ImageCodec;
class System;
} // namespace CEGUI

/// The scene-graph object that owns CEGUI and draws the interface. Its event callback feeds the viewer's input into CEGUI.
///
/// There is one CEGUI in a process, so at most one drawable may be initialised at a time. `Init`, `Finish` and the draws all
/// happen on the one thread that owns the interface; nothing is locked.
class NXOSGCEGUI_API CeGuiDrawable : public osg::Drawable
{
public:
    CeGuiDrawable();
    /// As `clone`: copies the `osg::Drawable` only.
    CeGuiDrawable(const CeGuiDrawable& other, const osg::CopyOp& copyop);
    /// Copies the fields member by member: both drawables then share one renderer and system, and only one may `Finish`.
    CeGuiDrawable& operator=(const CeGuiDrawable& other);

    osg::Object* cloneType() const override;
    /// The copy is not initialised: it has no renderer, no system and no context id.
    osg::Object* clone(const osg::CopyOp& copyop) const override;
    bool isSameKindAs(const osg::Object* object) const override;
    const char* libraryName() const override;
    const char* className() const override;

    /// Draws the interface when the context is the one given to `Init`, else does nothing. The very first matching draw is
    /// skipped, so that CEGUI first renders after one full frame of the context.
    /// Without CEGUI (before `Init`, in a clone, after `Finish`) it draws nothing.
    void drawImplementation(osg::RenderInfo& renderInfo) const override;

    /// Creates CEGUI on the current OpenGL context and loads the skin.
    /// @param contextId OSG's id of that context (`osg::State::getContextID`)
    /// @throws CEGUI::Exception when the skin is missing or wrong
    virtual void Init(int contextId);

    /// Tears CEGUI down; the context has to be current. Harmless when not initialised. Must not be called from a slot of an event
    /// of CEGUI or while it draws; `CeGuiMainFrame::CloseGuiSystem` may.
    void Finish();

    /// Whether this drawable has CEGUI: true from a successful `Init` until `Finish`.
    bool IsInitialised() const;

protected:
    ~CeGuiDrawable() override;

    virtual void SetupCeGui();
    virtual void InitResource();
    virtual void Config();

private:
    friend class CeGuiMainFrame;

    unsigned int contextId_ = 0;
    unsigned long long reserved_ = 0;
    CEGUI::OpenGLRenderer* renderer_ = nullptr;
    CEGUI::System* system_ = nullptr;
    mutable bool firstFrameDrawn_ = false;
    /// The interface is closed, while CEGUI waits for the end of its functions that are on the stack.
    bool retired_ = false;
    /// CEGUI's System uses these and does not own them.
    std::shared_ptr<CEGUI::ResourceProvider> resourceProvider_;
    std::shared_ptr<CEGUI::ImageCodec> imageCodec_;
};
