// SPDX-License-Identifier: MIT
#pragma once

#include "Stops.h"

namespace host
{

/// The stops at the dialog for the title, the start page and a publication, with the window at 1280 x 800.
std::vector<TourStop> DocumentStops();

} // namespace host
