// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

#include <memory>
#include <vector>

struct GdiplusImageDeleter
{
    void operator()(Gdiplus::GpImage* image) const { Gdiplus::DllExports::GdipDisposeImage(image); }
};

using GdiplusImage = std::unique_ptr<Gdiplus::GpBitmap, GdiplusImageDeleter>;

// GDI+'s palette record with room for its entries, which lie behind it.
class Palette
{
public:
    static const int MaximumCount = 256;

    Palette() : memory_(sizeof(Gdiplus::ColorPalette) / sizeof(UINT) + MaximumCount) {}
    Gdiplus::ColorPalette* Get() { return reinterpret_cast<Gdiplus::ColorPalette*>(memory_.data()); }
    static int Size() { return static_cast<int>(sizeof(Gdiplus::ColorPalette) + MaximumCount * sizeof(Gdiplus::ARGB)); }
    Gdiplus::ARGB* Entries() { return reinterpret_cast<Gdiplus::ARGB*>(memory_.data()) + 2; }

private:
    std::vector<UINT> memory_;
};
