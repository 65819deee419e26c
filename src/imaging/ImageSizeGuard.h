// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

/// The one limit for bitmaps that are made and for picture files that are decoded. GDI+ computes a bitmap's bytes in 32 bits, and
/// not every implementation of it notices that they do not fit: memory behind the bitmap is overwritten. Decoders allocate for
/// the declared size before they notice that the file is too short for it.
namespace ImageSizeGuard
{
constexpr std::int64_t LongestSide = 32768; // pixels
/// Of one bitmap's pixels. A pixel of less than 24 bits counts as one of 24 bits, since GDI+ converts what it draws. A decoder
/// may hold the pixels beside the bitmap's own, and drawing takes 32 bits a pixel for as long as it lasts: a thumbnail of 68 M
/// pixels of 24 bits, 205 MB, took about 690 MB (estimated from the process's peak).
constexpr std::int64_t MostBytes = 256 << 20;
/// Of a picture file, which is read into memory as a whole.
constexpr std::int64_t LargestFile = 2 * MostBytes;

/// Whether a bitmap of this size may be made: sides from 1 to `LongestSide`, at most `MostBytes`, so 64 M pixels of 32 bits.
bool AllowsBitmap(std::int64_t width, std::int64_t height, int bitsPerPixel = 32);

/// Whether a picture file is safe to decode. False for anything but bitmap, GIF, icon, JPEG, PNG and TIFF files, for a picture
/// that `AllowsBitmap` refuses, for more pixels than a file of this size can hold, however well it is packed, and for a bitmap
/// file's pixels behind its end. Pictures behind the first one of a GIF file, icon or TIFF file do not count: `DecodeImage`
/// decodes the first one alone. True does not mean that the rest of the file is sound.
bool AllowsFile(const void* bytes, std::size_t size);

/// A stretch of a file.
struct Part
{
    std::size_t at;
    std::size_t size;
};

/// Where the first picture of an icon is, and the bytes of a GIF file up to the end of its first picture, since decoders of GIF
/// files decode every picture before the first one is available; the whole of any other file. An icon's is empty when it reaches
/// beyond the end of the file.
Part FirstPicture(const void* bytes, std::size_t size);

bool IsIcon(const void* bytes, std::size_t size);
} // namespace ImageSizeGuard
