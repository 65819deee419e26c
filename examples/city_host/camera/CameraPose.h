// SPDX-License-Identifier: MIT
#pragma once

#include <osg/Matrixd>
#include <osg/Vec3d>

namespace host
{

/// Where the camera stands: at a distance from a target that it looks at. Metres and radians, z up.
struct CameraPose
{
    osg::Vec3d target;
    double heading = 0.0; ///< of the view, counter-clockwise from north (y)
    double pitch = 0.5;   ///< of the view below the horizon
    double distance = 1000.0;

    static CameraPose Between(const osg::Vec3d& eye, const osg::Vec3d& target);

    osg::Vec3d Eye() const;
    osg::Vec3d Forward() const;       ///< into the view
    osg::Vec3d GroundForward() const; ///< the same along the ground
    osg::Vec3d Right() const;
    osg::Matrixd ViewMatrix() const;
};

/// A pose on the way from one to another, the shorter way round. `share` in [0, 1].
CameraPose Blend(const CameraPose& from, const CameraPose& to, double share);
/// Whether two poses give the same picture.
bool Same(const CameraPose& a, const CameraPose& b);

} // namespace host
