// SPDX-License-Identifier: MIT
#include "PngFile.h"

#include "ImageSizeGuard.h"

#include <spng.h>

#include <algorithm>
#include <cstring>
#include <memory>

namespace
{
struct FreeContext
{
    void operator()(spng_ctx* context) const { spng_ctx_free(context); }
};
} // namespace

bool ReadPngFile(const std::uint8_t* data, std::size_t size, RgbaPicture& picture)
{
    const std::unique_ptr<spng_ctx, FreeContext> context(spng_ctx_new(0));
    spng_ihdr header = {};
    std::size_t length = 0;
    if (!context || spng_set_png_buffer(context.get(), data, size) != 0 || spng_get_ihdr(context.get(), &header) != 0 ||
        !ImageSizeGuard::AllowsFile(data, size) || spng_decoded_image_size(context.get(), SPNG_FMT_RGBA8, &length) != 0)
    {
        return false;
    }
    picture.width = static_cast<int>(header.width);
    picture.height = static_cast<int>(header.height);
    picture.pixels.resize(length);
    // A palette's and a colour key's transparency count, too.
    return spng_decode_image(context.get(), picture.pixels.data(), length, SPNG_FMT_RGBA8, SPNG_DECODE_TRNS) == 0;
}

bool HasDamagedPng(const void* data, std::size_t size)
{
    static const char signature[] = "\x89PNG\r\n\x1a\n";
    constexpr std::size_t length = sizeof signature - 1;
    const std::vector<ImageSizeGuard::Part> pictures = ImageSizeGuard::PicturesOf(data, size);
    return std::any_of(pictures.begin(), pictures.end(),
                       [&](const ImageSizeGuard::Part& part)
                       {
                           const std::uint8_t* bytes = static_cast<const std::uint8_t*>(data) + part.at;
                           RgbaPicture picture;
                           return part.size >= length && std::memcmp(bytes, signature, length) == 0 &&
                                  !ReadPngFile(bytes, part.size, picture);
                       });
}
