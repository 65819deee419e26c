// SPDX-License-Identifier: MIT
#pragma once

#include "Building.h"
#include "Plan.h"

namespace city
{

/// The city's districts meet at the river and at its middle.
Label DistrictAt(const Plan& plan, const osg::Vec2d& place);
/// House number and street of a place: the nearest street's, odd numbers on its western and southern side.
Label AddressAt(const Plan& plan, const osg::Vec2d& place);

} // namespace city
