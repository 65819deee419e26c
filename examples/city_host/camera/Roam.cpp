// SPDX-License-Identifier: MIT
#include "Roam.h"

#include "OrbitCamera.h"

namespace host
{
namespace
{

constexpr double MetresPerSecond = 55.0;
constexpr double ApproachSeconds = 1.6;
/// Ahead along the view; what the user orbits once the flight has ended.
constexpr double TargetDistance = 260.0;

CameraPose PoseAt(const city::RoamPath& path, double at)
{
    osg::Vec3d eye;
    osg::Vec3d centre;
    osg::Vec3d up;
    path.ViewMatrix(at).getLookAt(eye, centre, up, TargetDistance);
    return CameraPose::Between(eye, centre);
}

} // namespace

void Roam::Start()
{
    running_ = true;
    camera_.FlyTo(PoseAt(path_, at_), ApproachSeconds);
}

bool Roam::Advance(double seconds)
{
    if (!running_ || camera_.IsFlying())
    {
        return false;
    }
    at_ += seconds * MetresPerSecond / path_.Length();
    camera_.SetPose(PoseAt(path_, at_));
    return true;
}

} // namespace host
