// SPDX-License-Identifier: MIT
#pragma once

#include <osg/Vec2d>
#include <vector>

namespace city
{

/// A convex outline in plan, metres, counter-clockwise seen from above. Empty: nothing.
using Polygon = std::vector<osg::Vec2d>;

/// The part of `shape` on the left of the line through `point` along `direction`.
Polygon ClipLeft(const Polygon& shape, const osg::Vec2d& point, const osg::Vec2d& direction);
/// `shape` with every edge moved inwards by `distance`; short edges vanish.
Polygon Inset(const Polygon& shape, double distance);
bool Contains(const Polygon& shape, const osg::Vec2d& point, double tolerance = 0.0);
bool ContainsAll(const Polygon& shape, const Polygon& inner);
double Area(const Polygon& shape);
osg::Vec2d Centre(const Polygon& shape);
Polygon ConvexHull(std::vector<osg::Vec2d> points);
Polygon Moved(Polygon shape, const osg::Vec2d& offset);
/// Scaled about `centre`, then turned by `angle` radians.
Polygon Scaled(Polygon shape, const osg::Vec2d& centre, double scale, double angle = 0.0);

Polygon Rectangle(double x0, double y0, double x1, double y1);
/// Turned by `angle` radians about its centre; `size` is the whole length and width.
Polygon Rectangle(const osg::Vec2d& centre, const osg::Vec2d& size, double angle);
Polygon Ellipse(const osg::Vec2d& centre, double radiusX, double radiusY, int corners);

} // namespace city
