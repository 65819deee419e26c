// SPDX-License-Identifier: MIT
#pragma once

#include "../city/City.h"

#include <afxwin.h>

#include <osg/Camera>

namespace host
{

/// The building that is seen at a point of the view, null when there is none. What stands before it hides it, trees do not.
/// @param point view pixels, from the top left
const city::Building* PickBuilding(const city::City& city, const osg::Camera& camera, CPoint point);

} // namespace host
