// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"

#include <imaging/ImageDecoder.h>
#include <imaging/ImageSizeGuard.h>
#include <imaging/TiffFile.h>
#include <widgets/Gdiplus.h>

/// TIFF files alone, so that the fuzzer does not leave libtiff for other kinds of picture.
void FuzzTiff(const std::string& bytes)
{
    RgbaPicture picture;
    bool alpha = false;
    const bool allowed = ImageSizeGuard::AllowsFile(bytes.data(), bytes.size());
    if (!IsTiff(bytes.data(), bytes.size()) || !ReadTiffFile(bytes.data(), bytes.size(), picture, alpha))
    {
        return;
    }
    Require(allowed, "a picture that is read is allowed");
    Require(ImageSizeGuard::AllowsBitmap(picture.width, picture.height), "a picture has an allowed size");
    const std::size_t pixels = std::size_t(picture.width) * static_cast<std::size_t>(picture.height);
    Require(picture.pixels.size() == pixels * 4, "a picture has four bytes a pixel");
    for (std::size_t i = 3; !alpha && i < picture.pixels.size(); i += 4)
    {
        Require(picture.pixels[i] == 255, "a picture without alpha is opaque");
    }
    RgbaPicture again;
    bool alphaAgain = false;
    Require(ReadTiffFile(bytes.data(), bytes.size(), again, alphaAgain), "a picture can be read twice");
    Require(again.pixels == picture.pixels && alphaAgain == alpha, "a picture is the same each time");
    const gp::Bitmap bitmap = gp::BitmapOf(bytes.data(), bytes.size());
    UINT width = 0;
    gp::GdipGetImageWidth(bitmap.get(), &width);
    Require(bitmap && static_cast<int>(width) == picture.width, "a picture that is read becomes a bitmap");
}
