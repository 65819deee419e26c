// SPDX-License-Identifier: MIT
// Texts drawn into picture files.
#include "Fonts.h"
#include "Sheet.h"

#include <widgets/Gdiplus.h>
#include <widgets/TextPicture.h>

#include <algorithm>
#include <cstdlib>

namespace
{
constexpr std::uint32_t OutsideGlyphs = 0x004D4D4A;

class TextPicture : public SheetTest
{
protected:
    static CString Path(const wchar_t* name) { return SkinDir() + name; }
    static bool Exists(const CString& path) { return GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES; }
    static PictureFile Draw(const wchar_t* text, UINT width = 200, UINT height = 60, UINT fontHeight = 40,
                            const wchar_t* font = Latin, COLORREF color = 0x000000FF)
    {
        EXPECT_TRUE(DrawTextToImageFile(Path(L"text.bmp"), width, height, font, fontHeight, color, text));
        return ReadPictureFile(Path(L"text.bmp"));
    }
};

/// The box around all pixels that are not fully transparent.
RECT GlyphBox(const PictureFile& file)
{
    RECT box = {file.width, file.height, 0, 0};
    for (int y = 0; y < file.height; ++y)
    {
        for (int x = 0; x < file.width; ++x)
        {
            if (file.Argb(x, y) >> 24)
            {
                box = {std::min<LONG>(box.left, x), std::min<LONG>(box.top, y), std::max<LONG>(box.right, x + 1),
                       std::max<LONG>(box.bottom, y + 1)};
            }
        }
    }
    return box;
}

bool IsBlank(const PictureFile& file)
{
    return file.width > 0 && GlyphBox(file).right == 0;
}
} // namespace

TEST_F(TextPicture, colour_becomes_opaque_argb)
{
    const struct
    {
        COLORREF color;
        std::uint32_t argb;
    } rows[] = {{0x000000FF, 0xFFFF0000}, {0x0000FF00, 0xFF00FF00}, {0x00FF0000, 0xFF0000FF}, {0x00FFFFFF, 0xFFFFFFFF},
                {0x00000000, 0xFF000000}, {0x00123456, 0xFF563412}, {0xFF123456, 0xFF563412}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(gp::OpaqueArgb(row.color), row.argb);
        const PictureFile file = Draw(L"█", 60, 60, 40, Latin, row.color);
        const RECT box = GlyphBox(file);
        EXPECT_EQ(file.Argb((box.left + box.right) / 2, (box.top + box.bottom) / 2), row.argb);
    }
}

TEST_F(TextPicture, file_is_a_bitmap_of_32_bits_of_the_asked_size)
{
    const PictureFile file = Draw(L"Text", 201, 37, 20);
    EXPECT_EQ(file.width, 201);
    EXPECT_EQ(file.height, 37);
    const std::vector<std::uint8_t> bytes = ReadBytes(Path(L"text.bmp"));
    ASSERT_EQ(bytes.size(), 54u + 201 * 37 * 4);
    EXPECT_EQ(bytes[28], 32);
}

TEST_F(TextPicture, every_pixel_outside_the_glyphs_is_the_transparent_grey)
{
    const PictureFile file = Draw(L"gÅ中", 200, 60, 40, Chinese);
    int outside = 0;
    int wrong = 0;
    int opaque = 0;
    int edge = 0;
    for (int y = 0; y < file.height; ++y)
    {
        for (int x = 0; x < file.width; ++x)
        {
            const std::uint32_t argb = file.Argb(x, y);
            switch (argb >> 24)
            {
            case 0:
                ++outside;
                wrong += argb != OutsideGlyphs;
                break;
            case 255:
                ++opaque;
                wrong += argb != 0xFFFF0000u;
                break;
            default:
                ++edge;
                break;
            }
        }
    }
    EXPECT_EQ(wrong, 0) << "pixels of another colour outside or inside the glyphs";
    EXPECT_GT(outside, file.width * file.height / 2);
    EXPECT_GT(opaque, 100);
    EXPECT_GT(edge, 50) << "edges are anti-aliased";
    EXPECT_EQ(file.Argb(0, 0), OutsideGlyphs);
    EXPECT_EQ(file.Argb(file.width - 1, file.height - 1), OutsideGlyphs);
}

TEST_F(TextPicture, empty_text_is_a_picture_of_nothing)
{
    const PictureFile file = Draw(L"");
    EXPECT_EQ(file.width, 200);
    EXPECT_TRUE(IsBlank(file));
    EXPECT_EQ(file.Argb(100, 30), OutsideGlyphs);
}

TEST_F(TextPicture, text_starts_at_the_left_and_the_top)
{
    const RECT box = GlyphBox(Draw(L"Hx", 300, 120, 30));
    EXPECT_LT(box.left, 12);
    EXPECT_LT(box.top, 20);
    EXPECT_GT(box.right, 30);
    EXPECT_LT(box.right, 80);
    EXPECT_LT(box.bottom, 45);
}

TEST_F(TextPicture, text_is_drawn_from_the_corner_to_the_pixel)
{
    const PictureFile file = Draw(L"Hill, gravel");
    ASSERT_FALSE(IsBlank(file));
    const gp::Bitmap bitmap = gp::NewBitmap(file.width, file.height);
    {
        const gp::Graphics graphics = gp::GraphicsOf(bitmap.get());
        gp::SetQuality(graphics.get(), gp::TextRenderingHintAntiAlias);
        const gp::FontFamily family = gp::NewFontFamily(Latin);
        const gp::Font font = gp::NewFont(family.get(), 40);
        const gp::StringFormat format = gp::NewStringFormat();
        const gp::SolidBrush brush = gp::NewSolidBrush(0xFFFF0000);
        const gp::RectF place = {0, 0, static_cast<float>(file.width), static_cast<float>(file.height)};
        gp::GdipDrawString(graphics.get(), L"Hill, gravel", -1, font.get(), &place, format.get(), brush.get());
    }
    int differing = 0;
    for (int i = 0; i < file.width * file.height; ++i)
    {
        gp::ARGB expected = 0;
        gp::GdipBitmapGetPixel(bitmap.get(), i % file.width, i / file.width, &expected);
        const int alpha = static_cast<int>(file.Argb(i % file.width, i / file.width) >> 24);
        differing += std::abs(alpha - static_cast<int>(expected >> 24)) > 2;
    }
    EXPECT_EQ(differing, 0);
}

TEST_F(TextPicture, font_height_is_in_pixels)
{
    const RECT low = GlyphBox(Draw(L"H", 200, 120, 20));
    const RECT high = GlyphBox(Draw(L"H", 200, 120, 80));
    // A capital of this font is 0.729 of the em high.
    EXPECT_NEAR(low.bottom - low.top, 0.729 * 20, 1.5);
    EXPECT_NEAR(high.bottom - high.top, 0.729 * 80, 1.5);
}

TEST_F(TextPicture, text_is_broken_at_the_width_and_cut_at_the_edges)
{
    EXPECT_LT(GlyphBox(Draw(L"one two", 400, 80, 30)).bottom, 40);
    EXPECT_GT(GlyphBox(Draw(L"one two", 80, 80, 30)).bottom, 45);
    const RECT cut = GlyphBox(Draw(L"██████████", 50, 10, 40));
    EXPECT_LE(cut.right, 50);
    EXPECT_EQ(cut.bottom, 10);
}

TEST_F(TextPicture, text_ends_at_its_first_null)
{
    CString text = L"Hi-";
    const PictureFile whole = Draw(L"Hi");
    text.SetAt(2, L'\0');
    EXPECT_TRUE(DrawTextToImageFile(Path(L"text.bmp"), 200, 60, Latin, 40, 0x000000FF, text + L"more"));
    EXPECT_EQ(ReadPictureFile(Path(L"text.bmp")).rgba, whole.rgba);
}

TEST_F(TextPicture, chinese_characters_are_drawn)
{
    const PictureFile one = Draw(L"一", 200, 60, 40, Chinese);
    const PictureFile two = Draw(L"规划", 200, 60, 40, Chinese);
    EXPECT_FALSE(IsBlank(one));
    EXPECT_NEAR(GlyphBox(two).right - GlyphBox(two).left, 80, 8);
    EXPECT_NE(one.rgba, Draw(L"二", 200, 60, 40, Chinese).rgba);
}

TEST_F(TextPicture, font_that_is_not_installed_leaves_the_text_out)
{
    EXPECT_TRUE(DrawTextToImageFile(Path(L"nofont.bmp"), 100, 30, L"No Such Family", 20, 0x00FFFFFF, L"text"));
    EXPECT_EQ(TakeLog(),
              Lines{"NxOsgCeGui: font family not installed, text left out of " + Utf8(Path(L"nofont.bmp")) + ": No Such Family"});
    const PictureFile file = ReadPictureFile(Path(L"nofont.bmp"));
    EXPECT_EQ(file.width, 100);
    EXPECT_TRUE(IsBlank(file));
    EXPECT_EQ(file.Argb(50, 15), OutsideGlyphs);
}
