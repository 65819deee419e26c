// SPDX-License-Identifier: MIT
#pragma once

#include "RgbaPicture.h"

#include <cstddef>

/// TIFF files are decoded with libtiff and never by GDI+: not every decoder of GDI+'s survives a damaged one.

bool IsTiff(const void* data, std::size_t size);

/// Whether the first picture's declared size is allowed and can be in a file of this size. Nothing is decoded.
bool IsAllowedTiff(const void* data, std::size_t size);

/// Reads the first picture of a TIFF file. False for anything else, for a damaged one and for one that is not allowed.
/// @param hasAlpha whether the file has an alpha channel
bool ReadTiffFile(const void* data, std::size_t size, RgbaPicture& picture, bool& hasAlpha);
