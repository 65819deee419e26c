// SPDX-License-Identifier: MIT
#include "Highlight.h"

#include "../city/Plan.h"
#include "BuildingShape.h"

#include <osg/BlendFunc>
#include <osg/CullFace>
#include <osg/Depth>
#include <osg/Geode>
#include <osg/Geometry>
#include <osg/LineWidth>
#include <osg/PolygonOffset>

#include <algorithm>

namespace host
{
namespace
{

const osg::Vec3 accent(0.22f, 0.68f, 1.0f);
const osg::Vec4 lineColour(0.80f, 0.95f, 1.0f, 0.85f);
constexpr float TintAlpha = 0.46f;
constexpr float GlowAlpha = 0.85f;
constexpr float EdgeWidth = 1.5f;  ///< pixels
constexpr double GlowInside = 0.4; ///< metres from the walls, as the two below
constexpr double GlowOutside = 7.0;
constexpr double GlowAbove = 0.35;
constexpr int BehindTheCity = 20; ///< render bin; the city's own end at 7

/// Away from the sun's side a little darker, so that the shape stays legible under the tint.
osg::Vec4 Tint(const osg::Vec3& normal)
{
    static const osg::Vec3 light = []
    {
        osg::Vec3 direction(-0.45f, -0.6f, 0.66f);
        direction.normalize();
        return direction;
    }();
    const float shade = 0.62f + 0.38f * std::max(0.0f, normal * light);
    return osg::Vec4(accent * shade, TintAlpha);
}

osg::ref_ptr<osg::Geometry> MakeGeometry(osg::Vec3Array* points, osg::Vec4Array* colours, GLenum mode)
{
    const osg::ref_ptr<osg::Geometry> geometry = new osg::Geometry;
    geometry->setUseDisplayList(false);
    geometry->setUseVertexBufferObjects(true);
    geometry->setVertexArray(points);
    geometry->setColorArray(colours, colours->size() == 1 ? osg::Array::BIND_OVERALL : osg::Array::BIND_PER_VERTEX);
    geometry->addPrimitiveSet(new osg::DrawArrays(mode, 0, static_cast<GLsizei>(points->size())));
    return geometry;
}

osg::ref_ptr<osg::Geometry> MakeTint(const BuildingShape& shape)
{
    const osg::ref_ptr<osg::Vec3Array> points = new osg::Vec3Array(shape.triangles.begin(), shape.triangles.end());
    const osg::ref_ptr<osg::Vec4Array> colours = new osg::Vec4Array;
    for (std::size_t i = 0; i < shape.triangles.size(); i += 3)
    {
        colours->insert(colours->end(), 3, Tint(FaceNormal(shape, i)));
    }
    const osg::ref_ptr<osg::Geometry> tint = MakeGeometry(points, colours, GL_TRIANGLES);
    // It lies on the walls that it tints.
    tint->getOrCreateStateSet()->setAttributeAndModes(new osg::PolygonOffset(-1.0f, -1.0f));
    return tint;
}

osg::ref_ptr<osg::Geometry> MakeEdges(const BuildingShape& shape)
{
    const std::vector<osg::Vec3> edges = Edges(shape);
    const osg::ref_ptr<osg::Vec3Array> points = new osg::Vec3Array(edges.begin(), edges.end());
    const osg::ref_ptr<osg::Vec4Array> colours = new osg::Vec4Array(1, &lineColour);
    const osg::ref_ptr<osg::Geometry> lines = MakeGeometry(points, colours, GL_LINES);
    lines->getOrCreateStateSet()->setAttributeAndModes(new osg::LineWidth(EdgeWidth));
    // A hair nearer than the walls that they lie on.
    lines->getOrCreateStateSet()->setAttributeAndModes(new osg::Depth(osg::Depth::LEQUAL, 0.0, 0.99995));
    return lines;
}

osg::ref_ptr<osg::Geometry> MakeGlow(const city::Polygon& footprint)
{
    const city::Polygon inner = Grown(footprint, GlowInside);
    const city::Polygon outer = Grown(footprint, GlowOutside);
    const double z = city::kLotHeight + GlowAbove;
    const osg::ref_ptr<osg::Vec3Array> points = new osg::Vec3Array;
    const osg::ref_ptr<osg::Vec4Array> colours = new osg::Vec4Array;
    for (std::size_t i = 0; i <= footprint.size(); ++i)
    {
        const std::size_t corner = i % footprint.size();
        points->push_back(osg::Vec3(inner[corner].x(), inner[corner].y(), z));
        points->push_back(osg::Vec3(outer[corner].x(), outer[corner].y(), z));
        colours->push_back(osg::Vec4(accent, GlowAlpha));
        colours->push_back(osg::Vec4(accent, 0.0f));
    }
    const osg::ref_ptr<osg::Geometry> glow = MakeGeometry(points, colours, GL_TRIANGLE_STRIP);
    glow->getOrCreateStateSet()->setMode(GL_CULL_FACE, osg::StateAttribute::OFF);
    return glow;
}

} // namespace

osg::ref_ptr<osg::Node> MakeHighlight(const city::City& city, const city::Building& building)
{
    const BuildingShape shape = ShapeOf(city, building);
    const osg::ref_ptr<osg::Geode> mark = new osg::Geode;
    mark->setName("selection");
    osg::StateSet& state = *mark->getOrCreateStateSet();
    state.setMode(GL_LIGHTING, osg::StateAttribute::OFF);
    state.setMode(GL_FOG, osg::StateAttribute::OFF);
    state.setAttributeAndModes(new osg::BlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA));
    state.setAttributeAndModes(new osg::Depth(osg::Depth::LEQUAL, 0.0, 1.0, false));
    state.setAttributeAndModes(new osg::CullFace(osg::CullFace::BACK));
    state.setRenderBinDetails(BehindTheCity, "RenderBin");
    mark->addDrawable(MakeGlow(building.footprint));
    if (!shape.triangles.empty())
    {
        mark->addDrawable(MakeTint(shape));
        mark->addDrawable(MakeEdges(shape));
    }
    return mark;
}

} // namespace host
