// SPDX-License-Identifier: MIT
#include "Polygon.h"

#include <algorithm>
#include <cmath>

namespace city
{
namespace
{

double Cross(const osg::Vec2d& a, const osg::Vec2d& b)
{
    return a.x() * b.y() - a.y() * b.x();
}

} // namespace

Polygon ClipLeft(const Polygon& shape, const osg::Vec2d& point, const osg::Vec2d& direction)
{
    Polygon kept;
    for (std::size_t i = 0; i < shape.size(); ++i)
    {
        const osg::Vec2d& a = shape[i];
        const osg::Vec2d& b = shape[(i + 1) % shape.size()];
        const double sideA = Cross(direction, a - point);
        const double sideB = Cross(direction, b - point);
        if (sideA >= 0.0)
            kept.push_back(a);
        if ((sideA > 0.0 && sideB < 0.0) || (sideA < 0.0 && sideB > 0.0))
            kept.push_back(a + (b - a) * (sideA / (sideA - sideB)));
    }
    if (kept.size() < 3)
        kept.clear();
    return kept;
}

Polygon Inset(const Polygon& shape, double distance)
{
    Polygon kept = shape;
    for (std::size_t i = 0; i < shape.size() && !kept.empty(); ++i)
    {
        const osg::Vec2d& a = shape[i];
        osg::Vec2d along = shape[(i + 1) % shape.size()] - a;
        if (along.normalize() < 1e-6)
            continue;
        kept = ClipLeft(kept, a + osg::Vec2d(-along.y(), along.x()) * distance, along);
    }
    return kept;
}

bool Contains(const Polygon& shape, const osg::Vec2d& point, double tolerance)
{
    for (std::size_t i = 0; i < shape.size(); ++i)
    {
        osg::Vec2d along = shape[(i + 1) % shape.size()] - shape[i];
        along.normalize();
        if (Cross(along, point - shape[i]) < -tolerance)
            return false;
    }
    return shape.size() >= 3;
}

bool ContainsAll(const Polygon& shape, const Polygon& inner)
{
    return std::all_of(inner.begin(), inner.end(), [&](const osg::Vec2d& p) { return Contains(shape, p, 1e-6); });
}

double Area(const Polygon& shape)
{
    double twice = 0.0;
    for (std::size_t i = 0; i < shape.size(); ++i)
        twice += Cross(shape[i], shape[(i + 1) % shape.size()]);
    return twice / 2.0;
}

osg::Vec2d Centre(const Polygon& shape)
{
    osg::Vec2d sum;
    for (const osg::Vec2d& p : shape)
        sum += p;
    return shape.empty() ? sum : sum / static_cast<double>(shape.size());
}

Polygon ConvexHull(std::vector<osg::Vec2d> points)
{
    std::sort(points.begin(), points.end());
    Polygon hull;
    const auto extend = [&hull](const osg::Vec2d& p, std::size_t from)
    {
        while (hull.size() >= from + 2 && Cross(hull.back() - hull[hull.size() - 2], p - hull.back()) <= 0.0)
            hull.pop_back();
        hull.push_back(p);
    };
    for (const osg::Vec2d& p : points)
        extend(p, 0);
    const std::size_t lower = hull.size() - 1;
    for (auto p = points.rbegin() + 1; p != points.rend(); ++p)
        extend(*p, lower);
    hull.pop_back();
    return hull;
}

Polygon Moved(Polygon shape, const osg::Vec2d& offset)
{
    for (osg::Vec2d& p : shape)
        p += offset;
    return shape;
}

Polygon Scaled(Polygon shape, const osg::Vec2d& centre, double scale, double angle)
{
    const double c = std::cos(angle) * scale;
    const double s = std::sin(angle) * scale;
    for (osg::Vec2d& p : shape)
    {
        const osg::Vec2d d = p - centre;
        p = centre + osg::Vec2d(d.x() * c - d.y() * s, d.x() * s + d.y() * c);
    }
    return shape;
}

Polygon Rectangle(double x0, double y0, double x1, double y1)
{
    return {{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}};
}

Polygon Rectangle(const osg::Vec2d& centre, const osg::Vec2d& size, double angle)
{
    const osg::Vec2d half = size / 2.0;
    return Scaled(Rectangle(centre.x() - half.x(), centre.y() - half.y(), centre.x() + half.x(), centre.y() + half.y()), centre,
                  1.0, angle);
}

Polygon Ellipse(const osg::Vec2d& centre, double radiusX, double radiusY, int corners)
{
    Polygon shape;
    for (int i = 0; i < corners; ++i)
    {
        const double a = 6.283185307179586 * i / corners;
        shape.emplace_back(centre.x() + radiusX * std::cos(a), centre.y() + radiusY * std::sin(a));
    }
    return shape;
}

} // namespace city
