// SPDX-License-Identifier: MIT
#include "DayTime.h"

#include "CityLook.h"
#include "FacadeTextures.h"

#include <osg/TexEnv>
#include <cmath>

namespace city
{
namespace
{

struct Setting
{
    double azimuth;   ///< of the sun, degrees from north, clockwise
    double elevation; ///< degrees
    Colour wallAmbient, wallSun, wallFill;
    Colour groundAmbient, groundSun, lamps;
    Colour zenith, horizon, glow;
    float glowWidth, stars, haze;
    double litWindows;
    float windowStrength;
};

// clang-format off: a table
const Setting kSettings[] = {
    // morning
    {112.0,
     27.0,
     {.46f, .47f, .52f},
     {.74f, .66f, .52f},
     {.14f, .15f, .19f},
     {.50f, .53f, .60f},
     {.50f, .43f, .31f},
     {},
     {.50f, .66f, .84f},
     {.90f, .87f, .83f},
     {.20f, .14f, .05f},
     0.9f,
     0.0f,
     0.00026f,
     0.0,
     0.0f},
    // noon
    {148.0,
     50.0,
     {.50f, .50f, .52f},
     {.66f, .63f, .57f},
     {.12f, .13f, .15f},
     {.55f, .57f, .62f},
     {.49f, .46f, .40f},
     {},
     {.44f, .63f, .85f},
     {.86f, .89f, .91f},
     {.14f, .13f, .10f},
     0.5f,
     0.0f,
     0.00021f,
     0.0,
     0.0f},
    // evening
    {258.0,
     15.0,
     {.43f, .41f, .47f},
     {.82f, .60f, .38f},
     {.12f, .12f, .18f},
     {.46f, .44f, .51f},
     {.46f, .33f, .20f},
     {.20f, .14f, .07f},
     {.44f, .53f, .74f},
     {.93f, .80f, .69f},
     {.34f, .18f, .02f},
     1.0f,
     0.0f,
     0.00023f,
     0.16,
     0.55f},
    // night
    {140.0,
     48.0,
     {.22f, .22f, .31f},
     {.12f, .13f, .19f},
     {.06f, .06f, .09f},
     {.17f, .18f, .27f},
     {.06f, .07f, .11f},
     {1.05f, .74f, .40f},
     {.03f, .05f, .12f},
     {.17f, .18f, .27f},
     {.02f, .02f, .03f},
     0.4f,
     1.0f,
     0.00019f,
     0.42,
     0.95f},
};
// clang-format on

osg::Vec3d Towards(double azimuth, double elevation)
{
    const double a = osg::DegreesToRadians(azimuth), e = osg::DegreesToRadians(elevation);
    return {std::sin(a) * std::cos(e), std::cos(a) * std::cos(e), std::sin(e)};
}

osg::Vec4 Opaque(const Colour& colour)
{
    return {colour, 1.0f};
}

void SetWindows(CityLook& look, const Setting& setting)
{
    for (auto& [surface, state] : look.surfaces)
    {
        if (!IsFacade(surface))
            continue;
        if (setting.litWindows <= 0.0)
        {
            state->removeTextureAttribute(kLightUnit, osg::StateAttribute::TEXTURE);
            state->removeTextureMode(kLightUnit, GL_TEXTURE_2D);
            continue;
        }
        osg::ref_ptr<osg::Texture2D> lights =
            new osg::Texture2D(PaintFacadeLights(surface, setting.litWindows, setting.windowStrength).get());
        lights->setWrap(osg::Texture::WRAP_S, osg::Texture::REPEAT);
        lights->setWrap(osg::Texture::WRAP_T, osg::Texture::REPEAT);
        lights->setFilter(osg::Texture::MIN_FILTER, osg::Texture::LINEAR_MIPMAP_LINEAR);
        state->setTextureAttributeAndModes(kLightUnit, lights.get());
        state->setTextureAttribute(kLightUnit, new osg::TexEnv(osg::TexEnv::ADD));
    }
}

} // namespace

void ApplyDayTime(City& city, DayTime dayTime)
{
    CityLook& look = *city.look;
    const Setting& setting = kSettings[static_cast<int>(dayTime)];
    const osg::Vec3d toSun = Towards(setting.azimuth, setting.elevation);
    const osg::Vec3d toFill = Towards(setting.azimuth + 165.0, 30.0);
    look.sun->setPosition(osg::Vec4(toSun, 0.0));
    look.sun->setDiffuse(Opaque(setting.wallSun));
    look.fill->setPosition(osg::Vec4(toFill, 0.0));
    look.fill->setDiffuse(Opaque(setting.wallFill));
    look.ambient->setAmbientIntensity(Opaque(setting.wallAmbient));
    look.haze->setDensity(setting.haze);
    look.haze->setColor(Opaque(setting.horizon));
    look.sky->SetColours({setting.zenith, setting.horizon, setting.glow, setting.glowWidth, toSun, setting.stars});
    look.lightTexture->setImage(look.lightMap.Paint({toSun, setting.groundAmbient, setting.groundSun, setting.lamps}).get());
    SetWindows(look, setting);
}

} // namespace city
