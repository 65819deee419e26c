// SPDX-License-Identifier: MIT
#pragma once

#include <osg/Image>
#include <osg/Vec2d>

namespace city
{

/// Half of the picture shows a tree from the side, the other half its crown from above; RGBA, clear around the leaves.
osg::ref_ptr<osg::Image> PaintTree();

/// Where the two halves lie, in texture coordinates.
constexpr double kTreeSideFrom = 0.0, kTreeSideTo = 0.5;
constexpr double kTreeTopFrom = 0.5, kTreeTopTo = 1.0;

} // namespace city
