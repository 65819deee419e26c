// SPDX-License-Identifier: MIT
#include "Districts.h"

#include "Landmarks.h"
#include "Parks.h"
#include "Shapes.h"
#include "Towers.h"

#include <algorithm>
#include <cmath>

namespace city
{
namespace
{

constexpr double kPavementWidth = 4.5;
constexpr unsigned kFirstPart = 100;   ///< of the numbers: one part a block
constexpr double kKerbsWithin = 750.0; ///< from the centre, metres: nobody sees a kerb further out
const Colour kPavement(.83f, .80f, .75f);
const Colour kGrass(.66f, .70f, .52f);
const Colour kYard(.77f, .76f, .66f);
const Colour kPlaza(.86f, .82f, .76f);
const Colour kOldPaving(.74f, .70f, .64f);
const Colour kWorksYard(.72f, .71f, .68f);

/// How a zone is cut into lots: size wanted and free space between, metres, along and across the block's angle.
struct Raster
{
    double width, depth, gapX, gapY, margin;
};

Raster RasterOf(Zone zone)
{
    switch (zone)
    {
    case Zone::Business:
        return {42.0, 42.0, 18.0, 18.0, 5.0};
    case Zone::Commerce:
        return {44.0, 34.0, 14.0, 16.0, 3.0};
    case Zone::Towers:
        return {25.0, 23.0, 26.0, 30.0, 8.0};
    case Zone::Slabs:
        return {46.0, 13.0, 13.0, 21.0, 4.0};
    case Zone::OldTown:
        return {14.5, 9.5, 3.0, 6.5, 1.0};
    case Zone::School:
        return {44.0, 15.0, 16.0, 60.0, 6.0};
    default:
        return {48.0, 38.0, 14.0, 16.0, 4.0};
    }
}

Colour LotColour(Zone zone)
{
    switch (zone)
    {
    case Zone::Business:
    case Zone::Landmark:
        return kPlaza;
    case Zone::Commerce:
        return kPlaza * 0.97f;
    case Zone::OldTown:
    case Zone::Pagoda:
        return kOldPaving;
    case Zone::Works:
        return kWorksYard;
    case Zone::Slabs:
        return kYard;
    default:
        return kGrass;
    }
}

Use UseOf(Zone zone)
{
    switch (zone)
    {
    case Zone::Towers:
    case Zone::Slabs:
        return Use::Residential;
    case Zone::OldTown:
        return Use::OldTown;
    case Zone::Works:
        return Use::Industrial;
    default:
        return Use::Office;
    }
}

/// The lots of a block: as many whole rectangles as lie within `ground`, stretched to fill it.
std::vector<Polygon> MakeLots(const Polygon& ground, double angle, const Raster& raster)
{
    const osg::Vec2d origin = Centre(ground);
    const Polygon level = Scaled(ground, origin, 1.0, -angle);
    osg::Vec2d low = level.front(), high = level.front();
    for (const osg::Vec2d& p : level)
    {
        low.set(std::min(low.x(), p.x()), std::min(low.y(), p.y()));
        high.set(std::max(high.x(), p.x()), std::max(high.y(), p.y()));
    }
    const auto count = [](double length, double size, double gap)
    { return std::max(1, static_cast<int>((length + gap) / (size + gap))); };
    const int columns = count(high.x() - low.x(), raster.width, raster.gapX);
    const int rows = count(high.y() - low.y(), raster.depth, raster.gapY);
    const double width = std::min(raster.width * 1.35, (high.x() - low.x() - (columns - 1) * raster.gapX) / columns);
    const double pitchX = columns > 1 ? (high.x() - low.x() - width) / (columns - 1) : 0.0;
    const double depth = std::min(raster.depth * 1.2, (high.y() - low.y() - (rows - 1) * raster.gapY) / rows);
    const double pitchY = rows > 1 ? (high.y() - low.y() - depth) / (rows - 1) : 0.0;
    std::vector<Polygon> lots;
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
        {
            const double x = columns > 1 ? low.x() + column * pitchX : (low.x() + high.x() - width) / 2;
            const double y = rows > 1 ? low.y() + row * pitchY : (low.y() + high.y() - depth) / 2;
            const Polygon lot = Scaled(Rectangle(x, y, x + width, y + depth), origin, 1.0, angle);
            if (ContainsAll(ground, lot))
                lots.push_back(lot);
        }
    return lots;
}

/// Taller towards the business centre and towards the river.
double TowerHeight(Site& site, const osg::Vec2d& place)
{
    const double toCentre = (place - osg::Vec2d(230.0, 110.0)).length();
    const double base = 205.0 * std::exp(-toCentre * toCentre / (2.0 * 230.0 * 230.0)) + 42.0;
    return base * site.random.Range(0.62, 1.12);
}

void FillLot(Site& site, const Block& block, const Polygon& lot, int style, int floors, const Plot& plot)
{
    switch (block.zone)
    {
    case Zone::Business:
        if (site.random.Chance(0.90))
            BuildOfficeTower(site, lot, TowerHeight(site, Centre(lot)), plot);
        else
            PlantGrove(site, lot, 10);
        break;
    case Zone::Commerce:
        BuildCommerce(site, lot, plot);
        break;
    case Zone::Towers:
        BuildApartmentTower(site, lot, floors + 14 + site.random.Whole(-1, 1) * 2, style, plot);
        break;
    case Zone::Slabs:
        BuildSlab(site, lot, floors, style, plot);
        break;
    case Zone::OldTown:
        if (site.random.Chance(0.86))
        {
            const osg::Vec2d shift(site.random.Range(-0.8, 0.8), site.random.Range(-1.0, 1.0));
            const Polygon house = Moved(Scaled(lot, Centre(lot), site.random.Range(0.82, 0.96)), shift);
            // Some stand with the gable to the lane.
            const bool turned = site.random.Chance(0.2);
            BuildOldHouse(site, turned ? Polygon{house[1], house[2], house[3], house[0]} : house, plot);
        }
        else
            PlantGrove(site, lot, 2);
        break;
    case Zone::Works:
        BuildWorks(site, lot, plot);
        break;
    case Zone::School:
        BuildSchool(site, lot, plot);
        break;
    default:
        break;
    }
}

void BuildLots(Site& site, const Block& block, const Polygon& ground)
{
    const Raster raster = RasterOf(block.zone);
    const Polygon inner = Inset(ground, raster.margin);
    if (inner.empty())
        return;
    const Plot plot = MakePlot(site, Area(block.outline), UseOf(block.zone));
    const int style = site.random.Whole(0, 29);
    const int slabFloors[] = {6, 6, 6, 7, 11, 11, 18};
    const int floors = block.zone == Zone::Slabs ? site.random.Pick(slabFloors) : site.random.Whole(2, 16);
    std::vector<Polygon> lots = MakeLots(inner, block.angle, raster);
    // What the avenue and the river leave of a block often takes smaller houses only.
    for (const double scale : {0.8, 0.62, 0.48})
        if (lots.empty() && block.zone != Zone::School)
            lots = MakeLots(inner, block.angle, {raster.width * scale, raster.depth * scale, raster.gapX, raster.gapY, 0.0});
    if (lots.empty())
        PlantGrove(site, ground, static_cast<int>(Area(ground) / 220.0));
    const double plotShare = lots.empty() ? 1.0 : 1.0 / lots.size();
    Plot share = plot;
    share.area *= plotShare;
    for (const Polygon& lot : lots)
        FillLot(site, block, lot, style, floors, share);
    if (block.zone == Zone::Slabs || block.zone == Zone::Towers)
        PlantYard(site, ground, lots, Centre(ground).length() < 800.0 ? 5 : 1);
    if (block.zone == Zone::Business || block.zone == Zone::Commerce)
        PlantLawns(site, ground, lots);
    if (block.zone == Zone::School)
        BuildSportsField(site, ground);
}

} // namespace

void BuildDistricts(Site& site)
{
    unsigned part = kFirstPart;
    for (const Block& block : site.plan.blocks)
    {
        site.Begin(part++);
        const Polygon lot = Inset(block.outline, kPavementWidth);
        AddFlat(site, block.outline, kPavementHeight, Surface::Pavement, kPavement);
        if (Centre(block.outline).length() < kKerbsWithin)
            AddWalls(site, block.outline, 0.0, kPavementHeight, {Surface::Plain, kPavement * 0.9f});
        if (lot.empty())
            continue;
        const bool island = Area(lot) < 900.0;
        AddFlat(site, lot, kLotHeight, Surface::Lot, island ? kGrass : LotColour(block.zone));
        switch (block.zone)
        {
        case Zone::Park:
            BuildPark(site, lot);
            break;
        case Zone::Stadium:
            BuildStadium(site, lot);
            break;
        case Zone::Landmark:
            BuildLandmark(site, lot);
            break;
        case Zone::Pagoda:
            BuildPagoda(site, lot);
            break;
        case Zone::Hall:
            BuildHall(site, lot);
            break;
        default:
            BuildLots(site, block, lot);
            break;
        }
        PlantStreetTrees(site, block.outline);
    }
}

} // namespace city
