// SPDX-License-Identifier: MIT
#pragma once

#include "Stops.h"

namespace host
{

/// The stops at the tool bar, the left list and their animation, with the window at 1280 x 800 and, at last, 1920 x 1080.
std::vector<TourStop> BarStops();

} // namespace host
