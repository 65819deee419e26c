// SPDX-License-Identifier: MIT
// Which building lies under the mouse, and what marks it.
#include "SmallCity.h"
#include "support/GTest.h"

#include <objects/BuildingShape.h>
#include <objects/Highlight.h>
#include <objects/Picking.h>

#include <cmath>

namespace
{
constexpr int Width = 800;
constexpr int Height = 600;
const CPoint Middle(Width / 2, Height / 2);

osg::ref_ptr<osg::Camera> CameraAt(const osg::Vec3d& eye, const osg::Vec3d& target, const osg::Vec3d& up)
{
    const osg::ref_ptr<osg::Camera> camera = new osg::Camera;
    camera->setViewport(0, 0, Width, Height);
    camera->setProjectionMatrixAsPerspective(40.0, double(Width) / Height, 1.0, 10000.0);
    camera->setViewMatrixAsLookAt(eye, target, up);
    return camera;
}

osg::ref_ptr<osg::Camera> FromTheSouth()
{
    return CameraAt({0.0, -100.0, 10.0}, {0.0, 0.0, 10.0}, {0.0, 0.0, 1.0});
}

bool Near(const osg::Vec2d& a, double x, double y)
{
    return std::abs(a.x() - x) < 1e-9 && std::abs(a.y() - y) < 1e-9;
}
} // namespace

TEST(Picking, the_building_under_the_mouse)
{
    const city::City tiny = SmallCity();
    const osg::ref_ptr<osg::Camera> camera = FromTheSouth();
    EXPECT_EQ(host::PickBuilding(tiny, *camera, Middle), &tiny.buildings[0]);
    // At 90 m a view of 40 degrees is 65.5 m high, so the wall's 20 m are 183 pixels, about the middle.
    EXPECT_EQ(host::PickBuilding(tiny, *camera, CPoint(Middle.x - 89, Middle.y)), &tiny.buildings[0]);
    EXPECT_EQ(host::PickBuilding(tiny, *camera, CPoint(Middle.x - 94, Middle.y)), nullptr);
    EXPECT_EQ(host::PickBuilding(tiny, *camera, CPoint(Middle.x, Middle.y - 89)), &tiny.buildings[0]) << "y counts downwards";
    EXPECT_EQ(host::PickBuilding(tiny, *camera, CPoint(Middle.x, Middle.y - 94)), nullptr);
}

TEST(Picking, trees_before_it_do_not_hide_it)
{
    const city::City tiny = SmallCity();
    tiny.root->addChild(Wall("Foliage", -50.0, 10.0, 20.0));
    EXPECT_EQ(host::PickBuilding(tiny, *FromTheSouth(), Middle), &tiny.buildings[0]);
}

TEST(Picking, whatever_else_stands_before_it_does)
{
    const city::City tiny = SmallCity();
    tiny.root->addChild(Wall("Plain", -50.0, 10.0, 20.0));
    EXPECT_EQ(host::PickBuilding(tiny, *FromTheSouth(), Middle), nullptr);
}

TEST(Picking, nothing_in_the_sky)
{
    EXPECT_EQ(host::PickBuilding(WholeCity(), *CameraAt({0, 0, 500}, {0, 10, 900}, {0, 0, 1}), Middle), nullptr);
}

TEST(Picking, any_building_of_the_city_from_above)
{
    const city::City& whole = WholeCity();
    ASSERT_GT(whole.buildings.size(), 1000u);
    int missed = 0;
    for (std::size_t i = 0; i < whole.buildings.size(); i += 7)
    {
        const osg::Vec2d centre = city::Centre(whole.buildings[i].footprint);
        const osg::ref_ptr<osg::Camera> camera =
            CameraAt({centre.x(), centre.y(), 900.0}, {centre.x(), centre.y(), 0.0}, {0.0, 1.0, 0.0});
        const city::Building* const picked = host::PickBuilding(whole, *camera, Middle);
        // A tower stands on its podium: either has the place.
        missed += !picked || !city::Contains(picked->footprint, centre);
    }
    // The stadium's middle is its field.
    EXPECT_LE(missed, 2);
}

TEST(Marking, the_buildings_own_faces_and_no_others)
{
    const city::City tiny = SmallCity();
    tiny.root->addChild(Wall("FacadeBrick", -40.0, 10.0, 20.0));
    tiny.root->addChild(Wall("Lot", -10.0, 10.0, 20.0));
    const host::BuildingShape shape = host::ShapeOf(tiny, tiny.buildings[0]);
    ASSERT_EQ(shape.triangles.size(), 6u);
    for (const osg::Vec3& corner : shape.triangles)
    {
        EXPECT_EQ(corner.y(), -10.0f);
    }
    EXPECT_EQ(host::FaceNormal(shape, 3), osg::Vec3(0.0f, -1.0f, 0.0f));
    // The rectangle's sides without the line between its triangles.
    EXPECT_EQ(host::Edges(shape).size(), 4u * 2u);
}

TEST(Marking, every_building_of_the_city_has_faces_within_its_bounds)
{
    const city::City& whole = WholeCity();
    for (std::size_t i = 0; i < whole.buildings.size(); i += 31)
    {
        const city::Building& building = whole.buildings[i];
        const host::BuildingShape shape = host::ShapeOf(whole, building);
        EXPECT_GE(shape.triangles.size(), 5u * 6u) << building.id << ": four walls and a roof";
        for (const osg::Vec3& corner : shape.triangles)
        {
            ASSERT_TRUE(city::Contains(building.footprint, {corner.x(), corner.y()}, 1.7)) << building.id;
        }
        EXPECT_FALSE(host::Edges(shape).empty()) << building.id;
    }
}

TEST(Marking, an_outline_grows_by_a_distance_on_all_sides)
{
    const city::Polygon grown = host::Grown(city::Rectangle(-10.0, -5.0, 10.0, 5.0), 2.0);
    ASSERT_EQ(grown.size(), 4u);
    EXPECT_TRUE(Near(grown[0], -12.0, -7.0));
    EXPECT_TRUE(Near(grown[1], 12.0, -7.0));
    EXPECT_TRUE(Near(grown[2], 12.0, 7.0));
    EXPECT_TRUE(Near(grown[3], -12.0, 7.0));
}

TEST(Marking, a_mark_lies_around_its_building)
{
    const city::City tiny = SmallCity();
    const osg::ref_ptr<osg::Node> mark = host::MakeHighlight(tiny, tiny.buildings[0]);
    const osg::BoundingSphere bound = mark->getBound();
    EXPECT_NEAR(bound.center().x(), 0.0, 0.5);
    EXPECT_GT(bound.radius(), 17.0) << "the glow reaches beyond the walls";
    EXPECT_LT(bound.radius(), 40.0);
    // The ray hits the mark as well as the wall, and the building is found by the city alone.
    tiny.root->addChild(mark);
    EXPECT_EQ(host::PickBuilding(tiny, *FromTheSouth(), Middle), &tiny.buildings[0]);
}
