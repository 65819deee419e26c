// SPDX-License-Identifier: MIT
#pragma once

#include "../imaging/ImageDecoder.h"

#include <cstddef>
#include <memory>

/// The flat GDI+ interface with owners for what it hands out.
namespace gp
{
using namespace Gdiplus;
using namespace Gdiplus::DllExports;

struct Deleter
{
    void operator()(GpImage* image) const { GdipDisposeImage(image); }
    void operator()(GpGraphics* graphics) const { GdipDeleteGraphics(graphics); }
    void operator()(GpFontFamily* family) const { GdipDeleteFontFamily(family); }
    void operator()(GpFont* font) const { GdipDeleteFont(font); }
    void operator()(GpStringFormat* format) const { GdipDeleteStringFormat(format); }
    void operator()(GpBrush* brush) const { GdipDeleteBrush(brush); }
    void operator()(GpPen* pen) const { GdipDeletePen(pen); }
};

template <class T>
using Owner = std::unique_ptr<T, Deleter>;
using Bitmap = Owner<GpBitmap>;
using Image = Owner<GpImage>;
using Graphics = Owner<GpGraphics>;
using FontFamily = Owner<GpFontFamily>;
using Font = Owner<GpFont>;
using StringFormat = Owner<GpStringFormat>;
using SolidBrush = Owner<GpSolidFill>;
using Pen = Owner<GpPen>;

/// Starts GDI+ for the process the way every user of image files in an MFC program does: by CImage's first use. Nothing
/// happens from the second call on. GDI+ then stays until the process ends, since it may not be shut down while modules
/// are being unloaded.
void RequireGdiplus();

/// Makes an object through a flat creator that fills in a pointer; null when GDI+ could not make it.
template <class Owner, class Create>
Owner Make(Create create)
{
    typename Owner::pointer object = nullptr;
    create(&object);
    return Owner(object);
}

/// A bitmap of 32-bit ARGB, transparent black; null when `ImageSizeGuard` refuses the size and when there is no memory for it.
Bitmap NewBitmap(int width, int height);
/// Gives every pixel exactly this colour. Neither filling nor clearing is sure to keep the colour of what is fully
/// transparent.
void FillExactly(GpBitmap* bitmap, ARGB color);
/// The picture in a file's bytes; null when `DecodeImage` refuses them.
Bitmap BitmapOf(const void* bytes, std::size_t size);
/// A picture file; null when it is missing or no picture.
Bitmap LoadBitmapFile(const wchar_t* path);
/// The font family, or null when no such family is installed.
FontFamily NewFontFamily(const wchar_t* name);
/// Makes the families of a font file known that was installed while the process ran: GDI+ may have listed all fonts before.
void AddFontFile(const wchar_t* path);
/// A regular font with an em height in pixels; null without a family, and for a height that is not above 0 or that no bitmap has.
Font NewFont(const GpFontFamily* family, float pixels);
/// Text aligned near, with GDI+'s default rules.
StringFormat NewStringFormat();
SolidBrush NewSolidBrush(ARGB color);
Graphics GraphicsOf(GpImage* image);

/// COLORREF (0x00BBGGRR) as an opaque ARGB (0xFFRRGGBB).
constexpr ARGB OpaqueArgb(COLORREF color)
{
    return 0xFF000000u | (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

/// The rendering settings of every text drawn here, as GDI+ numbers them.
void SetQuality(GpGraphics* graphics, TextRenderingHint hint);
} // namespace gp
