// SPDX-License-Identifier: MIT
// The interface over real scenes: outside its windows not one pixel of the scene changes, in this frame or in the next.
#include "support/HostedFrame.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>

#include <osg/CullFace>
#include <osg/Geometry>
#include <osg/Image>
#include <osg/MatrixTransform>
#include <osg/Program>
#include <osg/ShapeDrawable>
#include <osg/Texture2D>
#include <osg/Uniform>

namespace
{
osg::Texture2D* Checker(unsigned char red, unsigned char green, int cell)
{
    const osg::ref_ptr<osg::Image> image = new osg::Image;
    image->allocateImage(64, 64, 1, GL_RGB, GL_UNSIGNED_BYTE);
    for (int y = 0; y < 64; ++y)
    {
        for (int x = 0; x < 64; ++x)
        {
            const bool on = (x / cell + y / cell) % 2 == 0;
            unsigned char* p = image->data(x, y);
            p[0] = on ? red : 20;
            p[1] = on ? green : 200;
            p[2] = static_cast<unsigned char>(x * 4);
        }
    }
    return new osg::Texture2D(image);
}

osg::Geometry* Quad(float left, float right)
{
    osg::Geometry* quad =
        osg::createTexturedQuadGeometry(osg::Vec3(left, 0, -50), osg::Vec3(right - left, 0, 0), osg::Vec3(0, 0, 100));
    quad->setTexCoordArray(1, quad->getTexCoordArray(0));
    return quad;
}

/// A textured quad in buffer objects, one under a program, one with textures on three units, and a lit, culled sphere.
osg::Group* Scene()
{
    osg::Group* scene = new osg::Group;
    const osg::ref_ptr<osg::Geode> geode = new osg::Geode;
    scene->addChild(geode);

    osg::Geometry* buffers = Quad(-60, -20);
    buffers->setUseDisplayList(false);
    buffers->setUseVertexBufferObjects(true);
    buffers->getOrCreateStateSet()->setTextureAttributeAndModes(0, Checker(250, 40, 4));
    geode->addDrawable(buffers);

    osg::Geometry* programmed = Quad(-20, 20);
    programmed->setUseDisplayList(false);
    programmed->setUseVertexBufferObjects(true);
    osg::Program* program = new osg::Program;
    const char* const vertex = "varying vec2 place;\nvoid main()\n{\n    place = gl_MultiTexCoord0.xy;\n"
                               "    gl_Position = gl_ModelViewProjectionMatrix * gl_Vertex;\n}\n";
    program->addShader(new osg::Shader(osg::Shader::VERTEX, vertex));
    program->addShader(new osg::Shader(osg::Shader::FRAGMENT, "varying vec2 place;\nuniform sampler2D wall;\nvoid main()\n{\n"
                                                              "    gl_FragColor = texture2D(wall, place).grba;\n}\n"));
    programmed->getOrCreateStateSet()->setAttributeAndModes(program);
    programmed->getOrCreateStateSet()->addUniform(new osg::Uniform("wall", 0));
    programmed->getOrCreateStateSet()->setTextureAttributeAndModes(0, Checker(90, 160, 8));
    geode->addDrawable(programmed);

    osg::Geometry* units = Quad(20, 60);
    for (unsigned int unit = 0; unit < 3; ++unit)
    {
        units->setTexCoordArray(unit, units->getTexCoordArray(0));
        units->getOrCreateStateSet()->setTextureAttributeAndModes(unit, Checker(200, 255, 2 << unit));
    }
    geode->addDrawable(units);

    osg::ShapeDrawable* sphere = new osg::ShapeDrawable(new osg::Sphere(osg::Vec3(0, -30, 0), 12));
    sphere->getOrCreateStateSet()->setAttributeAndModes(new osg::CullFace);
    sphere->getOrCreateStateSet()->setMode(GL_LIGHTING, osg::StateAttribute::ON);
    sphere->getOrCreateStateSet()->setMode(GL_NORMALIZE, osg::StateAttribute::ON);
    geode->addDrawable(sphere);
    return scene;
}

/// Reads the screen before the interface's camera draws.
class ReadBefore : public osg::Camera::DrawCallback
{
public:
    explicit ReadBefore(osg::Image* image) : image_(image) {}
    void operator()(osg::RenderInfo&) const override { image_->readPixels(0, 0, 800, 600, GL_RGB, GL_UNSIGNED_BYTE); }

private:
    osg::ref_ptr<osg::Image> image_;
};

class ScenePixels : public HostedFrame
{
protected:
    void SetUp() override
    {
        HostedFrame::SetUp();
        scene_ = Scene();
        Host().Root().addChild(scene_);
        osg::Camera& camera = *Host().Viewer().getCamera();
        formerView_ = camera.getViewMatrix();
        Host().Viewer().setCameraManipulator(nullptr);
        camera.setViewMatrixAsLookAt(osg::Vec3(0, -200, 0), osg::Vec3(), osg::Vec3(0, 0, 1));
        Host().Frames(2);
    }
    void TearDown() override
    {
        Host().Root().removeChild(scene_);
        Host().Viewer().getCamera()->setViewMatrix(formerView_);
        HostedFrame::TearDown();
    }
    static bool InAnyWindow(int x, int y)
    {
        CEGUI::Window& root = *CEGUI::System::getSingleton().getDefaultGUIContext().getRootWindow();
        for (std::size_t i = 0; i < root.getChildCount(); ++i)
        {
            const CEGUI::Window& window = *root.getChildAtIdx(i);
            const CEGUI::Rectf area = window.getUnclippedOuterRect().get();
            if (window.isVisible() && x >= area.left() && x < area.right() && y >= area.top() && y < area.bottom())
            {
                return true;
            }
        }
        return false;
    }
    static int DifferentOutside(const Screenshot& one, const Screenshot& two)
    {
        int different = 0;
        for (int y = 0; y < one.height; ++y)
        {
            for (int x = 0; x < one.width; ++x)
            {
                different += !(one.At(x, y) == two.At(x, y)) && !InAnyWindow(x, y);
            }
        }
        return different;
    }
    osg::ref_ptr<osg::Group> scene_;
    osg::Matrixd formerView_;
};
} // namespace

TEST_F(ScenePixels, scene_of_the_test_shows_all_its_parts)
{
    const Screenshot shot = Host().Shoot();
    const Pixel clear = Background();
    for (const int x : {150, 300, 400, 500, 650})
    {
        EXPECT_FALSE(shot.At(x, 400) == clear) << x;
    }
}

TEST_F(ScenePixels, outside_the_windows_are_the_same_before_and_after_the_interface_draws_in_one_frame)
{
    auto& hud = dynamic_cast<osg::Camera&>(*Frame().GetGUINode());
    const osg::ref_ptr<osg::Image> before = new osg::Image;
    hud.setInitialDrawCallback(new ReadBefore(before));
    const Screenshot after = Host().Shoot();
    hud.setInitialDrawCallback(nullptr);
    ASSERT_EQ(before->s(), ViewWidth);
    int inside = 0;
    int outside = 0;
    for (int y = 0; y < ViewHeight; ++y)
    {
        for (int x = 0; x < ViewWidth; ++x)
        {
            const unsigned char* p = before->data(x, ViewHeight - 1 - y);
            const bool same = after.At(x, y) == Pixel{p[0], p[1], p[2]};
            (InAnyWindow(x, y) ? inside : outside) += !same;
        }
    }
    EXPECT_EQ(outside, 0);
    EXPECT_GT(inside, 10000) << "the interface itself is there";
}

TEST_F(ScenePixels, outside_the_windows_are_the_same_with_and_without_the_interface)
{
    const Screenshot with = Host().Shoot();
    Frame().GetGUINode()->setNodeMask(0);
    Host().Frames(2);
    const Screenshot without = Host().Shoot();
    Frame().GetGUINode()->setNodeMask(~0u);
    EXPECT_EQ(DifferentOutside(with, without), 0);
}

TEST_F(ScenePixels, do_not_reach_into_opaque_windows)
{
    const PictureFile bar = ReadPictureFile(SkinDir() + L"new_skin\\close.png");
    Host().MoveMouse(400, 300);
    const Screenshot over = Host().Shoot();
    Host().Root().removeChild(scene_);
    const Screenshot plain = Host().Shoot();
    Host().Root().addChild(scene_);
    int opaque = 0;
    for (int y = 0; y < bar.height; ++y)
    {
        for (int x = 0; x < bar.width; ++x)
        {
            if (bar.Argb(x, y) >> 24 == 255)
            {
                ++opaque;
                ASSERT_EQ(over.At(760 + x, 13 + y), plain.At(760 + x, 13 + y)) << x << ", " << y;
            }
        }
    }
    EXPECT_GT(opaque, 0);
}

TEST_F(ScenePixels, stay_the_same_when_the_frame_is_drawn_many_times)
{
    const Screenshot first = Host().Shoot();
    Host().Frames(5);
    EXPECT_TRUE(Host().Shoot().pixels == first.pixels);
}

TEST_F(ScenePixels, stay_the_same_when_windows_are_rebuilt_under_them)
{
    const Screenshot first = Host().Shoot();
    Rebuild();
    Frame().ChangeTitleText(Frame().GetSceneTitle(), Frame().GetSceneTitleColor(), Frame().GetSceneTitleFontStyle(), 16.0f);
    EXPECT_TRUE(Host().Shoot().pixels == first.pixels);
}
