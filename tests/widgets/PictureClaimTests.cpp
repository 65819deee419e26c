// SPDX-License-Identifier: MIT
// Picture files that say that they are larger than they can be, and the memory that they get.
#include "Pictures.h"

#include "support/GTest.h"
#include "support/Gui.h"

#include <widgets/GuiImageCodec.h>
#include <widgets/PictureClaim.h>

#include <KernelCommonUse/StringConvert.h>

#include <fstream>

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

/// A row of the system's report on this process, in MB.
long Reported(const std::string& row)
{
    std::ifstream report("/proc/self/status");
    for (std::string word; report >> word;)
    {
        long kilobytes = 0;
        if (word == row && report >> kilobytes)
        {
            return kilobytes / 1024;
        }
    }
    ADD_FAILURE() << row;
    return 0;
}

/// How much memory was in use at most since this was made, in MB more than at the beginning.
class MemoryPeak
{
public:
    MemoryPeak() : inUse_(0)
    {
        // Begins the count of the peak anew.
        std::ofstream("/proc/self/clear_refs") << 5;
        inUse_ = Reported("VmRSS:");
    }
    long Growth() const { return Reported("VmHWM:") - inUse_; }

private:
    long inUse_;
};

constexpr long MostMemory = 64;
} // namespace

TEST(PictureClaim, small_file_that_claims_60000_by_60000_pixels_does_not_get_the_memory)
{
    // What a decoder needs for any picture is had by now.
    ASSERT_TRUE(Decoded(CorpusPicture("rgb.png")));
    for (const char* file :
         {"claims_60000.bmp", "claims_60000_32_bits.bmp", "claims_60000_core.bmp", "claims_60000_rle.bmp", "claims_60000.gif",
          "frame_claims_60000.gif", "claims_60000.jpg", "claims_60000_progressive.jpg", "claims_60000.png",
          "claims_60000_one_bit.png", "claims_60000.tiff", "tile_claims_60000.tiff", "windows.ico"})
    {
        const std::vector<std::uint8_t> bytes = CorpusPicture(file);
        EXPECT_LT(bytes.size(), 2048u) << file;
        const long addressSpace = Reported("VmPeak:");
        const MemoryPeak memory;
        EXPECT_FALSE(Decoded(bytes)) << file;
        EXPECT_LT(memory.Growth(), MostMemory) << file;
        EXPECT_LT(Reported("VmPeak:") - addressSpace, MostMemory) << file;
        EXPECT_FALSE(ClaimsWhatItCanHold(bytes.data(), bytes.size())) << file;
    }
}

TEST(PictureClaim, memory_of_a_large_picture_is_seen)
{
    const MemoryPeak memory;
    ASSERT_TRUE(Decoded(Bmp32(Solid(4096, 4096, 0xFF102030))));
    EXPECT_GE(memory.Growth(), MostMemory);
}

TEST(PictureClaim, rows_of_a_strip_that_the_picture_has_not_take_no_memory)
{
    const std::vector<std::uint8_t> bytes = CorpusPicture("rows_claim_60000.tiff");
    const MemoryPeak memory;
    Decoded(bytes);
    EXPECT_LT(memory.Growth(), MostMemory);
}

TEST(PictureClaim, pixels_behind_the_end_of_a_bitmap_file_are_not_looked_for)
{
    // A decoder may end the process on it.
    EXPECT_FALSE(Decoded(CorpusPicture("pixels_behind_the_end.bmp")));
}

TEST(PictureClaim, picture_files_in_a_ring_end)
{
    const std::vector<std::uint8_t> bytes = CorpusPicture("directories_in_a_ring.tiff");
    EXPECT_FALSE(ClaimsWhatItCanHold(bytes.data(), bytes.size()));
}

TEST(PictureClaim, frames_of_one_file_count_together)
{
    // Each frame alone would do.
    std::vector<std::uint8_t> bytes = CorpusPicture("still.gif");
    ASSERT_TRUE(ClaimsWhatItCanHold(bytes.data(), bytes.size()));
    bytes.pop_back();
    const std::uint8_t frame[] = {',', 0, 0, 0, 0, 0, 1, 0, 1, 0, 2, 0};
    for (int count = 0; count < 1000; ++count)
    {
        bytes.insert(bytes.end(), std::begin(frame), std::end(frame));
        if (!ClaimsWhatItCanHold(bytes.data(), bytes.size()))
        {
            EXPECT_GT(count, 1);
            EXPECT_LT(count, 100);
            return;
        }
    }
    ADD_FAILURE() << "a thousand frames of 256 x 256 pixels in 12 bytes each";
}

TEST(PictureClaim, well_packed_pictures_are_read)
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

TEST(PictureClaim, sides_have_a_limit)
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
        return ClaimsWhatItCanHold(bytes.data(), bytes.size());
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

TEST(PictureClaim, png_file_claims_at_most_what_its_kind_of_pixel_leaves_room_for)
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
            return ClaimsWhatItCanHold(bytes.data(), bytes.size());
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
    /// A picture's directory of a TIFF file.
    ClaimFile& PutDirectory(std::size_t at, std::uint32_t width, std::uint32_t height, std::uint32_t next)
    {
        Put(at, 2, 2).Put(at + 2, 2, 256).Put(at + 4, 2, 4).Put(at + 10, 4, width);
        return Put(at + 14, 2, 257).Put(at + 16, 2, 4).Put(at + 22, 4, height).Put(at + 26, 4, next);
    }
    bool IsBelieved() const { return ClaimsWhatItCanHold(bytes_.data(), bytes_.size()); }

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
    return ClaimFile("GIF89a").Put(6, 2, width).Put(8, 2, height);
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

ClaimFile Tiff(std::uint32_t width, std::uint32_t height)
{
    return ClaimFile("II*").Put(4, 4, 8).PutDirectory(8, width, height, 0);
}
} // namespace

TEST(PictureClaim, file_of_any_kind_claims_at_most_what_it_leaves_room_for)
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
        {"TIFF", Tiff, 8256},
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

TEST(PictureClaim, frame_of_a_jpeg_file_is_found_by_its_marker)
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

TEST(PictureClaim, pictures_of_a_tiff_file_count_together)
{
    // The second directory stands where its place reads like the tag of a width.
    constexpr std::uint32_t second = 256;
    const auto claims = [](std::uint32_t first, std::uint32_t width)
    {
        return ClaimFile("II*")
            .Put(4, 4, 8)
            .PutDirectory(8, first, ClaimFile::Size, second)
            .PutDirectory(second, width, ClaimFile::Size, 0)
            .IsBelieved();
    };
    EXPECT_TRUE(claims(4128, 4128));
    EXPECT_FALSE(claims(4129, 4128));
    EXPECT_FALSE(claims(4128, 4129));
}

TEST(PictureClaim, part_of_a_jpeg_file_is_no_shorter_than_its_own_length)
{
    for (const std::uint8_t length : {0, 1, 2})
    {
        std::vector<std::uint8_t> file = {0xFF, 0xD8, 0xFF, 0xE0, 0, length, 0xFF, 0xC0, 0, 11, 8, 0, 8, 0, 8, 1, 1, 0x11, 0};
        file.resize(200);
        EXPECT_EQ(ClaimsWhatItCanHold(file.data(), file.size()), length == 2) << static_cast<int>(length);
    }
}
