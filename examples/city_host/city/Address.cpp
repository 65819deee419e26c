// SPDX-License-Identifier: MIT
#include "Address.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace city
{
namespace
{

constexpr double kFrontage = 12.0; ///< metres of a street for each pair of house numbers

struct Words
{
    const char* zh;
    const char* en;
};

constexpr Words kRoads[] = {{"临江", "Linjiang"},  {"云溪", "Yunxi"},    {"翠湖", "Cuihu"},    {"锦绣", "Jinxiu"},
                            {"望江", "Wangjiang"}, {"和平", "Heping"},   {"朝阳", "Chaoyang"}, {"青石", "Qingshi"},
                            {"梧桐", "Wutong"},    {"桂香", "Guixiang"}, {"月湾", "Yuewan"},   {"新桥", "Xinqiao"},
                            {"东林", "Donglin"},   {"南浦", "Nanpu"},    {"白鹭", "Bailu"},    {"长乐", "Changle"},
                            {"松鹤", "Songhe"},    {"银杏", "Yinxing"},  {"丹枫", "Danfeng"}};
constexpr Words kStreetNames[] = {{"书院", "Shuyuan"}, {"荷塘", "Hetang"},   {"清波", "Qingbo"},     {"柳岸", "Liu'an"},
                                  {"广济", "Guangji"}, {"文昌", "Wenchang"}, {"钟楼", "Zhonglou"},   {"春晖", "Chunhui"},
                                  {"秋水", "Qiushui"}, {"建设", "Jianshe"},  {"人民", "Renmin"},     {"复兴", "Fuxing"},
                                  {"芳草", "Fangcao"}, {"竹园", "Zhuyuan"},  {"石榴", "Shiliu"},     {"北苑", "Beiyuan"},
                                  {"麦田", "Maitian"}, {"山前", "Shanqian"}, {"静安里", "Jing'anli"}};
static_assert(std::size(kRoads) == kStreets && std::size(kStreetNames) == kStreets);

constexpr Words kDistricts[2][2] = {{{"青石区", "Qingshi"}, {"滨江新区", "Binjiang"}},
                                    {{"云溪区", "Yunxi"}, {"朝阳区", "Chaoyang"}}};

int Nearest(const std::vector<Street>& streets, double place)
{
    int nearest = 0;
    for (int i = 1; i < static_cast<int>(streets.size()); ++i)
    {
        if (std::abs(streets[i].place - place) < std::abs(streets[nearest].place - place))
            nearest = i;
    }
    return nearest;
}

} // namespace

Label DistrictAt(const Plan& plan, const osg::Vec2d& place)
{
    const Words& words = kDistricts[place.y() > plan.RiverAt(place.x()) ? 1 : 0][place.x() > 0.0 ? 1 : 0];
    return {words.zh, std::string(words.en) + " District"};
}

Label AddressAt(const Plan& plan, const osg::Vec2d& place)
{
    const int road = Nearest(plan.northSouth, place.x());
    const int street = Nearest(plan.eastWest, place.y());
    const double toRoad = place.x() - plan.northSouth[road].place;
    const double toStreet = place.y() - plan.eastWest[street].place;
    const bool onRoad = std::abs(toRoad) < std::abs(toStreet);
    const double along = (onRoad ? place.y() : place.x()) + kCityHalf;
    const bool even = (onRoad ? toRoad : toStreet) > 0.0;
    const std::string number = std::to_string(2 * static_cast<int>(std::max(along, 0.0) / kFrontage) + (even ? 2 : 1));
    const Words& name = onRoad ? kRoads[road] : kStreetNames[street];
    const Label district = DistrictAt(plan, place);
    return {district.zh + name.zh + (onRoad ? "路 " : "街 ") + number + " 号",
            number + " " + name.en + (onRoad ? " Road, " : " Street, ") + district.en};
}

} // namespace city
