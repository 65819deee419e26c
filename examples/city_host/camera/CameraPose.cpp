// SPDX-License-Identifier: MIT
#include "CameraPose.h"

#include <algorithm>
#include <cmath>

namespace host
{
namespace
{

constexpr double Pi = 3.14159265358979323846;
const osg::Vec3d Up(0.0, 0.0, 1.0);

} // namespace

CameraPose CameraPose::Between(const osg::Vec3d& eye, const osg::Vec3d& target)
{
    CameraPose pose;
    const osg::Vec3d view = target - eye;
    pose.target = target;
    pose.distance = std::max(view.length(), 1e-3);
    pose.heading = std::atan2(-view.x(), view.y());
    pose.pitch = std::asin(std::clamp(-view.z() / pose.distance, -1.0, 1.0));
    return pose;
}

osg::Vec3d CameraPose::GroundForward() const
{
    return osg::Vec3d(-std::sin(heading), std::cos(heading), 0.0);
}

osg::Vec3d CameraPose::Forward() const
{
    return GroundForward() * std::cos(pitch) - Up * std::sin(pitch);
}

osg::Vec3d CameraPose::Right() const
{
    return osg::Vec3d(std::cos(heading), std::sin(heading), 0.0);
}

osg::Vec3d CameraPose::Eye() const
{
    return target - Forward() * distance;
}

osg::Matrixd CameraPose::ViewMatrix() const
{
    return osg::Matrixd::lookAt(Eye(), target, Right() ^ Forward());
}

CameraPose Blend(const CameraPose& from, const CameraPose& to, double share)
{
    CameraPose pose;
    pose.target = from.target + (to.target - from.target) * share;
    pose.heading = from.heading + std::remainder(to.heading - from.heading, 2.0 * Pi) * share;
    pose.pitch = from.pitch + (to.pitch - from.pitch) * share;
    // Even in ratio, so that closing in from far looks as steady as from near.
    pose.distance = from.distance * std::pow(to.distance / from.distance, share);
    return pose;
}

bool Same(const CameraPose& a, const CameraPose& b)
{
    return (a.target - b.target).length() < 0.0005 * b.distance && std::fabs(a.heading - b.heading) < 0.0003 &&
           std::fabs(a.pitch - b.pitch) < 0.0003 && std::fabs(a.distance / b.distance - 1.0) < 0.0005;
}

} // namespace host
