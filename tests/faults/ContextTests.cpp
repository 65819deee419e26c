// SPDX-License-Identifier: MIT
// OpenGL contexts that are lost under the interface and made again, viewers in turn, and starts without an end.
#include "FaultTest.h"
#include "support/ViewWindow.h"

#include <osg/Geode>
#include <osg/Geometry>
#include <osg/Image>
#include <osg/Texture2D>

#include <memory>

namespace
{
constexpr Pixel SceneColor = {200, 30, 90};

/// A wall of one colour behind everything, which gets its colour from a texture.
osg::ref_ptr<osg::Node> TexturedWall()
{
    const osg::ref_ptr<osg::Image> image = new osg::Image;
    image->allocateImage(4, 4, 1, GL_RGB, GL_UNSIGNED_BYTE);
    for (int i = 0; i < 16; ++i)
    {
        unsigned char* pixel = image->data(i % 4, i / 4);
        pixel[0] = SceneColor.red;
        pixel[1] = SceneColor.green;
        pixel[2] = SceneColor.blue;
    }
    const osg::ref_ptr<osg::Geode> wall = new osg::Geode;
    wall->addDrawable(osg::createTexturedQuadGeometry(osg::Vec3(-100, -100, -50), osg::Vec3(200, 0, 0), osg::Vec3(0, 200, 0)));
    osg::StateSet& state = *wall->getOrCreateStateSet();
    state.setTextureAttributeAndModes(0, new osg::Texture2D(image));
    state.setMode(GL_LIGHTING, osg::StateAttribute::OFF);
    return wall;
}

class Contexts : public FaultTest
{
protected:
    void SetUp() override
    {
        FaultTest::SetUp();
        Host().Close();
        wall_ = TexturedWall();
        other_ = std::make_unique<GuiHost>(Width, Height, wall_);
        // Between frames the host's context stays current, as in most programs of one view.
        other_->Start();
        good_ = other_->Shoot();
        ASSERT_TRUE(good_.At(Width / 2, Height / 2) == SceneColor);
        ASSERT_FALSE(good_.At(Width / 2, 10) == SceneColor);
    }
    void TearDown() override
    {
        other_.reset();
        EXPECT_TRUE(Start());
        FaultTest::TearDown();
    }

    osg::Camera& Camera() { return *other_->Viewer().getCamera(); }
    /// What a host does that shows its viewer in another window.
    void Show(ViewWindow& window)
    {
        Camera().setGraphicsContext(window.Context());
        other_->Viewer().realize();
        other_->Frames(2);
    }
    static void UseWithoutDrawing()
    {
        CeGuiMainFrame& frame = Frame();
        frame.OpenPropertyDlg(nullptr, true);
        frame.RefreshPropertyDlg();
        frame.SetBtnIndex(1);
        frame.CreateToolBar();
        frame.CreateTooltipWindow(10, 100, L"tooltip");
        frame.DestroyTooltipWindow();
        frame.ChangeTitleText(frame.GetSceneTitle(), frame.GetSceneTitleColor(), TitleFont, frame.GetSceneTitleFontHeight());
        frame.OnToolBarFullScene(true);
        frame.OnToolBarFullScene(false);
        frame.OnMouseMove(0, CPoint(3, 100));
        frame.OnTimer(2022);
        frame.SetBtnIndex(-1);
        frame.OpenPropertyDlg(nullptr, false);
    }
    void ExpectBack(HWND window)
    {
        EXPECT_EQ(Frame().GetHwnd(), window);
        other_->Viewer().getEventQueue()->windowResize(0, 0, Width, Height);
        other_->Frames(3);
        const Screenshot seen = other_->Shoot();
        EXPECT_TRUE(seen.At(Width / 2, Height / 2) == SceneColor) << "the scene's own texture";
        EXPECT_TRUE(seen.pixels == good_.pixels);
        EXPECT_EQ(NewLog(), Lines{});
    }

    osg::ref_ptr<osg::Node> wall_;
    std::unique_ptr<GuiHost> other_;
    Screenshot good_;
};
} // namespace

TEST_F(Contexts, closed_and_made_again_bring_the_frame_back_with_the_next_size_event)
{
    for (int i = 0; i < 2; ++i)
    {
        Fault fault("the viewer's window closed and made again, time " + std::to_string(i));
        const osg::ref_ptr<osg::GraphicsContext> lost = Camera().getGraphicsContext();
        lost->close();
        fault.Bites(!lost->makeCurrent());
        UseWithoutDrawing();
        Camera().setGraphicsContext(nullptr);
        UseWithoutDrawing();
        EXPECT_EQ(NewLog(), Lines{});
        ViewWindow window(other_->MainWindow(), Width, Height);
        Show(window);
        ExpectBack(window.Window());
    }
}

TEST_F(Contexts, changed_for_another_bring_the_frame_back_with_the_next_size_event)
{
    Fault fault("another context given to the viewer, and the former one closed after that");
    const osg::ref_ptr<osg::GraphicsContext> lost = Camera().getGraphicsContext();
    ViewWindow window(other_->MainWindow(), Width, Height);
    Show(window);
    lost->close();
    fault.Bites(!lost->makeCurrent() && Camera().getGraphicsContext() != lost);
    other_->Frames(2);
    ExpectBack(window.Window());
}

TEST_F(Contexts, released_by_the_host_are_filled_again_by_the_next_frame)
{
    Fault fault("OpenGL objects of the scene released");
    MakeCurrent();
    const osg::Texture& texture =
        dynamic_cast<const osg::Texture&>(*wall_->getStateSet()->getTextureAttribute(0, osg::StateAttribute::TEXTURE));
    const unsigned int context = Camera().getGraphicsContext()->getState()->getContextID();
    ASSERT_NE(texture.getTextureObject(context), nullptr);
    other_->Root().releaseGLObjects(Camera().getGraphicsContext()->getState());
    fault.Bites(texture.getTextureObject(context) == nullptr);
    other_->Frames(1);
    EXPECT_TRUE(other_->Shoot().pixels == good_.pixels) << "without a size event";
    ExpectBack(other_->Window());
}

TEST_F(Contexts, of_a_window_that_was_destroyed_bring_the_frame_back_in_another)
{
    Fault fault("the viewer's window destroyed");
    const osg::ref_ptr<osg::GraphicsContext> lost = Camera().getGraphicsContext();
    DestroyWindow(other_->Window());
    fault.Bites(!IsWindow(other_->Window()));
    UseWithoutDrawing();
    lost->close();
    ViewWindow window(other_->MainWindow(), Width, Height);
    Show(window);
    ExpectBack(window.Window());
}

TEST_F(Contexts, of_viewers_in_turn_show_the_frame_in_each)
{
    for (int i = 0; i < 3; ++i)
    {
        Fault fault("another viewer, number " + std::to_string(i));
        other_->Close();
        GuiHost third(Width, Height, wall_);
        third.Start();
        EXPECT_TRUE(third.Shoot().pixels == good_.pixels);
        EXPECT_EQ(Frame().GetHwnd(), third.Window());
        fault.Bites(Frame().GetHwnd() != other_->Window());
        third.Click(Width - 28, 25);
        EXPECT_EQ(third.TakeCodes(), Codes{GUI_CMD_CLOSE});
        third.Close();
        other_->Start();
        ExpectBack(other_->Window());
    }
}

TEST_F(Contexts, of_a_second_init_replace_the_first_also_with_another_viewer)
{
    Fault fault("Init for another viewer without a close");
    const osg::ref_ptr<osg::Group> first = Frame().GetGUINode();
    GuiHost third(Width, Height, wall_);
    third.Start();
    fault.Bites(Frame().GetGUINode() != first);
    EXPECT_TRUE(third.Shoot().pixels == good_.pixels);
    other_->Frames(2);
    other_->Viewer().getEventQueue()->windowResize(0, 0, Width, Height);
    other_->Frames(2);
    EXPECT_TRUE(other_->Shoot().At(Width / 2, 10) == SceneColor) << "the first viewer shows its scene alone";
    EXPECT_TRUE(third.Shoot().pixels == good_.pixels);
    third.Close();
    other_->Root().removeChild(first);
    other_->Start();
    ExpectBack(other_->Window());
}
