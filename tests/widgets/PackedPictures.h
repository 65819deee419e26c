// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

/// Picture files that are small for what they hold, written byte by byte.

/// A JPEG file of one grey (128, 128, 128) in three channels. The sides are multiples of 16.
std::vector<std::uint8_t> GreyJpeg(std::uint32_t width, std::uint32_t height);

/// An animation whose pictures are all of one colour.
/// @param still a GIF file of one picture, which is repeated
std::vector<std::uint8_t> Animation(const std::vector<std::uint8_t>& still, int pictures);

/// An icon of pictures that are PNG files or bitmaps without a file header.
std::vector<std::uint8_t> Icon(const std::vector<std::vector<std::uint8_t>>& pictures);
/// A bitmap of 32 bits of one colour as an icon holds it, with its mask.
std::vector<std::uint8_t> IconBitmap(std::uint32_t side, std::uint32_t color);

/// A white page as a TIFF file in CCITT's group 4: a bit for each row.
std::vector<std::uint8_t> WhiteFax(std::uint32_t width, std::uint32_t height);

/// TIFF pages of 8 bits of grey, uncompressed, each of one byte that all its pixels have.
struct TiffPage
{
    std::uint32_t width;
    std::uint32_t height;
    std::uint8_t grey;
    std::uint32_t bytes; ///< that are in the file
};
std::vector<std::uint8_t> GreyTiff(const std::vector<TiffPage>& pages);

/// A TIFF file of one pixel: red, green, blue, multiplied by the alpha that follows.
std::vector<std::uint8_t> PremultipliedTiff(const std::vector<std::uint8_t>& pixel);
