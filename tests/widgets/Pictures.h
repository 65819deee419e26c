// SPDX-License-Identifier: MIT
#pragma once

#include <atlstr.h>

#include <cstdint>
#include <vector>

/// Picture files as tests need them. Colours are ARGB, not premultiplied; rows go from the top.

struct Argb
{
    int width;
    int height;
    std::vector<std::uint32_t> pixels;
};

Argb Solid(int width, int height, std::uint32_t color);

/// Bitmap files, written byte by byte.
std::vector<std::uint8_t> Bmp32(const Argb& picture, bool topDown = false);
std::vector<std::uint8_t> Bmp24(const Argb& picture);
/// With a palette of the picture's colours.
std::vector<std::uint8_t> Bmp8(const Argb& picture);

/// A file of any kind, written by GDI+'s encoder for a MIME type.
void WriteWithEncoder(const Argb& picture, const wchar_t* mimeType, const CString& path);

/// A bitmap file of one colour in the skin directory.
void WriteSkinPicture(const wchar_t* file, std::uint32_t color, int width = 4, int height = 4);
