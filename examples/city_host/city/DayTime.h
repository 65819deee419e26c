// SPDX-License-Identifier: MIT
#pragma once

#include "City.h"

namespace city
{

enum class DayTime
{
    Morning,
    Noon,
    Evening,
    Night,
};

/// Sun, sky, haze, shadows and lit windows. To be called between two frames; takes about a tenth of a second.
void ApplyDayTime(City& city, DayTime dayTime);

} // namespace city
