// SPDX-License-Identifier: MIT
#pragma once

#include "Surface.h"

#include <osg/Image>

namespace city
{

/// Metres after which the picture of a surface that is not a facade repeats.
double PictureSize(Surface surface);
/// The picture of a surface that is not a facade, null when it has none. Nearly white: the vertex colour tints it.
osg::ref_ptr<osg::Image> PaintGround(Surface surface);

} // namespace city
