// SPDX-License-Identifier: MIT
#include "City.h"

#include "Bridges.h"
#include "CityLook.h"
#include "DayTime.h"
#include "Districts.h"
#include "Ground.h"
#include "Parks.h"

#include <osg/CullFace>
#include <osg/LightSource>
#include <osg/Material>

namespace city
{
namespace
{

constexpr double kPickTolerance = 0.6; ///< metres by which a picked point may lie off a wall

osg::ref_ptr<osg::Texture2D> MakeLightTexture()
{
    osg::ref_ptr<osg::Texture2D> texture = new osg::Texture2D;
    texture->setDataVariance(osg::Object::DYNAMIC);
    texture->setWrap(osg::Texture::WRAP_S, osg::Texture::CLAMP_TO_EDGE);
    texture->setWrap(osg::Texture::WRAP_T, osg::Texture::CLAMP_TO_EDGE);
    texture->setFilter(osg::Texture::MIN_FILTER, osg::Texture::LINEAR_MIPMAP_NEAREST);
    texture->setFilter(osg::Texture::MAG_FILTER, osg::Texture::LINEAR);
    return texture;
}

osg::ref_ptr<osg::Light> AddLight(osg::Group& root, int number)
{
    osg::ref_ptr<osg::LightSource> source = new osg::LightSource;
    osg::ref_ptr<osg::Light> light = new osg::Light(number);
    light->setDataVariance(osg::Object::DYNAMIC);
    light->setAmbient(osg::Vec4(0, 0, 0, 1));
    light->setSpecular(osg::Vec4(0, 0, 0, 1));
    source->setLight(light.get());
    source->setCullingActive(false);
    root.addChild(source.get());
    root.getOrCreateStateSet()->setMode(GL_LIGHT0 + number, osg::StateAttribute::ON);
    return light;
}

void SetRootState(osg::StateSet& state, CityLook& look)
{
    osg::ref_ptr<osg::Material> material = new osg::Material;
    material->setColorMode(osg::Material::AMBIENT_AND_DIFFUSE);
    material->setSpecular(osg::Material::FRONT_AND_BACK, osg::Vec4(0, 0, 0, 1));
    state.setAttributeAndModes(material.get());
    state.setAttributeAndModes(new osg::CullFace(osg::CullFace::BACK));
    look.haze = new osg::Fog;
    look.haze->setDataVariance(osg::Object::DYNAMIC);
    look.haze->setMode(osg::Fog::EXP2);
    state.setAttributeAndModes(look.haze.get());
    look.ambient = new osg::LightModel;
    look.ambient->setDataVariance(osg::Object::DYNAMIC);
    state.setAttributeAndModes(look.ambient.get());
    state.setMode(GL_LIGHTING, osg::StateAttribute::ON);
    state.setMode(GL_NORMALIZE, osg::StateAttribute::ON);
}

} // namespace

City BuildCity(unsigned seed)
{
    Site site(seed);
    site.plan = MakePlan(site.random);
    site.Begin(1);
    BuildTerrain(site);
    site.Begin(2);
    BuildRoads(site);
    BuildDistricts(site);
    site.Begin(3);
    BuildBridges(site);
    site.Begin(4);
    BuildTrees(site);

    City city;
    city.root = new osg::Group;
    city.root->setName("City");
    city.look = std::make_shared<CityLook>(site);
    CityLook& look = *city.look;
    look.lightTexture = MakeLightTexture();
    look.surfaces = MakeSurfaceStates(look.lightTexture.get(), LightMap::kSize);
    look.sky = new Sky;
    city.root->addChild(look.sky.get());
    city.root->addChild(site.meshes.Build(look.surfaces).get());
    look.sun = AddLight(*city.root, 0);
    look.fill = AddLight(*city.root, 1);
    SetRootState(*city.root->getOrCreateStateSet(), look);
    city.buildings = std::move(site.buildings);
    city.centre.set(0.0, 0.0, 0.0);
    city.radius = kCityHalf * 1.2;
    ApplyDayTime(city, DayTime::Noon);
    return city;
}

void SetAnisotropy(City& city, float samples)
{
    for (const auto& entry : city.look->surfaces)
    {
        osg::StateAttribute* const picture = entry.second->getTextureAttribute(kPictureUnit, osg::StateAttribute::TEXTURE);
        if (picture && picture->asTexture())
        {
            picture->asTexture()->setMaxAnisotropy(samples);
            picture->asTexture()->setFilter(osg::Texture::MIN_FILTER, samples > 1.0f ? osg::Texture::LINEAR_MIPMAP_LINEAR
                                                                                     : osg::Texture::LINEAR_MIPMAP_NEAREST);
        }
    }
}

const Building* FindBuilding(const City& city, const osg::Vec3d& worldPoint)
{
    const Building* found = nullptr;
    for (const Building& building : city.buildings)
    {
        const osg::BoundingBox& box = building.bounds;
        const bool inBox = worldPoint.x() > box.xMin() - kPickTolerance && worldPoint.x() < box.xMax() + kPickTolerance &&
                           worldPoint.y() > box.yMin() - kPickTolerance && worldPoint.y() < box.yMax() + kPickTolerance;
        // Masts and crowns rise above the height that the register names.
        if (!inBox || worldPoint.z() < kLotHeight + 0.1 || worldPoint.z() > building.height * 1.3 + 5.0)
            continue;
        if (Contains(building.footprint, {worldPoint.x(), worldPoint.y()}, kPickTolerance))
            found = &building;
    }
    return found;
}

} // namespace city
