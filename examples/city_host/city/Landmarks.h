// SPDX-License-Identifier: MIT
#pragma once

#include "Site.h"

namespace city
{

/// The places that stand alone, each on its own block.
void BuildLandmark(Site& site, const Polygon& ground);
void BuildStadium(Site& site, const Polygon& ground);
void BuildPagoda(Site& site, const Polygon& ground);
void BuildHall(Site& site, const Polygon& ground);

} // namespace city
