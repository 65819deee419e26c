// SPDX-License-Identifier: MIT
// Where the interface's node may stand among a scene's cameras, and when it is drawn.
#include "UnderState.h"

#include <osg/Geode>
#include <osg/Geometry>
#include <osg/LightSource>
#include <osgShadow/ShadowedScene>

#include <memory>
#include <osgShadow/ShadowMap>

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
    static int DrawsInAFrame()
    {
        int draws = 0;
        Draw([&] { ++draws; }, [] {});
        return draws;
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
    const osg::ref_ptr<osg::Camera> camera = CameraOver(5);
    Host().Root().addChild(camera);
    Frame().SetRenderOrder(6);
    const Screenshot shot = Host().Shoot();
    EXPECT_FALSE(shot.At(400, 20) == Green);
    EXPECT_EQ(shot.At(400, 400), Green);
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
/// The host's second view of the scene, in the same context.
class SecondView
{
public:
    explicit SecondView(GuiHost& host) : viewer_(host.Viewer())
    {
        camera_->setGraphicsContext(viewer_.getCamera()->getGraphicsContext());
        camera_->setViewport(new osg::Viewport(0, 0, host.Width() / 2, host.Height()));
        camera_->setClearMask(0);
        viewer_.addSlave(camera_);
    }
    ~SecondView() { viewer_.removeSlave(viewer_.findSlaveIndexForCamera(camera_)); }
    osg::Camera& Camera() { return *camera_; }

private:
    osgViewer::Viewer& viewer_;
    osg::ref_ptr<osg::Camera> camera_ = new osg::Camera;
};

// Not of the view-dependent techniques: with them this version of OpenSceneGraph may wait for itself when the viewer ends.
osg::ref_ptr<osgShadow::ShadowedScene> Shadowed(osgShadow::ShadowTechnique* technique)
{
    const osg::ref_ptr<osgShadow::ShadowedScene> shadowed = new osgShadow::ShadowedScene(technique);
    shadowed->addChild(new osg::LightSource);
    const osg::ref_ptr<osg::Geode> ground = new osg::Geode;
    ground->addDrawable(osg::createTexturedQuadGeometry(osg::Vec3(-100, -100, -50), osg::Vec3(200, 0, 0), osg::Vec3(0, 200, 0)));
    shadowed->addChild(ground);
    shadowed->setReceivesShadowTraversalMask(1);
    shadowed->setCastsShadowTraversalMask(2);
    return shadowed;
}

class SceneShadow : public SceneCamera
{
protected:
    void SetUp() override
    {
        SceneCamera::SetUp();
        gui_ = Frame().GetGUINode();
        Host().Root().removeChild(gui_);
    }
    void TearDown() override
    {
        Host().Root().removeChild(shadowed_);
        if (shadowed_)
        {
            shadowed_->removeChild(gui_);
        }
        gui_->setNodeMask(~0u);
        Restart();
        SceneCamera::TearDown();
    }
    void UseTechnique(osgShadow::ShadowTechnique* technique)
    {
        shadowed_ = Shadowed(technique);
        Host().Root().addChild(shadowed_);
    }
    bool IsSeen()
    {
        const Screenshot with = (Host().Frames(2), Host().Shoot());
        const unsigned int mask = gui_->getNodeMask();
        gui_->setNodeMask(0);
        const Screenshot without = (Host().Frames(1), Host().Shoot());
        gui_->setNodeMask(mask);
        return Different(with, without) > 10000;
    }

    osg::ref_ptr<osg::Group> gui_;
    osg::ref_ptr<osgShadow::ShadowedScene> shadowed_;
};
} // namespace

TEST_F(SceneShadow, around_the_interfaces_node_hides_it_and_is_logged_once)
{
    UseTechnique(new osgShadow::ShadowMap);
    shadowed_->addChild(gui_);
    Host().Frames(90);
    EXPECT_EQ(TakeLog(), Lines{});
    Host().Frames(20);
    EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: interface drawn into another camera's texture only (its node belongs outside of a "
                               "shadowed scene): a camera without a name"});
    EXPECT_FALSE(IsSeen());
    Host().Frames(120);
    EXPECT_EQ(TakeLog(), Lines{});
}

TEST_F(SceneShadow, beside_the_interfaces_node_leaves_it_seen)
{
    UseTechnique(new osgShadow::ShadowMap);
    Host().Root().addChild(gui_);
    EXPECT_TRUE(IsSeen());
    Host().Frames(110);
}

TEST_F(SceneShadow, around_the_interfaces_node_without_the_bits_of_shadows_leaves_it_seen)
{
    UseTechnique(new osgShadow::ShadowMap);
    gui_->setNodeMask(~(shadowed_->getReceivesShadowTraversalMask() | shadowed_->getCastsShadowTraversalMask()));
    shadowed_->addChild(gui_);
    EXPECT_TRUE(IsSeen());
    Host().Frames(110);
}

TEST_F(SceneCamera, of_a_second_view_in_the_same_context_draws_the_interface_twice_by_design)
{
    const SecondView second(Host());
    Host().Frames(2);
    EXPECT_EQ(DrawsInAFrame(), 2);
}

TEST_F(SceneCamera, of_a_second_view_whose_cull_mask_lacks_a_bit_of_the_interfaces_node_draws_it_once)
{
    const Screenshot once = Host().Shoot();
    constexpr unsigned int InterfaceBit = 0x80000000;
    Frame().GetGUINode()->setNodeMask(InterfaceBit);
    {
        SecondView second(Host());
        second.Camera().setInheritanceMask(second.Camera().getInheritanceMask() & ~osg::CullSettings::CULL_MASK);
        second.Camera().setCullMask(~InterfaceBit);
        Host().Frames(2);
        EXPECT_EQ(DrawsInAFrame(), 1);
        EXPECT_EQ(Different(Host().Shoot(), once), 0);
        Host().Click(772, 25);
        EXPECT_EQ(Host().TakeCodes(), Codes{15}) << "input arrives";
    }
    Frame().GetGUINode()->setNodeMask(~0u);
}

namespace
{
/// The main camera without a context, which a slave has instead.
class ContextAtASlaveOnly
{
public:
    explicit ContextAtASlaveOnly(GuiHost& host)
        : main_(*host.Viewer().getCamera()), context_(main_.getGraphicsContext()), viewport_(main_.getViewport()),
          view_(std::make_unique<SecondView>(host))
    {
        view_->Camera().setClearMask(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        main_.setGraphicsContext(nullptr);
    }
    ~ContextAtASlaveOnly()
    {
        view_.reset();
        main_.setGraphicsContext(context_);
        main_.setViewport(viewport_);
    }

private:
    osg::Camera& main_;
    osg::ref_ptr<osg::GraphicsContext> context_;
    osg::ref_ptr<osg::Viewport> viewport_;
    std::unique_ptr<SecondView> view_;
};
} // namespace

TEST_F(SceneCamera, without_a_context_of_its_own_shows_no_interface_and_is_logged_once)
{
    Host().Close();
    TakeLog();
    {
        const ContextAtASlaveOnly slave(Host());
        EXPECT_TRUE(Frame().Init(&Host().Viewer(), GUI_USER_FULL));
        Host().Root().addChild(Frame().GetGUINode());
        for (int frame = 0; frame < 4; ++frame)
        {
            EXPECT_EQ(Draw([] {}, [] {}).errors, Lines{}) << frame;
        }
        Host().Close();
    }
    EXPECT_EQ(TakeLog().size(), 1u);
    Restart();
}
