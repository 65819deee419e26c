// SPDX-License-Identifier: MIT
#pragma once

#include "Stops.h"

namespace host
{

/// The stops at what the interface looks like: its skins, its languages, and a skin that is edited while it is shown. With
/// the window at 1280 x 800.
std::vector<TourStop> LookStops();

} // namespace host
