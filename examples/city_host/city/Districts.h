// SPDX-License-Identifier: MIT
#pragma once

#include "Site.h"

namespace city
{

/// Puts pavement, lot, buildings and trees on every block of the plan.
void BuildDistricts(Site& site);

} // namespace city
