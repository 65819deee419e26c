// SPDX-License-Identifier: MIT
#include "ObjectRows.h"

#include "../host/Language.h"
#include "Figures.h"

#include <KernelCommonUse/StringConvert.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace host
{
namespace
{

using Rows = CeGuiMainFrame::PropertyRows;

const Words metres = {L" m", L" m"};
const Words squareMetres = {L" m²", L" m²"};
const Words hectares = {L" 公顷", L" ha"};
const Words floors = {L" 层", L" floors"};
const Words buildings = {L" 栋", L" buildings"};

CString With(const CString& figure, const Words& unit)
{
    return figure + Say(unit);
}

CString Percent(double share)
{
    return Figure(share * 100.0, 1) + L" %";
}

/// Without grouping, unlike every other number.
CString Year(int year)
{
    CString text;
    text.Format(L"%d", year);
    return text;
}

/// Between the outlines' nearest corners: what a planner reads off the plan, not the clear width.
double ToNeighbour(const city::City& city, const city::Building& building)
{
    double nearest = std::numeric_limits<double>::max();
    for (const city::Building& other : city.buildings)
    {
        // Towers stand on their podium; that is no neighbour.
        if (&other == &building || building.bounds.intersects(other.bounds))
        {
            continue;
        }
        for (const osg::Vec2d& mine : building.footprint)
        {
            for (const osg::Vec2d& theirs : other.footprint)
            {
                nearest = std::min(nearest, (mine - theirs).length());
            }
        }
    }
    return nearest;
}

} // namespace

CString InLanguage(const city::Label& label)
{
    return Utf8ToCString(IsChinese() ? label.zh : label.en);
}

Rows BuildingRows(const city::City& city, const city::Building& building)
{
    const osg::Vec3 size = building.bounds._max - building.bounds._min;
    const double fromCentre = std::hypot(building.bounds.center().x(), building.bounds.center().y());
    return {
        {Say({L"名称", L"Name"}), InLanguage(building.name)},
        {Say({L"登记编号", L"Register no."}), Utf8ToCString(building.id)},
        {Say({L"用途", L"Use"}), InLanguage(city::UseName(building.use))},
        {Say({L"行政区", L"District"}), InLanguage(building.district)},
        {Say({L"地址", L"Address"}), InLanguage(building.address)},
        {Say({L"地上层数", L"Floors"}), With(Figure(building.floors), floors)},
        {Say({L"建筑高度", L"Height"}), With(Figure(building.height, 1), metres)},
        {Say({L"平均层高", L"Storey height"}), With(Figure(building.height / std::max(1, building.floors), 2), metres)},
        {Say({L"占地面积", L"Footprint"}), With(Figure(building.footprintArea), squareMetres)},
        {Say({L"总建筑面积", L"Floor area"}), With(Figure(building.floorArea), squareMetres)},
        {Say({L"容积率", L"Plot ratio"}), Figure(building.plotRatio, 2)},
        {Say({L"绿地率", L"Green ratio"}), Percent(building.greenRatio)},
        {Say({L"结构形式", L"Structure"}), InLanguage(building.structure)},
        {Say({L"竣工年份", L"Completed"}), Year(building.year)},
        {Say({L"产权单位", L"Owner"}), InLanguage(building.owner)},
        {Say({L"设计单位", L"Architects"}), InLanguage(building.designOffice)},
        {Say({L"东西向长度", L"Extent W–E"}), With(Figure(size.x(), 1), metres)},
        {Say({L"南北向长度", L"Extent S–N"}), With(Figure(size.y(), 1), metres)},
        {Say({L"测量坐标 X（北）", L"Survey X (northing)"}), With(Figure(building.northing, 2), metres)},
        {Say({L"测量坐标 Y（东）", L"Survey Y (easting)"}), With(Figure(building.easting, 2), metres)},
        {Say({L"至城市中心的距离", L"Centre, distance to"}), With(Figure(fromCentre), metres)},
        {Say({L"至最近相邻建筑轮廓的距离", L"Neighbour, distance to"}), With(Figure(ToNeighbour(city, building), 1), metres)},
    };
}

Rows CityRows(const city::City& city)
{
    double footprint = 0.0;
    double floorArea = 0.0;
    double years = 0.0;
    const city::Building* highest = nullptr;
    std::array<int, 10> ofUse = {};
    for (const city::Building& building : city.buildings)
    {
        footprint += building.footprintArea;
        floorArea += building.floorArea;
        years += building.year;
        ++ofUse[static_cast<std::size_t>(building.use)];
        highest = !highest || building.height > highest->height ? &building : highest;
    }
    const double count = std::max<double>(1.0, static_cast<double>(city.buildings.size()));
    Rows rows = {
        {Say({L"名称", L"Name"}), Translation("LKEY0")},
        {Say({L"登记建筑", L"Register"}), With(Figure(static_cast<double>(city.buildings.size())), buildings)},
        {Say({L"占地面积", L"Built-up area"}), With(Figure(footprint / 10000.0, 1), hectares)},
        {Say({L"总建筑面积", L"Floor area"}), With(Figure(floorArea / 10000.0, 1), hectares)},
        {Say({L"平均竣工年份", L"Mean completion"}), Year(static_cast<int>(years / count))},
    };
    if (highest)
    {
        rows.emplace_back(Say({L"最高建筑", L"Highest"}), InLanguage(highest->name));
        rows.emplace_back(Say({L"最高建筑高度", L"Its height"}), With(Figure(highest->height, 1), metres));
    }
    for (std::size_t use = 0; use < ofUse.size(); ++use)
    {
        rows.emplace_back(InLanguage(city::UseName(static_cast<city::Use>(use))), With(Figure(ofUse[use]), buildings));
    }
    rows.emplace_back(Say({L"提示", L"Hint"}), Say({L"单击一栋建筑", L"Click a building"}));
    return rows;
}

} // namespace host
