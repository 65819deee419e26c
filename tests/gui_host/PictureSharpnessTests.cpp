// SPDX-License-Identifier: MIT
// Which pictures are shown pixel by pixel, which are smooth, and which are seen at all.
#include "support/HostedFrame.h"
#include "widgets/Pictures.h"

#include <widgets/FileImageset.h>
#include <widgets/WindowNames.h>

#include <CEGUI/BasicImage.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>

namespace
{
constexpr int SheetSide = 64;
constexpr int SquareSide = 4;
constexpr int ShownSide = 2 * SquareSide;
constexpr int Left = 300;
constexpr int Top = 200;
const wchar_t* const SheetFile = L"PictureSharpnessTest.bmp";

/// A window that shows the upper left of a chessboard: red and blue squares of 4 pixels, red first.
class PictureSharpness : public HostedFrame
{
protected:
    void SetUp() override
    {
        HostedFrame::SetUp();
        MakeCurrent();
        Argb board = Solid(SheetSide, SheetSide, 0xFFFF0000);
        for (int i = 0; i < SheetSide * SheetSide; ++i)
        {
            if ((i % SheetSide / SquareSide + i / SheetSide / SquareSide) % 2 == 1)
            {
                board.pixels[static_cast<std::size_t>(i)] = 0xFF0000FF;
            }
        }
        ASSERT_TRUE(WriteBytes(SkinDir() + SheetFile, Bmp32(board)));
        image_ = dynamic_cast<CEGUI::BasicImage*>(&FileImagesets::Create(SheetFile));
        ASSERT_NE(image_, nullptr);
        ShowFrom(0, 0);
        window_ = WindowNames::Create("TavLook/StaticImage", "board");
        window_->setPixelAligned(false);
        Place(0, 0, ShownSide, ShownSide);
        FileImagesets::Apply(*window_, "Image", *image_);
        WindowNames::AddChild(*CEGUI::System::getSingleton().getDefaultGUIContext().getRootWindow(), *window_);
    }

    void TearDown() override
    {
        Rebuild();
        DeleteFileW(SkinDir() + SheetFile);
        HostedFrame::TearDown();
    }

    /// The part of the board, pixels.
    void ShowFrom(float x, float y) { image_->setArea(CEGUI::Rectf(x, y, x + ShownSide, y + ShownSide)); }
    /// The window, pixels from its usual place.
    void Place(float x, float y, float width, float height)
    {
        window_->setPosition(CEGUI::UVector2(CEGUI::UDim(0, Left + x), CEGUI::UDim(0, Top + y)));
        window_->setSize(CEGUI::USize(CEGUI::UDim(0, width), CEGUI::UDim(0, height)));
    }
    /// Whether there are pixels between red and blue inside of a rectangle from the window's usual place.
    static bool IsMixed(int x, int y, int width, int height)
    {
        const Screenshot shot = Host().Shoot();
        for (int i = 0; i < width * height; ++i)
        {
            const Pixel seen = shot.At(Left + x + i % width, Top + y + i / width);
            if (seen.red > 60 && seen.blue > 60 && seen.green < 10)
            {
                return true;
            }
        }
        return false;
    }

    CEGUI::BasicImage* image_ = nullptr;
    CEGUI::Window* window_ = nullptr;
};
} // namespace

TEST_F(PictureSharpness, as_it_is_it_is_sharp)
{
    const Screenshot shot = Host().Shoot();
    for (int i = 0; i < ShownSide * ShownSide; ++i)
    {
        const int x = i % ShownSide;
        const int y = i / ShownSide;
        const bool red = x / SquareSide == y / SquareSide;
        EXPECT_LE(Distance(shot.At(Left + x, Top + y), red ? Pixel{255, 0, 0} : Pixel{0, 0, 255}), 2) << x << ',' << y;
    }
}

TEST_F(PictureSharpness, stretched_in_one_direction_it_is_smooth)
{
    Place(0, 0, ShownSide, 80);
    EXPECT_TRUE(IsMixed(1, 36, 1, 8));
    Place(0, 0, 80, ShownSide);
    EXPECT_TRUE(IsMixed(36, 1, 8, 1));
}

TEST_F(PictureSharpness, stretched_it_is_smooth_with_another_texture_in_the_same_window)
{
    const wchar_t* const file = L"PictureSharpnessTest2.bmp";
    const FileReplaced second(SkinDir() + file, ReadBytes(SkinDir() + SheetFile));
    auto& other = dynamic_cast<CEGUI::BasicImage&>(FileImagesets::Create(file));
    other.setArea(CEGUI::Rectf(0, 0, ShownSide, ShownSide));
    Place(0, 0, 80, 80);
    Host().Frames(1);
    MakeCurrent();
    other.render(window_->getGeometryBuffer(), CEGUI::Rectf(0, 0, ShownSide, ShownSide), nullptr,
                 CEGUI::ColourRect(CEGUI::Colour(1, 1, 1)));
    EXPECT_LE(Distance(Host().Shoot().At(Left + 5, Top + 1), {0, 0, 255}), 2);
    EXPECT_TRUE(IsMixed(36, 60, 8, 1));
}

TEST_F(PictureSharpness, moved_by_a_part_of_a_pixel_it_is_smooth)
{
    Place(0, 0.5f, ShownSide, ShownSide);
    EXPECT_TRUE(IsMixed(1, 2, 1, 4));
    Place(0.5f, 0, ShownSide, ShownSide);
    EXPECT_TRUE(IsMixed(2, 1, 4, 1));
    Place(0, 0, ShownSide, ShownSide);
    EXPECT_FALSE(IsMixed(0, 0, ShownSide, ShownSide));
}

TEST_F(PictureSharpness, cut_out_between_two_pixels_it_is_smooth)
{
    ShowFrom(0, 0.5f);
    window_->invalidate();
    EXPECT_TRUE(IsMixed(1, 2, 1, 4));
    ShowFrom(0.5f, 0);
    window_->invalidate();
    EXPECT_TRUE(IsMixed(2, 1, 4, 1));
}

TEST_F(PictureSharpness, turned_into_the_view_it_is_seen)
{
    // As it stands it lies beside the view, and lying down it reaches into it.
    constexpr int length = 300;
    Place(ViewWidth + 50 - Left, 0, ShownSide, length);
    window_->setUsingAutoRenderingSurface(true);
    const int x = ViewWidth - 20;
    const int y = Top + length / 2;
    EXPECT_EQ(Host().Shoot().At(x, y), Background());
    window_->setRotation(CEGUI::Quaternion::axisAngleDegrees(CEGUI::Vector3f(0, 0, 1), 90));
    EXPECT_FALSE(Host().Shoot().At(x, y) == Background());
    window_->setRotation(CEGUI::Quaternion::IDENTITY);
    EXPECT_EQ(Host().Shoot().At(x, y), Background());
}
