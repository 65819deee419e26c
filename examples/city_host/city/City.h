// SPDX-License-Identifier: MIT
#pragma once

#include "Building.h"

#include <osg/Group>
#include <osg/Vec3d>
#include <memory>
#include <vector>

namespace city
{

struct CityLook;

/// The procedural city: metres, x east, y north, z up, origin in the city's middle.
struct City
{
    /// Brings its own sun (lights 0 and 1): the view shall use no head light.
    osg::ref_ptr<osg::Group> root;
    std::vector<Building> buildings;
    /// Of the built-up area; the fields and hills around it reach further.
    osg::Vec3d centre;
    double radius = 0.0;
    /// What ApplyDayTime changes.
    std::shared_ptr<CityLook> look;
};

/// The city that the viewpoints and the flight were laid out for; another seed may put a house in their way.
constexpr unsigned kUsualSeed = 7;

/// The same seed gives the same city on every platform. It starts at noon.
City BuildCity(unsigned seed);

/// Sharper facades and roads at a slant. 1, the start value, is none; a graphics card takes 8 easily, while software
/// rendering pays for anything above 1 with several times the frame time.
void SetAnisotropy(City& city, float samples);

/// The building that a picked point lies on, null when it lies on none. `worldPoint` in the city's metres.
const Building* FindBuilding(const City& city, const osg::Vec3d& worldPoint);

} // namespace city
