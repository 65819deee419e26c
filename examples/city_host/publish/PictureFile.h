// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <osg/Image>
#include <osg/ref_ptr>

namespace host
{

/// A picture file without its transparency: RGB, bottom row first.
/// @throws std::runtime_error when it cannot be read
osg::ref_ptr<osg::Image> ReadPictureFile(const CString& path);

} // namespace host
