// SPDX-License-Identifier: MIT
#pragma once

// GLRenderer.h brings GLEW, which has to come before any other OpenGL header.
#include <CEGUI/RendererModules/OpenGL/GLRenderer.h>

/// CEGUI's renderer over OpenGL, but for pictures that are not to be seen, which cost it no call, and for pictures that lie one
/// pixel on one of the view's: their pixels are shown as they stand, which is the same picture for less.
class GuiRenderer : public CEGUI::OpenGLRenderer
{
public:
    /// On the current OpenGL context; `CEGUI::OpenGLRenderer::destroy` takes it away.
    static GuiRenderer& Create();

protected:
    CEGUI::OpenGLGeometryBufferBase* createGeometryBuffer_impl() override;

private:
    GuiRenderer();
};
