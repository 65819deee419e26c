// SPDX-License-Identifier: MIT
#include "Sky.h"

#include "Random.h"

#include <osg/Depth>
#include <osg/Geode>
#include <osg/Math>
#include <osgUtil/CullVisitor>
#include <algorithm>
#include <cfloat>
#include <cmath>

namespace city
{
namespace
{

constexpr int kAround = 40;
constexpr int kRings = 18;
constexpr double kRadius = 100.0;
constexpr double kNearPlane = 1.0;
constexpr double kFarPlane = 1000.0;
constexpr double kLowest = -0.5; ///< radians; below it the ground covers everything
constexpr int kBin = -10;
constexpr int kStars = 420;

/// Rings lie closer together near the horizon, where the colours change most.
double RingElevation(int ring)
{
    if (ring == 0)
        return kLowest;
    const double t = static_cast<double>(ring - 1) / (kRings - 1);
    return t * t * osg::PI / 2.0;
}

osg::Vec3d Direction(double azimuth, double elevation)
{
    return {std::cos(azimuth) * std::cos(elevation), std::sin(azimuth) * std::cos(elevation), std::sin(elevation)};
}

/// An invalid box: the sky has no part in finding the nearest and farthest depth.
struct NoBounds : osg::Drawable::ComputeBoundingBoxCallback
{
    osg::BoundingBox computeBound(const osg::Drawable&) const override { return {}; }
};

osg::ref_ptr<osg::Geometry> EmptyGeometry()
{
    osg::ref_ptr<osg::Geometry> geometry = new osg::Geometry;
    geometry->setUseDisplayList(false);
    geometry->setUseVertexBufferObjects(true);
    geometry->setDataVariance(osg::Object::DYNAMIC);
    geometry->setComputeBoundingBoxCallback(new NoBounds);
    geometry->setCullingActive(false);
    return geometry;
}

osg::ref_ptr<osg::Geometry> MakeDome()
{
    osg::ref_ptr<osg::Geometry> dome = EmptyGeometry();
    osg::ref_ptr<osg::Vec3Array> points = new osg::Vec3Array;
    osg::ref_ptr<osg::DrawElementsUShort> triangles = new osg::DrawElementsUShort(GL_TRIANGLES);
    for (int ring = 0; ring <= kRings; ++ring)
        for (int i = 0; i <= kAround; ++i)
            points->push_back(Direction(2.0 * osg::PI * i / kAround, RingElevation(ring)) * kRadius);
    for (int ring = 0; ring < kRings; ++ring)
        for (int i = 0; i < kAround; ++i)
        {
            const auto at = [&](int r, int n) { return static_cast<GLushort>(r * (kAround + 1) + n); };
            for (const GLushort index :
                 {at(ring, i), at(ring + 1, i + 1), at(ring, i + 1), at(ring, i), at(ring + 1, i), at(ring + 1, i + 1)})
                triangles->push_back(index);
        }
    dome->setVertexArray(points.get());
    dome->setColorArray(new osg::Vec4Array(points->size()), osg::Array::BIND_PER_VERTEX);
    dome->addPrimitiveSet(triangles.get());
    return dome;
}

osg::ref_ptr<osg::Geometry> MakeStars()
{
    osg::ref_ptr<osg::Geometry> stars = EmptyGeometry();
    Random random(77);
    osg::ref_ptr<osg::Vec3Array> points = new osg::Vec3Array;
    osg::ref_ptr<osg::Vec4Array> colours = new osg::Vec4Array;
    for (int i = 0; i < kStars; ++i)
    {
        const double azimuth = random.Range(0.0, 2.0 * osg::PI);
        points->push_back(Direction(azimuth, random.Range(0.10, 1.4)) * (kRadius * 0.98));
        const float bright = static_cast<float>(random.Range(0.25, 0.8));
        colours->push_back({bright, bright, bright * 1.05f, 1.0f});
    }
    stars->setVertexArray(points.get());
    stars->setColorArray(colours.get(), osg::Array::BIND_PER_VERTEX);
    stars->addPrimitiveSet(new osg::DrawArrays(GL_POINTS, 0, kStars));
    return stars;
}

} // namespace

Sky::Sky() : m_dome(MakeDome()), m_stars(MakeStars())
{
    osg::ref_ptr<osg::Geode> geode = new osg::Geode;
    geode->addDrawable(m_dome.get());
    geode->addDrawable(m_stars.get());
    geode->setCullingActive(false);
    addChild(geode.get());
    setCullingActive(false);
    setName("Sky");
    osg::StateSet* state = getOrCreateStateSet();
    state->setRenderBinDetails(kBin, "RenderBin");
    state->setMode(GL_LIGHTING, osg::StateAttribute::OFF);
    state->setMode(GL_FOG, osg::StateAttribute::OFF);
    state->setMode(GL_CULL_FACE, osg::StateAttribute::OFF);
    osg::ref_ptr<osg::Depth> depth = new osg::Depth(osg::Depth::ALWAYS, 0.0, 1.0, false);
    state->setAttributeAndModes(depth.get());
    m_stars->getOrCreateStateSet()->setRenderBinDetails(kBin + 1, "RenderBin");
}

void Sky::SetColours(const SkyColours& colours)
{
    const auto& points = static_cast<const osg::Vec3Array&>(*m_dome->getVertexArray());
    auto& out = static_cast<osg::Vec4Array&>(*m_dome->getColorArray());
    for (std::size_t i = 0; i < points.size(); ++i)
    {
        const osg::Vec3d direction = osg::Vec3d(points[i]) / kRadius;
        const float up = static_cast<float>(std::max(0.0, direction.z()));
        const float t = std::pow(up, 0.62f);
        const double towards = std::max(0.0, direction * colours.toSun);
        const float glow = static_cast<float>(std::pow(towards, 4.0 / colours.glowWidth)) * std::min(1.0f, up * 12.0f);
        const Colour colour = colours.horizon * (1.0f - t) + colours.zenith * t + colours.glow * glow;
        out[i].set(std::min(1.0f, colour.x()), std::min(1.0f, colour.y()), std::min(1.0f, colour.z()), 1.0f);
    }
    out.dirty();
    m_stars->setNodeMask(colours.stars > 0.0f ? ~0u : 0u);
}

void Sky::traverse(osg::NodeVisitor& visitor)
{
    if (visitor.getVisitorType() == osg::NodeVisitor::NODE_VISITOR)
    {
        osg::Group::traverse(visitor);
        return;
    }
    osgUtil::CullVisitor* cull = visitor.asCullVisitor();
    if (!cull || !cull->getProjectionMatrix() || !cull->getModelViewMatrix())
        return;
    const double calculatedNear = cull->getCalculatedNearPlane();
    const double calculatedFar = cull->getCalculatedFarPlane();
    double left, right, bottom, top, zNear, zFar;
    osg::ref_ptr<osg::RefMatrix> projection = new osg::RefMatrix(*cull->getProjectionMatrix());
    if (projection->getFrustum(left, right, bottom, top, zNear, zFar) && zNear > 0.0)
    {
        const double scale = kNearPlane / zNear;
        projection->makeFrustum(left * scale, right * scale, bottom * scale, top * scale, kNearPlane, kFarPlane);
    }
    osg::ref_ptr<osg::RefMatrix> view = new osg::RefMatrix(*cull->getModelViewMatrix());
    view->setTrans(0.0, 0.0, 0.0);
    cull->setCalculatedNearPlane(FLT_MAX);
    cull->setCalculatedFarPlane(-FLT_MAX);
    cull->pushProjectionMatrix(projection.get());
    cull->pushModelViewMatrix(view.get(), osg::Transform::ABSOLUTE_RF);
    osg::Group::traverse(visitor);
    cull->popModelViewMatrix();
    cull->popProjectionMatrix();
    cull->setCalculatedNearPlane(calculatedNear);
    cull->setCalculatedFarPlane(calculatedFar);
}

} // namespace city
