// SPDX-License-Identifier: MIT
#pragma once

#include "Register.h"

namespace city
{

/// The kinds of ordinary buildings. Each fills `lot` (four corners, its long side first where that matters), makes
/// the bodies and enters the building in the register.
void BuildOfficeTower(Site& site, const Polygon& lot, double height, const Plot& plot);
void BuildCommerce(Site& site, const Polygon& lot, const Plot& plot);
void BuildApartmentTower(Site& site, const Polygon& lot, int floors, int style, const Plot& plot);
void BuildSlab(Site& site, const Polygon& lot, int floors, int style, const Plot& plot);
void BuildWorks(Site& site, const Polygon& lot, const Plot& plot);
void BuildOldHouse(Site& site, const Polygon& lot, const Plot& plot);
void BuildSchool(Site& site, const Polygon& lot, const Plot& plot);

} // namespace city
