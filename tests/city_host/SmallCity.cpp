// SPDX-License-Identifier: MIT
#include "SmallCity.h"

const city::City& WholeCity()
{
    static const city::City whole = city::BuildCity(city::kUsualSeed);
    return whole;
}

osg::ref_ptr<osg::Geode> Wall(const char* name, double y, double halfWidth, double height)
{
    const osg::ref_ptr<osg::Vec3Array> corners = new osg::Vec3Array;
    corners->push_back(osg::Vec3(-halfWidth, y, 0.0));
    corners->push_back(osg::Vec3(halfWidth, y, 0.0));
    corners->push_back(osg::Vec3(halfWidth, y, height));
    corners->push_back(osg::Vec3(-halfWidth, y, height));
    const GLuint indices[] = {0, 1, 2, 0, 2, 3};
    const osg::ref_ptr<osg::Geometry> geometry = new osg::Geometry;
    geometry->setVertexArray(corners);
    geometry->addPrimitiveSet(new osg::DrawElementsUInt(GL_TRIANGLES, 6, indices));
    const osg::ref_ptr<osg::Geode> geode = new osg::Geode;
    geode->setName(name);
    geode->addDrawable(geometry);
    return geode;
}

city::City SmallCity()
{
    city::City tiny;
    tiny.root = new osg::Group;
    tiny.root->addChild(Wall("FacadeCream", -10.0, 10.0, 20.0));
    city::Building building;
    building.id = "B0001";
    building.footprint = city::Rectangle(-10.0, -10.0, 10.0, 10.0);
    building.height = 20.0;
    building.bounds.set(-10.0, -10.0, 0.0, 10.0, 10.0, 20.0);
    tiny.buildings.push_back(building);
    return tiny;
}
