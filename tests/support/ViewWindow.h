// SPDX-License-Identifier: MIT
#pragma once

#include "Gui.h"

/// A context for a window of this size, which is not realized; null when there is none.
osg::ref_ptr<osg::GraphicsContext> NewContext(HWND window, int width, int height);

/// A child window with an OpenGL context of its own, which is not realized. The parent destroys the window.
class ViewWindow
{
public:
    ViewWindow(HWND parent, int width, int height);

    /// Null when there is none.
    osg::GraphicsContext* Context() { return context_; }
    HWND Window() const { return window_; }

private:
    HWND window_;
    osg::ref_ptr<osg::GraphicsContext> context_;
};
