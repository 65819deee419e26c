// SPDX-License-Identifier: MIT
// The scene's layers as measured in the scene graph.
#include "SmallCity.h"
#include "support/GTest.h"

#include <objects/SceneLayers.h>

#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/ParamConfig.h>

#include <osg/Texture2D>
#include <osgUtil/Statistics>

#include <string>

namespace
{
const host::SceneLayer* Find(const std::vector<host::SceneLayer>& layers, const wchar_t* english)
{
    for (const host::SceneLayer& layer : layers)
    {
        if (CString(layer.name.en) == english)
        {
            return &layer;
        }
    }
    return nullptr;
}

osg::ref_ptr<osg::Image> Picture(int size)
{
    const osg::ref_ptr<osg::Image> picture = new osg::Image;
    picture->allocateImage(size, size, 1, GL_RGBA, GL_UNSIGNED_BYTE);
    return picture;
}
} // namespace

TEST(Layers, hold_what_the_nodes_names_say)
{
    const osg::ref_ptr<osg::Group> scene = new osg::Group;
    scene->addChild(Wall("FacadeCream", 0.0, 10.0, 10.0));
    scene->addChild(Wall("FacadeStone", 5.0, 10.0, 10.0));
    scene->addChild(Wall("Foliage", 10.0, 10.0, 10.0));
    const std::vector<host::SceneLayer> layers = host::MeasureLayers(*scene);
    ASSERT_EQ(layers.size(), 2u) << "layers without anything are left out";
    const host::SceneLayer* const walls = Find(layers, L"Solid walls");
    ASSERT_NE(walls, nullptr);
    EXPECT_EQ(walls->parts, 2u);
    EXPECT_EQ(walls->triangles, 4u);
    EXPECT_EQ(walls->geometryBytes, 2 * (4 * sizeof(osg::Vec3) + 6 * sizeof(GLuint)));
    EXPECT_EQ(walls->textureBytes, 0u);
    ASSERT_NE(Find(layers, L"Trees"), nullptr);
    EXPECT_EQ(Find(layers, L"Trees")->parts, 1u);
}

TEST(Layers, count_what_is_shared_once)
{
    const osg::ref_ptr<osg::Group> scene = new osg::Group;
    const osg::ref_ptr<osg::Image> shared = Picture(64);
    for (const char* name : {"Roof", "Water"})
    {
        const osg::ref_ptr<osg::Geode> wall = Wall(name, 0.0, 10.0, 10.0);
        wall->getOrCreateStateSet()->setTextureAttribute(0, new osg::Texture2D(shared));
        scene->addChild(wall);
        // The same drawable once more: one more part, no more memory.
        const osg::ref_ptr<osg::Geode> again = new osg::Geode;
        again->setName(name);
        again->addDrawable(wall->getDrawable(0));
        scene->addChild(again);
    }
    scene->getChild(2)->getOrCreateStateSet()->setTextureAttribute(1, new osg::Texture2D(Picture(16)));
    const std::vector<host::SceneLayer> layers = host::MeasureLayers(*scene);
    const host::SceneLayer* const roofs = Find(layers, L"Roofs");
    const host::SceneLayer* const water = Find(layers, L"Water");
    ASSERT_TRUE(roofs && water);
    EXPECT_EQ(roofs->parts, 2u);
    EXPECT_EQ(roofs->geometryBytes, 4 * sizeof(osg::Vec3) + 6 * sizeof(GLuint));
    EXPECT_EQ(roofs->textureBytes, 64u * 64u * 4u);
    EXPECT_EQ(water->textureBytes, 16u * 16u * 4u) << "the shared picture counts where it was seen first";
}

TEST(Layers, of_the_city_are_ten_and_hold_all_that_is_drawn)
{
    const std::vector<host::SceneLayer> layers = host::MeasureLayers(*WholeCity().root);
    EXPECT_EQ(layers.size(), 10u);
    std::size_t parts = 0;
    std::size_t bytes = 0;
    for (const host::SceneLayer& layer : layers)
    {
        EXPECT_GT(layer.triangles + layer.parts, 0u) << CString2string(layer.name.en);
        parts += layer.parts;
        bytes += layer.geometryBytes;
    }
    osgUtil::StatsVisitor statistics;
    WholeCity().root->accept(statistics);
    statistics.totalUpStats();
    EXPECT_EQ(parts, statistics._numInstancedDrawable);
    // Position, normal, colour and place in the picture of each corner.
    EXPECT_GE(bytes, statistics._uniqueStats._vertexCount * std::size_t(12));
}

TEST(Layers, fill_four_rows_each_after_four_of_all_together)
{
    CParamConfig::getInstance()->setStringParam("Language", "en");
    const std::vector<host::SceneLayer> layers = {{{L"甲", L"First"}, 2, 1000, 2048, 1024},
                                                  {{L"乙", L"Second"}, 3, 500, 1024, 0}};
    const CeGuiMainFrame::PropertyRows rows = host::LayerRows(layers);
    CParamConfig::getInstance()->reload();
    const std::pair<const wchar_t*, const wchar_t*> expected[] = {
        {L"All layers", L"2 layers"}, {L"    triangles", L"1,500"}, {L"    geometry", L"3.0 KB"}, {L"    textures", L"1.0 KB"},
        {L"First", L"2 batches"},     {L"    triangles", L"1,000"}, {L"    geometry", L"2.0 KB"}, {L"    textures", L"1.0 KB"},
        {L"Second", L"3 batches"},    {L"    triangles", L"500"},   {L"    geometry", L"1.0 KB"}, {L"    textures", L"0 B"},
    };
    ASSERT_EQ(rows.size(), std::size(expected));
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        EXPECT_EQ(CString2string(rows[i].first), CString2string(expected[i].first)) << i;
        EXPECT_EQ(CString2string(rows[i].second), CString2string(expected[i].second)) << i;
    }
}
