// SPDX-License-Identifier: MIT
// The driver waits for the picture, takes it, and drags the window to other sizes.
#include "support/GuiDriver.h"
#include "support/HostedFrame.h"
#include "support/driver/Compare.h"

#include <osg/AnimationPath>
#include <osg/Geode>
#include <osg/MatrixTransform>
#include <osg/ShapeDrawable>

#include <stdexcept>

namespace
{
Pixel PixelOf(const osg::Image& picture, int x, int y)
{
    const unsigned char* pixel = picture.data(x, picture.t() - 1 - y);
    return {pixel[0], pixel[1], pixel[2]};
}

/// Another clear colour with every frame.
class Flicker : public osg::NodeCallback
{
public:
    explicit Flicker(osg::Camera& camera) : camera_(camera), color_(camera.getClearColor()) {}
    ~Flicker() override { camera_.setClearColor(color_); }
    void operator()(osg::Node* node, osg::NodeVisitor* visitor) override
    {
        camera_.setClearColor(osg::Vec4(static_cast<float>(++frame_ % 7) / 7.0f, 0.4f, 0.6f, 1.0f));
        traverse(node, visitor);
    }

private:
    osg::Camera& camera_;
    osg::Vec4 color_;
    int frame_ = 0;
};
} // namespace

class DriverLooking : public HostedFrame
{
protected:
    GuiDriver driver_{Host()};
};

TEST_F(DriverLooking, takes_the_picture_of_the_next_frame)
{
    const Screenshot shot = Host().Shoot();
    const osg::ref_ptr<osg::Image> picture = driver_.TakePicture();
    ASSERT_EQ(picture->s(), ViewWidth);
    ASSERT_EQ(picture->t(), ViewHeight);
    int wrong = 0;
    for (int y = 0; y < ViewHeight; ++y)
    {
        for (int x = 0; x < ViewWidth; ++x)
        {
            wrong += !(PixelOf(*picture, x, y) == shot.At(x, y));
        }
    }
    EXPECT_EQ(wrong, 0);
}

TEST_F(DriverLooking, takes_the_picture_of_one_window)
{
    const RECT place = GuiHost::RectOf("TavTilteCloseButtom");
    const osg::ref_ptr<osg::Image> whole = driver_.TakePicture();
    const osg::ref_ptr<osg::Image> part = driver_.TakePictureOf("TavTilteCloseButtom");
    ASSERT_EQ(part->s(), place.right - place.left);
    ASSERT_EQ(part->t(), place.bottom - place.top);
    EXPECT_EQ(PixelOf(*part, 0, 0), PixelOf(*whole, place.left, place.top));
    EXPECT_EQ(PixelOf(*part, part->s() - 1, part->t() - 1), PixelOf(*whole, place.right - 1, place.bottom - 1));
    EXPECT_THROW(driver_.TakePictureOf("NoSuchWindow"), std::runtime_error);
}

TEST_F(DriverLooking, the_screens_picture_shows_windows_over_the_view)
{
    const HWND over = CreateWindowExW(WS_EX_TOPMOST, L"STATIC", L"", WS_POPUP | WS_VISIBLE | SS_BLACKRECT, 200, 200, 60, 40,
                                      Host().MainWindow(), nullptr, GetModuleHandleW(nullptr), nullptr);
    ASSERT_TRUE(over);
    UpdateWindow(over);
    driver_.Wait();
    const osg::ref_ptr<osg::Image> screen = driver_.TakeScreenPicture();
    const osg::ref_ptr<osg::Image> view = driver_.TakePicture();
    DestroyWindow(over);
    ASSERT_EQ(screen->s(), ViewWidth);
    ASSERT_EQ(screen->t(), ViewHeight);
    EXPECT_EQ(PixelOf(*view, 230, 220), Background()) << "it is no part of the view";
    EXPECT_LT(Distance(PixelOf(*screen, 230, 220), GetSysColor(COLOR_3DDKSHADOW) == 0 ? Pixel{0, 0, 0} : Pixel{64, 64, 64}), 80);
    EXPECT_EQ(PixelOf(*screen, 500, 400), Background()) << "beside it the view is seen";
}

TEST_F(DriverLooking, no_caret_blinks_in_the_screens_picture)
{
    driver_.DoubleClick("TavTilteText");
    driver_.SelectAllInFocus();
    driver_.Type(L"text");
    driver_.Wait();
    const osg::ref_ptr<osg::Image> first = driver_.TakeScreenPicture();
    const DWORD part = GetCaretBlinkTime() * 2 / 3;
    for (int i = 0; i < 4; ++i)
    {
        // Once round, in steps that come to both of its states.
        Sleep(part);
        Host().Frames(1);
        EXPECT_EQ(driver::Compare(*driver_.TakeScreenPicture(), *first, 1).most, 0.0) << i;
    }
    driver_.KeyToFocus(VK_ESCAPE);
    driver_.TakeReceived();
}

TEST_F(DriverLooking, waits_until_nothing_moves)
{
    Frame().EnableSlideOut(true);
    Rebuild();
    driver_.MoveTo(CPoint(400, 300));
    driver_.MoveTo(CPoint(400, 555));
    driver_.Wait();
    ASSERT_TRUE(driver_.Sees("TavBotCtrlFrame"));
    const RECT inside = GuiHost::RectOf("TavBotCtrlFrame");
    driver_.MoveTo(CPoint(400, 300));
    driver_.LetPass(90);
    EXPECT_TRUE(driver_.Sees("TavBotCtrlFrame")) << "on its way out after three ticks";
    EXPECT_GT(GuiHost::RectOf("TavBotCtrlFrame").top, inside.top);
    driver_.Wait();
    EXPECT_TRUE(!driver_.Sees("TavBotCtrlFrame") || GuiHost::RectOf("TavBotCtrlFrame").top >= ViewHeight) << "out";
    Frame().EnableSlideOut(false);
}

TEST_F(DriverLooking, lets_the_programs_own_clock_pass)
{
    const DWORD start = driver_.Now();
    driver_.LetPass(300);
    EXPECT_EQ(driver_.Now() - start, 300u);
}

TEST_F(DriverLooking, gives_up_when_the_picture_does_not_settle)
{
    driver_.SetPatience(std::chrono::milliseconds(150));
    Host().Root().setUpdateCallback(new Flicker(*Host().Viewer().getCamera()));
    EXPECT_THROW(driver_.Wait(), std::runtime_error);
    Host().Root().setUpdateCallback(nullptr);
    driver_.SetPatience(std::chrono::seconds(30));
    EXPECT_NO_THROW(driver_.Wait());
}

TEST_F(DriverLooking, drags_the_window_to_another_size)
{
    driver_.ResizeWindow(CSize(640, 480));
    EXPECT_EQ(driver_.ViewSize(), CSize(640, 480));
    EXPECT_EQ(GuiHost::RectOf("TavTitleBackground").right, 640);
    driver_.ResizeWindow(CSize(ViewWidth, ViewHeight));
    EXPECT_EQ(GuiHost::RectOf("TavTitleBackground").right, ViewWidth);
}
