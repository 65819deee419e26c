// SPDX-License-Identifier: MIT
#pragma once

#include "BmpFile.h"

#include <CEGUI/ImageCodec.h>

/// Decodes a picture file's bytes: 32-bit bitmap files with their alpha, PNG files by libspng, TIFF files by
/// libtiff, everything else through GDI+.
/// @return false when they are no picture that can be read, and for one that `ImageSizeGuard` refuses
bool DecodePicture(const std::uint8_t* data, std::size_t size, RgbaPicture& picture);

/// CEGUI's image codec over `DecodePicture`. CEGUI's own codecs lose or refuse the alpha of 32-bit bitmap files.
class GuiImageCodec : public CEGUI::ImageCodec
{
public:
    GuiImageCodec();
    /// @return null when the picture cannot be read, which CEGUI turns into an exception
    CEGUI::Texture* load(const CEGUI::RawDataContainer& data, CEGUI::Texture* result) override;
};
