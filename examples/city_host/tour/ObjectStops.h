// SPDX-License-Identifier: MIT
#pragma once

#include "Stops.h"

namespace host
{

/// The stops at tooltips, the property panel, the menus, and the editing of control buttons, with the window at 1280 x 800.
std::vector<TourStop> ObjectStops();

} // namespace host
