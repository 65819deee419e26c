// SPDX-License-Identifier: MIT
#pragma once

#include "Site.h"

namespace city
{

/// A bridge at every street that has one; the middle one hangs from a pylon. Also boats on the river.
void BuildBridges(Site& site);

} // namespace city
