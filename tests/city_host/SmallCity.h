// SPDX-License-Identifier: MIT
#pragma once

#include <city/City.h>

#include <osg/Geode>
#include <osg/Geometry>

/// The host's city, built once for all tests.
const city::City& WholeCity();

/// A city of one building, 20 m wide, deep and high about the origin, of which only the southern wall is drawn.
city::City SmallCity();

/// An upright rectangle that looks south, from x = -halfWidth to halfWidth and up from the ground, as a geode of this name.
osg::ref_ptr<osg::Geode> Wall(const char* name, double y, double halfWidth, double height);
