// SPDX-License-Identifier: MIT
#include "Towers.h"

#include "FacadeTextures.h"
#include "Shapes.h"

#include <algorithm>
#include <cmath>

namespace city
{
namespace
{

const Colour kRoofs[] = {{.80f, .78f, .74f}, {.74f, .73f, .71f}, {.84f, .81f, .76f}, {.70f, .71f, .72f}};
constexpr double kRoofDetailWithin = 720.0; ///< from the centre, metres
const Colour kMachinery(.78f, .77f, .75f);

constexpr Surface kOfficeFacades[] = {Surface::FacadeGlassBlue, Surface::FacadeGlassBlue, Surface::FacadeGlassGrey,
                                      Surface::FacadeStone, Surface::FacadeFins};
constexpr Surface kHomeFacades[] = {Surface::FacadeCream, Surface::FacadeBrick, Surface::FacadeWhite};
const Colour kHomeTints[] = {{.98f, .93f, .85f}, {.95f, .88f, .80f}, {.97f, .95f, .92f}, {.95f, .90f, .82f}, {.88f, .88f, .86f}};

Skin OfficeSkin(Site& site)
{
    const Surface facade = site.random.Pick(kOfficeFacades);
    const float warm = static_cast<float>(site.random.Range(-0.05, 0.05));
    const Colour tint = facade == Surface::FacadeStone ? Colour(.97f, .92f, .85f) : Colour(.94f, .96f, .98f);
    return {facade, Colour(tint.x() + warm, tint.y(), tint.z() - warm)};
}

int FloorsOf(double height, Surface facade)
{
    return std::max(1, static_cast<int>(std::lround(height / ModuleOf(facade).floor)));
}

/// Lift houses and cooling plant.
void AddRoofPlant(Site& site, const Polygon& roof, double height)
{
    const Polygon plant = Scaled(roof, Centre(roof), site.random.Range(0.30, 0.48));
    AddBox(site, Moved(plant, (roof[1] - roof[0]) * site.random.Range(-0.12, 0.12)), height - 1.0,
           height + site.random.Range(2.5, 5.0), kMachinery);
}

} // namespace

void BuildOfficeTower(Site& site, const Polygon& lot, double height, const Plot& plot)
{
    const Skin skin = OfficeSkin(site);
    const Colour roof = site.random.Pick(kRoofs);
    const double podium = site.random.Chance(0.7) ? 4.5 * site.random.Whole(2, 4) : 0.0;
    Polygon tier = lot;
    double bottom = 0.0;
    if (podium > 0.0)
    {
        AddBlockBody(site, lot, 0.0, podium, {Surface::FacadeShop, Colour(.95f, .92f, .87f)}, roof);
        bottom = podium - 1.0;
    }
    tier = Scaled(lot, Centre(lot), podium > 0.0 ? site.random.Range(0.66, 0.80) : 0.84);
    const int shape = site.random.Whole(0, 3);
    if (shape == 0) // a chamfered plan
    {
        const osg::Vec2d centre = Centre(tier);
        for (const double turn : {0.0, 1.5707963, 3.1415927, 4.7123890})
        {
            osg::Vec2d along = tier[1] - tier[0];
            along.normalize();
            const double c = std::cos(turn + 0.7853982), s = std::sin(turn + 0.7853982);
            const osg::Vec2d out(along.x() * c - along.y() * s, along.x() * s + along.y() * c);
            const double reach = (tier[0] - centre).length() * 0.84;
            tier = ClipLeft(tier, centre + out * reach, osg::Vec2d(-out.y(), out.x()));
        }
    }
    const int tiers = height > 90.0 ? (shape == 1 ? 3 : shape == 2 ? 2 : 1) : 1;
    for (int i = 0; i < tiers; ++i)
    {
        const double top = bottom + (height - bottom) * (i + 1 == tiers ? 1.0 : i == 0 ? 0.58 : 0.62);
        AddBlockBody(site, tier, bottom, top, skin, roof);
        bottom = i + 1 == tiers ? top : top - 1.0;
        if (i + 1 < tiers)
            tier = Scaled(tier, Centre(tier), site.random.Range(0.74, 0.84));
    }
    if (shape == 3 && height > 110.0) // a crown of fins behind the parapet
        AddBox(site, Scaled(tier, Centre(tier), 0.72), height - 1.0, height + height * 0.06, skin.colour * 0.95f);
    else
        AddRoofPlant(site, tier, height);
    if (height > 170.0)
    {
        const osg::Vec2d c = Centre(tier);
        AddBar(site, {c.x(), c.y(), height}, {c.x(), c.y(), height + 26.0}, 1.2, Colour(.86f, .87f, .88f));
    }
    Enter(site, Use::Office, lot, height, FloorsOf(height, skin.surface), plot);
}

void BuildCommerce(Site& site, const Polygon& lot, const Plot& plot)
{
    const Colour roof = site.random.Pick(kRoofs);
    if (site.random.Chance(0.45))
    {
        const int floors = site.random.Whole(2, 5);
        const double height = floors * 4.5;
        AddBlockBody(site, lot, 0.0, height, {Surface::FacadeShop, site.random.Pick(kHomeTints)}, roof);
        AddRoofPlant(site, lot, height);
        Enter(site, Use::Retail, lot, height, floors, plot);
        return;
    }
    const Skin skin = OfficeSkin(site);
    const double height = site.random.Range(26.0, 74.0);
    AddWalls(site, lot, 0.0, 4.5, {Surface::FacadeShop, Colour(.93f, .90f, .86f)});
    AddBlockBody(site, lot, 4.5, height, skin, roof);
    AddRoofPlant(site, lot, height);
    Enter(site, Use::Mixed, lot, height, FloorsOf(height, skin.surface), plot);
}

void BuildApartmentTower(Site& site, const Polygon& lot, int floors, int style, const Plot& plot)
{
    const Surface facade = kHomeFacades[style % 3];
    const double height = floors * ModuleOf(facade).floor + 1.0;
    const Skin skin{facade, kHomeTints[style % 5]};
    const Colour roof = kRoofs[style % 4];
    // Two crossing bodies make the plan that gives every flat two sides.
    const osg::Vec2d centre = Centre(lot);
    const double angle = std::atan2((lot[1] - lot[0]).y(), (lot[1] - lot[0]).x());
    const double width = (lot[1] - lot[0]).length();
    const double depth = (lot[3] - lot[0]).length();
    AddBlockBody(site, Rectangle(centre, {width, depth * 0.62}, angle), 0.0, height, skin, roof);
    AddBlockBody(site, Rectangle(centre, {width * 0.56, depth}, angle), 0.0, height + 3.0, skin, roof);
    AddBox(site, Rectangle(centre, {width * 0.3, depth * 0.3}, angle), height + 2.0, height + 7.0, kMachinery);
    Enter(site, Use::Residential, lot, height + 3.0, floors, plot);
}

void BuildSlab(Site& site, const Polygon& lot, int floors, int style, const Plot& plot)
{
    const Surface facade = kHomeFacades[style % 3];
    const double height = floors * ModuleOf(facade).floor + 1.0;
    const Colour tint = kHomeTints[style % 5];
    if (floors <= 6 && style % 2 == 0)
    {
        AddWalls(site, lot, 0.0, height, {facade, tint});
        AddGable(site, lot, height, 3.2, 0.8, Colour(.66f, .46f, .38f), {facade, tint});
        site.casters.push_back({lot, 0.0, height + 1.5});
    }
    else
    {
        AddBlockBody(site, lot, 0.0, height, {facade, tint}, kRoofs[style % 4]);
        const osg::Vec2d along = lot[1] - lot[0];
        const double angle = std::atan2(along.y(), along.x());
        if (Centre(lot).length() < kRoofDetailWithin)
            AddBox(site, Rectangle(Centre(lot) + along * 0.2, {9.0, 5.0}, angle), height - 1.0, height + 2.6, tint);
    }
    Enter(site, Use::Residential, lot, height, floors, plot);
}

void BuildWorks(Site& site, const Polygon& lot, const Plot& plot)
{
    const double height = site.random.Range(8.0, 15.0);
    const Colour tints[] = {{.90f, .89f, .86f}, {.80f, .84f, .88f}, {.88f, .82f, .74f}};
    const Skin skin{site.random.Chance(0.5) ? Surface::FacadeGlassGrey : Surface::FacadeStone, site.random.Pick(tints)};
    AddBlockBody(site, lot, 0.0, height, skin, Colour(.80f, .81f, .82f));
    const osg::Vec2d along = lot[1] - lot[0];
    const double angle = std::atan2(along.y(), along.x());
    const double depth = (lot[3] - lot[0]).length();
    for (const double place : {-0.2, 0.2}) // roof lights
        AddBox(site, Rectangle(Centre(lot) + along * place, {along.length() * 0.08, depth * 0.7}, angle), height - 1.0,
               height + 0.8, Colour(.74f, .82f, .87f));
    Enter(site, Use::Industrial, lot, height, std::max(1, static_cast<int>(height / 4.5)), plot);
}

void BuildOldHouse(Site& site, const Polygon& lot, const Plot& plot)
{
    const Colour plaster[] = {{.97f, .94f, .88f}, {.94f, .88f, .79f}, {.90f, .82f, .72f}, {.98f, .96f, .93f}};
    const Colour tiles[] = {{.47f, .46f, .46f}, {.42f, .42f, .44f}, {.54f, .44f, .38f}, {.50f, .48f, .46f}};
    const int floors = site.random.Chance(0.55) ? 2 : site.random.Chance(0.5) ? 1 : 3;
    const double eaves = floors * 3.2;
    const Skin skin{Surface::FacadeOld, site.random.Pick(plaster)};
    const double rise = (lot[3] - lot[0]).length() * site.random.Range(0.24, 0.32);
    AddWalls(site, lot, 0.0, eaves, skin);
    AddGable(site, lot, eaves, rise, 0.7, site.random.Pick(tiles), skin);
    site.casters.push_back({lot, 0.0, eaves + rise * 0.6});
    Enter(site, Use::OldTown, lot, eaves + rise, floors, plot);
}

void BuildSchool(Site& site, const Polygon& lot, const Plot& plot)
{
    const int floors = 4;
    const double height = floors * 3.8;
    AddBlockBody(site, lot, 0.0, height, {Surface::FacadeStone, Colour(.93f, .80f, .68f)}, kRoofs[2]);
    Enter(site, Use::Education, lot, height, floors, plot);
}

} // namespace city
