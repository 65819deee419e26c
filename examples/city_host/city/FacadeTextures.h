// SPDX-License-Identifier: MIT
#pragma once

#include "Surface.h"

#include <osg/Image>

namespace city
{

/// A facade picture repeats after so many bays (across) and as many floors (up).
constexpr int kFacadeBays = 8;

/// The size of one bay and of one floor, metres.
struct FacadeModule
{
    double bay;
    double floor;
};
FacadeModule ModuleOf(Surface facade);

/// Walls and windows by day.
osg::ref_ptr<osg::Image> PaintFacade(Surface facade);
/// The light that comes out of the windows at night, black where none does. `litShare` in [0, 1] of the windows are
/// lit, each as bright as `strength`.
osg::ref_ptr<osg::Image> PaintFacadeLights(Surface facade, double litShare, float strength);

} // namespace city
