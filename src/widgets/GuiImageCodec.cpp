// SPDX-License-Identifier: MIT
#include "GuiImageCodec.h"

#include "../imaging/ImageSizeGuard.h"
#include "../imaging/PngFile.h"
#include "../imaging/TiffFile.h"

#include <CEGUI/DataContainer.h>
#include <CEGUI/Size.h>
#include <CEGUI/Texture.h>

namespace
{
bool DecodeThroughGdiplus(const std::uint8_t* data, std::size_t size, RgbaPicture& picture)
{
    const gp::Bitmap bitmap = gp::BitmapOf(data, size);
    UINT width = 0;
    UINT height = 0;
    if (!bitmap || gp::GdipGetImageWidth(bitmap.get(), &width) != gp::Ok ||
        gp::GdipGetImageHeight(bitmap.get(), &height) != gp::Ok || !ImageSizeGuard::AllowsBitmap(width, height))
    {
        return false;
    }
    const gp::GpRect all = {0, 0, static_cast<INT>(width), static_cast<INT>(height)};
    gp::BitmapData locked = {};
    if (gp::GdipBitmapLockBits(bitmap.get(), &all, gp::ImageLockModeRead, PixelFormat32bppARGB, &locked) != gp::Ok)
    {
        return false;
    }
    picture.width = static_cast<int>(width);
    picture.height = static_cast<int>(height);
    picture.pixels.resize(std::size_t(width) * height * 4);
    for (UINT row = 0; row < height; ++row)
    {
        const auto* from = static_cast<const std::uint8_t*>(locked.Scan0) + std::ptrdiff_t(locked.Stride) * row;
        std::uint8_t* to = picture.pixels.data() + std::size_t(width) * 4 * row;
        for (UINT i = 0; i < width * 4; i += 4)
        {
            to[i] = from[i + 2];
            to[i + 1] = from[i + 1];
            to[i + 2] = from[i];
            to[i + 3] = from[i + 3];
        }
    }
    gp::GdipBitmapUnlockBits(bitmap.get(), &locked);
    return true;
}
} // namespace

bool DecodePicture(const std::uint8_t* data, std::size_t size, RgbaPicture& picture)
{
    bool alpha = false;
    return ReadBmpFile(data, size, picture) || ReadPngFile(data, size, picture, alpha) ||
           ReadTiffFile(data, size, picture, alpha) || DecodeThroughGdiplus(data, size, picture);
}

GuiImageCodec::GuiImageCodec() : ImageCodec("NxOsgCeGui picture codec")
{
    d_supportedFormat = "bmp jpeg jpg gif tiff png";
}

CEGUI::Texture* GuiImageCodec::load(const CEGUI::RawDataContainer& data, CEGUI::Texture* result)
{
    RgbaPicture picture;
    if (!DecodePicture(data.getDataPtr(), data.getSize(), picture))
    {
        return nullptr;
    }
    const CEGUI::Sizef size(static_cast<float>(picture.width), static_cast<float>(picture.height));
    result->loadFromMemory(picture.pixels.data(), size, CEGUI::Texture::PF_RGBA);
    return result;
}
