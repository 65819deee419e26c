// SPDX-License-Identifier: MIT
#pragma once

#include <osg/Camera>
#include <osg/ref_ptr>

namespace host
{

/// A camera over the whole view that draws what is blended over the scene and takes no events. It has no projection yet.
/// @param order among the cameras that draw after the scene; the interface is at 0
osg::ref_ptr<osg::Camera> NewOverlayCamera(const char* name, int order);

} // namespace host
