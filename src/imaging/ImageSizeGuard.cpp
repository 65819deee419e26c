// SPDX-License-Identifier: MIT
#include "ImageSizeGuard.h"

#include "TiffFile.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace
{
/// How many pixels one byte of a file can become. Deflate packs at most 1032 to one, and there may be 8 pixels in a byte; a code
/// of LZW has 12 bits by the time that it stands for some 4000 pixels; a JPEG needs at least a bit for 64 pixels, and a bitmap
/// file two bytes for 255.
namespace Packed
{
constexpr std::uint64_t Deflate = 1032 * 8;
constexpr std::uint64_t Lzw = 4096;
constexpr std::uint64_t Jpeg = 512;
constexpr std::uint64_t Runs = 128;
constexpr std::uint64_t Mask = 8; // an icon's, a bit for each pixel
} // namespace Packed

constexpr char IconSignature[] = "\0\0\1\0";
constexpr char PngSignature[] = "\x89PNG";
/// Of a pixel that is decoded.
constexpr std::uint32_t MostBits = 32;

/// A file's numbers; 0 beyond its end.
class FileBytes
{
public:
    FileBytes(const void* bytes, std::size_t size) : bytes_(static_cast<const std::uint8_t*>(bytes)), size_(size) {}

    const void* Data() const { return bytes_; }
    std::size_t Size() const { return size_; }
    /// The part has to lie within the file.
    FileBytes Part(std::size_t at, std::size_t size) const { return FileBytes(bytes_ + at, size); }
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

bool Fits(std::uint64_t width, std::uint64_t height, std::uint32_t bits, std::size_t fileSize, std::uint64_t packed)
{
    // Within the limits of a bitmap the product fits.
    return width <= UINT32_MAX && height <= UINT32_MAX &&
           ImageSizeGuard::AllowsBitmap(static_cast<std::int64_t>(width), static_cast<std::int64_t>(height),
                                        static_cast<int>(std::min<std::uint32_t>(bits, MostBits))) &&
           width * height <= fileSize * packed;
}

bool Bitmap(const FileBytes& file)
{
    constexpr std::uint32_t oldHeader = 12;
    const bool old = file.U32(14) == oldHeader;
    const std::uint32_t width = old ? file.U16(18) : file.U32(18);
    const std::uint32_t height = old ? file.U16(20) : file.U32(22);
    const std::uint32_t bits = file.U16(old ? 24 : 28);
    // Rows from the top have a negative height. Not every decoder handles pixels that lie behind the end of the file.
    return file.U32(10) < file.Size() &&
           Fits(width, old ? height : std::min(height, 0 - height), bits, file.Size(), Packed::Runs);
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

/// The picture's first byte; the file's end when it has none.
std::size_t FirstGifPicture(const FileBytes& file)
{
    std::size_t at = 13 + PaletteSize(file.U8(10));
    while (at < file.Size() && file.U8(at) == '!')
    {
        at = BehindSubBlocks(file, at + 2);
    }
    return file.U8(at) == ',' ? at : file.Size();
}

std::size_t BehindGifPicture(const FileBytes& file, std::size_t at)
{
    return std::min(file.Size(), BehindSubBlocks(file, at + 11 + PaletteSize(file.U8(at + 9))));
}

bool Gif(const FileBytes& file)
{
    const std::size_t picture = FirstGifPicture(file);
    const std::size_t size = BehindGifPicture(file, picture);
    return Fits(file.U16(6), file.U16(8), MostBits, size, Packed::Lzw) &&
           Fits(file.U16(picture + 5), file.U16(picture + 7), MostBits, size, Packed::Lzw);
}

bool Jpeg(const FileBytes& file)
{
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
            const std::uint32_t channels = file.U8(at + 9);
            return Fits(file.BigU16(at + 7), file.BigU16(at + 5), channels * 8, file.Size(), Packed::Jpeg);
        }
        const std::uint32_t length = alone ? 0 : file.BigU16(at + 2);
        if (!alone && length < 2)
        {
            // A part counts these two bytes as well; there are decoders that subtract them and read on for 4 GB.
            return false;
        }
        at += 2 + length;
    }
    return false;
}

bool Png(const FileBytes& file)
{
    const std::uint32_t depth = file.U8(24);
    const std::uint32_t kind = file.U8(25);
    const std::uint32_t bits = depth * (kind == 2 ? 3 : kind == 4 ? 2 : kind == 6 ? 4 : 1);
    // Whatever they are in the file, pixels are decoded to 32 bits.
    return bits > 0 && Fits(file.BigU32(16), file.BigU32(20), MostBits, file.Size(), Packed::Deflate / bits);
}

/// A bitmap in an icon: without a file header, uncompressed, its height counted twice since a mask follows the pixels.
bool IconBitmap(const FileBytes& file)
{
    constexpr std::uint32_t header = 40;
    const std::uint32_t bits = file.U16(14);
    const std::uint64_t width = file.U32(4);
    const std::uint64_t height = file.U32(8) / 2;
    const bool plain = file.U32(0) == header && file.U32(16) == 0 && file.U16(12) == 1;
    const bool known = bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
    if (!plain || !known || !Fits(width, height, MostBits, file.Size(), Packed::Mask))
    {
        return false;
    }
    const std::uint64_t colors = bits > 8 ? 0 : file.U32(32) ? file.U32(32) : 1u << bits;
    const std::uint64_t rows = (width * bits + 31) / 32 * 4 + (width + 31) / 32 * 4;
    return colors <= 256 && header + colors * 4 + rows * height <= file.Size();
}

ImageSizeGuard::Part FirstIconPicture(const FileBytes& file)
{
    const ImageSizeGuard::Part part = {file.U32(18), file.U32(14)};
    const bool inside = file.U16(4) > 0 && part.at + part.size <= file.Size();
    return inside ? part : ImageSizeGuard::Part{0, 0};
}

bool Icon(const FileBytes& file)
{
    const ImageSizeGuard::Part part = FirstIconPicture(file);
    const FileBytes picture = file.Part(part.at, part.size);
    return picture.BeginsWith(PngSignature, 4) ? Png(picture) : IconBitmap(picture);
}

bool Tiff(const FileBytes& file)
{
    return IsAllowedTiff(file.Data(), file.Size());
}
} // namespace

namespace ImageSizeGuard
{
bool AllowsBitmap(std::int64_t width, std::int64_t height, int bitsPerPixel)
{
    constexpr int fewestBits = 24;
    // Sides within the limit cannot overflow the product.
    return width > 0 && height > 0 && width <= LongestSide && height <= LongestSide &&
           width * height * std::max(bitsPerPixel, fewestBits) / 8 <= MostBytes;
}

bool AllowsFile(const void* bytes, std::size_t size)
{
    const struct
    {
        const char* signature;
        std::size_t length;
        bool (*allows)(const FileBytes& file);
    } kinds[] = {
        {"BM", 2, Bitmap},         {"GIF87a", 6, Gif},     {"GIF89a", 6, Gif}, {IconSignature, 4, Icon},
        {"\xFF\xD8\xFF", 3, Jpeg}, {PngSignature, 4, Png}, {"II*\0", 4, Tiff}, {"MM\0*", 4, Tiff},
    };
    const FileBytes file(bytes, size);
    const auto kind = std::find_if(std::begin(kinds), std::end(kinds),
                                   [&](const auto& one) { return file.BeginsWith(one.signature, one.length); });
    return kind != std::end(kinds) && kind->allows(file);
}

Part FirstPicture(const void* bytes, std::size_t size)
{
    const FileBytes file(bytes, size);
    if (IsIcon(bytes, size))
    {
        return FirstIconPicture(file);
    }
    return {0, file.BeginsWith("GIF8", 4) ? BehindGifPicture(file, FirstGifPicture(file)) : size};
}

bool IsIcon(const void* bytes, std::size_t size)
{
    return FileBytes(bytes, size).BeginsWith(IconSignature, 4);
}
} // namespace ImageSizeGuard
