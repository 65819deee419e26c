// SPDX-License-Identifier: MIT
#pragma once

#include "Site.h"

namespace city
{

/// What the walls of a body look like.
struct Skin
{
    Surface surface;
    Colour colour;
};

/// Upright walls; whole bays and floors, so that no window is cut. Darker towards the ground.
void AddWalls(Site& site, const Polygon& outline, double bottom, double top, const Skin& skin);
/// Walls between two outlines of the same number of corners, `lower` at `bottom` and `upper` at `top`.
void AddSlopedWalls(Site& site, const Polygon& lower, const Polygon& upper, double bottom, double top, const Skin& skin);
/// A flat polygon that faces up, its picture in metres of the plan.
void AddFlat(Site& site, const Polygon& outline, double height, Surface surface, const Colour& colour);
/// Walls, a flat roof behind a parapet, and a shadow.
void AddBlockBody(Site& site, const Polygon& outline, double bottom, double top, const Skin& skin, const Colour& roof);
/// A plain box with a shadow, for machinery on roofs and the like.
void AddBox(Site& site, const Polygon& outline, double bottom, double top, const Colour& colour);
/// A gabled roof over a rectangle (four corners, ridge along the first edge), with eaves of `overhang`.
void AddGable(Site& site, const Polygon& outline, double eaves, double rise, double overhang, const Colour& tiles,
              const Skin& walls);
/// A pointed roof.
void AddPyramid(Site& site, const Polygon& outline, double bottom, double top, const Colour& tiles);
/// A four-sided bar between two points, `width` thick.
void AddBar(Site& site, const osg::Vec3d& from, const osg::Vec3d& to, double width, const Colour& colour);

} // namespace city
