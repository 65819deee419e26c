// SPDX-License-Identifier: MIT
#include "Register.h"

#include "Address.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace city
{
namespace
{

/// The survey grid's origin, so that coordinates read like those of a real city.
constexpr double kNorthingOrigin = 3482000.0;
constexpr double kEastingOrigin = 512000.0;

struct Words
{
    const char* zh;
    const char* en;
};

constexpr Words kPlaces[] = {{"临江", "Linjiang"},  {"云溪", "Yunxi"},    {"翠湖", "Cuihu"},    {"锦绣", "Jinxiu"},
                             {"望江", "Wangjiang"}, {"和平", "Heping"},   {"朝阳", "Chaoyang"}, {"青石", "Qingshi"},
                             {"梧桐", "Wutong"},    {"桂香", "Guixiang"}, {"月湾", "Yuewan"},   {"新桥", "Xinqiao"},
                             {"东林", "Donglin"},   {"南浦", "Nanpu"},    {"白鹭", "Bailu"},    {"长乐", "Changle"}};
constexpr Words kEstates[] = {{"花园", "Garden"}, {"家园", "Homes"}, {"新苑", "Court"}, {"雅居", "Residence"}};
constexpr Words kOffices[] = {
    {"大厦", "Tower"}, {"国际中心", "International Centre"}, {"金融大厦", "Finance Tower"}, {"商务中心", "Business Centre"}};
constexpr Words kShops[] = {{"商场", "Mall"}, {"百货", "Store"}, {"生活广场", "Plaza"}, {"市集", "Market"}};
constexpr Words kLanes[] = {{"青石巷", "Qingshi Lane"},
                            {"书院街", "Shuyuan Street"},
                            {"桂花弄", "Guihua Alley"},
                            {"井亭里", "Jingting Lane"},
                            {"茶市街", "Chashi Street"}};
constexpr Words kWorks[] = {{"科技园", "Tech Park"}, {"物流中心", "Logistics Centre"}, {"创意工坊", "Workshop"}};
constexpr Words kOwners[] = {{"滨江城投集团", "Riverside Urban Investment"},
                             {"云溪置业", "Yunxi Properties"},
                             {"新城开发公司", "New Town Development"},
                             {"市公房管理中心", "Municipal Housing Office"},
                             {"华岸实业", "Huaan Industries"}};
constexpr Words kDesigners[] = {{"市建筑设计院", "Municipal Design Institute"},
                                {"江南设计事务所", "Jiangnan Architects"},
                                {"大地规划设计", "Dadi Planning and Design"},
                                {"方圆建筑工作室", "Fangyuan Studio"}};

const Words kUses[] = {{"住宅", "Residential"},  {"商业办公", "Office"},     {"商业零售", "Retail"}, {"商住混合", "Mixed use"},
                       {"历史街区", "Old town"}, {"工业研发", "Industrial"}, {"教育", "Education"},  {"文化", "Culture"},
                       {"体育", "Sport"},        {"地标综合体", "Landmark"}};

Label Structure(Use use, double height)
{
    if (use == Use::OldTown)
        return {"砖木结构", "Brick and timber"};
    if (use == Use::Sport)
        return {"大跨度钢结构", "Long-span steel"};
    if (height > 150.0)
        return {"框架-核心筒", "Frame and core"};
    if (height > 60.0)
        return {"框架-剪力墙", "Frame and shear wall"};
    if (height > 24.0)
        return {"剪力墙结构", "Shear wall"};
    return use == Use::Industrial ? Label{"钢结构", "Steel frame"} : Label{"框架结构", "Concrete frame"};
}

Label NameOf(Site& site, Use use, const Plot& plot, int number)
{
    const std::string digits = std::to_string(number);
    const auto joined = [&](const Words& place, const Words& kind) {
        return Label{std::string(place.zh) + kind.zh, std::string(place.en) + " " + kind.en};
    };
    const Words& place = site.random.Pick(kPlaces);
    switch (use)
    {
    case Use::Residential:
        return {plot.estateZh + " " + digits + " 号楼", plot.estateEn + " No. " + digits};
    case Use::OldTown:
    {
        const Words& lane = site.random.Pick(kLanes);
        return {std::string(lane.zh) + " " + digits + " 号", digits + " " + lane.en};
    }
    case Use::Retail:
        return joined(place, site.random.Pick(kShops));
    case Use::Industrial:
        return joined(place, site.random.Pick(kWorks));
    case Use::Education:
        return joined(place, {"学校", "School"});
    default:
    {
        Label name = joined(place, site.random.Pick(kOffices));
        const char block = static_cast<char>('A' + number % 4);
        return {name.zh + " " + block + " 座", name.en + " " + block};
    }
    }
}

Label Chosen(const Words& words)
{
    return {words.zh, words.en};
}

} // namespace

Label UseName(Use use)
{
    return Chosen(kUses[static_cast<int>(use)]);
}

Plot MakePlot(Site& site, double area, Use use)
{
    const Words& place = site.random.Pick(kPlaces);
    const Words& estate = site.random.Pick(kEstates);
    const bool homes = use == Use::Residential;
    return {area, homes ? site.random.Range(0.30, 0.42) : site.random.Range(0.12, 0.31), std::string(place.zh) + estate.zh,
            std::string(place.en) + " " + estate.en};
}

Building& Enter(Site& site, Use use, const Polygon& footprint, double height, int floors, const Plot& plot)
{
    Building building;
    const int number = static_cast<int>(site.buildings.size()) + 1;
    char id[16];
    std::snprintf(id, sizeof(id), "B%04d", number);
    building.id = id;
    building.use = use;
    building.footprint = footprint;
    building.floors = floors;
    building.height = height;
    building.footprintArea = Area(footprint);
    // Upper floors of tall buildings are smaller than the footprint.
    building.floorArea = building.footprintArea * floors * (floors > 20 ? 0.78 : 0.95);
    building.plotRatio = plot.area > 1.0 ? building.floorArea / plot.area : 0.0;
    building.greenRatio = plot.greenRatio;
    building.year = use == Use::OldTown ? site.random.Whole(1898, 1948) : site.random.Whole(1988, 2024);
    building.name = NameOf(site, use, plot, use == Use::Residential ? number % 24 + 1 : number % 96 + 1);
    building.owner = Chosen(site.random.Pick(kOwners));
    building.designOffice = Chosen(site.random.Pick(kDesigners));
    building.structure = Structure(use, height);
    const osg::Vec2d centre = Centre(footprint);
    building.district = DistrictAt(site.plan, centre);
    building.address = AddressAt(site.plan, centre);
    building.northing = kNorthingOrigin + centre.y();
    building.easting = kEastingOrigin + centre.x();
    for (const osg::Vec2d& p : footprint)
    {
        building.bounds.expandBy(osg::Vec3(p.x(), p.y(), 0.0));
        building.bounds.expandBy(osg::Vec3(p.x(), p.y(), height));
    }
    site.buildings.push_back(building);
    return site.buildings.back();
}

} // namespace city
