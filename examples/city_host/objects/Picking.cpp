// SPDX-License-Identifier: MIT
#include "Picking.h"

#include "../city/Surface.h"

#include <osgUtil/IntersectionVisitor>
#include <osgUtil/LineSegmentIntersector>

#include <algorithm>
#include <string>

namespace host
{
namespace
{

using Hit = osgUtil::LineSegmentIntersector::Intersection;

/// Most of a tree's picture is air.
bool IsTree(const Hit& hit)
{
    return std::any_of(hit.nodePath.begin(), hit.nodePath.end(),
                       [](const osg::Node* node) { return node->getName() == city::SurfaceName(city::Surface::Foliage); });
}

} // namespace

const city::Building* PickBuilding(const city::City& city, const osg::Camera& camera, CPoint point)
{
    const osg::Viewport& viewport = *camera.getViewport();
    const osg::Matrixd fromWindow =
        osg::Matrixd::inverse(camera.getViewMatrix() * camera.getProjectionMatrix() * viewport.computeWindowMatrix());
    // The middle of the pixel; the window's y counts upwards.
    const double x = point.x + 0.5;
    const double y = viewport.height() - point.y - 0.5;
    const osg::ref_ptr<osgUtil::LineSegmentIntersector> ray =
        new osgUtil::LineSegmentIntersector(osg::Vec3d(x, y, 0.0) * fromWindow, osg::Vec3d(x, y, 1.0) * fromWindow);
    osgUtil::IntersectionVisitor visitor(ray);
    city.root->accept(visitor);
    for (const Hit& hit : ray->getIntersections())
    {
        if (!IsTree(hit))
        {
            return city::FindBuilding(city, hit.getWorldIntersectPoint());
        }
    }
    return nullptr;
}

} // namespace host
