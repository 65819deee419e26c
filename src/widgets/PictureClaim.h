// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

/// Whether it is safe to have a picture file decoded. Decoders make room for as many pixels as a file says that it has, before
/// they see that the file ends long before; so what it says is looked at first.
///
/// False for anything but bitmap, GIF, JPEG, PNG and TIFF files, for a side of more than 32768 pixels or more than 64 M pixels,
/// for more pixels than a file of this size can hold, however well it is packed, and for a bitmap file's pixels behind its end.
/// True does not mean that the rest is sound.
bool ClaimsWhatItCanHold(const void* bytes, std::size_t size);
