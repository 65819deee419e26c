// SPDX-License-Identifier: MIT
#include "PictureClaim.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>

namespace
{
constexpr std::uint64_t LongestSide = 32768;
constexpr std::uint64_t MostPixels = 64u << 20;

/// How many pixels one byte of a file can become. Deflate packs at most 1032 to one, and there may be 8 pixels in a byte; a code
/// of LZW has 12 bits by the time that it stands for some 4000 pixels; a JPEG needs at least a bit for 64 pixels, and a bitmap
/// file two bytes for 255.
namespace Packed
{
constexpr std::uint64_t Deflate = 1032 * 8;
constexpr std::uint64_t Lzw = 4096;
constexpr std::uint64_t Jpeg = 512;
constexpr std::uint64_t Runs = 128;
} // namespace Packed

/// A file's numbers; 0 beyond its end.
class FileBytes
{
public:
    FileBytes(const void* bytes, std::size_t size) : bytes_(static_cast<const std::uint8_t*>(bytes)), size_(size) {}

    std::size_t Size() const { return size_; }
    bool BeginsWith(const char* signature, std::size_t length) const
    {
        return size_ >= length && std::memcmp(bytes_, signature, length) == 0;
    }
    std::uint32_t U8(std::size_t at) const { return at < size_ ? bytes_[at] : 0; }
    std::uint32_t U16(std::size_t at) const { return U8(at) | U8(at + 1) << 8; }
    std::uint32_t U32(std::size_t at) const { return U16(at) | U16(at + 2) << 16; }
    std::uint32_t BigU16(std::size_t at) const { return U8(at) << 8 | U8(at + 1); }
    std::uint32_t BigU32(std::size_t at) const { return BigU16(at) << 16 | BigU16(at + 2); }

private:
    const std::uint8_t* bytes_;
    std::size_t size_;
};

/// The pictures of one file.
class Claim
{
public:
    void Add(std::uint64_t width, std::uint64_t height)
    {
        tooLong_ = tooLong_ || width > LongestSide || height > LongestSide;
        pixels_ += tooLong_ ? 0 : width * height;
    }
    bool Fits(std::size_t fileSize, std::uint64_t packed) const
    {
        return !tooLong_ && pixels_ > 0 && pixels_ <= std::min<std::uint64_t>(MostPixels, fileSize * packed);
    }

private:
    bool tooLong_ = false;
    std::uint64_t pixels_ = 0;
};

bool Bitmap(const FileBytes& file)
{
    constexpr std::uint32_t oldHeader = 12;
    Claim claim;
    if (file.U32(14) == oldHeader)
    {
        claim.Add(file.U16(18), file.U16(20));
    }
    else
    {
        // Rows from the top have a negative height.
        const std::uint32_t height = file.U32(22);
        claim.Add(file.U32(18), std::min(height, 0 - height));
    }
    // Not every decoder stands pixels that lie behind the end of the file.
    return file.U32(10) < file.Size() && claim.Fits(file.Size(), Packed::Runs);
}

std::size_t BehindSubBlocks(const FileBytes& file, std::size_t at)
{
    while (file.U8(at) != 0)
    {
        at += 1 + file.U8(at);
    }
    return at + 1;
}

std::size_t PaletteSize(std::uint32_t flags)
{
    return flags & 0x80 ? std::size_t(3) << ((flags & 7) + 1) : 0;
}

/// Decoders read all frames before the first is had.
bool Gif(const FileBytes& file)
{
    Claim claim;
    claim.Add(file.U16(6), file.U16(8));
    std::size_t at = 13 + PaletteSize(file.U8(10));
    for (bool known = true; known && at < file.Size();)
    {
        switch (file.U8(at))
        {
        case '!':
            at = BehindSubBlocks(file, at + 2);
            break;
        case ',':
            claim.Add(file.U16(at + 5), file.U16(at + 7));
            at = BehindSubBlocks(file, at + 11 + PaletteSize(file.U8(at + 9)));
            break;
        default:
            known = false;
        }
    }
    return claim.Fits(file.Size(), Packed::Lzw);
}

bool Jpeg(const FileBytes& file)
{
    Claim claim;
    for (std::size_t at = 2; at + 1 < file.Size();)
    {
        const std::uint32_t marker = file.U8(at + 1);
        // Between its parts a file may have anything but this byte.
        if (file.U8(at) != 0xFF || marker == 0xFF || marker == 0)
        {
            ++at;
            continue;
        }
        const bool alone = marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
        const bool frame = marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
        if (frame)
        {
            claim.Add(file.BigU16(at + 7), file.BigU16(at + 5));
            break;
        }
        const std::uint32_t length = alone ? 0 : file.BigU16(at + 2);
        if (!alone && length < 2)
        {
            // A part counts these two bytes as well; there are decoders that subtract them and read on for 4 GB.
            return false;
        }
        at += 2 + length;
    }
    return claim.Fits(file.Size(), Packed::Jpeg);
}

bool Png(const FileBytes& file)
{
    const std::uint32_t depth = file.U8(24);
    const std::uint32_t kind = file.U8(25);
    const std::uint32_t bits = depth * (kind == 2 ? 3 : kind == 4 ? 2 : kind == 6 ? 4 : 1);
    Claim claim;
    claim.Add(file.BigU32(16), file.BigU32(20));
    return bits > 0 && claim.Fits(file.Size(), Packed::Deflate / bits);
}

bool Tiff(const FileBytes& file)
{
    constexpr int maxPictures = 1000;
    constexpr std::uint32_t shortType = 3;
    constexpr std::uint32_t longType = 4;
    const bool big = file.U8(0) == 'M';
    const auto u16 = [&](std::size_t at) { return big ? file.BigU16(at) : file.U16(at); };
    const auto u32 = [&](std::size_t at) { return big ? file.BigU32(at) : file.U32(at); };
    Claim claim;
    std::size_t at = u32(4);
    for (int pictures = 0; at != 0; ++pictures)
    {
        std::uint64_t width = 0;
        std::uint64_t height = 0;
        const std::size_t end = at + 2 + std::size_t(u16(at)) * 12;
        for (std::size_t entry = at + 2; entry < std::min(end, file.Size()); entry += 12)
        {
            const std::uint32_t tag = u16(entry);
            const bool isWidth = tag == 256 || tag == 322;
            if (!isWidth && tag != 257 && tag != 323)
            {
                continue;
            }
            const std::uint32_t type = u16(entry + 2);
            if (type != shortType && type != longType)
            {
                // Its value may lie anywhere.
                return false;
            }
            // A tile may be larger than its picture.
            std::uint64_t& side = isWidth ? width : height;
            side = std::max<std::uint64_t>(side, type == shortType ? u16(entry + 8) : u32(entry + 8));
        }
        claim.Add(width, height);
        at = u32(end);
        if (pictures == maxPictures)
        {
            // They may follow one another in a ring.
            return false;
        }
    }
    return claim.Fits(file.Size(), Packed::Deflate);
}
} // namespace

bool ClaimsWhatItCanHold(const void* bytes, std::size_t size)
{
    const struct
    {
        const char* signature;
        std::size_t length;
        bool (*holds)(const FileBytes& file);
    } kinds[] = {
        {"BM", 2, Bitmap},   {"GIF87a", 6, Gif}, {"GIF89a", 6, Gif}, {"\xFF\xD8\xFF", 3, Jpeg},
        {"\x89PNG", 4, Png}, {"II*\0", 4, Tiff}, {"MM\0*", 4, Tiff},
    };
    const FileBytes file(bytes, size);
    const auto kind = std::find_if(std::begin(kinds), std::end(kinds),
                                   [&](const auto& one) { return file.BeginsWith(one.signature, one.length); });
    return kind != std::end(kinds) && kind->holds(file);
}
