// SPDX-License-Identifier: MIT
#include "TiffFile.h"

#include "ImageSizeGuard.h"

#include <tiffio.h>

#include <algorithm>
#include <cstdarg>
#include <cstring>
#include <memory>

namespace
{
/// The file's bytes, as libtiff reads files: it maps them, so the position is only asked for where it cannot.
struct Source
{
    const std::uint8_t* bytes;
    std::uint64_t size;
    std::uint64_t at;
};

tmsize_t Read(thandle_t handle, void* to, tmsize_t count)
{
    Source& source = *static_cast<Source*>(handle);
    const std::uint64_t left = source.size - std::min(source.at, source.size);
    const std::uint64_t length = std::min<std::uint64_t>(left, static_cast<std::uint64_t>(std::max<tmsize_t>(count, 0)));
    std::memcpy(to, source.bytes + (source.size - left), length);
    source.at += length;
    return static_cast<tmsize_t>(length);
}

tmsize_t Write(thandle_t, void*, tmsize_t)
{
    return 0;
}

toff_t Seek(thandle_t handle, toff_t offset, int from)
{
    Source& source = *static_cast<Source*>(handle);
    source.at = offset + (from == SEEK_CUR ? source.at : from == SEEK_END ? source.size : 0);
    return source.at;
}

int Close(thandle_t)
{
    return 0;
}

toff_t Size(thandle_t handle)
{
    return static_cast<Source*>(handle)->size;
}

int Map(thandle_t handle, void** bytes, toff_t* size)
{
    const Source& source = *static_cast<Source*>(handle);
    *bytes = const_cast<std::uint8_t*>(source.bytes);
    *size = source.size;
    return 1;
}

void Unmap(thandle_t, void*, toff_t) {}

/// Errors show as results; the texts would go to standard error.
int Ignore(TIFF*, void*, const char*, const char*, va_list)
{
    return 1;
}

struct CloseTiff
{
    void operator()(TIFF* tiff) const { TIFFClose(tiff); }
};
using TiffHandle = std::unique_ptr<TIFF, CloseTiff>;

struct FreeOptions
{
    void operator()(TIFFOpenOptions* options) const { TIFFOpenOptionsFree(options); }
};

/// Reads the directory of the first picture.
TiffHandle Open(Source& source)
{
    const std::unique_ptr<TIFFOpenOptions, FreeOptions> options(TIFFOpenOptionsAlloc());
    if (!options)
    {
        return nullptr;
    }
    TIFFOpenOptionsSetMaxSingleMemAlloc(options.get(), ImageSizeGuard::MostBytes);
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), Ignore, nullptr);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), Ignore, nullptr);
    return TiffHandle(TIFFClientOpenExt("picture", "r", &source, Read, Write, Seek, Close, Size, Map, Unmap, options.get()));
}

/// How many pixels a file of this size can hold: Deflate packs at most 1032 to one, and there may be 8 pixels in a byte. A row
/// of a fax may be a single bit, whatever its width.
std::uint64_t MostPixels(TIFF& tiff, std::uint64_t width, std::uint64_t fileSize)
{
    constexpr std::uint64_t deflate = 1032 * 8;
    std::uint16_t compression = COMPRESSION_NONE;
    TIFFGetFieldDefaulted(&tiff, TIFFTAG_COMPRESSION, &compression);
    const bool fax = compression == COMPRESSION_CCITTRLE || compression == COMPRESSION_CCITTRLEW ||
                     compression == COMPRESSION_CCITTFAX3 || compression == COMPRESSION_CCITTFAX4;
    return fileSize * (fax ? std::max(deflate, width * 8) : deflate);
}

bool IsAllowed(TIFF& tiff, std::uint64_t fileSize)
{
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t tileWidth = 0;
    std::uint32_t tileHeight = 0;
    TIFFGetField(&tiff, TIFFTAG_IMAGEWIDTH, &width);
    TIFFGetField(&tiff, TIFFTAG_IMAGELENGTH, &height);
    if (TIFFIsTiled(&tiff))
    {
        TIFFGetField(&tiff, TIFFTAG_TILEWIDTH, &tileWidth);
        TIFFGetField(&tiff, TIFFTAG_TILELENGTH, &tileHeight);
    }
    // A tile may be larger than its picture.
    const std::uint64_t pixels = std::uint64_t(std::max(width, tileWidth)) * std::max(height, tileHeight);
    return width > 0 && height > 0 && ImageSizeGuard::AllowsBitmap(std::max(width, tileWidth), std::max(height, tileHeight)) &&
           pixels <= MostPixels(tiff, std::max(width, tileWidth), fileSize);
}

/// libtiff multiplies colours by an alpha channel that stands beside them, through this table; as it is here they stay.
void KeepColours(std::uint8_t* table)
{
    for (unsigned int alpha = 0; table && alpha < 256; ++alpha)
    {
        for (unsigned int colour = 0; colour < 256; ++colour)
        {
            table[alpha << 8 | colour] = static_cast<std::uint8_t>(colour);
        }
    }
}

void DivideByAlpha(std::vector<std::uint8_t>& pixels)
{
    for (std::size_t i = 0; i < pixels.size(); i += 4)
    {
        const unsigned int alpha = pixels[i + 3];
        for (std::size_t channel = i; alpha != 0 && alpha != 255 && channel < i + 3; ++channel)
        {
            pixels[channel] = static_cast<std::uint8_t>(std::min(255u, (pixels[channel] * 255u + alpha / 2) / alpha));
        }
    }
}
} // namespace

bool IsTiff(const void* data, std::size_t size)
{
    return size >= 4 && (std::memcmp(data, "II*\0", 4) == 0 || std::memcmp(data, "MM\0*", 4) == 0);
}

bool IsAllowedTiff(const void* data, std::size_t size)
{
    Source source = {static_cast<const std::uint8_t*>(data), size, 0};
    const TiffHandle tiff = IsTiff(data, size) ? Open(source) : nullptr;
    return tiff && IsAllowed(*tiff, size);
}

bool ReadTiffFile(const void* data, std::size_t size, RgbaPicture& picture, bool& hasAlpha)
{
    Source source = {static_cast<const std::uint8_t*>(data), size, 0};
    const TiffHandle tiff = IsTiff(data, size) ? Open(source) : nullptr;
    char message[1024] = "";
    TIFFRGBAImage image = {};
    if (!tiff || !IsAllowed(*tiff, size) || !TIFFRGBAImageOK(tiff.get(), message) ||
        !TIFFRGBAImageBegin(&image, tiff.get(), 1, message))
    {
        return false;
    }
    picture.width = static_cast<int>(image.width);
    picture.height = static_cast<int>(image.height);
    picture.pixels.resize(std::size_t(image.width) * image.height * 4);
    image.req_orientation = ORIENTATION_TOPLEFT;
    KeepColours(image.UaToAa);
    // A pixel is a number with red in its lowest byte.
    const bool read =
        TIFFRGBAImageGet(&image, reinterpret_cast<std::uint32_t*>(picture.pixels.data()), image.width, image.height);
    hasAlpha = image.alpha != 0;
    if (image.alpha == EXTRASAMPLE_ASSOCALPHA)
    {
        DivideByAlpha(picture.pixels);
    }
    TIFFRGBAImageEnd(&image);
    return read;
}
