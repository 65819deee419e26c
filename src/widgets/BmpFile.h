// SPDX-License-Identifier: MIT
#pragma once

#include "../imaging/RgbaPicture.h"
#include "Gdiplus.h"

#include <atlstr.h>

#include <cstddef>
#include <cstdint>

/// Writes a bitmap file of 32 bits a pixel, uncompressed, with the alpha in the fourth byte.
/// @return false when the bitmap or the file could not be had; a partly written file may remain then
bool WriteBmpFile(gp::GpBitmap* bitmap, const CString& path);

/// Reads such a bitmap file. False for anything else, other kinds of bitmap files included: GDI+ reads those.
bool ReadBmpFile(const std::uint8_t* data, std::size_t size, RgbaPicture& picture);
