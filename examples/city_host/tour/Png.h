// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <osg/Image>

namespace host
{

/// Writes a picture (RGB, bottom row first) as a PNG file. @return whether it was written
bool WritePng(const CString& path, const osg::Image& picture);

} // namespace host
