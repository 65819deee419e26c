// SPDX-License-Identifier: MIT
#pragma once

#include "Site.h"

namespace city
{

/// The plot that a building stands on, for its ratios.
struct Plot
{
    double area;                    ///< m2
    double greenRatio;              ///< in [0, 1]
    std::string estateZh, estateEn; ///< the name that the buildings of one block share; may be empty
};

Plot MakePlot(Site& site, double area, Use use);
/// Enters a finished body in the city's register, with a name and data that fit its use.
Building& Enter(Site& site, Use use, const Polygon& footprint, double height, int floors, const Plot& plot);

} // namespace city
