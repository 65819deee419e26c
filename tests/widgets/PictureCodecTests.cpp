// SPDX-License-Identifier: MIT
// What the picture codec reads, pixel by pixel, and what it refuses.
#include "Pictures.h"

#include "support/GTest.h"
#include "support/Gui.h"

#include <widgets/GuiImageCodec.h>

#include <cstdlib>

namespace
{
/// 3 x 2 pixels, so that rows need padding and neither side may be mistaken for the other.
const Argb Opaque = {3, 2, {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFFFFFFFF, 0xFF000000, 0xFF123456}};
const Argb Clear = {3, 2, {0x80FF0000, 0x0000FF00, 0x010000FF, 0xFFFFFFFF, 0x00000000, 0xC0123456}};

std::string Hex(std::uint32_t value)
{
    char text[9];
    std::snprintf(text, sizeof(text), "%08X", value);
    return text;
}

void ExpectPixels(const std::vector<std::uint8_t>& bytes, const Argb& expected, int tolerance = 0)
{
    RgbaPicture picture;
    ASSERT_TRUE(DecodePicture(bytes.data(), bytes.size(), picture));
    ASSERT_EQ(picture.width, expected.width);
    ASSERT_EQ(picture.height, expected.height);
    ASSERT_EQ(picture.pixels.size(), expected.pixels.size() * 4);
    for (std::size_t i = 0; i < expected.pixels.size(); ++i)
    {
        const std::uint8_t* p = &picture.pixels[i * 4];
        const std::uint32_t argb = expected.pixels[i];
        const int differences[] = {p[0] - int(argb >> 16 & 255), p[1] - int(argb >> 8 & 255), p[2] - int(argb & 255),
                                   p[3] - int(argb >> 24)};
        for (const int difference : differences)
        {
            EXPECT_LE(std::abs(difference), tolerance) << "pixel " << i << " should be " << Hex(argb);
        }
    }
}

std::vector<std::uint8_t> Encoded(const Argb& picture, const wchar_t* mimeType)
{
    const CString path = SkinDir() + L"encoded.tmp";
    WriteWithEncoder(picture, mimeType, path);
    return ReadBytes(path);
}

bool Reads(const std::vector<std::uint8_t>& bytes)
{
    RgbaPicture picture;
    return DecodePicture(bytes.data(), bytes.size(), picture);
}

void Put32(std::vector<std::uint8_t>& bytes, std::size_t at, std::uint32_t value)
{
    for (int i = 0; i < 4; ++i)
    {
        bytes[at + static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(value >> 8 * i);
    }
}
} // namespace

TEST(PictureCodec, bitmap_of_32_bits_keeps_its_alpha)
{
    ExpectPixels(Bmp32(Clear), Clear);
}

TEST(PictureCodec, bitmap_of_32_bits_from_the_top_down)
{
    ExpectPixels(Bmp32(Clear, true), Clear);
}

TEST(PictureCodec, bitmap_of_24_bits_is_opaque)
{
    ExpectPixels(Bmp24(Opaque), Opaque);
}

TEST(PictureCodec, bitmap_of_8_bits_takes_its_palette)
{
    ExpectPixels(Bmp8(Opaque), Opaque);
}

TEST(PictureCodec, bitmap_with_bytes_behind_its_pixels)
{
    std::vector<std::uint8_t> bytes = Bmp32(Clear);
    bytes.resize(bytes.size() + 100, 0x77);
    ExpectPixels(bytes, Clear);
}

TEST(PictureCodec, png_keeps_its_alpha)
{
    ExpectPixels(Encoded(Opaque, L"image/png"), Opaque);
    ExpectPixels(Encoded(Solid(5, 4, 0x80336699), L"image/png"), Solid(5, 4, 0x80336699), 1);
}

TEST(PictureCodec, tiff_is_read)
{
    ExpectPixels(Encoded(Opaque, L"image/tiff"), Opaque);
}

TEST(PictureCodec, gif_is_read)
{
    ExpectPixels(Encoded(Solid(5, 4, 0xFFFF0000), L"image/gif"), Solid(5, 4, 0xFFFF0000));
}

TEST(PictureCodec, gif_keeps_what_is_at_least_half_opaque_in_the_nearest_of_six_levels)
{
    const Argb picture = {3, 2, {0xFFFF0000, 0x80FF0000, 0x7FFF0000, 0x00FF0000, 0xFF203080, 0xFFE0D090}};
    const std::vector<std::uint32_t> shown = {0xFF0000, 0xFF0000, 0x000000, 0x000000, 0x333399, 0xCCCC99};
    const std::vector<std::uint8_t> bytes = Encoded(picture, L"image/gif");
    RgbaPicture read;
    ASSERT_TRUE(DecodePicture(bytes.data(), bytes.size(), read));
    ASSERT_EQ(read.pixels.size(), shown.size() * 4);
    for (std::size_t i = 0; i < shown.size(); ++i)
    {
        // Without alpha: not every encoder marks the palette's transparent entry in the file.
        const std::uint8_t* p = &read.pixels[i * 4];
        EXPECT_EQ(Hex(std::uint32_t(p[0]) << 16 | std::uint32_t(p[1]) << 8 | p[2]), Hex(shown[i])) << "pixel " << i;
    }
}

TEST(PictureCodec, jpeg_is_read)
{
    ExpectPixels(Encoded(Solid(16, 8, 0xFF336699), L"image/jpeg"), Solid(16, 8, 0xFF336699), 4);
}

TEST(PictureCodec, what_is_no_picture_is_refused)
{
    EXPECT_FALSE(Reads({}));
    EXPECT_FALSE(Reads({0}));
    EXPECT_FALSE(Reads({'B', 'M'}));
    EXPECT_FALSE(Reads(std::vector<std::uint8_t>(1000, 0)));
    EXPECT_FALSE(Reads(std::vector<std::uint8_t>(1000, 'x')));
}

TEST(PictureCodec, bitmap_cut_anywhere_reads_nothing_beyond_its_end)
{
    const std::vector<std::uint8_t> whole = Bmp32(Clear);
    for (std::size_t size = 0; size < whole.size(); ++size)
    {
        const std::vector<std::uint8_t> cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
        RgbaPicture picture;
        EXPECT_FALSE(ReadBmpFile(cut.data(), cut.size(), picture)) << size;
    }
    RgbaPicture picture;
    EXPECT_TRUE(ReadBmpFile(whole.data(), whole.size(), picture));
}

TEST(PictureCodec, bitmap_with_a_lying_header_is_refused)
{
    const struct
    {
        const char* name;
        std::size_t at;
        std::uint32_t value;
    } rows[] = {
        {"no width", 18, 0},
        {"negative width", 18, 0xFFFFFFFD},
        {"huge width", 18, 0x40000000},
        {"widest", 18, 0x7FFFFFFF},
        {"no height", 22, 0},
        {"higher than the file", 22, 3},
        {"huge height", 22, 0x7FFFFFFF},
        {"lowest height", 22, 0x80000000},
        {"pixels behind the end", 10, 0x7FFFFFFF},
        {"pixels at the end", 10, 54 + 3 * 2 * 4},
        {"pixels one byte late", 10, 55},
        {"all ones", 10, 0xFFFFFFFF},
    };
    for (const auto& row : rows)
    {
        std::vector<std::uint8_t> bytes = Bmp32(Clear);
        Put32(bytes, row.at, row.value);
        RgbaPicture picture;
        EXPECT_FALSE(ReadBmpFile(bytes.data(), bytes.size(), picture)) << row.name;
    }
}

TEST(PictureCodec, bitmap_s_sides_have_a_limit)
{
    const auto reads = [](int width, int height, bool topDown)
    {
        const std::vector<std::uint8_t> bytes = Bmp32(Solid(width, height, 0xFF336699), topDown);
        RgbaPicture picture;
        return ReadBmpFile(bytes.data(), bytes.size(), picture) && picture.width == width && picture.height == height;
    };
    for (const bool topDown : {false, true})
    {
        EXPECT_TRUE(reads(32768, 1, topDown)) << topDown;
        EXPECT_TRUE(reads(1, 32768, topDown)) << topDown;
        EXPECT_FALSE(reads(32769, 1, topDown)) << topDown;
        EXPECT_FALSE(reads(1, 32769, topDown)) << topDown;
    }
}

TEST(PictureCodec, other_bitmaps_are_left_to_gdiplus)
{
    RgbaPicture picture;
    const std::vector<std::uint8_t> with24 = Bmp24(Opaque);
    EXPECT_FALSE(ReadBmpFile(with24.data(), with24.size(), picture));
    std::vector<std::uint8_t> compressed = Bmp32(Clear);
    Put32(compressed, 30, BI_BITFIELDS);
    EXPECT_FALSE(ReadBmpFile(compressed.data(), compressed.size(), picture));
    std::vector<std::uint8_t> other = Bmp32(Clear);
    other[0] = 'C';
    EXPECT_FALSE(ReadBmpFile(other.data(), other.size(), picture));
}

TEST(PictureCodec, written_bitmap_reads_back_the_same)
{
    const gp::Bitmap bitmap = gp::NewBitmap(Clear.width, Clear.height);
    for (int i = 0; i < 6; ++i)
    {
        gp::GdipBitmapSetPixel(bitmap.get(), i % 3, i / 3, Clear.pixels[static_cast<std::size_t>(i)]);
    }
    const CString path = SkinDir() + L"written.bmp";
    ASSERT_TRUE(WriteBmpFile(bitmap.get(), path));
    const std::vector<std::uint8_t> bytes = ReadBytes(path);
    EXPECT_EQ(bytes.size(), 54u + 3 * 2 * 4);
    ExpectPixels(bytes, Clear);
    EXPECT_EQ(bytes,
              [&]
              {
                  std::vector<std::uint8_t> expected = Bmp32(Clear);
                  Put32(expected, 38, 0);
                  Put32(expected, 42, 0);
                  return expected;
              }());
}

TEST(PictureCodec, codec_names_every_kind_of_file_in_the_encoder_table)
{
    EXPECT_EQ(GuiImageCodec().getSupportedFormat(), "bmp jpeg jpg gif tiff png");
}
