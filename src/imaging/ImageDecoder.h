// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

#include <objidl.h>

#include <algorithm>

// GDI+'s headers use the macros that NOMINMAX takes away.
namespace Gdiplus
{
using std::max;
using std::min;
} // namespace Gdiplus

#include <gdiplus.h>

#include <cstddef>
#include <vector>

/// The one place where picture files become bitmaps: sizes are checked first, PNG and TIFF files are decoded with
/// libspng and libtiff, and of other files GDI+ sees the first picture alone. GDI+ has to have been started.

/// @return a new bitmap, which the caller disposes of; null when the bytes are no picture that is safe to decode. PNG and TIFF
///     files with alpha become 32-bit ARGB and others 24-bit RGB; of other files GDI+ keeps the pixel format.
Gdiplus::GpBitmap* DecodeImage(const void* bytes, std::size_t size);

/// The same for a file, which is read as a whole first: decoders read in small steps, and on files each of these may cost as
/// much as the whole. The file may be written, renamed and deleted meanwhile.
Gdiplus::GpBitmap* DecodeImageFile(const wchar_t* path);

/// Whether `ImageSizeGuard` allows the file. To be asked before a decoder outside of this project opens it.
bool IsSafeImageFile(const wchar_t* path);
