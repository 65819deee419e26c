// SPDX-License-Identifier: MIT
#pragma once

#include "Surface.h"

#include <osg/Geometry>
#include <osg/Group>
#include <map>
#include <utility>
#include <vector>

namespace city
{

/// Red, green, blue in [0, 1].
using Colour = osg::Vec3f;

/// A colour's part, 0 to 1 or beyond, as a picture's byte.
unsigned char ByteOf(float part);

struct Corner
{
    osg::Vec3d position;
    osg::Vec2d texture;
    Colour colour;
};

/// Triangles of one surface that are drawn together.
class Mesh
{
public:
    /// Corners counter-clockwise seen from the visible side; the normal is taken from them.
    void Quad(const Corner& a, const Corner& b, const Corner& c, const Corner& d);
    void Triangle(const Corner& a, const Corner& b, const Corner& c);
    /// For rounded shapes: a vertex with its own normal, to be joined by Join.
    unsigned Vertex(const Corner& corner, const osg::Vec3d& normal);
    void Join(unsigned a, unsigned b, unsigned c);

    /// `lightUnit`: the texture coordinates serve the light unit too.
    osg::ref_ptr<osg::Geometry> Build(bool lightUnit) const;
    std::size_t Triangles() const { return m_indices.size() / 3; }

private:
    std::vector<osg::Vec3f> m_positions;
    std::vector<osg::Vec3f> m_normals;
    std::vector<osg::Vec4ub> m_colours;
    std::vector<osg::Vec2f> m_textures;
    std::vector<unsigned> m_indices;
};

/// The meshes of the whole city: one for each surface and square of a coarse raster, so that there are few draw calls
/// and what lies outside the view is still culled.
class MeshSet
{
public:
    Mesh& At(Surface surface, const osg::Vec2d& place);
    osg::ref_ptr<osg::Group> Build(const SurfaceStates& states) const;

private:
    std::map<std::pair<Surface, int>, Mesh> m_meshes;
};

} // namespace city
