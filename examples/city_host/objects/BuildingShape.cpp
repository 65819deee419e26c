// SPDX-License-Identifier: MIT
#include "BuildingShape.h"

#include "../city/Surface.h"

#include <osg/Geode>
#include <osg/Geometry>
#include <osg/NodeVisitor>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace host
{
namespace
{

constexpr float GroundTolerance = 0.1f; ///< metres below which nothing of a building lies
constexpr double Overhang = 1.6;        ///< metres by which cornices and roofs reach over the footprint
constexpr float SameDirection = 0.8f;   ///< cosine of the angle below which two faces look like one
constexpr float SharpestMiter = 0.35f;
constexpr double PerCentimetre = 100.0;

bool IsBuilt(const std::string& name)
{
    using city::Surface;
    for (int i = 0; i <= static_cast<int>(Surface::Tiles); ++i)
    {
        if (name == city::SurfaceName(static_cast<Surface>(i)))
        {
            return true;
        }
    }
    return false;
}

/// Takes the triangles of all that is built and lies within one building's outline and height.
class Collector : public osg::NodeVisitor
{
public:
    Collector(const city::Building& building, BuildingShape& shape)
        : osg::NodeVisitor(TRAVERSE_ALL_CHILDREN), building_(building), shape_(shape), box_(building.bounds)
    {
        // Masts and crowns rise above the height that the register names.
        box_.zMax() = static_cast<float>(building.height * 1.3 + 5.0);
        box_.zMin() = -GroundTolerance;
        box_.xMin() -= Overhang;
        box_.yMin() -= Overhang;
        box_.xMax() += Overhang;
        box_.yMax() += Overhang;
    }

    void apply(osg::Geode& geode) override
    {
        for (unsigned int i = 0; IsBuilt(geode.getName()) && i < geode.getNumDrawables(); ++i)
        {
            const osg::Geometry* geometry = geode.getDrawable(i)->asGeometry();
            if (geometry && geometry->getBoundingBox().intersects(box_))
            {
                Take(*geometry);
            }
        }
    }

private:
    void Take(const osg::Geometry& geometry)
    {
        const auto* points = dynamic_cast<const osg::Vec3Array*>(geometry.getVertexArray());
        const auto* corners = dynamic_cast<const osg::DrawElementsUInt*>(geometry.getPrimitiveSet(0));
        for (std::size_t i = 0; points && corners && i + 2 < corners->size(); i += 3)
        {
            const std::array<osg::Vec3, 3> triangle = {(*points)[(*corners)[i]], (*points)[(*corners)[i + 1]],
                                                       (*points)[(*corners)[i + 2]]};
            if (std::all_of(triangle.begin(), triangle.end(), [this](const osg::Vec3& point) { return IsInside(point); }))
            {
                shape_.triangles.insert(shape_.triangles.end(), triangle.begin(), triangle.end());
            }
        }
    }

    bool IsInside(const osg::Vec3& point) const
    {
        return box_.contains(point) && city::Contains(building_.footprint, osg::Vec2d(point.x(), point.y()), Overhang);
    }

    const city::Building& building_;
    BuildingShape& shape_;
    osg::BoundingBox box_;
};

using Key = std::array<long long, 3>;

Key KeyOf(const osg::Vec3& point)
{
    return {std::llround(point.x() * PerCentimetre), std::llround(point.y() * PerCentimetre),
            std::llround(point.z() * PerCentimetre)};
}

} // namespace

BuildingShape ShapeOf(const city::City& city, const city::Building& building)
{
    BuildingShape shape;
    Collector collector(building, shape);
    city.root->accept(collector);
    return shape;
}

osg::Vec3 FaceNormal(const BuildingShape& shape, std::size_t corner)
{
    const osg::Vec3& first = shape.triangles[corner];
    osg::Vec3 normal = (shape.triangles[corner + 1] - first) ^ (shape.triangles[corner + 2] - first);
    normal.normalize();
    return normal;
}

std::vector<osg::Vec3> Edges(const BuildingShape& shape)
{
    struct Edge
    {
        osg::Vec3 from;
        osg::Vec3 to;
        osg::Vec3 normal;
        bool smooth;
    };
    // The meshes share no corners, so edges are found by place.
    std::map<std::pair<Key, Key>, Edge> edges;
    for (std::size_t i = 0; i + 2 < shape.triangles.size(); i += 3)
    {
        const osg::Vec3 normal = FaceNormal(shape, i);
        for (std::size_t side = 0; side < 3; ++side)
        {
            const osg::Vec3& from = shape.triangles[i + side];
            const osg::Vec3& to = shape.triangles[i + (side + 1) % 3];
            const std::pair<Key, Key> place = std::minmax(KeyOf(from), KeyOf(to));
            const auto known = edges.find(place);
            if (known == edges.end())
            {
                edges.emplace(place, Edge{from, to, normal, false});
            }
            else if (known->second.normal * normal > SameDirection)
            {
                known->second.smooth = true;
            }
        }
    }
    std::vector<osg::Vec3> lines;
    for (const auto& [place, edge] : edges)
    {
        if (!edge.smooth)
        {
            lines.push_back(edge.from);
            lines.push_back(edge.to);
        }
    }
    return lines;
}

city::Polygon Grown(const city::Polygon& outline, double distance)
{
    const auto outward = [&outline](std::size_t i)
    {
        osg::Vec2d along = outline[(i + 1) % outline.size()] - outline[i % outline.size()];
        along.normalize();
        return osg::Vec2d(along.y(), -along.x());
    };
    city::Polygon grown;
    for (std::size_t i = 0; i < outline.size(); ++i)
    {
        const osg::Vec2d sum = outward(i + outline.size() - 1) + outward(i);
        const double shared = std::max<double>(sum * sum / 2.0, SharpestMiter);
        grown.push_back(outline[i] + sum * (distance / shared));
    }
    return grown;
}

} // namespace host
