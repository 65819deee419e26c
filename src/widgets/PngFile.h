// SPDX-License-Identifier: MIT
#pragma once

#include "BmpFile.h"

/// Reads a PNG file, in a tenth of the time that GDI+ takes to find its decoder. False for anything else, for a damaged one and
/// for one whose size cannot be believed.
bool ReadPngFile(const std::uint8_t* data, std::size_t size, RgbaPicture& picture);

/// A PNG file that `ReadPngFile` does not take. Not every decoder of GDI+'s stands one whose parts are damaged.
bool IsDamagedPng(const void* data, std::size_t size);
