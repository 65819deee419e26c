// SPDX-License-Identifier: MIT
#include "atlimage.h"

#include "gdiplus_image.h"
#include "gdiplus_start.h"

#include <imaging/ImageDecoder.h>
#include <imaging/ImageSizeGuard.h>

#include <new>
#include <vector>

using namespace Gdiplus::DllExports;

namespace
{
bool ReadPalette(Gdiplus::GpBitmap* source, Palette& palette)
{
    INT size = 0;
    return GdipGetImagePaletteSize(source, &size) == Gdiplus::Ok && size <= Palette::Size() &&
           GdipGetImagePalette(source, palette.Get(), size) == Gdiplus::Ok;
}

// A palette can hold transparent colours although its pixel format says nothing of alpha.
bool HasTransparentEntry(Palette& palette)
{
    for (UINT index = 0; index < palette.Get()->Count; ++index)
    {
        if (palette.Entries()[index] >> 24 != 0xFF)
        {
            return true;
        }
    }
    return false;
}

void SetColours(const CImage& image, Palette& palette)
{
    static_assert(sizeof(RGBQUAD) == sizeof(Gdiplus::ARGB));
    RGBQUAD colours[Palette::MaximumCount] = {};
    const UINT count = palette.Get()->Count;
    for (UINT index = 0; index < count; ++index)
    {
        const Gdiplus::ARGB colour = palette.Entries()[index];
        colours[index] = {static_cast<BYTE>(colour), static_cast<BYTE>(colour >> 8), static_cast<BYTE>(colour >> 16), 0};
    }
    SetDIBColorTable(image.GetDC(), 0, count, colours);
    image.ReleaseDC();
}

// The format of the DIB section that holds the picture best: its own where GDI knows it, else 32 bits.
Gdiplus::PixelFormat SectionFormat(Gdiplus::PixelFormat source, bool alpha)
{
    if (alpha)
    {
        return PixelFormat32bppARGB;
    }
    // GDI takes 16 bits as five for each colour.
    const bool known = (source & PixelFormatGDI) != 0 && source != PixelFormat16bppRGB565;
    return known ? source : PixelFormat32bppRGB;
}

// What a stream holds from its position on. Empty when it cannot be read.
std::vector<char> RestOf(IStream& stream)
{
    constexpr ULONG step = 1 << 16;
    std::vector<char> bytes;
    ULONG read = 0;
    std::size_t size = 0;
    do
    {
        bytes.resize(size + step);
        if (FAILED(stream.Read(bytes.data() + size, step, &read)))
        {
            return {};
        }
        size += read;
    } while (read > 0 && size <= static_cast<std::size_t>(ImageSizeGuard::LargestFile));
    bytes.resize(size);
    return bytes;
}
} // namespace

HRESULT CImage::Load(LPCWSTR fileName) noexcept
{
    return StartGdiplus() && fileName ? TakeBitmap(GdiplusImage(DecodeImageFile(fileName)).get()) : E_FAIL;
}

HRESULT CImage::Load(IStream* stream) noexcept
try
{
    if (!StartGdiplus() || !stream)
    {
        return E_FAIL;
    }
    const std::vector<char> bytes = RestOf(*stream);
    return TakeBitmap(GdiplusImage(DecodeImage(bytes.data(), bytes.size())).get());
}
catch (const std::bad_alloc&)
{
    return E_FAIL;
}

HRESULT CImage::TakeBitmap(Gdiplus::GpBitmap* source)
{
    if (!source)
    {
        return E_FAIL;
    }
    UINT width = 0;
    UINT height = 0;
    Gdiplus::PixelFormat sourceFormat = PixelFormatUndefined;
    GdipGetImageWidth(source, &width);
    GdipGetImageHeight(source, &height);
    GdipGetImagePixelFormat(source, &sourceFormat);

    Palette palette;
    const bool indexed = Gdiplus::IsIndexedPixelFormat(sourceFormat);
    if (indexed && !ReadPalette(source, palette))
    {
        return E_FAIL;
    }
    const bool alpha = indexed ? HasTransparentEntry(palette) : Gdiplus::IsAlphaPixelFormat(sourceFormat) != FALSE;
    const Gdiplus::PixelFormat format = SectionFormat(sourceFormat, alpha);
    CImage made;
    if (!made.Create(static_cast<int>(width), static_cast<int>(height), static_cast<int>(Gdiplus::GetPixelFormatSize(format)),
                     alpha ? createAlphaChannel : 0))
    {
        return E_FAIL;
    }
    if (indexed && format == sourceFormat)
    {
        SetColours(made, palette);
    }
    Gdiplus::BitmapData data = {};
    data.Width = width;
    data.Height = height;
    data.Stride = made.GetPitch();
    data.PixelFormat = format;
    data.Scan0 = made.GetBits();
    const UINT mode = Gdiplus::ImageLockModeRead | Gdiplus::ImageLockModeUserInputBuf;
    if (GdipBitmapLockBits(source, nullptr, mode, format, &data) != Gdiplus::Ok)
    {
        return E_FAIL;
    }
    GdipBitmapUnlockBits(source, &data);
    Swap(made);
    return S_OK;
}
