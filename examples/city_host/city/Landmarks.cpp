// SPDX-License-Identifier: MIT
#include "Landmarks.h"

#include "Parks.h"
#include "Register.h"
#include "Shapes.h"

#include <osg/Math>

#include <algorithm>
#include <cmath>

namespace city
{
namespace
{

const Colour kStone(.80f, .77f, .72f);
const Colour kSteel(.90f, .91f, .92f);
const Colour kSeats[] = {{.72f, .80f, .86f}, {.84f, .88f, .90f}};
const Colour kStadiumField(.50f, .66f, .38f);
const Colour kOldTiles(.45f, .44f, .45f);
const Colour kTimber(.68f, .42f, .34f);

/// A rounded square, `half` from its middle to a side.
Polygon RoundedSquare(const osg::Vec2d& centre, double half, double turn)
{
    Polygon shape;
    constexpr int kCorners = 16;
    for (int i = 0; i < kCorners; ++i)
    {
        const double a = 2.0 * osg::PI * (i + 0.5) / kCorners;
        const double c = std::cos(a), s = std::sin(a);
        const double power = 3.4;
        const double r = half / std::pow(std::pow(std::fabs(c), power) + std::pow(std::fabs(s), power), 1.0 / power);
        shape.emplace_back(centre.x() + r * std::cos(a + turn), centre.y() + r * std::sin(a + turn));
    }
    return shape;
}

/// A band between two rings of equally many corners at different heights, seen from above or from outside.
void AddBand(Site& site, const Polygon& lower, double bottom, const Polygon& upper, double top, Surface surface, const Colour& a,
             const Colour& b)
{
    Mesh& mesh = site.meshes.At(surface, Centre(lower));
    for (std::size_t i = 0; i < lower.size(); ++i)
    {
        const std::size_t next = (i + 1) % lower.size();
        const Colour& colour = i / 2 % 2 ? a : b;
        const auto corner = [&](const osg::Vec2d& p, double z, float shade) {
            return Corner{{p.x(), p.y(), z}, p / 10.0, colour * shade};
        };
        mesh.Quad(corner(lower[i], bottom, 0.9f), corner(lower[next], bottom, 0.9f), corner(upper[next], top, 1.0f),
                  corner(upper[i], top, 1.0f));
    }
}

void Name(Building& building, const char* zh, const char* en)
{
    building.name = {zh, en};
}

} // namespace

void BuildLandmark(Site& site, const Polygon& ground)
{
    const osg::Vec2d centre = Centre(ground);
    constexpr double kHeight = 318.0;
    constexpr int kStages = 22;
    const Skin skin{Surface::FacadeFins, Colour(.92f, .96f, 1.0f)};
    // A wide podium, then a shaft that swells, tapers and turns on its way up.
    const Polygon podium = RoundedSquare(centre, 38.0, 0.0);
    AddBlockBody(site, podium, 0.0, 13.5, {Surface::FacadeShop, kStone}, kStone * 0.95f);
    const auto ring = [&](int stage)
    {
        const double t = static_cast<double>(stage) / kStages;
        const double half = 24.5 * (1.0 + 0.10 * std::sin(osg::PI * std::min(1.0, t * 1.8))) * (1.0 - 0.48 * t * t);
        return RoundedSquare(centre, half, t * osg::PI / 5.0);
    };
    const auto level = [](int stage) { return 12.5 + (kHeight - 12.5) * stage / kStages; };
    for (int stage = 0; stage < kStages; ++stage)
    {
        AddSlopedWalls(site, ring(stage), ring(stage + 1), level(stage), level(stage + 1), skin);
        if (stage % 4 == 0)
            site.casters.push_back({ring(stage), level(stage), level(std::min(kStages, stage + 4))});
    }
    const Polygon crown = ring(kStages);
    AddFlat(site, crown, kHeight, Surface::Roof, kSteel);
    const Polygon lantern = Scaled(crown, centre, 0.62);
    AddSlopedWalls(site, lantern, Scaled(lantern, centre, 0.5), kHeight, kHeight + 22.0, skin);
    AddBar(site, {centre.x(), centre.y(), kHeight + 18.0}, {centre.x(), centre.y(), kHeight + 62.0}, 1.6, kSteel);
    PlantYard(site, ground, {Scaled(podium, centre, 1.15)}, 26);
    Building& tower = Enter(site, Use::Landmark, podium, kHeight, 72, MakePlot(site, Area(ground), Use::Landmark));
    Name(tower, "滨江中心", "Riverside Centre");
    tower.year = 2021;
}

void BuildStadium(Site& site, const Polygon& ground)
{
    const osg::Vec2d centre = Centre(ground);
    constexpr int kSides = 48;
    constexpr double kEave = 27.0;
    constexpr double kRim = 36.0;
    const auto oval = [&](double x, double y) { return Ellipse(centre, x, y, kSides); };
    AddFlat(site, oval(118.0, 104.0), kLotHeight + 0.1, Surface::Inlay, Colour(.86f, .82f, .76f));
    const Polygon foot = oval(92.0, 78.0);
    AddSlopedWalls(site, foot, oval(100.0, 86.0), 0.0, kEave, {Surface::FacadeFins, Colour(.98f, .97f, .95f)});
    AddBand(site, oval(100.0, 86.0), kEave, oval(93.0, 79.0), kRim, Surface::Plain, kSteel, kSteel * 0.96f);
    AddBand(site, oval(93.0, 79.0), kRim, oval(66.0, 52.0), kEave + 1.0, Surface::Plain, kSteel * 1.05f, kSteel * 0.98f);
    // The underside of the roof and the stands, which look inwards.
    AddBand(site, oval(66.0, 52.0), kEave + 0.8, oval(88.0, 74.0), kEave - 2.0, Surface::Plain, kSteel * 0.6f, kSteel * 0.6f);
    AddBand(site, oval(88.0, 74.0), kEave - 2.0, oval(56.0, 42.0), 3.0, Surface::Plain, kSeats[0], kSeats[1]);
    AddBand(site, oval(56.0, 42.0), 3.0, oval(56.0, 42.0), kLotHeight + 0.1, Surface::Plain, kStone, kStone);
    AddFlat(site, oval(56.0, 42.0), kLotHeight + 0.25, Surface::Inlay, Colour(.78f, .50f, .40f));
    for (int stripe = 0; stripe < 8; ++stripe)
    {
        const double x = centre.x() - 40.0 + stripe * 10.0;
        AddFlat(site, Rectangle(x, centre.y() - 25.0, x + 10.0, centre.y() + 25.0), kLotHeight + 0.4, Surface::Inlay,
                kStadiumField * (stripe % 2 ? 1.0f : 1.12f));
    }
    // The bowl is open: its ring throws the shadow in pieces.
    const Polygon outer = oval(98.0, 84.0), inner = oval(66.0, 52.0);
    for (int i = 0; i < kSides; ++i)
    {
        const int next = (i + 1) % kSides;
        site.casters.push_back({{inner[i], outer[i], outer[next], inner[next]}, kEave - 4.0, kEave + 4.0});
        site.casters.push_back(
            {{foot[i] * 0.98 + centre * 0.02, foot[i], foot[next], foot[next] * 0.98 + centre * 0.02}, 0.0, kEave});
    }
    PlantYard(site, ground, {oval(120.0, 106.0)}, 130);
    Building& stadium = Enter(site, Use::Sport, oval(100.0, 86.0), kRim, 4, MakePlot(site, Area(ground), Use::Sport));
    Name(stadium, "市体育中心", "City Stadium");
    stadium.year = 2014;
}

void BuildPagoda(Site& site, const Polygon& ground)
{
    const osg::Vec2d centre = Centre(ground);
    constexpr int kTiers = 7;
    constexpr double kTierHeight = 6.4;
    const Polygon court = Rectangle(centre, {64.0, 60.0}, 0.0);
    AddFlat(site, court, kLotHeight + 0.1, Surface::Inlay, Colour(.82f, .78f, .70f));
    AddBox(site, Ellipse(centre, 14.0, 14.0, 8), 0.0, 2.4, kStone);
    double bottom = 2.4;
    for (int tier = 0; tier < kTiers; ++tier)
    {
        const double radius = 9.2 - tier * 0.85;
        const double height = kTierHeight - tier * 0.35;
        const Polygon body = Ellipse(centre, radius, radius, 8);
        AddWalls(site, body, bottom, bottom + height, {Surface::FacadeOld, Colour(.86f, .60f, .48f)});
        const Polygon eaves = Ellipse(centre, radius + 3.0, radius + 3.0, 8);
        const Polygon neck = Ellipse(centre, radius - 0.9, radius - 0.9, 8);
        AddBand(site, eaves, bottom + height - 0.8, neck, bottom + height + 0.9, Surface::Tiles, kOldTiles, kOldTiles);
        // Seen from below.
        AddBand(site, body, bottom + height - 0.6, eaves, bottom + height - 0.8, Surface::Plain, kTimber, kTimber);
        site.casters.push_back({eaves, bottom, bottom + height});
        bottom += height;
    }
    AddPyramid(site, Ellipse(centre, 4.6, 4.6, 8), bottom - 0.4, bottom + 4.0, kOldTiles);
    AddBar(site, {centre.x(), centre.y(), bottom + 3.0}, {centre.x(), centre.y(), bottom + 11.0}, 0.6, Colour(.86f, .74f, .46f));
    PlantYard(site, ground, {Scaled(court, centre, 1.05)}, 60);
    Building& pagoda = Enter(site, Use::Culture, Ellipse(centre, 14.0, 14.0, 8), bottom + 11.0, kTiers,
                             MakePlot(site, Area(ground), Use::Culture));
    Name(pagoda, "青石塔", "Qingshi Pagoda");
    pagoda.year = 1612;
    pagoda.structure = {"砖木结构", "Brick and timber"};
}

void BuildHall(Site& site, const Polygon& ground)
{
    const osg::Vec2d centre = Centre(ground);
    // Two shells on a wide terrace: each a row of arches that falls towards its ends.
    AddBox(site, Ellipse(centre, 52.0, 40.0, 28), 0.0, 2.0, kStone);
    const auto shell = [&](const osg::Vec2d& middle, double length, double width, double height)
    {
        constexpr int kAlong = 12, kAcross = 10;
        Mesh& mesh = site.meshes.At(Surface::Plain, middle);
        unsigned grid[kAlong + 1][kAcross + 1];
        for (int i = 0; i <= kAlong; ++i)
            for (int j = 0; j <= kAcross; ++j)
            {
                const double u = -1.0 + 2.0 * i / kAlong;
                const double a = osg::PI * j / kAcross;
                const double fall = std::sqrt(std::max(0.02, 1.0 - u * u));
                const osg::Vec3d p(middle.x() + u * length, middle.y() - std::cos(a) * width * fall,
                                   2.0 + std::sin(a) * height * fall);
                osg::Vec3d normal(u / length * width, -std::cos(a), std::sin(a) * width / height);
                normal.normalize();
                const float shade = static_cast<float>(0.78 + 0.22 * std::sin(a));
                grid[i][j] = mesh.Vertex({p, {}, Colour(.86f, .86f, .85f) * shade}, normal);
            }
        for (int i = 0; i < kAlong; ++i)
            for (int j = 0; j < kAcross; ++j)
            {
                mesh.Join(grid[i][j], grid[i + 1][j], grid[i + 1][j + 1]);
                mesh.Join(grid[i][j], grid[i + 1][j + 1], grid[i][j + 1]);
            }
        site.casters.push_back({Ellipse(middle, length * 0.9, width * 0.9, 16), 0.0, height * 0.7});
    };
    shell(centre + osg::Vec2d(-8.0, 5.0), 36.0, 19.0, 24.0);
    shell(centre + osg::Vec2d(16.0, -12.0), 26.0, 14.0, 16.0);
    PlantYard(site, ground, {Ellipse(centre, 56.0, 44.0, 28)}, 24);
    Building& hall =
        Enter(site, Use::Culture, Ellipse(centre, 52.0, 40.0, 28), 26.0, 3, MakePlot(site, Area(ground), Use::Culture));
    Name(hall, "江畔音乐厅", "Riverbank Concert Hall");
    hall.year = 2017;
}

} // namespace city
