// SPDX-License-Identifier: MIT
#include "Gdiplus.h"

#include "../imaging/ImageSizeGuard.h"

#include <atlimage.h>

namespace gp
{
namespace
{
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
    if (!ImageSizeGuard::AllowsBitmap(width, height))
    {
        return nullptr;
    }
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
    return Bitmap(DecodeImage(bytes, size));
}

Bitmap LoadBitmapFile(const wchar_t* path)
{
    RequireGdiplus();
    return Bitmap(DecodeImageFile(path));
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
            const bool allowed = pixels > 0 && pixels <= static_cast<float>(ImageSizeGuard::LongestSide);
            return family && allowed ? GdipCreateFont(family, pixels, FontStyleRegular, UnitPixel, font) : FontFamilyNotFound;
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
