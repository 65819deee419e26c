// SPDX-License-Identifier: MIT
#include "Plan.h"

#include <algorithm>
#include <cmath>

namespace city
{
namespace
{

constexpr double kStreetPitch = 2.0 * kCityHalf / (kStreets - 1);
constexpr double kMainWidth = 26.0;
constexpr double kSideWidth = 15.0;
constexpr double kZebra = 4.0;
constexpr double kSmallestBlock = 250.0; ///< m2
constexpr int kAvenueLastColumn = 9;     ///< the avenue ends at the landmark's plaza

/// Blocks that are one site, by the index of their streets; `last` included.
struct SiteRange
{
    int firstColumn, firstRow, lastColumn, lastRow;
    Zone zone;
};

constexpr SiteRange kSites[] = {
    {10, 13, 12, 14, Zone::Park},   {13, 3, 14, 4, Zone::Stadium}, {10, 8, 10, 8, Zone::Landmark}, {4, 7, 4, 7, Zone::Pagoda},
    {6, 11, 6, 11, Zone::School},   {11, 5, 11, 5, Zone::Hall},    {5, 3, 6, 3, Zone::Park},       {2, 13, 2, 13, Zone::Park},
    {15, 10, 15, 10, Zone::School}, {9, 4, 9, 4, Zone::School},    {14, 8, 14, 8, Zone::Park},     {8, 5, 8, 5, Zone::Park},
};

const SiteRange* SiteAt(int column, int row)
{
    for (const SiteRange& site : kSites)
        if (column >= site.firstColumn && column <= site.lastColumn && row >= site.firstRow && row <= site.lastRow)
            return &site;
    return nullptr;
}

double RiverCurve(double x)
{
    return -330.0 + 110.0 * std::sin(x / 520.0) + 40.0 * std::sin(x / 230.0 + 1.0);
}

std::vector<Street> MakeStreets(Random& random)
{
    std::vector<Street> streets;
    for (int i = 0; i < kStreets; ++i)
    {
        const bool main = i % 3 == 0;
        const double jitter = i > 0 && i < kStreets - 1 ? random.Range(-14.0, 14.0) : 0.0;
        streets.push_back({-kCityHalf + kStreetPitch * i + jitter, main ? kMainWidth : kSideWidth, main && i % 18 != 0});
    }
    return streets;
}

Zone ZoneAt(const osg::Vec2d& p, double river, Random& random)
{
    const double toCentre = (p - osg::Vec2d(230.0, 110.0)).length();
    const bool north = p.y() > river;
    if (p.x() > -910.0 && p.x() < -290.0 && north && p.y() < 160.0)
        return Zone::OldTown;
    if (north && toCentre < 400.0)
        return Zone::Business;
    if ((north && toCentre < 620.0) || (!north && p.y() > river - 260.0 && std::fabs(p.x() - 300.0) < 420.0))
        return random.Chance(0.7) ? Zone::Commerce : Zone::Towers;
    const double out = std::max(std::fabs(p.x()), std::fabs(p.y()));
    if (out > 1080.0)
        return random.Chance(0.4) ? Zone::Works : Zone::Slabs;
    const double pick = random.Unit();
    if (pick < 0.50)
        return Zone::Slabs;
    if (pick < 0.85)
        return Zone::Towers;
    return pick < 0.96 ? Zone::Commerce : Zone::Park;
}

/// A straight cut: what is on its left and what is on its right.
struct Line
{
    osg::Vec2d point, direction;
};

std::vector<Polygon> OutsideStrip(const std::vector<Polygon>& shapes, const Line& line, double half)
{
    const osg::Vec2d left(-line.direction.y(), line.direction.x());
    std::vector<Polygon> outside;
    for (const Polygon& shape : shapes)
    {
        outside.push_back(ClipLeft(shape, line.point + left * half, line.direction));
        outside.push_back(ClipLeft(shape, line.point - left * half, -line.direction));
    }
    outside.erase(std::remove_if(outside.begin(), outside.end(), [](const Polygon& p) { return Area(p) < 1.0; }), outside.end());
    return outside;
}

/// `shape` without the river (kept `margin` away from the water) and without the avenue.
std::vector<Polygon> Dry(const Plan& plan, const Polygon& shape, int column, double margin)
{
    const double x0 = plan.northSouth[std::max(0, column)].place;
    const double x1 = plan.northSouth[std::min(kStreets - 1, column + 1)].place;
    osg::Vec2d along(x1 - x0, plan.RiverAt(x1) - plan.RiverAt(x0));
    along.normalize();
    std::vector<Polygon> pieces =
        OutsideStrip({shape}, {osg::Vec2d(x0, plan.RiverAt(x0)), along}, (kRiverHalf + margin) * along.x());
    if (column <= kAvenueLastColumn && !pieces.empty() && Centre(shape).y() > plan.RiverAt(Centre(shape).x()))
        pieces = OutsideStrip(pieces, {AvenuePoint(), AvenueDirection()}, kAvenueHalf);
    return pieces;
}

void AddBlocks(Plan& plan, Random& random)
{
    for (int column = 0; column + 1 < kStreets; ++column)
        for (int row = 0; row + 1 < kStreets; ++row)
        {
            const SiteRange* site = SiteAt(column, row);
            if (site && (site->firstColumn != column || site->firstRow != row))
                continue;
            const Street& west = plan.northSouth[column];
            const Street& east = plan.northSouth[(site ? site->lastColumn : column) + 1];
            const Street& south = plan.eastWest[row];
            const Street& north = plan.eastWest[(site ? site->lastRow : row) + 1];
            const Polygon whole = Rectangle(west.place + west.width / 2, south.place + south.width / 2,
                                            east.place - east.width / 2, north.place - north.width / 2);
            const Zone zone = site ? site->zone : ZoneAt(Centre(whole), plan.RiverAt(Centre(whole).x()), random);
            for (const Polygon& piece : Dry(plan, whole, column, kQuay))
                if (Area(piece) > kSmallestBlock)
                {
                    const bool cutByAvenue = !site && piece.size() != 4 && column <= kAvenueLastColumn &&
                                             Centre(piece).y() > plan.RiverAt(Centre(piece).x()) + 180.0;
                    const double turned = std::atan2(AvenueDirection().y(), AvenueDirection().x());
                    plan.blocks.push_back({piece, zone, cutByAvenue && Area(piece) > 3000.0 ? turned : 0.0});
                }
        }
}

bool WithinSite(int columnA, int rowA, int columnB, int rowB)
{
    const SiteRange* site = SiteAt(columnA, rowA);
    return site && site == SiteAt(columnB, rowB);
}

void AddRoads(Plan& plan)
{
    const auto strip = [&](const Polygon& shape, int column, double margin, std::vector<Polygon>& out)
    {
        for (const Polygon& piece : Dry(plan, shape, column, margin))
            out.push_back(piece);
    };
    for (int i = 0; i < kStreets; ++i)
        for (int j = 0; j + 1 < kStreets; ++j)
        {
            const double low = plan.eastWest[j].place + plan.eastWest[j].width / 2;
            const double high = plan.eastWest[j + 1].place - plan.eastWest[j + 1].width / 2;
            const double x = plan.northSouth[i].place;
            const double half = plan.northSouth[i].width / 2;
            if (i == 0 || !WithinSite(i - 1, j, i, j))
            {
                const double margin = plan.northSouth[i].bridge ? 3.0 : kPromenade;
                strip(Rectangle(x - half, low + kZebra, x + half, high - kZebra), i, margin, plan.roads);
                strip(Rectangle(x - half, low, x + half, low + kZebra), i, margin, plan.zebras);
                strip(Rectangle(x - half, high - kZebra, x + half, high), i, margin, plan.zebras);
            }
            const double west = plan.northSouth[j].place + plan.northSouth[j].width / 2;
            const double east = plan.northSouth[j + 1].place - plan.northSouth[j + 1].width / 2;
            const double y = plan.eastWest[i].place;
            const double halfY = plan.eastWest[i].width / 2;
            if (i == 0 || !WithinSite(j, i - 1, j, i))
            {
                strip(Rectangle(west + kZebra, y - halfY, east - kZebra, y + halfY), j, kQuay, plan.roadsAcross);
                strip(Rectangle(west, y - halfY, west + kZebra, y + halfY), j, kQuay, plan.zebrasAcross);
                strip(Rectangle(east - kZebra, y - halfY, east, y + halfY), j, kQuay, plan.zebrasAcross);
            }
        }
}

Polygon MakeAvenue(const Plan& plan)
{
    const osg::Vec2d along = AvenueDirection();
    const osg::Vec2d side = osg::Vec2d(-along.y(), along.x()) * kAvenueHalf;
    const osg::Vec2d start = AvenuePoint() - along * 3000.0;
    const osg::Vec2d end = AvenuePoint() + along * 3000.0;
    Polygon strip = {start - side, end - side, end + side, start + side};
    const Street& last = plan.northSouth[kAvenueLastColumn + 1];
    strip = ClipLeft(strip, osg::Vec2d(last.place + last.width / 2, 0.0), osg::Vec2d(0.0, 1.0));
    strip = ClipLeft(strip, osg::Vec2d(-kCityHalf, 0.0), osg::Vec2d(0.0, -1.0));
    return ClipLeft(strip, osg::Vec2d(0.0, kCityHalf), osg::Vec2d(-1.0, 0.0));
}

} // namespace

osg::Vec2d AvenuePoint()
{
    return {150.0, -20.0};
}

osg::Vec2d AvenueDirection()
{
    osg::Vec2d direction(1500.0, -1170.0);
    direction.normalize();
    return direction;
}

double Plan::RiverAt(double x) const
{
    const auto next = std::upper_bound(northSouth.begin(), northSouth.end(), x,
                                       [](double value, const Street& street) { return value < street.place; });
    if (next == northSouth.begin())
        return RiverCurve(-kCityHalf) + (x + kCityHalf) * 0.12;
    if (next == northSouth.end())
        return RiverCurve(kCityHalf) + (x - kCityHalf) * 0.08;
    const double x0 = (next - 1)->place;
    const double t = (x - x0) / (next->place - x0);
    return RiverCurve(x0) * (1.0 - t) + RiverCurve(next->place) * t;
}

Plan MakePlan(Random& random)
{
    Plan plan;
    plan.northSouth = MakeStreets(random);
    plan.eastWest = MakeStreets(random);
    AddBlocks(plan, random);
    AddRoads(plan);
    plan.avenue = MakeAvenue(plan);
    return plan;
}

} // namespace city
