// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <osg/ref_ptr>
#include <osgViewer/Viewer>

namespace host
{

/// A single-threaded viewer that draws in a window given to it.
/// @param samples of multisampling; 0: none
/// @throws std::runtime_error when the window gets no OpenGL context
osg::ref_ptr<osgViewer::Viewer> MakeViewer(HWND view, CSize size, int samples);

/// Makes the viewer's context ready to draw. The window is shown.
/// @throws std::runtime_error when that fails
void Realise(osgViewer::Viewer& viewer);

} // namespace host
