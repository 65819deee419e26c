// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <osg/Image>
#include <osg/ref_ptr>

namespace host
{

/// Transparent pixels around the glass, for its shadow.
constexpr int ToastShadow = 12;

/// A card of dark glass: a badge, a line and a smaller line under it. RGBA, bottom row first.
osg::ref_ptr<osg::Image> DrawToast(const CString& badge, const CString& title, const CString& detail, const CString& family);

} // namespace host
