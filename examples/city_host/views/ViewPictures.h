// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <osg/Node>
#include <osgViewer/Viewer>

namespace host
{

/// The folder of the viewpoints' pictures in the application's data, with its trailing separator.
CString ViewPictureFolder();

/// Draws the city from every viewpoint whose picture is not there yet, off the screen, and writes it as a PNG file. A picture
/// that cannot be drawn or written is left out: its entry then shows the skin's placeholder.
/// @param viewer realised; draws a few frames, its scene and camera are as before when this returns
void MakeViewPictures(osgViewer::Viewer& viewer, osg::Node& city);

} // namespace host
