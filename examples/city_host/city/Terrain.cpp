// SPDX-License-Identifier: MIT
#include "Ground.h"

#include "GroundTextures.h"
#include "Parks.h"
#include "Shapes.h"

#include <algorithm>
#include <cmath>

namespace city
{
namespace
{

constexpr double kEdge = kCityHalf + 14.0;
constexpr double kHorizon = 7000.0;
constexpr double kWallTop = 0.3;
constexpr double kParapet = 1.2;

const Colour kAsphalt(.60f, .60f, .61f);
const Colour kFields(.66f, .68f, .57f);
const Colour kWater(.50f, .63f, .68f);
const Colour kWalk(.87f, .83f, .77f);
const Colour kBank(.80f, .77f, .72f);
const Colour kHills[] = {{.55f, .59f, .50f}, {.60f, .63f, .55f}};

Polygon Between(const Plan& plan, double x0, double x1, double offset0, double offset1)
{
    return {{x0, plan.RiverAt(x0) + offset0},
            {x1, plan.RiverAt(x1) + offset0},
            {x1, plan.RiverAt(x1) + offset1},
            {x0, plan.RiverAt(x0) + offset1}};
}

/// The ground on both sides of the river between two places where the river bends.
void AddColumn(Site& site, double x0, double x1, bool city)
{
    const Plan& plan = site.plan;
    const Polygon north = {{x0, plan.NorthBank(x0)}, {x1, plan.NorthBank(x1)}, {x1, kEdge}, {x0, kEdge}};
    const Polygon south = {{x0, -kEdge}, {x1, -kEdge}, {x1, plan.SouthBank(x1)}, {x0, plan.SouthBank(x0)}};
    const Surface surface = city ? Surface::Base : Surface::Land;
    const Colour& colour = city ? kAsphalt : kFields;
    AddFlat(site, north, 0.0, surface, colour);
    AddFlat(site, south, 0.0, surface, colour);
    AddFlat(site, Rectangle(x0, kEdge, x1, kHorizon), 0.0, Surface::Land, kFields);
    AddFlat(site, Rectangle(x0, -kHorizon, x1, -kEdge), 0.0, Surface::Land, kFields);
    AddFlat(site, Between(plan, x0, x1, -kRiverHalf, kRiverHalf), kWaterLevel, Surface::Water, kWater);
}

/// The wall down to the water, its parapet and the walk behind it, from `x0` to `x1` on one bank.
void AddBank(Site& site, double x0, double x1, double side, bool walk)
{
    const Plan& plan = site.plan;
    const double edge = kRiverHalf * side;
    const auto at = [&](double x, double offset, double z) { return osg::Vec3d(x, plan.RiverAt(x) + edge + offset * side, z); };
    Mesh& mesh = site.meshes.At(Surface::Plain, {x0, plan.RiverAt(x0)});
    const auto face = [&](double offset, double bottom, double top, double facing, float dark)
    {
        const double from = facing * side < 0.0 ? x0 : x1;
        const double to = facing * side < 0.0 ? x1 : x0;
        mesh.Quad({at(from, offset, bottom), {}, kBank * dark}, {at(to, offset, bottom), {}, kBank * dark},
                  {at(to, offset, top), {}, kBank}, {at(from, offset, top), {}, kBank});
    };
    face(0.0, kWaterLevel - 1.0, kWallTop + (walk ? kParapet : 0.0), -1.0, 0.72f);
    if (!walk)
        return;
    face(0.6, kWallTop, kWallTop + kParapet, 1.0, 0.85f);
    const double low = std::min(edge, edge + 0.6 * side), high = std::max(edge, edge + 0.6 * side);
    AddFlat(site, Between(plan, x0, x1, low, high), kWallTop + kParapet, Surface::Plain, kBank * 1.08f);
    const double inner = edge + 0.6 * side, outer = edge + kPromenade * side;
    AddFlat(site, Between(plan, x0, x1, std::min(inner, outer), std::max(inner, outer)), kWallTop, Surface::Pavement, kWalk);
    for (double x = x0 + 8.0; x < x1 - 4.0; x += 20.0)
    {
        const double y = plan.RiverAt(x) + edge + 6.5 * side;
        if (site.random.Chance(0.8))
            site.trees.push_back({{x, y}, site.random.Range(5.0, 7.5), 2.3});
        site.lamps.push_back({{x + 6.0, y - 4.0 * side}, 15.0f, 0.9f});
    }
}

void AddHills(Site& site)
{
    constexpr int kPeaks = 72;
    for (int range = 0; range < 2; ++range)
    {
        const double distance = range == 0 ? 4700.0 : 6200.0;
        std::vector<double> heights;
        heights.reserve(kPeaks);
        for (int i = 0; i < kPeaks; ++i)
            heights.push_back(site.random.Range(30.0, 150.0) * (range + 1.2) * (0.55 + 0.45 * std::sin(i * 0.26 + range * 2.0)));
        Mesh& mesh = site.meshes.At(Surface::Plain, {0.0, 0.0});
        for (int i = 0; i < kPeaks; ++i)
        {
            const auto foot = [&](int n, double z, double more)
            {
                const double a = 6.283185307 * n / kPeaks;
                const double d = distance + more;
                return Corner{{d * std::cos(a), d * std::sin(a), z}, {}, kHills[range]};
            };
            const int next = i + 1;
            // Seen from the city: the left end of each piece is the one further round.
            mesh.Quad(foot(next, -5.0, 0.0), foot(i, -5.0, 0.0), foot(i, heights[i], 500.0),
                      foot(next, heights[next % kPeaks], 500.0));
        }
    }
}

} // namespace

void BuildTerrain(Site& site)
{
    const std::vector<Street>& streets = site.plan.northSouth;
    const double out[] = {-kHorizon, -4000.0, -2400.0, -kEdge};
    for (int i = 0; i < 3; ++i)
    {
        AddColumn(site, out[i], out[i + 1], false);
        AddColumn(site, -out[i + 1], -out[i], false);
        for (const double side : {-1.0, 1.0})
        {
            AddBank(site, out[i], out[i + 1], side, false);
            AddBank(site, -out[i + 1], -out[i], side, false);
        }
    }
    AddColumn(site, -kEdge, streets.front().place, true);
    AddColumn(site, streets.back().place, kEdge, true);
    for (const double side : {-1.0, 1.0})
    {
        AddBank(site, -kEdge, streets.front().place, side, true);
        AddBank(site, streets.back().place, kEdge, side, true);
    }
    for (int i = 0; i + 1 < kStreets; ++i)
    {
        const Street& west = streets[i];
        const Street& east = streets[i + 1];
        AddColumn(site, west.place, east.place, true);
        const double x0 = west.place + (west.bridge ? west.width / 2 : 0.0);
        const double x1 = east.place - (east.bridge ? east.width / 2 : 0.0);
        for (const double side : {-1.0, 1.0})
        {
            AddBank(site, x0, x1, side, true);
            if (west.bridge)
                AddBank(site, west.place, x0, side, false);
            if (east.bridge)
                AddBank(site, x1, east.place, side, false);
        }
    }
    AddHills(site);
    for (int i = 0; i < 200; ++i)
    {
        const double a = site.random.Range(0.0, 6.283);
        const double d = site.random.Range(1.48, 2.1) * kCityHalf;
        const osg::Vec2d place(d * std::cos(a), d * std::sin(a));
        if (std::fabs(place.y() - site.plan.RiverAt(place.x())) > kRiverHalf + 20.0 &&
            std::max(std::fabs(place.x()), std::fabs(place.y())) > kEdge + 10.0)
            site.trees.push_back({place, site.random.Range(8.0, 14.0), site.random.Range(4.0, 8.0)});
    }
}

} // namespace city
