// SPDX-License-Identifier: MIT
#pragma once

#include "Site.h"

namespace city
{

/// `count` trees at random within `ground`.
void PlantGrove(Site& site, const Polygon& ground, int count);
/// Trees on what the buildings leave free.
void PlantYard(Site& site, const Polygon& ground, const std::vector<Polygon>& lots, int count);
/// Lawns with trees along the edges of a paved ground, clear of the buildings.
void PlantLawns(Site& site, const Polygon& ground, const std::vector<Polygon>& lots);
/// A row along the kerb, in the inner city only.
void PlantStreetTrees(Site& site, const Polygon& kerb);
/// Groves, paths and a pond.
void BuildPark(Site& site, const Polygon& ground);
/// A pitch with a running track, in the free half of a school's ground.
void BuildSportsField(Site& site, const Polygon& ground);
/// Turns the trees collected so far into meshes.
void BuildTrees(Site& site);

} // namespace city
