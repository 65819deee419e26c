// SPDX-License-Identifier: MIT
#pragma once

#include "RgbaPicture.h"

#include <cstddef>

/// PNG files are decoded with libspng and never by GDI+: it takes ten times as long to find its decoder, and not every decoder of
/// GDI+'s survives a damaged chunk, also behind the pixels.

bool IsPng(const void* data, std::size_t size);

/// False for anything else, for a damaged one and for one that `ImageSizeGuard` refuses.
/// @param hasAlpha whether the file has an alpha channel or transparent colours
bool ReadPngFile(const void* data, std::size_t size, RgbaPicture& picture, bool& hasAlpha);
