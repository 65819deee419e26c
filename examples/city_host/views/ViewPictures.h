// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <osg/Matrixd>
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

/// Draws the city as it looks from a camera in the course of one more frame of the window, and writes it as a PNG file, which is
/// replaced. The folder is made where it is missing.
/// @return whether it was written
bool TakeViewPicture(osgViewer::Viewer& viewer, osg::Node& city, const osg::Matrixd& viewMatrix, const CString& file);

} // namespace host
