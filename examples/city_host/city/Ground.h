// SPDX-License-Identifier: MIT
#pragma once

#include "Site.h"

namespace city
{

/// The plain below everything: asphalt between the blocks, fields and hills around the city, the river and its banks.
void BuildTerrain(Site& site);
/// Lane markings, crossings, cars, and the places of the street lamps.
void BuildRoads(Site& site);

} // namespace city
