// SPDX-License-Identifier: MIT
#include "Bridges.h"

#include "Shapes.h"

#include <osg/Math>

#include <cmath>

namespace city
{
namespace
{

constexpr int kPieces = 12;
constexpr double kRise = 3.0; ///< of the deck's middle over its ends
constexpr double kDeckDepth = 1.4;
constexpr double kSidewalk = 3.2;
constexpr double kAnchor = 2.0; ///< how far the deck lies on the banks
constexpr int kMiddleStreet = 9;

const Colour kDeck(.52f, .52f, .53f);
const Colour kWalk(.82f, .79f, .74f);
const Colour kGirder(.84f, .82f, .78f);
const Colour kPylon(.93f, .91f, .88f);
const Colour kCable(.90f, .89f, .86f);
const Colour kMark(.88f, .87f, .82f);

struct Span
{
    double x, half, south, north;

    osg::Vec3d At(double across, double t, double lift = 0.0) const
    {
        return {x + across, south + (north - south) * t, 0.02 + kRise * 4.0 * t * (1.0 - t) + lift};
    }
};

void AddDeck(Site& site, const Span& span)
{
    Mesh& mesh = site.meshes.At(Surface::Plain, {span.x, (span.south + span.north) / 2});
    const auto band = [&](double left, double right, double t0, double t1, double lift, const Colour& colour)
    {
        mesh.Quad({span.At(left, t0, lift), {}, colour}, {span.At(right, t0, lift), {}, colour},
                  {span.At(right, t1, lift), {}, colour}, {span.At(left, t1, lift), {}, colour});
    };
    const auto side = [&](double across, double t0, double t1, double bottom, double top, const Colour& colour)
    {
        const double from = across > 0.0 ? t0 : t1, to = across > 0.0 ? t1 : t0;
        mesh.Quad({span.At(across, from, bottom), {}, colour * 0.85f}, {span.At(across, to, bottom), {}, colour * 0.85f},
                  {span.At(across, to, top), {}, colour}, {span.At(across, from, top), {}, colour});
    };
    const double road = span.half - kSidewalk;
    for (int i = 0; i < kPieces; ++i)
    {
        const double t0 = static_cast<double>(i) / kPieces, t1 = static_cast<double>(i + 1) / kPieces;
        band(-road, road, t0, t1, 0.0, kDeck);
        band(-span.half, -road, t0, t1, 0.3, kWalk);
        band(road, span.half, t0, t1, 0.3, kWalk);
        for (const double s : {-1.0, 1.0})
        {
            side(s * span.half, t0, t1, -kDeckDepth, 1.3, kGirder);
            side(-s * (span.half - 0.3), t0, t1, 0.3, 1.3, kGirder);
            band(s > 0 ? span.half - 0.3 : -span.half, s > 0 ? span.half : 0.3 - span.half, t0, t1, 1.3, kGirder * 1.05f);
        }
        // The underside, and one dash of the middle line.
        mesh.Quad({span.At(span.half, t0, -kDeckDepth), {}, kGirder * 0.5f},
                  {span.At(-span.half, t0, -kDeckDepth), {}, kGirder * 0.5f},
                  {span.At(-span.half, t1, -kDeckDepth), {}, kGirder * 0.5f},
                  {span.At(span.half, t1, -kDeckDepth), {}, kGirder * 0.5f});
        band(-0.15, 0.15, t0 + 0.02, t0 + 0.055, 0.06, kMark);
    }
    for (const double t : {0.28, 0.72})
    {
        const osg::Vec3d top = span.At(0.0, t, -kDeckDepth);
        AddWalls(site, Rectangle({top.x(), top.y()}, {span.half * 1.7, 3.0}, 0.0), kWaterLevel - 1.0, top.z(),
                 {Surface::Plain, kGirder * 0.9f});
    }
}

void AddArches(Site& site, const Span& span)
{
    for (const double side : {-1.0, 1.0})
    {
        const double across = side * (span.half - kSidewalk * 0.5);
        const auto arch = [&](double t) { return span.At(across, t, 17.0 * std::sin(osg::PI * t) - 1.0); };
        constexpr int kArchPieces = 14;
        for (int i = 0; i < kArchPieces; ++i)
        {
            const double t0 = 0.06 + 0.88 * i / kArchPieces, t1 = 0.06 + 0.88 * (i + 1) / kArchPieces;
            AddBar(site, arch(t0), arch(t1), 1.1, kPylon);
            if (i > 0)
                AddBar(site, span.At(across, t0, 0.2), arch(t0), 0.25, kCable);
        }
    }
}

void AddPylon(Site& site, const Span& span)
{
    constexpr double kTop = 82.0;
    constexpr double kFoot = 0.5;
    const osg::Vec3d top = span.At(0.0, kFoot, kTop);
    for (const double side : {-1.0, 1.0})
    {
        osg::Vec3d foot = span.At(side * (span.half + 2.0), kFoot);
        foot.z() = kWaterLevel - 1.0;
        AddBar(site, foot, top + osg::Vec3d(side * 1.2, 0.0, 0.0), 3.4, kPylon);
        constexpr int kCables = 8;
        for (int i = 0; i < kCables; ++i)
            for (const double way : {-1.0, 1.0})
            {
                const osg::Vec3d hold = top - osg::Vec3d(0.0, 0.0, 4.0 + 3.2 * (kCables - 1 - i));
                AddBar(site, span.At(side * (span.half - 0.2), kFoot + way * (0.10 + 0.38 * (i + 0.5) / kCables), 0.8), hold,
                       0.32, kCable);
            }
    }
    AddBar(site, top - osg::Vec3d(0, 0, 2), top + osg::Vec3d(0, 0, 7), 3.0, kPylon);
}

void AddBoats(Site& site)
{
    for (int i = 0; i < 9; ++i)
    {
        const double x = site.random.Range(-1100.0, 1100.0);
        const double y = site.plan.RiverAt(x) + site.random.Range(-45.0, 45.0);
        const double length = site.random.Range(14.0, 30.0);
        const Polygon box = Rectangle({x, y}, {length, length * 0.24}, 0.1);
        const osg::Vec2d bow = (box[1] + box[2]) / 2.0 + osg::Vec2d(length * 0.2, length * 0.02);
        const Polygon hull = {box[0], box[1], bow, box[2], box[3]};
        AddWalls(site, hull, kWaterLevel - 0.2, kWaterLevel + 1.8, {Surface::Plain, Colour(.90f, .88f, .84f)});
        AddFlat(site, hull, kWaterLevel + 1.8, Surface::Plain, Colour(.76f, .70f, .60f));
        const Polygon cabin = Scaled(Moved(box, osg::Vec2d(-length * 0.1, 0.0)), {x, y}, 0.6);
        AddWalls(site, cabin, kWaterLevel + 1.8, kWaterLevel + 4.2, {Surface::FacadeShop, Colour(.95f, .94f, .92f)});
        AddFlat(site, cabin, kWaterLevel + 4.2, Surface::Plain, Colour(.94f, .94f, .93f));
    }
}

} // namespace

void BuildBridges(Site& site)
{
    for (int i = 0; i < kStreets; ++i)
    {
        const Street& street = site.plan.northSouth[i];
        if (!street.bridge)
            continue;
        const Span span{street.place, street.width / 2 + 1.0, site.plan.SouthBank(street.place) - kAnchor,
                        site.plan.NorthBank(street.place) + kAnchor};
        AddDeck(site, span);
        if (i == kMiddleStreet)
            AddPylon(site, span);
        else if (i % 2 == 0)
            AddArches(site, span);
        for (double t = 0.1; t < 1.0; t += 0.2)
            site.lamps.push_back({{street.place, span.At(0.0, t).y()}, 20.0f, 0.8f});
    }
    AddBoats(site);
}

} // namespace city
