// SPDX-License-Identifier: MIT
#include "Mesh.h"

#include <osg/Geode>
#include <algorithm>
#include <cmath>

namespace city
{
namespace
{

constexpr double kRasterSize = 700.0;
constexpr int kRasterHalf = 2;

osg::Vec4ub Bytes(const Colour& colour)
{
    return {ByteOf(colour.x()), ByteOf(colour.y()), ByteOf(colour.z()), 255};
}

int RasterIndex(double v)
{
    const int index = static_cast<int>(std::floor(v / kRasterSize)) + kRasterHalf;
    return std::min(2 * kRasterHalf - 1, std::max(0, index));
}

template <class Array, class Item>
osg::ref_ptr<Array> Copy(const std::vector<Item>& items)
{
    osg::ref_ptr<Array> array = new Array(items.begin(), items.end());
    return array;
}

} // namespace

unsigned char ByteOf(float part)
{
    return static_cast<unsigned char>(std::lround(std::min(1.0f, std::max(0.0f, part)) * 255.0f));
}

unsigned Mesh::Vertex(const Corner& corner, const osg::Vec3d& normal)
{
    m_positions.emplace_back(corner.position);
    m_normals.emplace_back(normal);
    m_colours.push_back(Bytes(corner.colour));
    m_textures.emplace_back(corner.texture);
    return static_cast<unsigned>(m_positions.size() - 1);
}

void Mesh::Join(unsigned a, unsigned b, unsigned c)
{
    m_indices.insert(m_indices.end(), {a, b, c});
}

void Mesh::Quad(const Corner& a, const Corner& b, const Corner& c, const Corner& d)
{
    osg::Vec3d normal = (c.position - a.position) ^ (d.position - b.position);
    normal.normalize();
    const unsigned first = Vertex(a, normal);
    Vertex(b, normal);
    Vertex(c, normal);
    Vertex(d, normal);
    Join(first, first + 1, first + 2);
    Join(first, first + 2, first + 3);
}

void Mesh::Triangle(const Corner& a, const Corner& b, const Corner& c)
{
    osg::Vec3d normal = (b.position - a.position) ^ (c.position - a.position);
    normal.normalize();
    const unsigned first = Vertex(a, normal);
    Vertex(b, normal);
    Vertex(c, normal);
    Join(first, first + 1, first + 2);
}

osg::ref_ptr<osg::Geometry> Mesh::Build(bool lightUnit) const
{
    osg::ref_ptr<osg::Geometry> geometry = new osg::Geometry;
    geometry->setUseDisplayList(false);
    geometry->setUseVertexBufferObjects(true);
    geometry->setVertexArray(Copy<osg::Vec3Array>(m_positions).get());
    geometry->setNormalArray(Copy<osg::Vec3Array>(m_normals).get(), osg::Array::BIND_PER_VERTEX);
    osg::ref_ptr<osg::Vec4ubArray> colours = Copy<osg::Vec4ubArray>(m_colours);
    colours->setNormalize(true);
    geometry->setColorArray(colours.get(), osg::Array::BIND_PER_VERTEX);
    const osg::ref_ptr<osg::Vec2Array> textures = Copy<osg::Vec2Array>(m_textures);
    geometry->setTexCoordArray(kPictureUnit, textures.get(), osg::Array::BIND_PER_VERTEX);
    if (lightUnit)
        geometry->setTexCoordArray(kLightUnit, textures.get(), osg::Array::BIND_PER_VERTEX);
    osg::ref_ptr<osg::DrawElementsUInt> triangles = new osg::DrawElementsUInt(GL_TRIANGLES, m_indices.begin(), m_indices.end());
    geometry->addPrimitiveSet(triangles.get());
    return geometry;
}

Mesh& MeshSet::At(Surface surface, const osg::Vec2d& place)
{
    const int cell = RasterIndex(place.x()) + 2 * kRasterHalf * RasterIndex(place.y());
    return m_meshes[{surface, cell}];
}

osg::ref_ptr<osg::Group> MeshSet::Build(const SurfaceStates& states) const
{
    osg::ref_ptr<osg::Group> group = new osg::Group;
    std::map<Surface, osg::ref_ptr<osg::Geode>> geodes;
    for (const auto& [key, mesh] : m_meshes)
    {
        osg::ref_ptr<osg::Geode>& geode = geodes[key.first];
        if (!geode)
        {
            geode = new osg::Geode;
            geode->setName(SurfaceName(key.first));
            geode->setStateSet(states.at(key.first).get());
            group->addChild(geode.get());
        }
        geode->addDrawable(mesh.Build(IsFacade(key.first)).get());
    }
    return group;
}

} // namespace city
