// SPDX-License-Identifier: MIT
#include "Shapes.h"

#include "FacadeTextures.h"
#include "GroundTextures.h"

#include <algorithm>
#include <cmath>

namespace city
{
namespace
{

constexpr double kShadeHeight = 14.0; ///< up to which a wall stands in the shade of its surroundings, metres
constexpr float kShadeGround = 0.66f;
constexpr float kShadeTop = 0.94f;
constexpr float kShadeTier = 0.84f; ///< where a wall stands on a lower roof
constexpr double kParapet = 1.0;
constexpr double kDetailWithin = 600.0; ///< from the centre, metres: further out walls and roofs are simpler
constexpr double kParapetFrom = 9.0;    ///< lower bodies have none

osg::Vec3d Lift(const osg::Vec2d& p, double z)
{
    return {p.x(), p.y(), z};
}

double WholeParts(double length, double part)
{
    return std::max(1.0, std::floor(length / part + 0.5));
}

/// How much light reaches a wall at this height.
float Shade(double height, double bottom, double top, bool split)
{
    if (!split && bottom < kShadeHeight && top > kShadeHeight)
        return height <= bottom ? kShadeTier : 1.0f;
    if (bottom > kShadeHeight)
        return height <= bottom ? kShadeTier : 1.0f;
    const double reach = std::min(kShadeHeight, top);
    if (height >= reach)
        return height >= top ? 1.0f : kShadeTop;
    const float t = static_cast<float>(std::max(0.0, height) / reach);
    return kShadeGround + (kShadeTop - kShadeGround) * t;
}

} // namespace

void AddSlopedWalls(Site& site, const Polygon& lower, const Polygon& upper, double bottom, double top, const Skin& skin)
{
    Mesh& mesh = site.meshes.At(skin.surface, Centre(lower));
    const bool facade = IsFacade(skin.surface);
    const FacadeModule module = facade ? ModuleOf(skin.surface) : FacadeModule{4.0, 4.0};
    const double floors = WholeParts(top - bottom, module.floor);
    const double firstFloor = site.random.Whole(0, kFacadeBays - 1);
    double bay = site.random.Whole(0, kFacadeBays - 1);
    const bool split = bottom < kShadeHeight * 0.5 && top > kShadeHeight * 1.6 && Centre(lower).length() < kDetailWithin;
    const double levels[] = {bottom, split ? kShadeHeight : top, top};
    for (std::size_t i = 0; i < lower.size(); ++i)
    {
        const std::size_t next = (i + 1) % lower.size();
        const double bays = WholeParts((lower[next] - lower[i]).length(), module.bay);
        for (int part = 0; part < (split ? 2 : 1); ++part)
        {
            const auto corner = [&](std::size_t index, double z, double u)
            {
                const double t = (z - bottom) / (top - bottom);
                const osg::Vec2d p = lower[index] * (1.0 - t) + upper[index] * t;
                return Corner{Lift(p, z),
                              {u / kFacadeBays, (firstFloor + floors * t) / kFacadeBays},
                              skin.colour * Shade(z, bottom, top, split)};
            };
            mesh.Quad(corner(i, levels[part], bay), corner(next, levels[part], bay + bays),
                      corner(next, levels[part + 1], bay + bays), corner(i, levels[part + 1], bay));
        }
        bay += bays;
    }
}

void AddWalls(Site& site, const Polygon& outline, double bottom, double top, const Skin& skin)
{
    AddSlopedWalls(site, outline, outline, bottom, top, skin);
}

void AddFlat(Site& site, const Polygon& outline, double height, Surface surface, const Colour& colour)
{
    Mesh& mesh = site.meshes.At(surface, Centre(outline));
    const double size = PictureSize(surface);
    const auto corner = [&](const osg::Vec2d& p) { return Corner{Lift(p, height), p / size, colour}; };
    std::size_t i = 1;
    for (; i + 2 < outline.size(); i += 2)
        mesh.Quad(corner(outline[0]), corner(outline[i]), corner(outline[i + 1]), corner(outline[i + 2]));
    if (i + 1 < outline.size())
        mesh.Triangle(corner(outline[0]), corner(outline[i]), corner(outline[i + 1]));
}

void AddBlockBody(Site& site, const Polygon& outline, double bottom, double top, const Skin& skin, const Colour& roof)
{
    AddWalls(site, outline, bottom, top, skin);
    site.casters.push_back({outline, bottom, top});
    const Polygon inner = Inset(outline, 0.7);
    const bool plain = Centre(outline).length() > kDetailWithin;
    if (plain || top - bottom < kParapetFrom || inner.size() != outline.size())
    {
        AddFlat(site, outline, top, Surface::Roof, roof);
        return;
    }
    // The parapet: its upper face, its inner side, and the roof a little deeper.
    Mesh& mesh = site.meshes.At(Surface::Plain, Centre(outline));
    const Colour rim = roof * 1.06f;
    for (std::size_t i = 0; i < outline.size(); ++i)
    {
        const std::size_t next = (i + 1) % outline.size();
        // Inset keeps the number of corners here, but may start at another one.
        const auto nearest = [&](const osg::Vec2d& p)
        {
            return *std::min_element(inner.begin(), inner.end(),
                                     [&](const osg::Vec2d& a, const osg::Vec2d& b)
                                     { return (a - p).length2() < (b - p).length2(); });
        };
        const osg::Vec2d a = nearest(outline[i]);
        const osg::Vec2d b = nearest(outline[next]);
        const auto corner = [&](const osg::Vec2d& p, double z, float shade) {
            return Corner{Lift(p, z), osg::Vec2d(), rim * shade};
        };
        mesh.Quad(corner(outline[i], top, 1.0f), corner(outline[next], top, 1.0f), corner(b, top, 1.0f), corner(a, top, 1.0f));
        mesh.Quad(corner(b, top - kParapet, 0.8f), corner(a, top - kParapet, 0.8f), corner(a, top, 0.95f), corner(b, top, 0.95f));
    }
    AddFlat(site, inner, top - kParapet, Surface::Roof, roof * 0.92f);
}

void AddBox(Site& site, const Polygon& outline, double bottom, double top, const Colour& colour)
{
    AddWalls(site, outline, bottom, top, {Surface::Plain, colour * 0.96f});
    AddFlat(site, outline, top, Surface::Plain, colour);
    site.casters.push_back({outline, bottom, top});
}

void AddGable(Site& site, const Polygon& outline, double eaves, double rise, double overhang, const Colour& tiles,
              const Skin& walls)
{
    osg::Vec2d along = outline[1] - outline[0];
    osg::Vec2d across = outline[3] - outline[0];
    const double length = along.normalize();
    const double width = across.normalize();
    const double drop = rise * overhang / (width / 2);
    const auto at = [&](double a, double c, double z) { return Lift(outline[0] + along * a + across * c, z); };
    Mesh& roof = site.meshes.At(Surface::Tiles, outline[0]);
    const double size = PictureSize(Surface::Tiles);
    const double slope = std::sqrt(rise * rise + width * width / 4) / size;
    const auto side = [&](double fromA, double toA, double edge)
    {
        const osg::Vec3d ridgeFrom = at(fromA, width / 2, eaves + rise);
        const osg::Vec3d ridgeTo = at(toA, width / 2, eaves + rise);
        roof.Quad({at(fromA, edge, eaves - drop), {0.0, 0.0}, tiles * 0.92f},
                  {at(toA, edge, eaves - drop), {(length + 2 * overhang) / size, 0.0}, tiles * 0.92f},
                  {ridgeTo, {(length + 2 * overhang) / size, slope}, tiles * 1.05f}, {ridgeFrom, {0.0, slope}, tiles * 1.05f});
    };
    side(-overhang, length + overhang, -overhang);
    side(length + overhang, -overhang, width + overhang);
    Mesh& gable = site.meshes.At(Surface::Plain, outline[0]);
    const Colour plaster = walls.colour * 0.97f;
    const auto corner = [&](double a, double c, double z) { return Corner{at(a, c, z), osg::Vec2d(), plaster}; };
    gable.Triangle(corner(0, width, eaves), corner(0, 0, eaves), corner(0, width / 2, eaves + rise));
    gable.Triangle(corner(length, 0, eaves), corner(length, width, eaves), corner(length, width / 2, eaves + rise));
}

void AddPyramid(Site& site, const Polygon& outline, double bottom, double top, const Colour& tiles)
{
    const osg::Vec2d centre = Centre(outline);
    Mesh& mesh = site.meshes.At(Surface::Tiles, centre);
    for (std::size_t i = 0; i < outline.size(); ++i)
    {
        const osg::Vec2d& a = outline[i];
        const osg::Vec2d& b = outline[(i + 1) % outline.size()];
        const double u = (b - a).length() / PictureSize(Surface::Tiles);
        mesh.Triangle({Lift(a, bottom), {0.0, 0.0}, tiles * 0.9f}, {Lift(b, bottom), {u, 0.0}, tiles * 0.9f},
                      {Lift(centre, top), {u / 2, (b - a).length() / PictureSize(Surface::Tiles)}, tiles * 1.05f});
    }
}

void AddBar(Site& site, const osg::Vec3d& from, const osg::Vec3d& to, double width, const Colour& colour)
{
    Mesh& mesh = site.meshes.At(Surface::Plain, {from.x(), from.y()});
    osg::Vec3d along = to - from;
    along.normalize();
    osg::Vec3d side = along ^ (std::fabs(along.z()) < 0.95 ? osg::Vec3d(0, 0, 1) : osg::Vec3d(1, 0, 0));
    side.normalize();
    const osg::Vec3d up = side ^ along;
    const osg::Vec3d offsets[] = {(side + up) * (width / 2), (up - side) * (width / 2), (-side - up) * (width / 2),
                                  (side - up) * (width / 2)};
    for (int i = 0; i < 4; ++i)
    {
        const osg::Vec3d& a = offsets[i];
        const osg::Vec3d& b = offsets[(i + 1) % 4];
        mesh.Quad({from + b, {}, colour}, {from + a, {}, colour}, {to + a, {}, colour}, {to + b, {}, colour});
    }
}

} // namespace city
