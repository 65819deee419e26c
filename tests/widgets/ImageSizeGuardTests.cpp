// SPDX-License-Identifier: MIT
// Picture files that declare more than they can hold, and the memory that decoding takes.
#include "PackedPictures.h"
#include "Pictures.h"

#include "support/GTest.h"
#include "support/Gui.h"
#include "support/MemoryPeak.h"

#include <imaging/ImageSizeGuard.h>
#include <imaging/TiffFile.h>
#include <widgets/GuiImageCodec.h>

#include <KernelCommonUse/StringConvert.h>

#include <algorithm>
#include <utility>

namespace
{
std::vector<std::uint8_t> CorpusPicture(const std::string& file)
{
    const std::vector<std::uint8_t> bytes = ReadBytes(Utf8ToCString(NX_PICTURE_CORPUS + ("/" + file)));
    EXPECT_FALSE(bytes.empty()) << file;
    return bytes;
}

bool Decoded(const std::vector<std::uint8_t>& bytes)
{
    RgbaPicture picture;
    return DecodePicture(bytes.data(), bytes.size(), picture);
}

constexpr long MostMemory = 64;
} // namespace

TEST(ImageSizeGuard, small_file_that_claims_60000_by_60000_pixels_does_not_get_the_memory)
{
    // What a decoder needs for any picture is had by now.
    ASSERT_TRUE(Decoded(CorpusPicture("rgb.png")));
    for (const char* file :
         {"claims_60000.bmp", "claims_60000_32_bits.bmp", "claims_60000_core.bmp", "claims_60000_rle.bmp", "claims_60000.gif",
          "frame_claims_60000.gif", "claims_60000.jpg", "claims_60000_progressive.jpg", "claims_60000.png",
          "claims_60000_one_bit.png", "larger_than_allowed.png", "claims_60000.tiff", "tile_claims_60000.tiff", "windows.ico"})
    {
        const std::vector<std::uint8_t> bytes = CorpusPicture(file);
        EXPECT_LT(bytes.size(), 20000u) << file;
        const long addressSpace = ReportedMemory("VmPeak:");
        const MemoryPeak memory;
        EXPECT_FALSE(Decoded(bytes)) << file;
        EXPECT_LT(memory.Growth(), MostMemory) << file;
        EXPECT_LT(ReportedMemory("VmPeak:") - addressSpace, MostMemory) << file;
        EXPECT_FALSE(ImageSizeGuard::AllowsFile(bytes.data(), bytes.size())) << file;
    }
}

TEST(ImageSizeGuard, memory_of_a_large_picture_is_seen)
{
    const MemoryPeak memory;
    ASSERT_TRUE(Decoded(Bmp32(Solid(4096, 4096, 0xFF102030))));
    EXPECT_GE(memory.Growth(), MostMemory);
}

TEST(ImageSizeGuard, rows_of_a_strip_that_the_picture_has_not_take_no_memory)
{
    const std::vector<std::uint8_t> bytes = CorpusPicture("rows_claim_60000.tiff");
    const MemoryPeak memory;
    Decoded(bytes);
    EXPECT_LT(memory.Growth(), MostMemory);
}

TEST(ImageSizeGuard, pixels_behind_the_end_of_a_bitmap_file_are_not_looked_for)
{
    // A decoder may end the process on it.
    EXPECT_FALSE(Decoded(CorpusPicture("pixels_behind_the_end.bmp")));
}

TEST(ImageSizeGuard, directories_in_a_ring_are_not_followed)
{
    std::vector<std::uint8_t> bytes = GreyTiff({{4, 4, 0x77, 16}, {4, 4, 0x88, 16}});
    bytes[bytes.size() - 16 - 4] = 8;
    EXPECT_TRUE(Decoded(bytes));
    EXPECT_FALSE(Decoded(CorpusPicture("directories_in_a_ring.tiff"))) << "its only directory lacks the pixels";
}

TEST(ImageSizeGuard, pictures_behind_the_first_one_of_an_animation_are_not_decoded)
{
    WriteWithEncoder(Solid(800, 600, 0xFFFF0000), L"image/gif", SkinDir() + L"still.tmp");
    const std::vector<std::uint8_t> bytes = Animation(ReadBytes(SkinDir() + L"still.tmp"), 150);
    const MemoryPeak memory;
    const gp::Bitmap first = gp::BitmapOf(bytes.data(), bytes.size());
    ASSERT_TRUE(first);
    EXPECT_LT(memory.Growth(), 20) << "all of them have 72 M pixels";
    gp::ARGB pixel = 0;
    gp::GdipBitmapGetPixel(first.get(), 799, 599, &pixel);
    EXPECT_EQ(pixel, 0xFFFF0000u);
}

TEST(ImageSizeGuard, pages_behind_the_first_one_of_a_tiff_file_are_not_decoded)
{
    const std::vector<std::uint8_t> bytes = GreyTiff({{40, 30, 0x77, 1200}, {60000, 60000, 0, 10}});
    RgbaPicture picture;
    ASSERT_TRUE(DecodePicture(bytes.data(), bytes.size(), picture));
    EXPECT_EQ(picture.width, 40);
    EXPECT_EQ(picture.height, 30);
    EXPECT_EQ(picture.pixels[4799], 0xFF);
    EXPECT_EQ(picture.pixels[4796], 0x77);
    const std::vector<std::uint8_t> other = GreyTiff({{60000, 60000, 0, 10}, {40, 30, 0x77, 1200}});
    EXPECT_FALSE(DecodePicture(other.data(), other.size(), picture));
}

TEST(ImageSizeGuard, pixels_of_24_bits_may_be_more_than_those_of_32)
{
    const std::vector<std::uint8_t> bytes = GreyJpeg(9008, 7600);
    const MemoryPeak memory;
    const gp::Bitmap picture = gp::BitmapOf(bytes.data(), bytes.size());
    ASSERT_TRUE(picture);
    EXPECT_LT(memory.Growth(), 2 * (ImageSizeGuard::MostBytes >> 20)) << "the decoder's pixels and the bitmap's";
    gp::ARGB pixel = 0;
    gp::GdipBitmapGetPixel(picture.get(), 9007, 7599, &pixel);
    EXPECT_EQ(pixel, 0xFF808080u);
    EXPECT_TRUE(ImageSizeGuard::AllowsBitmap(9008, 7600, 24));
    EXPECT_FALSE(ImageSizeGuard::AllowsBitmap(9008, 7600, 32));
    const std::vector<std::uint8_t> larger = GreyJpeg(12000, 7472);
    EXPECT_FALSE(gp::BitmapOf(larger.data(), larger.size())) << "257 MB";
}

TEST(ImageSizeGuard, white_pages_of_a_fax_are_read)
{
    for (const auto& [width, height] : {std::pair(2480u, 3508u), std::pair(4960u, 7016u)})
    {
        const std::vector<std::uint8_t> bytes = WhiteFax(width, height);
        EXPECT_LT(bytes.size(), 1100u);
        RgbaPicture picture;
        ASSERT_TRUE(DecodePicture(bytes.data(), bytes.size(), picture)) << width;
        EXPECT_EQ(picture.width, static_cast<int>(width));
        EXPECT_EQ(picture.height, static_cast<int>(height));
        EXPECT_EQ(std::count(picture.pixels.begin(), picture.pixels.end(), 0xFF),
                  static_cast<std::ptrdiff_t>(picture.pixels.size()));
    }
    const std::vector<std::uint8_t> higher = WhiteFax(32, 20000);
    EXPECT_FALSE(Decoded(std::vector<std::uint8_t>(higher.begin(), higher.begin() + 200))) << "not a bit for each row";
}

TEST(ImageSizeGuard, icons_are_read)
{
    WriteWithEncoder(Solid(256, 256, 0xFF0000FF), L"image/png", SkinDir() + L"icon.tmp");
    const std::vector<std::uint8_t> png = ReadBytes(SkinDir() + L"icon.tmp");
    const std::vector<std::uint8_t> bitmap = IconBitmap(32, 0xFF00FF00);
    EXPECT_TRUE(Decoded(Icon({bitmap})));
    EXPECT_TRUE(Decoded(Icon({png})));
    EXPECT_TRUE(Decoded(Icon({bitmap, png})));
    std::vector<std::uint8_t> damaged = png;
    damaged[damaged.size() / 2] ^= 0xFF;
    std::vector<std::uint8_t> cut = bitmap;
    cut.resize(cut.size() / 2);
    std::vector<std::uint8_t> huge = bitmap;
    huge[6] = 1;
    for (const auto& picture : {damaged, cut, huge})
    {
        EXPECT_FALSE(Decoded(Icon({picture})));
        EXPECT_FALSE(Decoded(Icon({picture, bitmap})));
        EXPECT_TRUE(Decoded(Icon({bitmap, picture}))) << "the first one alone is decoded";
    }
    EXPECT_FALSE(Decoded(Icon({})));
    std::vector<std::uint8_t> beyond = Icon({bitmap});
    beyond[17] = 0xFF;
    EXPECT_FALSE(Decoded(beyond));
}

TEST(ImageSizeGuard, bitmaps_have_the_limits_of_picture_files)
{
    const struct
    {
        std::int64_t width;
        std::int64_t height;
        int bits;
        bool allowed;
    } rows[] = {{1, 1, 32, true},
                {0, 1, 32, false},
                {1, 0, 32, false},
                {-1, 1, 32, false},
                {1, -1, 32, false},
                {32768, 2048, 32, true},
                {32768, 2049, 32, false},
                {2048, 32768, 32, true},
                {32769, 1, 32, false},
                {1, 32769, 32, false},
                {32768, 2730, 24, true},
                {32768, 2731, 24, false},
                {32768, 2730, 1, true},
                {32768, 2731, 1, false},
                {40000, 40000, 32, false},
                {INT64_MAX, INT64_MAX, 32, false},
                {INT64_MIN, INT64_MIN, 32, false}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(ImageSizeGuard::AllowsBitmap(row.width, row.height, row.bits), row.allowed)
            << row.width << " x " << row.height << " of " << row.bits;
    }
    EXPECT_FALSE(gp::NewBitmap(40000, 40000));
    EXPECT_FALSE(gp::NewBitmap(32768, 32768));
    EXPECT_FALSE(gp::NewBitmap(-5, 5));
}

TEST(ImageSizeGuard, well_packed_pictures_are_read)
{
    const Argb picture = Solid(1200, 800, 0xFF204060);
    for (const wchar_t* type : {L"image/png", L"image/jpeg", L"image/gif", L"image/tiff"})
    {
        const CString path = SkinDir() + L"packed.tmp";
        WriteWithEncoder(picture, type, path);
        EXPECT_TRUE(Decoded(ReadBytes(path))) << CString2string(type);
    }
    for (const char* file :
         {"rgb.png",  "rgba.png",    "palette.png",    "interlaced.png", "one_bit.png", "baseline.jpg",    "progressive.jpg",
          "gray.jpg", "still.gif",   "two_frames.gif", "interlaced.gif", "plain.tiff",  "lzw.tiff",        "big_endian_zip.tiff",
          "fax.tiff", "24_bits.bmp", "32_bits.bmp",    "top_down.bmp",   "rle.bmp",     "core_header.bmp", "v4_header.bmp"})
    {
        EXPECT_TRUE(Decoded(CorpusPicture(file))) << file;
    }
}

TEST(ImageSizeGuard, sides_have_a_limit)
{
    const auto png = [](std::uint32_t width, std::uint32_t height)
    {
        std::vector<std::uint8_t> bytes = CorpusPicture("one_bit.png");
        bytes.resize(20000);
        for (std::size_t i = 0; i < 4; ++i)
        {
            bytes[16 + i] = static_cast<std::uint8_t>(width >> (24 - 8 * i));
            bytes[20 + i] = static_cast<std::uint8_t>(height >> (24 - 8 * i));
        }
        return ImageSizeGuard::AllowsFile(bytes.data(), bytes.size());
    };
    EXPECT_TRUE(png(32768, 2048)) << "64 M pixels";
    EXPECT_TRUE(png(2048, 32768));
    EXPECT_TRUE(png(8192, 8192));
    EXPECT_FALSE(png(32768, 2049));
    EXPECT_FALSE(png(32769, 1));
    EXPECT_FALSE(png(1, 32769));
    EXPECT_FALSE(png(0xFFFFFFFF, 0xFFFFFFFF));
    EXPECT_FALSE(png(0, 5));
    EXPECT_FALSE(png(5, 0));
}

TEST(ImageSizeGuard, png_file_claims_at_most_what_its_kind_of_pixel_leaves_room_for)
{
    constexpr std::uint32_t fileSize = 1000;
    // A byte of the file becomes at most 1032 bytes of the picture.
    const struct
    {
        const char* name;
        std::uint8_t depth;
        std::uint8_t kind;
        std::uint32_t pixels; ///< for each byte of the file
    } rows[] = {
        {"black and white", 1, 0, 8256},
        {"gray", 8, 0, 1032},
        {"16 bits of gray", 16, 0, 516},
        {"colour", 8, 2, 344},
        {"palette", 8, 3, 1032},
        {"palette of four", 2, 3, 4128},
        {"gray and alpha", 8, 4, 516},
        {"colour and alpha", 8, 6, 258},
        {"16 bits of colour and alpha", 16, 6, 129},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        const auto claims = [&](std::uint32_t width, std::uint32_t height)
        {
            std::vector<std::uint8_t> bytes = CorpusPicture("rgb.png");
            bytes.resize(fileSize);
            for (std::size_t i = 0; i < 4; ++i)
            {
                bytes[16 + i] = static_cast<std::uint8_t>(width >> (24 - 8 * i));
                bytes[20 + i] = static_cast<std::uint8_t>(height >> (24 - 8 * i));
            }
            bytes[24] = row.depth;
            bytes[25] = row.kind;
            return ImageSizeGuard::AllowsFile(bytes.data(), bytes.size());
        };
        EXPECT_TRUE(claims(row.pixels, fileSize));
        EXPECT_FALSE(claims(row.pixels, fileSize + 1));
        EXPECT_FALSE(claims(row.pixels + 1, fileSize));
    }
}

namespace
{
/// A file of 1000 bytes that has only what it claims.
class ClaimFile
{
public:
    explicit ClaimFile(const std::string& signature) : bytes_(signature.begin(), signature.end()) { bytes_.resize(Size); }

    ClaimFile& Put(std::size_t at, std::size_t count, std::uint32_t value)
    {
        for (std::size_t i = 0; i < count; ++i)
        {
            bytes_[at + i] = static_cast<std::uint8_t>(value >> 8 * i);
        }
        return *this;
    }
    ClaimFile& PutBig(std::size_t at, std::uint32_t value) { return Put(at, 1, value >> 8).Put(at + 1, 1, value); }
    bool IsBelieved() const { return ImageSizeGuard::AllowsFile(bytes_.data(), bytes_.size()); }

    static constexpr std::uint32_t Size = 1000;

private:
    std::vector<std::uint8_t> bytes_;
};

ClaimFile Bitmap(std::uint32_t width, std::uint32_t height)
{
    return ClaimFile("BM").Put(10, 4, 54).Put(14, 4, 40).Put(18, 4, width).Put(22, 4, height);
}

ClaimFile Gif(std::uint32_t width, std::uint32_t height)
{
    ClaimFile file("GIF89a");
    file.Put(6, 2, width).Put(8, 2, height).Put(13, 1, ',').Put(18, 2, width).Put(20, 2, height);
    // The picture's blocks reach to the end.
    return file.Put(24, 1, 255).Put(280, 1, 255).Put(536, 1, 255).Put(792, 1, 207);
}

/// @param before a marker without a length that stands before the frame's
ClaimFile Jpeg(std::uint32_t width, std::uint32_t height, std::uint32_t frame = 0xC0, std::uint32_t before = 0xD8)
{
    return ClaimFile("\xFF\xD8\xFF")
        .Put(3, 1, before)
        .PutBig(4, 0xFF00 | frame)
        .PutBig(6, 17)
        .PutBig(9, height)
        .PutBig(11, width);
}
} // namespace

TEST(ImageSizeGuard, file_of_any_kind_claims_at_most_what_it_leaves_room_for)
{
    const struct
    {
        const char* name;
        ClaimFile (*file)(std::uint32_t width, std::uint32_t height);
        std::uint32_t pixels; ///< for each byte of the file
    } rows[] = {
        {"bitmap", Bitmap, 128},
        {"GIF", Gif, 4096},
        {"JPEG", [](std::uint32_t width, std::uint32_t height) { return Jpeg(width, height); }, 512},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        EXPECT_TRUE(row.file(row.pixels, ClaimFile::Size).IsBelieved());
        EXPECT_TRUE(row.file(ClaimFile::Size, row.pixels).IsBelieved());
        EXPECT_FALSE(row.file(row.pixels, ClaimFile::Size + 1).IsBelieved());
        EXPECT_FALSE(row.file(row.pixels + 1, ClaimFile::Size).IsBelieved());
        EXPECT_FALSE(row.file(row.pixels, 0).IsBelieved());
        EXPECT_FALSE(row.file(0, row.pixels).IsBelieved());
    }
}

TEST(ImageSizeGuard, frame_of_a_jpeg_file_is_found_by_its_marker)
{
    for (std::uint32_t frame = 0xC0; frame <= 0xCF; ++frame)
    {
        // Tables, an extension, and arithmetic coding.
        const bool other = frame == 0xC4 || frame == 0xC8 || frame == 0xCC;
        EXPECT_EQ(Jpeg(16, 16, frame).IsBelieved(), !other) << frame;
    }
    for (const std::uint32_t alone : {0x01, 0xD0, 0xD3, 0xD7, 0xD8})
    {
        EXPECT_TRUE(Jpeg(16, 16, 0xC0, alone).IsBelieved()) << alone;
    }
    EXPECT_FALSE(Jpeg(16, 16, 0xC0, 0xE0).IsBelieved()) << "it has a length, which leads over the frame";
}

TEST(ImageSizeGuard, tiff_file_claims_at_most_what_it_leaves_room_for)
{
    const auto allowed = [](std::uint32_t width, std::uint32_t height)
    {
        const std::vector<std::uint8_t> bytes = GreyTiff({{width, height, 0, 902}});
        EXPECT_EQ(bytes.size(), 1000u);
        return ImageSizeGuard::AllowsFile(bytes.data(), bytes.size());
    };
    EXPECT_TRUE(allowed(8256, 1000));
    EXPECT_TRUE(allowed(1000, 8256));
    EXPECT_FALSE(allowed(8256, 1001));
    EXPECT_FALSE(allowed(8257, 1000));
}

TEST(ImageSizeGuard, part_of_a_jpeg_file_is_no_shorter_than_its_own_length)
{
    for (const std::uint8_t length : {0, 1, 2})
    {
        std::vector<std::uint8_t> file = {0xFF, 0xD8, 0xFF, 0xE0, 0, length, 0xFF, 0xC0, 0, 11, 8, 0, 8, 0, 8, 1, 1, 0x11, 0};
        file.resize(200);
        EXPECT_EQ(ImageSizeGuard::AllowsFile(file.data(), file.size()), length == 2) << static_cast<int>(length);
    }
}
