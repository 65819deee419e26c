// SPDX-License-Identifier: MIT
#include "PngFile.h"

#include "ImageSizeGuard.h"

#include <spng.h>

#include <cstring>
#include <memory>

namespace
{
struct FreeContext
{
    void operator()(spng_ctx* context) const { spng_ctx_free(context); }
};
} // namespace

bool IsPng(const void* data, std::size_t size)
{
    static const char signature[] = "\x89PNG\r\n\x1a\n";
    constexpr std::size_t length = sizeof signature - 1;
    return size >= length && std::memcmp(data, signature, length) == 0;
}

bool ReadPngFile(const void* data, std::size_t size, RgbaPicture& picture, bool& hasAlpha)
{
    const std::unique_ptr<spng_ctx, FreeContext> context(IsPng(data, size) ? spng_ctx_new(0) : nullptr);
    spng_ihdr header = {};
    std::size_t length = 0;
    if (!context || spng_set_png_buffer(context.get(), data, size) != 0 || spng_get_ihdr(context.get(), &header) != 0 ||
        !ImageSizeGuard::AllowsFile(data, size) || spng_decoded_image_size(context.get(), SPNG_FMT_RGBA8, &length) != 0)
    {
        return false;
    }
    spng_trns transparent = {};
    hasAlpha = header.color_type == SPNG_COLOR_TYPE_GRAYSCALE_ALPHA || header.color_type == SPNG_COLOR_TYPE_TRUECOLOR_ALPHA ||
               spng_get_trns(context.get(), &transparent) == 0;
    picture.width = static_cast<int>(header.width);
    picture.height = static_cast<int>(header.height);
    picture.pixels.resize(length);
    // A palette's and a colour key's transparency count, too.
    return spng_decode_image(context.get(), picture.pixels.data(), length, SPNG_FMT_RGBA8, SPNG_DECODE_TRNS) == 0;
}
