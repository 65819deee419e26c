// SPDX-License-Identifier: MIT
#pragma once

#include "LightMap.h"
#include "Sky.h"
#include "Surface.h"

#include <osg/Fog>
#include <osg/Light>
#include <osg/LightModel>

namespace city
{

/// The parts of the scene that the time of day changes.
struct CityLook
{
    CityLook(const Site& site) : lightMap(site.casters, site.trees, site.lamps) {}

    SurfaceStates surfaces;
    osg::ref_ptr<Sky> sky;
    osg::ref_ptr<osg::Light> sun;
    osg::ref_ptr<osg::Light> fill; ///< from the sky on the side away from the sun
    osg::ref_ptr<osg::LightModel> ambient;
    osg::ref_ptr<osg::Fog> haze;
    osg::ref_ptr<osg::Texture2D> lightTexture;
    LightMap lightMap;
};

} // namespace city
