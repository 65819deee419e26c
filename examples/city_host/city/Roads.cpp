// SPDX-License-Identifier: MIT
#include "Ground.h"

#include "GroundTextures.h"
#include "Shapes.h"

#include <algorithm>
#include <cmath>

namespace city
{
namespace
{

constexpr double kLampStep = 30.0;
constexpr double kLampsWithin = 1400.0;
constexpr double kZebrasWithin = 650.0; ///< from the centre, as the two others
constexpr double kCarsWithin = 480.0;

const Colour kAsphalt(.61f, .61f, .62f);
const Colour kCars[] = {{.86f, .86f, .86f}, {.30f, .32f, .36f}, {.62f, .30f, .26f},
                        {.34f, .44f, .58f}, {.78f, .74f, .66f}, {.92f, .91f, .88f}};
const Colour kWindscreen(.28f, .33f, .38f);

/// A strip with its picture across the road: `axis` is a point of the middle line, `along` its direction.
void AddStrip(Site& site, const Polygon& shape, const osg::Vec2d& axis, const osg::Vec2d& along, double width, Surface surface)
{
    Mesh& mesh = site.meshes.At(surface, Centre(shape));
    const osg::Vec2d right(along.y(), -along.x());
    const auto corner = [&](const osg::Vec2d& p)
    {
        const osg::Vec2d d = p - axis;
        return Corner{{p.x(), p.y(), 0.0}, {(d * right) / width + 0.5, (d * along) / PictureSize(Surface::Road)}, kAsphalt};
    };
    for (std::size_t i = 1; i + 1 < shape.size(); ++i)
        mesh.Triangle(corner(shape[0]), corner(shape[i]), corner(shape[i + 1]));
}

const Street& Nearest(const std::vector<Street>& streets, double place)
{
    return *std::min_element(streets.begin(), streets.end(),
                             [place](const Street& a, const Street& b)
                             { return std::fabs(a.place - place) < std::fabs(b.place - place); });
}

void AddCar(Site& site, const osg::Vec2d& place, const osg::Vec2d& along)
{
    const double angle = std::atan2(along.y(), along.x());
    const bool bus = site.random.Chance(0.08);
    const Colour colour = site.random.Pick(kCars);
    if (bus)
    {
        AddBox(site, Rectangle(place, {11.0, 2.6}, angle), 0.3, 3.1, colour);
        return;
    }
    AddBox(site, Rectangle(place, {4.5, 1.9}, angle), 0.2, 1.0, colour);
    const Polygon cabin = Rectangle(place - along * 0.3, {2.6, 1.7}, angle);
    AddWalls(site, cabin, 1.0, 1.55, {Surface::Plain, kWindscreen});
    AddFlat(site, cabin, 1.55, Surface::Plain, colour);
}

/// Lamps at both kerbs, cars on the right-hand lanes.
void Furnish(Site& site, const Polygon& shape, const osg::Vec2d& axis, const osg::Vec2d& along, double width)
{
    double low = 1e9, high = -1e9;
    for (const osg::Vec2d& p : shape)
    {
        low = std::min(low, (p - axis) * along);
        high = std::max(high, (p - axis) * along);
    }
    const osg::Vec2d right(along.y(), -along.x());
    for (double at = low + 12.0; at < high; at += kLampStep)
        for (const double side : {-1.0, 1.0})
            if ((axis + along * at).length() < kLampsWithin)
                site.lamps.push_back({axis + along * at + right * (side * width * 0.46), width > 20.0 ? 17.0f : 12.0f,
                                      width > 20.0 ? 1.0f : 0.62f});
    const int cars = width > 20.0 ? static_cast<int>((high - low) / 45.0) : site.random.Whole(0, 1);
    for (int i = 0; i < cars; ++i)
    {
        const osg::Vec2d middle = axis + along * site.random.Range(low + 4.0, high - 4.0);
        const double side = site.random.Chance(0.5) ? 1.0 : -1.0;
        const double lane = width > 20.0 ? (site.random.Chance(0.5) ? 0.15 : 0.38) : 0.25;
        const osg::Vec2d place = middle + right * (side * lane * width);
        if (place.length() < kCarsWithin && Contains(shape, place))
            AddCar(site, place, along * side);
    }
}

} // namespace

void BuildRoads(Site& site)
{
    const osg::Vec2d north(0.0, 1.0), east(1.0, 0.0);
    const auto streets = [&](const std::vector<Polygon>& shapes, bool across, Surface surface)
    {
        for (const Polygon& shape : shapes)
        {
            const osg::Vec2d c = Centre(shape);
            if (surface == Surface::Zebra && c.length() > kZebrasWithin)
                continue;
            const Street& street = across ? Nearest(site.plan.eastWest, c.y()) : Nearest(site.plan.northSouth, c.x());
            const osg::Vec2d axis = across ? osg::Vec2d(0.0, street.place) : osg::Vec2d(street.place, 0.0);
            const osg::Vec2d along = across ? east : north;
            AddStrip(site, shape, axis, along, street.width, surface);
            if (surface == Surface::Road)
                Furnish(site, shape, axis, along, street.width);
        }
    };
    streets(site.plan.roads, false, Surface::Road);
    streets(site.plan.roadsAcross, true, Surface::Road);
    streets(site.plan.zebras, false, Surface::Zebra);
    streets(site.plan.zebrasAcross, true, Surface::Zebra);
    AddStrip(site, site.plan.avenue, AvenuePoint(), AvenueDirection(), 2.0 * kAvenueHalf, Surface::Road);
    Furnish(site, site.plan.avenue, AvenuePoint(), AvenueDirection(), 2.0 * kAvenueHalf);
}

} // namespace city
