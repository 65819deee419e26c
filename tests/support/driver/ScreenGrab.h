// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <osg/Image>
#include <osg/ref_ptr>

namespace driver
{

/// What the screen shows of a rectangle in screen pixels, with whatever windows, dialogs and menus stand there.
/// @return RGB, bottom row first
/// @throws std::runtime_error when the screen cannot be read
osg::ref_ptr<osg::Image> GrabScreen(const RECT& area);

} // namespace driver
