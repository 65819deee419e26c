// SPDX-License-Identifier: MIT
#include "Surface.h"

#include "FacadeTextures.h"
#include "GroundTextures.h"

#include <osg/AlphaFunc>
#include <osg/CullFace>
#include <osg/PolygonOffset>
#include <osg/TexEnvFilter>
#include <osg/TexGen>
#include <osgUtil/RenderBin>

namespace city
{
namespace
{

constexpr char kNearFirstBin[] = "CityNearFirstBin";
constexpr float kLineSharpness = -0.9f; ///< levels of the picture's pyramid
constexpr float kLeafAlpha = 0.35f;

/// What is nearer to the eye is drawn first, so that hidden ground costs no pixels. The ground's layers touch each
/// other: each is pushed back a little against the one above it.
struct Order
{
    int bin;
    float push; ///< 0: none
};

Order OrderOf(Surface surface)
{
    switch (surface)
    {
    case Surface::Inlay:
    case Surface::Pond:
        return {1, 0.0f};
    case Surface::Lot:
        return {2, 1.0f};
    case Surface::Pavement:
        return {3, 2.0f};
    case Surface::Road:
    case Surface::Zebra:
        return {4, 3.0f};
    case Surface::Base:
        return {5, 4.0f};
    case Surface::Land:
        return {6, 4.0f};
    case Surface::Water:
        return {7, 0.0f};
    default:
        return {0, 0.0f};
    }
}

/// The fields lie outside the light map and are lit like walls.
bool IsGround(Surface surface)
{
    return OrderOf(surface).bin > 0 && surface != Surface::Land;
}

osg::ref_ptr<osg::Texture2D> Repeating(osg::Image* image)
{
    osg::ref_ptr<osg::Texture2D> texture = new osg::Texture2D(image);
    texture->setWrap(osg::Texture::WRAP_S, osg::Texture::REPEAT);
    texture->setWrap(osg::Texture::WRAP_T, osg::Texture::REPEAT);
    texture->setFilter(osg::Texture::MIN_FILTER, osg::Texture::LINEAR_MIPMAP_NEAREST);
    texture->setFilter(osg::Texture::MAG_FILTER, osg::Texture::LINEAR);
    texture->setUnRefImageDataAfterApply(false);
    return texture;
}

/// Bins of this name draw what is nearer first, within the limits of the merged meshes.
void RegisterNearFirstBin()
{
    if (!osgUtil::RenderBin::getRenderBinPrototype(kNearFirstBin))
        osgUtil::RenderBin::addRenderBinPrototype(kNearFirstBin, new osgUtil::RenderBin(osgUtil::RenderBin::SORT_FRONT_TO_BACK));
}

void AddLightMap(osg::StateSet& state, osg::Texture2D* lightMap, double size)
{
    osg::ref_ptr<osg::TexGen> place = new osg::TexGen;
    place->setMode(osg::TexGen::OBJECT_LINEAR);
    place->setPlane(osg::TexGen::S, osg::Plane(1.0 / size, 0.0, 0.0, 0.5));
    place->setPlane(osg::TexGen::T, osg::Plane(0.0, 1.0 / size, 0.0, 0.5));
    state.setTextureAttributeAndModes(kLightUnit, lightMap);
    state.setTextureAttribute(kLightUnit, place.get());
    state.setTextureMode(kLightUnit, GL_TEXTURE_GEN_S, osg::StateAttribute::ON);
    state.setTextureMode(kLightUnit, GL_TEXTURE_GEN_T, osg::StateAttribute::ON);
    state.setMode(GL_LIGHTING, osg::StateAttribute::OFF);
}

} // namespace

bool IsFacade(Surface surface)
{
    return surface <= kLastFacade;
}

const char* SurfaceName(Surface surface)
{
    static const char* const kNames[] = {"FacadeCream", "FacadeBrick", "FacadeWhite", "FacadeGlassBlue", "FacadeGlassGrey",
                                         "FacadeStone", "FacadeShop",  "FacadeOld",   "FacadeFins",      "Plain",
                                         "Roof",        "Tiles",       "Foliage",     "Inlay",           "Pond",
                                         "Lot",         "Pavement",    "Road",        "Zebra",           "Base",
                                         "Land",        "Water"};
    return kNames[static_cast<int>(surface)];
}

SurfaceStates MakeSurfaceStates(osg::Texture2D* lightMap, double lightMapSize)
{
    RegisterNearFirstBin();
    SurfaceStates states;
    for (int index = 0; index <= static_cast<int>(Surface::Water); ++index)
    {
        const Surface surface = static_cast<Surface>(index);
        osg::ref_ptr<osg::StateSet> state = new osg::StateSet;
        // Day and night exchange textures between frames.
        state->setDataVariance(osg::Object::DYNAMIC);
        const osg::ref_ptr<osg::Image> picture = IsFacade(surface) ? PaintFacade(surface) : PaintGround(surface);
        if (picture)
            state->setTextureAttributeAndModes(kPictureUnit, Repeating(picture.get()).get());
        if (surface == Surface::Foliage)
        {
            state->setAttributeAndModes(new osg::AlphaFunc(osg::AlphaFunc::GREATER, kLeafAlpha));
            state->setMode(GL_CULL_FACE, osg::StateAttribute::OFF);
        }
        if (surface == Surface::Road || surface == Surface::Zebra) // lines shall not blur away at a slant
            state->setTextureAttribute(kPictureUnit, new osg::TexEnvFilter(kLineSharpness));
        if (IsGround(surface))
            AddLightMap(*state, lightMap, lightMapSize);
        const Order order = OrderOf(surface);
        state->setRenderBinDetails(order.bin, kNearFirstBin);
        if (order.push > 0.0f)
            state->setAttributeAndModes(new osg::PolygonOffset(order.push * 0.5f, order.push * 2.0f));
        states[surface] = state;
    }
    return states;
}

} // namespace city
