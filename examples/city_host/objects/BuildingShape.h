// SPDX-License-Identifier: MIT
#pragma once

#include "../city/City.h"

#include <osg/Vec3>

#include <vector>

namespace host
{

/// What the scene draws of one building, taken out of the city's merged meshes. Three corners a triangle.
struct BuildingShape
{
    std::vector<osg::Vec3> triangles;
};

BuildingShape ShapeOf(const city::City& city, const city::Building& building);

/// Of the triangle whose first corner has this index; of length 1.
osg::Vec3 FaceNormal(const BuildingShape& shape, std::size_t corner);
/// Lines where faces meet at an angle or end, two points each.
std::vector<osg::Vec3> Edges(const BuildingShape& shape);

/// A convex outline with every edge moved outwards, metres; as many corners as before.
city::Polygon Grown(const city::Polygon& outline, double distance);

} // namespace host
