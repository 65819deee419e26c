// SPDX-License-Identifier: MIT
#pragma once

#include "Polygon.h"

#include <osg/BoundingBox>
#include <string>

namespace city
{

/// A text in both languages of the interface, UTF-8.
struct Label
{
    std::string zh;
    std::string en;
};

enum class Use
{
    Residential,
    Office,
    Retail,
    Mixed,
    OldTown,
    Industrial,
    Education,
    Culture,
    Sport,
    Landmark,
};

Label UseName(Use use);

/// What the property panel shows of one building. Lengths in metres, areas in square metres.
struct Building
{
    std::string id; ///< "B0001" and so on, unique in the city
    Label name;
    Use use = Use::Residential;
    osg::BoundingBox bounds;
    Polygon footprint;
    int floors = 1;
    double height = 0.0;
    double footprintArea = 0.0;
    double floorArea = 0.0;
    double plotRatio = 0.0;  ///< floor area to site area
    double greenRatio = 0.0; ///< of the site, in [0, 1]
    int year = 2000;         ///< of completion
    Label owner;
    Label district;
    Label address;
    Label designOffice;
    Label structure;
    double northing = 0.0; ///< survey coordinate X, which counts northwards
    double easting = 0.0;  ///< survey coordinate Y
};

} // namespace city
