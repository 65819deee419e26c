// SPDX-License-Identifier: MIT
#include "RoamPath.h"

#include <algorithm>
#include <cmath>

namespace city
{
namespace
{

constexpr int kSteps = 24;         ///< points of the curve between two stations
constexpr double kAhead = 130.0;   ///< how far ahead the view is aimed, metres
constexpr double kLookDown = 0.13; ///< slope of the view
constexpr double kInwards = 0.65;  ///< share of the view that turns to the city's middle
const osg::Vec3d kFocus(200.0, 40.0, 0.0);

/// Along the river, round the business district above its streets, over the old town and back.
const osg::Vec3d kStations[] = {
    {-640, -520, 120}, {-380, -470, 70}, {-180, -380, 45}, {-60, -320, 38},   {160, -270, 40},
    {420, -255, 45},   {660, -270, 70},  {860, -180, 130}, {900, 80, 190},    {820, 420, 200},
    {560, 660, 150},   {300, 780, 130},  {0, 760, 170},    {-250, 620, 170},  {-330, 420, 130},
    {-450, 200, 110},  {-640, 60, 80},   {-800, -140, 75}, {-880, -360, 110}, {-800, -500, 130},
};

osg::Vec3d CatmullRom(const osg::Vec3d& a, const osg::Vec3d& b, const osg::Vec3d& c, const osg::Vec3d& d, double t)
{
    return (b * 2.0 + (c - a) * t + (a * 2.0 - b * 5.0 + c * 4.0 - d) * (t * t) + (b * 3.0 - a - c * 3.0 + d) * (t * t * t)) *
           0.5;
}

} // namespace

RoamPath::RoamPath()
{
    const int count = static_cast<int>(sizeof(kStations) / sizeof(kStations[0]));
    for (int i = 0; i < count; ++i)
        for (int step = 0; step < kSteps; ++step)
            m_points.push_back(CatmullRom(kStations[(i + count - 1) % count], kStations[i], kStations[(i + 1) % count],
                                          kStations[(i + 2) % count], static_cast<double>(step) / kSteps));
    m_points.push_back(m_points.front());
    m_lengths.push_back(0.0);
    for (std::size_t i = 1; i < m_points.size(); ++i)
        m_lengths.push_back(m_lengths.back() + (m_points[i] - m_points[i - 1]).length());
}

osg::Vec3d RoamPath::Position(double t) const
{
    const double at = (t - std::floor(t)) * Length();
    const auto next = std::upper_bound(m_lengths.begin() + 1, m_lengths.end() - 1, at);
    const std::size_t i = static_cast<std::size_t>(next - m_lengths.begin());
    const double share = (at - m_lengths[i - 1]) / (m_lengths[i] - m_lengths[i - 1]);
    return m_points[i - 1] + (m_points[i] - m_points[i - 1]) * share;
}

osg::Matrixd RoamPath::ViewMatrix(double t) const
{
    const osg::Vec3d eye = Position(t);
    const auto level = [](osg::Vec3d direction)
    {
        direction.z() = 0.0;
        direction.normalize();
        return direction;
    };
    osg::Vec3d aim = level(Position(t + kAhead / Length()) - eye) + level(kFocus - eye) * kInwards;
    aim.normalize();
    aim.z() = -kLookDown;
    return osg::Matrixd::lookAt(eye, eye + aim, osg::Vec3d(0.0, 0.0, 1.0));
}

} // namespace city
