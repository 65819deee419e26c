// SPDX-License-Identifier: MIT
#pragma once

#include <osg/Image>
#include <osg/ref_ptr>

#include <atlimage.h>

namespace host
{

/// The same picture for OSG: RGB, its first row at the bottom.
/// @param picture of 32 bits a pixel with its first row at the top
osg::ref_ptr<osg::Image> PictureOf(const CImage& picture);

} // namespace host
