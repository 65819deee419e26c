// SPDX-License-Identifier: MIT
#include "SampleData.h"

#include <osg/Geode>
#include <osg/Image>
#include <osg/Material>
#include <osg/MatrixTransform>
#include <osg/ShapeDrawable>
#include <osg/Texture2D>
#include <osgDB/FileUtils>
#include <osgDB/WriteFile>

#include <fstream>

namespace
{
const char* const Folder = "sample_data";

osg::ref_ptr<osg::Image> Picture(int seed)
{
    constexpr int Side = 64;
    osg::ref_ptr<osg::Image> image = new osg::Image;
    image->allocateImage(Side, Side, 1, GL_RGB, GL_UNSIGNED_BYTE);
    for (int y = 0; y < Side; ++y)
    {
        for (int x = 0; x < Side; ++x)
        {
            unsigned char* pixel = image->data(x, y);
            const bool on = (x / 8 + y / 8) % 2 == 0;
            pixel[0] = static_cast<unsigned char>(on ? 230 - seed * 20 : 40 + seed * 10);
            pixel[1] = static_cast<unsigned char>(x * 3 + seed * 7);
            pixel[2] = static_cast<unsigned char>(y * 3);
        }
    }
    return image;
}

/// A body, a head and a textured plate, lit.
osg::ref_ptr<osg::Group> Model(int seed)
{
    const osg::ref_ptr<osg::Group> model = new osg::Group;
    const osg::ref_ptr<osg::Geode> body = new osg::Geode;
    body->addDrawable(new osg::ShapeDrawable(new osg::Box(osg::Vec3(), 4, 1.5f, 1.5f)));
    body->addDrawable(new osg::ShapeDrawable(new osg::Sphere(osg::Vec3(2.5f, 0, 1), 0.8f)));
    const osg::ref_ptr<osg::Material> material = new osg::Material;
    material->setDiffuse(osg::Material::FRONT_AND_BACK, osg::Vec4(0.9f, 0.1f * static_cast<float>(seed), 0.3f, 1));
    body->getOrCreateStateSet()->setAttributeAndModes(material);
    model->addChild(body);
    const osg::ref_ptr<osg::Geode> plate = new osg::Geode;
    plate->addDrawable(osg::createTexturedQuadGeometry(osg::Vec3(-4, -2, -1), osg::Vec3(8, 0, 0), osg::Vec3(0, 4, 0)));
    plate->getOrCreateStateSet()->setTextureAttributeAndModes(0, new osg::Texture2D(Picture(seed)));
    model->addChild(plate);
    return model;
}
} // namespace

std::string MakeSampleData()
{
    const std::string folder = Folder;
    osgDB::makeDirectory(folder + "/Images");
    osgDB::makeDirectory(folder + "/Cubemap_axis");
    osgDB::makeDirectory(folder + "/Cubemap_snow");
    osgDB::makeDirectory(folder + "/fonts");
    int seed = 0;
    for (const char* const name :
         {"cow", "glider", "cessna", "dumptruck", "lz", "axes", "cessnafire", "spaceship", "robot", "morphtest"})
    {
        osgDB::writeNodeFile(*Model(++seed % 9), folder + "/" + name + ".osgt");
    }
    osgDB::writeNodeFile(*Model(4), folder + "/dumptruck.osg");
    for (const char* const name : {"lz.rgb",
                                   "reflect.rgb",
                                   "smoke.rgb",
                                   "tank.rgb",
                                   "tree0.rgba",
                                   "whitemetal_diffuse.jpg",
                                   "skymap.jpg",
                                   "road.png",
                                   "blueFlowers.png",
                                   "land_shallow_topo_2048.jpg",
                                   "clouds.rgb",
                                   "brick_side.JPG",
                                   "primitives.gif",
                                   "fireparticle8x8.png",
                                   "a.jpg",
                                   "b.jpg",
                                   "dog_left_eye.jpg",
                                   "dog_right_eye.jpg",
                                   "osg64.png",
                                   "osg128.png",
                                   "osg256.png",
                                   "particle.rgb",
                                   "forestRoof.png",
                                   "osg_posx.png",
                                   "osg_posy.png"})
    {
        osgDB::writeImageFile(*Picture(++seed % 9), folder + "/Images/" + name);
    }
    for (const char* const set : {"Cubemap_axis/", "Cubemap_snow/"})
    {
        for (const char* const face : {"posx", "negx", "posy", "negy", "posz", "negz"})
        {
            osgDB::writeImageFile(*Picture(++seed % 9), folder + "/" + set + face + (set[8] == 'a' ? ".png" : ".jpg"));
        }
    }
    for (const char* const font : {"arial.ttf", "times.ttf", "VeraMono.ttf", "fudd.ttf", "dirtydoz.ttf"})
    {
        std::ifstream from(NX_TEST_FONT, std::ios::binary);
        std::ofstream(folder + "/fonts/" + font, std::ios::binary) << from.rdbuf();
    }
    return folder;
}
