// SPDX-License-Identifier: MIT
#include "Viewpoints.h"

namespace city
{

const std::vector<Viewpoint>& Viewpoints()
{
    static const std::vector<Viewpoint> kViewpoints = {
        {"overview", "滨江全景", "Riverside overview", {-1000, -1450, 900}, {120, -30, 0}, false},
        {"cbd", "中央商务区", "Business district", {-330, -420, 260}, {230, 60, 90}, false},
        {"roam", "城市漫游", "City flight", {-620, -520, 130}, {100, -200, 60}, true},
        {"bridge", "江桥晨光", "River bridge", {190, -330, 14}, {0, -240, 22}, false},
        {"oldtown", "青石老街", "Old town", {-700, -330, 60}, {-640, -180, 12}, false},
        {"pagoda", "青石塔", "Qingshi Pagoda", {-780, -370, 24}, {-672, -220, 24}, false},
        {"park", "中央公园", "Central park", {250, 610, 62}, {440, 765, 0}, false},
        {"stadium", "体育中心", "Stadium", {560, -960, 150}, {760, -740, 5}, false},
        {"landmark", "滨江中心", "Riverside Centre", {420, -330, 10}, {225, -75, 120}, false},
        {"skyline", "对岸天际线", "Skyline across the river", {530, -350, 30}, {170, -10, 100}, false},
        {"avenue", "斜街大道", "Diagonal avenue", {-420, 425, 42}, {150, -20, 70}, false},
        {"homes", "云溪住区", "Residential quarter", {-1080, 420, 190}, {-620, 720, 0}, false},
        {"hall", "江畔音乐厅", "Concert hall", {452, -640, 118}, {350, -500, 22}, false},
        {"river", "一江两岸", "Along the river", {-1150, -420, 170}, {200, -230, 40}, false},
        {"top", "规划总图", "Plan from above", {60, -420, 1700}, {60, 40, 0}, false},
    };
    return kViewpoints;
}

osg::Matrixd ViewMatrix(const Viewpoint& viewpoint)
{
    return osg::Matrixd::lookAt(viewpoint.eye, viewpoint.centre, osg::Vec3d(0.0, 0.0, 1.0));
}

} // namespace city
