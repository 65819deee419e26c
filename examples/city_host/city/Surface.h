// SPDX-License-Identifier: MIT
#pragma once

#include <osg/StateSet>
#include <osg/Texture2D>
#include <map>

namespace city
{

/// What a triangle is made of: it decides texture, lighting and drawing order.
enum class Surface
{
    FacadeCream,
    FacadeBrick,
    FacadeWhite,
    FacadeGlassBlue,
    FacadeGlassGrey,
    FacadeStone,
    FacadeShop,
    FacadeOld,
    FacadeFins,
    Plain,
    Roof,
    Tiles,
    Foliage,
    Inlay, ///< paths, pitches and lawns that lie on a lot
    Pond,
    Lot,
    Pavement,
    Road,
    Zebra,
    Base,
    Land,
    Water,
};

constexpr Surface kLastFacade = Surface::FacadeFins;

using SurfaceStates = std::map<Surface, osg::ref_ptr<osg::StateSet>>;

/// Texture units: the picture of the surface, and what light falls on it (ground) or comes out of it (facades).
constexpr unsigned kPictureUnit = 0;
constexpr unsigned kLightUnit = 1;

bool IsFacade(Surface surface);
const char* SurfaceName(Surface surface);
/// The ground surfaces share `lightMap`, which covers the square of `lightMapSize` metres about the origin.
SurfaceStates MakeSurfaceStates(osg::Texture2D* lightMap, double lightMapSize);

} // namespace city
