// SPDX-License-Identifier: MIT
// The tooltip's picture file: its size, its colours and its text.
#include "PanelTest.h"

#include <panels/TooltipPicture.h>
#include <widgets/TextMeasurer.h>

#include <CEGUI/Renderer.h>
#include <CEGUI/System.h>

#include <algorithm>
#include <cmath>

using TooltipPictureTest = PanelTest;

namespace
{
constexpr std::uint32_t Outline = 0xFF9799A8;
constexpr std::uint32_t Fill = 0xB0717A8C;
constexpr std::uint32_t TextColor = 0xFFF1F1F1;
const wchar_t* const Font = L"Noto Sans CJK SC";

gp::RectF Measured(const CString& text)
{
    return TextMeasurer(Font, 12, gp::TextRenderingHintClearTypeGridFit).Box(text);
}

/// The whole picture of a text, drawn by the test itself with GDI+'s own calls.
PictureFile Drawn(const CString& text, int width, int height)
{
    const gp::Bitmap bitmap = gp::NewBitmap(width, height);
    const gp::Graphics graphics = gp::GraphicsOf(bitmap.get());
    const gp::Pen pen = gp::Make<gp::Pen>([](gp::GpPen** p) { return gp::GdipCreatePen1(Outline, 1, gp::UnitPixel, p); });
    gp::GdipDrawRectangleI(graphics.get(), pen.get(), 0, 0, width - 1, height - 1);
    const gp::SolidBrush fill = gp::NewSolidBrush(Fill);
    gp::GdipFillRectangleI(graphics.get(), fill.get(), 1, 1, width - 2, height - 2);
    gp::GdipSetTextRenderingHint(graphics.get(), gp::TextRenderingHintClearTypeGridFit);
    gp::GdipSetInterpolationMode(graphics.get(), gp::InterpolationModeHighQualityBicubic);
    gp::GdipSetSmoothingMode(graphics.get(), gp::SmoothingModeAntiAlias);
    const gp::RectF box = Measured(text);
    const gp::RectF place = {(static_cast<float>(width) - std::ceil(box.Width)) / 2,
                             (static_cast<float>(height) - std::ceil(box.Height)) / 2, std::ceil(box.Width),
                             static_cast<float>(height)};
    const gp::FontFamily family = gp::NewFontFamily(Font);
    const gp::Font font = gp::NewFont(family.get(), 12);
    const gp::StringFormat format = gp::NewStringFormat();
    const gp::SolidBrush brush = gp::NewSolidBrush(TextColor);
    gp::GdipDrawString(graphics.get(), text, -1, font.get(), &place, format.get(), brush.get());
    PictureFile picture;
    picture.width = width;
    picture.height = height;
    for (int i = 0; i < width * height; ++i)
    {
        gp::ARGB color = 0;
        gp::GdipBitmapGetPixel(bitmap.get(), i % width, i / width, &color);
        for (const int shift : {16, 8, 0, 24})
        {
            picture.rgba.push_back(static_cast<std::uint8_t>(color >> shift));
        }
    }
    return picture;
}
} // namespace

TEST_F(TooltipPictureTest, an_outline_and_a_translucent_fill)
{
    Frame().CreateTooltipWindow(10, 10, L"iiiiiiiiii");
    const PictureFile picture = ReadPictureFile(TooltipFile());
    ASSERT_EQ(picture.width, 72);
    ASSERT_EQ(picture.height, 24);
    for (int x = 0; x < 72; ++x)
    {
        ASSERT_EQ(picture.Argb(x, 0), Outline) << x;
        ASSERT_EQ(picture.Argb(x, 23), Outline) << x;
    }
    for (int y = 0; y < 24; ++y)
    {
        ASSERT_EQ(picture.Argb(0, y), Outline) << y;
        ASSERT_EQ(picture.Argb(71, y), Outline) << y;
    }
    for (const CPoint& inside : {CPoint(1, 1), CPoint(70, 1), CPoint(1, 22), CPoint(70, 22), CPoint(4, 12)})
    {
        EXPECT_EQ(picture.Argb(inside.x, inside.y), Fill) << inside.x << "," << inside.y;
    }
}

TEST_F(TooltipPictureTest, the_text_is_light_and_centred)
{
    for (const wchar_t* text : {L"iiiiiiiiii", L"Roam", L"漫游", L"显示属性 11"})
    {
        Frame().CreateTooltipWindow(10, 10, text);
        const PictureFile picture = ReadPictureFile(TooltipFile());
        EXPECT_TRUE(SamePixels(picture, 0, Drawn(text, picture.width, 24), 0, 24)) << Utf8(text);
        EXPECT_FALSE(SamePixels(picture, 0, Drawn(L"", picture.width, 24), 0, 24)) << Utf8(text);
    }
}

TEST_F(TooltipPictureTest, what_is_seen_is_the_picture_over_the_scene)
{
    Frame().CreateTooltipWindow(300, 300, L"iiiiiiiiii");
    const PictureFile picture = ReadPictureFile(TooltipFile());
    const Screenshot shot = Host().Shoot();
    int differing = 0;
    for (int y = 0; y < 24; ++y)
    {
        for (int x = 0; x < 72; ++x)
        {
            differing += !LooksLike(shot.At(300 + x, 300 + y), Blend(picture.Argb(x, y), Background()), 4);
        }
    }
    EXPECT_EQ(differing, 0);
}

TEST_F(TooltipPictureTest, a_text_wider_than_counted_makes_the_picture_wider)
{
    const CString text = L"WWWWWWWWWW";
    const float measured = Measured(text).Width;
    ASSERT_GT(measured, 72);
    Frame().CreateTooltipWindow(300, 300, text);
    const PictureFile picture = ReadPictureFile(TooltipFile());
    EXPECT_EQ(picture.width, static_cast<int>(measured + 6));
    EXPECT_EQ(picture.height, 24);
    EXPECT_TRUE(SamePixels(picture, 0, Drawn(text, picture.width, 24), 0, 24));
}

TEST_F(TooltipPictureTest, a_wider_picture_is_squeezed_into_the_window_on_purpose)
{
    Frame().CreateTooltipWindow(300, 300, L"WWWWWWWWWW");
    EXPECT_GT(ReadPictureFile(TooltipFile()).width, 72);
    EXPECT_EQ(Place(Tooltip), "300,300 - 372,324");
    const Screenshot shot = Host().Shoot();
    // The picture's last column is the window's last column.
    for (const int y : {302, 312, 321})
    {
        EXPECT_TRUE(LooksLike(shot.At(371, y), {0x97, 0x99, 0xA8}, 40)) << y;
        EXPECT_EQ(shot.At(372, y), Background()) << y;
    }
}

TEST_F(TooltipPictureTest, more_lines_make_the_picture_taller_but_not_the_window)
{
    const CString text = L"one\ntwo\nthree";
    const gp::RectF measured = Measured(text);
    ASSERT_GT(measured.Height, 24);
    Frame().CreateTooltipWindow(300, 300, text);
    const PictureFile picture = ReadPictureFile(TooltipFile());
    EXPECT_EQ(picture.height, static_cast<int>(measured.Height + 6));
    EXPECT_EQ(picture.width, 6 * 13 + 12);
    EXPECT_EQ(Place(Tooltip), "300,300 - 390,324");
    EXPECT_TRUE(SamePixels(picture, 0, Drawn(text, picture.width, picture.height), 0, picture.height));
}

TEST_F(TooltipPictureTest, the_first_hundred_characters_are_drawn_and_all_are_counted)
{
    Frame().CreateTooltipWindow(0, 0, Repeated(L"W", 100));
    const std::vector<std::uint8_t> hundred = ReadBytes(TooltipFile());
    EXPECT_EQ(Place(Tooltip), "0,0 - 612,24");
    Frame().CreateTooltipWindow(0, 0, Repeated(L"W", 150));
    EXPECT_TRUE(ReadBytes(TooltipFile()) == hundred);
    EXPECT_EQ(Place(Tooltip), "0,0 - 912,24");
    Frame().CreateTooltipWindow(0, 0, Repeated(L"W", 99));
    EXPECT_FALSE(ReadBytes(TooltipFile()) == hundred);
}

TEST_F(TooltipPictureTest, the_hundredth_character_counts_and_the_next_does_not)
{
    const CString start = Repeated(L"i", 99);
    Frame().CreateTooltipWindow(0, 0, start + L"i" + Repeated(L"i", 50));
    const std::vector<std::uint8_t> drawn = ReadBytes(TooltipFile());
    EXPECT_EQ(ReadPictureFile(TooltipFile()).width, 912) << "counted from all";
    Frame().CreateTooltipWindow(0, 0, start + L"i" + Repeated(L"j", 50));
    EXPECT_TRUE(ReadBytes(TooltipFile()) == drawn);
    Frame().CreateTooltipWindow(0, 0, start + L"j" + Repeated(L"i", 50));
    EXPECT_FALSE(ReadBytes(TooltipFile()) == drawn);
}

TEST_F(TooltipPictureTest, one_without_room_is_not_written)
{
    ASSERT_TRUE(WriteTooltipPicture(L"text", 100));
    MakeOld(TooltipFile());
    EXPECT_FALSE(WriteTooltipPicture(L"text", 0));
    EXPECT_TRUE(IsOld(TooltipFile()));
    EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: tooltip picture not written: " + Utf8(TooltipFile())});
}

TEST_F(TooltipPictureTest, the_picture_of_five_thousand_characters_is_as_wide_as_a_texture_can_be)
{
    const unsigned widest = CEGUI::System::getSingleton().getRenderer()->getMaxTextureSize();
    Frame().CreateTooltipWindow(0, 300, Repeated(L"i", 5000));
    EXPECT_EQ(ReadPictureFile(TooltipFile()).width, static_cast<int>(std::min(30012u, widest)));
    EXPECT_EQ(Place(Tooltip), "0,300 - 30012,324");
    EXPECT_TRUE(LooksLike(Seen(400, 310), Blend(Fill, Background())));
}
