// SPDX-License-Identifier: MIT
#pragma once

#include "Polygon.h"
#include "Random.h"

#include <vector>

namespace city
{

/// Streets in each direction; there is one block less.
constexpr int kStreets = 19;
constexpr double kCityHalf = 1350.0; ///< metres from the origin to the outermost street
constexpr double kRiverHalf = 75.0;
constexpr double kPromenade = 10.0; ///< width of the walk along the water
constexpr double kQuay = 24.0;      ///< from the water to the first block
constexpr double kWaterLevel = -3.5;
constexpr double kPavementHeight = 0.2;
constexpr double kLotHeight = 0.3;
constexpr double kAvenueHalf = 15.0;

enum class Zone
{
    Business,
    Commerce,
    Towers,
    Slabs,
    OldTown,
    Works,
    Park,
    Stadium,
    Landmark,
    Pagoda,
    School,
    Hall,
};

struct Block
{
    Polygon outline; ///< to the kerb
    Zone zone;
    double angle; ///< of its buildings, radians
};

/// A street as the place and width of its middle line.
struct Street
{
    double place;
    double width;
    bool bridge;
};

struct Plan
{
    std::vector<Street> northSouth; ///< place is x
    std::vector<Street> eastWest;   ///< place is y
    std::vector<Block> blocks;
    std::vector<Polygon> roads;       ///< strips with lane markings, streets along y
    std::vector<Polygon> roadsAcross; ///< streets along x
    std::vector<Polygon> zebras, zebrasAcross;
    Polygon avenue;

    /// The middle of the river; straight between two north-south streets.
    double RiverAt(double x) const;
    double NorthBank(double x) const { return RiverAt(x) + kRiverHalf; }
    double SouthBank(double x) const { return RiverAt(x) - kRiverHalf; }
};

/// A point of the diagonal avenue's middle line and its direction, south-eastwards.
osg::Vec2d AvenuePoint();
osg::Vec2d AvenueDirection();

Plan MakePlan(Random& random);

} // namespace city
