// SPDX-License-Identifier: MIT
// TIFF files, sound and damaged.
#include "PackedPictures.h"
#include "Pictures.h"

#include "support/GTest.h"
#include "support/Gui.h"
#include "support/Spoiling.h"

#include <imaging/TiffFile.h>
#include <widgets/GuiImageCodec.h>

#include <KernelCommonUse/StringConvert.h>

namespace
{
std::vector<std::uint8_t> Sound(const std::string& file)
{
    const std::vector<std::uint8_t> bytes = ReadBytes(Utf8ToCString(NX_PICTURE_CORPUS + ("/" + file)));
    EXPECT_FALSE(bytes.empty()) << file;
    return bytes;
}

const char* const soundFiles[] = {"plain.tiff", "lzw.tiff", "big_endian_zip.tiff", "fax.tiff", "tiles.tiff"};
} // namespace

TEST(TiffFile, damaged_files_are_refused_or_read_and_end_nothing)
{
    for (const char* file : soundFiles)
    {
        const std::vector<std::uint8_t> sound = Sound(file);
        int refused = 0;
        for (unsigned int seed = 0; seed < 400; ++seed)
        {
            SCOPED_TRACE(file + (", seed " + std::to_string(seed)));
            const std::vector<std::uint8_t> bytes = Spoilt(sound, seed);
            RgbaPicture picture;
            const bool read = DecodePicture(bytes.data(), bytes.size(), picture);
            EXPECT_EQ(read, gp::BitmapOf(bytes.data(), bytes.size()) != nullptr);
            refused += !read;
        }
        EXPECT_GT(refused, 50) << file;
        EXPECT_LT(refused, 400) << file;
    }
}

TEST(TiffFile, files_cut_anywhere_are_refused)
{
    for (const char* file : {"plain.tiff", "lzw.tiff", "big_endian_zip.tiff"})
    {
        const std::vector<std::uint8_t> sound = Sound(file);
        RgbaPicture picture;
        bool alpha = false;
        ASSERT_TRUE(ReadTiffFile(sound.data(), sound.size(), picture, alpha)) << file;
        for (std::size_t size = 0; size < sound.size() / 2; ++size)
        {
            const std::vector<std::uint8_t> cut(sound.begin(), sound.begin() + static_cast<std::ptrdiff_t>(size));
            EXPECT_FALSE(ReadTiffFile(cut.data(), cut.size(), picture, alpha)) << file << ", " << size;
        }
    }
}

TEST(TiffFile, colours_are_not_multiplied_by_the_alpha_beside_them)
{
    const Argb clear = {3, 2, {0x80FF0000, 0x0000FF00, 0x010000FF, 0xFFFFFFFF, 0x00000000, 0xC0123456}};
    WriteWithEncoder(clear, L"image/tiff", SkinDir() + L"clear.tmp");
    const std::vector<std::uint8_t> bytes = ReadBytes(SkinDir() + L"clear.tmp");
    RgbaPicture picture;
    bool alpha = false;
    ASSERT_TRUE(ReadTiffFile(bytes.data(), bytes.size(), picture, alpha));
    EXPECT_TRUE(alpha);
    for (std::size_t i = 0; i < clear.pixels.size(); ++i)
    {
        const std::uint8_t* p = &picture.pixels[i * 4];
        EXPECT_EQ(std::uint32_t(p[3]) << 24 | p[0] << 16 | p[1] << 8 | p[2], clear.pixels[i]) << i;
    }
    const gp::Bitmap bitmap = gp::BitmapOf(bytes.data(), bytes.size());
    gp::PixelFormat format = 0;
    gp::GdipGetImagePixelFormat(bitmap.get(), &format);
    EXPECT_EQ(format, PixelFormat32bppARGB);
    gp::ARGB pixel = 0;
    gp::GdipBitmapGetPixel(bitmap.get(), 0, 0, &pixel);
    EXPECT_EQ(pixel, 0x80FF0000u);
}

TEST(TiffFile, colours_that_are_multiplied_by_their_alpha_are_divided_by_it)
{
    const std::vector<std::uint8_t> bytes = PremultipliedTiff({64, 32, 0, 128});
    RgbaPicture picture;
    bool alpha = false;
    ASSERT_TRUE(ReadTiffFile(bytes.data(), bytes.size(), picture, alpha));
    EXPECT_TRUE(alpha);
    EXPECT_EQ(picture.pixels, (std::vector<std::uint8_t>{128, 64, 0, 128}));
}
