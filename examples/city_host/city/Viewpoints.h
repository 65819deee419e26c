// SPDX-License-Identifier: MIT
#pragma once

#include "RoamPath.h"

#include <osg/Matrixd>
#include <osg/Vec3d>
#include <vector>

namespace city
{

/// A place to look at the city from; metres. The strings are UTF-8 and live as long as the program.
struct Viewpoint
{
    const char* id;
    const char* nameZh;
    const char* nameEn;
    osg::Vec3d eye;
    osg::Vec3d centre;
    bool isVideo; ///< a moving view: the roaming path starts here
};

const std::vector<Viewpoint>& Viewpoints();
osg::Matrixd ViewMatrix(const Viewpoint& viewpoint);

} // namespace city
