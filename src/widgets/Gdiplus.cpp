// SPDX-License-Identifier: MIT
#include "Gdiplus.h"

#include "PictureClaim.h"
#include "PngFile.h"

#include <atlimage.h>

#include <cstring>
#include <vector>

namespace gp
{
namespace
{
struct ReleaseStream
{
    void operator()(IStream* stream) const { stream->Release(); }
};

/// A stream over a copy of the bytes.
std::unique_ptr<IStream, ReleaseStream> StreamOf(const void* bytes, std::size_t size)
{
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    if (!memory)
    {
        return nullptr;
    }
    std::memcpy(GlobalLock(memory), bytes, size);
    GlobalUnlock(memory);
    IStream* stream = nullptr;
    if (CreateStreamOnHGlobal(memory, TRUE, &stream) != S_OK)
    {
        GlobalFree(memory);
        return nullptr;
    }
    return std::unique_ptr<IStream, ReleaseStream>(stream);
}

/// Empty also when the file cannot be read.
std::vector<char> ReadWhole(const wchar_t* path)
{
    std::vector<char> bytes;
    const HANDLE file = CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
    {
        return bytes;
    }
    LARGE_INTEGER size = {};
    DWORD read = 0;
    if (GetFileSizeEx(file, &size) && size.HighPart == 0)
    {
        bytes.resize(size.LowPart);
        if (!ReadFile(file, bytes.data(), size.LowPart, &read, nullptr) || read != size.LowPart)
        {
            bytes.clear();
        }
    }
    CloseHandle(file);
    return bytes;
}

/// Never destroyed on purpose: families of it may be in use to the end. Null while there are none.
GpFontCollection* addedFonts = nullptr;
} // namespace

void RequireGdiplus()
{
    // While a CImage lives GDI+ stays; this one is never destroyed on purpose.
    static const CImage* const keeper = []
    {
        CString filter;
        CSimpleArray<GUID> formats;
        auto* image = new CImage;
        CImage::GetExporterFilterString(filter, formats);
        return image;
    }();
    (void)keeper;
}

Bitmap NewBitmap(int width, int height)
{
    RequireGdiplus();
    return Make<Bitmap>([&](GpBitmap** bitmap)
                        { return GdipCreateBitmapFromScan0(width, height, 0, PixelFormat32bppARGB, nullptr, bitmap); });
}

void FillExactly(GpBitmap* bitmap, ARGB color)
{
    UINT width = 0;
    UINT height = 0;
    GdipGetImageWidth(bitmap, &width);
    GdipGetImageHeight(bitmap, &height);
    const GpRect all = {0, 0, static_cast<INT>(width), static_cast<INT>(height)};
    BitmapData locked = {};
    if (GdipBitmapLockBits(bitmap, &all, ImageLockModeWrite, PixelFormat32bppARGB, &locked) != Ok)
    {
        return;
    }
    for (UINT row = 0; row < height; ++row)
    {
        auto* pixels = reinterpret_cast<ARGB*>(static_cast<BYTE*>(locked.Scan0) + std::ptrdiff_t(locked.Stride) * row);
        std::fill(pixels, pixels + width, color);
    }
    GdipBitmapUnlockBits(bitmap, &locked);
}

Bitmap BitmapOf(const void* bytes, std::size_t size)
{
    RequireGdiplus();
    const auto stream = ClaimsWhatItCanHold(bytes, size) && !IsDamagedPng(bytes, size) ? StreamOf(bytes, size) : nullptr;
    return stream ? Make<Bitmap>([&](GpBitmap** bitmap) { return GdipCreateBitmapFromStream(stream.get(), bitmap); }) : nullptr;
}

Bitmap LoadBitmapFile(const wchar_t* path)
{
    const std::vector<char> bytes = ReadWhole(path);
    return BitmapOf(bytes.data(), bytes.size());
}

FontFamily NewFontFamily(const wchar_t* name)
{
    RequireGdiplus();
    FontFamily installed =
        Make<FontFamily>([&](GpFontFamily** family) { return GdipCreateFontFamilyFromName(name, nullptr, family); });
    if (installed || !addedFonts)
    {
        return installed;
    }
    return Make<FontFamily>([&](GpFontFamily** family) { return GdipCreateFontFamilyFromName(name, addedFonts, family); });
}

void AddFontFile(const wchar_t* path)
{
    RequireGdiplus();
    if (addedFonts || GdipNewPrivateFontCollection(&addedFonts) == Ok)
    {
        GdipPrivateAddFontFile(addedFonts, path);
    }
}

Font NewFont(const GpFontFamily* family, float pixels)
{
    return Make<Font>(
        [&](GpFont** font)
        {
            *font = nullptr;
            return family ? GdipCreateFont(family, pixels, FontStyleRegular, UnitPixel, font) : FontFamilyNotFound;
        });
}

StringFormat NewStringFormat()
{
    RequireGdiplus();
    StringFormat format =
        Make<StringFormat>([](GpStringFormat** format) { return GdipCreateStringFormat(0, LANG_NEUTRAL, format); });
    GdipSetStringFormatAlign(format.get(), StringAlignmentNear);
    return format;
}

SolidBrush NewSolidBrush(ARGB color)
{
    return Make<SolidBrush>([&](GpSolidFill** brush) { return GdipCreateSolidFill(color, brush); });
}

Graphics GraphicsOf(GpImage* image)
{
    return Make<Graphics>([&](GpGraphics** graphics) { return GdipGetImageGraphicsContext(image, graphics); });
}

void SetQuality(GpGraphics* graphics, TextRenderingHint hint)
{
    GdipSetTextRenderingHint(graphics, hint);
    GdipSetInterpolationMode(graphics, InterpolationModeHighQualityBicubic);
    GdipSetSmoothingMode(graphics, SmoothingModeAntiAlias);
}
} // namespace gp
