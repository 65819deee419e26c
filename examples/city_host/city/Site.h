// SPDX-License-Identifier: MIT
#pragma once

#include "Building.h"
#include "Mesh.h"
#include "Plan.h"
#include "Random.h"

#include <vector>

namespace city
{

/// Something that throws a shadow on the ground: an upright body between two heights.
struct Caster
{
    Polygon footprint;
    double bottom;
    double top;
};

struct Tree
{
    osg::Vec2d place;
    double height;
    double radius;
};

struct Lamp
{
    osg::Vec2d place;
    float radius; ///< of the light on the ground, metres
    float bright;
};

/// The city under construction: what every builder adds to.
struct Site
{
    explicit Site(unsigned citySeed) : seed(citySeed), random(citySeed) {}

    /// Starts the numbers of one part of the city, so that a change to one part leaves the others as they are.
    void Begin(unsigned part) { random = Random(seed * 100003u + part); }

    unsigned seed;
    Random random;
    Plan plan;
    MeshSet meshes;
    std::vector<Building> buildings;
    std::vector<Caster> casters;
    std::vector<Tree> trees;
    std::vector<Lamp> lamps;
};

} // namespace city
