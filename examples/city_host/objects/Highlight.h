// SPDX-License-Identifier: MIT
#pragma once

#include "../city/City.h"

#include <osg/Node>
#include <osg/ref_ptr>

namespace host
{

/// What marks a building in the scene: a light tint over its own walls and roofs, its edges as bright lines, and a glow on the
/// ground around it. To be drawn after the city.
osg::ref_ptr<osg::Node> MakeHighlight(const city::City& city, const city::Building& building);

} // namespace host
