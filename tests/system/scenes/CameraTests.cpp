// SPDX-License-Identifier: MIT
// Where the interface's node may stand among a scene's cameras, and when it is drawn.
#include "UnderState.h"

#include <osg/Geode>
#include <osg/Geometry>
#include <osg/LightSource>
#include <osg/Texture2D>
#include <osgShadow/ParallelSplitShadowMap>
#include <osgShadow/ShadowMap>
#include <osgShadow/ShadowTexture>
#include <osgShadow/ShadowVolume>
#include <osgShadow/ShadowedScene>
#include <osgShadow/SoftShadowMap>
#include <osgShadow/StandardShadowMap>
#include <osgShadow/ViewDependentShadowMap>

#include <iostream>

namespace
{
constexpr Pixel Green = {0, 255, 0};

/// One colour over the whole view.
osg::Camera* CameraOver(int order)
{
    osg::Camera* camera = new osg::Camera;
    camera->setReferenceFrame(osg::Transform::ABSOLUTE_RF);
    camera->setProjectionMatrixAsOrtho2D(0, 1, 0, 1);
    camera->setRenderOrder(osg::Camera::POST_RENDER, order);
    camera->setClearMask(0);
    camera->setAllowEventFocus(false);
    const osg::ref_ptr<osg::Geode> geode = new osg::Geode;
    osg::Geometry* quad = osg::createTexturedQuadGeometry(osg::Vec3(), osg::Vec3(1, 0, 0), osg::Vec3(0, 1, 0));
    osg::Vec4Array* colors = new osg::Vec4Array(osg::Array::BIND_OVERALL);
    colors->push_back(osg::Vec4(0, 1, 0, 1));
    quad->setColorArray(colors);
    geode->addDrawable(quad);
    geode->getOrCreateStateSet()->setMode(GL_LIGHTING, osg::StateAttribute::OFF);
    geode->getOrCreateStateSet()->setMode(GL_DEPTH_TEST, osg::StateAttribute::OFF);
    camera->addChild(geode);
    return camera;
}

class SceneCamera : public UnderState
{
protected:
    void TearDown() override
    {
        Frame().SetRenderOrder(0);
        UnderState::TearDown();
    }
};
} // namespace

TEST_F(SceneCamera, of_a_higher_order_lies_over_the_interface)
{
    const osg::ref_ptr<osg::Camera> camera = CameraOver(1);
    Host().Root().addChild(camera);
    EXPECT_EQ(Host().Shoot().At(400, 20), Green);
    Host().Root().removeChild(camera);
    EXPECT_FALSE(Host().Shoot().At(400, 20) == Green);
}

TEST_F(SceneCamera, of_a_higher_order_lies_under_the_interface_that_was_given_a_still_higher_one)
{
    const Pixel bar = Host().Shoot().At(400, 20);
    const osg::ref_ptr<osg::Camera> camera = CameraOver(5);
    Host().Root().addChild(camera);
    Frame().SetRenderOrder(6);
    EXPECT_EQ(Host().Shoot().At(400, 20), bar);
    EXPECT_EQ(Host().Shoot().At(400, 400), Green);
    Frame().SetRenderOrder(4);
    EXPECT_EQ(Host().Shoot().At(400, 20), Green);
    Host().Root().removeChild(camera);
}

TEST_F(SceneCamera, order_given_to_the_interface_before_its_start_is_taken_by_it_and_by_the_next_start)
{
    Host().Close();
    Frame().SetRenderOrder(6);
    for (int start = 0; start < 2; ++start)
    {
        Restart();
        EXPECT_EQ(dynamic_cast<osg::Camera&>(*Frame().GetGUINode()).getRenderOrderNum(), 6);
    }
}

namespace
{
class Seen : public osg::Drawable::DrawCallback
{
public:
    void drawImplementation(osg::RenderInfo& info, const osg::Drawable* d) const override
    {
        std::cout << "draw:";
        for (osg::Camera* c : info.getCameraStack())
        {
            std::cout << " [" << c->getName() << " rtt " << c->isRenderToTextureCamera() << " " << c->getRenderTargetImplementation() << " fbo?]";
        }
        std::cout << std::endl;
        d->drawImplementation(info);
    }
};
class Culled : public osg::NodeCallback
{
public:
    void operator()(osg::Node* node, osg::NodeVisitor* nv) override
    {
        auto* cv = nv->asCullVisitor();
        std::cout << "cull: " << (cv && cv->getCurrentCamera() ? cv->getCurrentCamera()->getName() : "none") << " " << (cv && cv->getCurrentCamera() ? cv->getCurrentCamera()->isRenderToTextureCamera() : 0) << std::endl;
        traverse(node, nv);
    }
};
}
TEST_F(SceneCamera, probe)
{
    Host().Viewer().getCamera()->setName("main");
    const osg::ref_ptr<osg::Group> gui = Frame().GetGUINode();
    Drawable().setDrawCallback(new Seen);
    gui->setCullCallback(new Culled);
    osgShadow::ShadowTechnique* techniques[] = {new osgShadow::ShadowMap, new osgShadow::ShadowTexture, new osgShadow::ShadowVolume, new osgShadow::SoftShadowMap, new osgShadow::StandardShadowMap, new osgShadow::ParallelSplitShadowMap, new osgShadow::ViewDependentShadowMap};
    for (auto* technique : techniques)
    {
        std::cout << "== " << technique->className() << std::endl;
        osg::ref_ptr<osgShadow::ShadowedScene> shadowed = new osgShadow::ShadowedScene(technique);
        osg::ref_ptr<osg::LightSource> light = new osg::LightSource;
        shadowed->addChild(light);
        osg::ref_ptr<osg::Geode> geode = new osg::Geode;
        geode->addDrawable(osg::createTexturedQuadGeometry(osg::Vec3(-100, -100, -50), osg::Vec3(200, 0, 0), osg::Vec3(0, 200, 0)));
        shadowed->addChild(geode);
        shadowed->addChild(gui);
        Host().Root().removeChild(gui);
        Host().Root().addChild(shadowed);
        Host().Frames(2);
        Pixel p = Host().Shoot().At(400, 20);
        std::cout << "seen " << p.red << " " << p.green << " " << p.blue << std::endl;
        Host().Root().removeChild(shadowed);
        shadowed->removeChild(gui);
        Host().Root().addChild(gui);
    }
    gui->setCullCallback(nullptr);
}
