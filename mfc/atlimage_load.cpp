// SPDX-License-Identifier: MIT
#include "atlimage.h"

#include "gdiplus_image.h"
#include "gdiplus_start.h"

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

// The whole file as a stream, null when it cannot be read. GDI+ would keep a file open that it cannot decode.
IStream* StreamOfFile(LPCWSTR fileName)
{
    const HANDLE file = CreateFileW(fileName, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
    {
        return nullptr;
    }
    IStream* stream = nullptr;
    LARGE_INTEGER size = {};
    HGLOBAL memory = nullptr;
    if (GetFileSizeEx(file, &size) && size.HighPart == 0 && size.LowPart > 0)
    {
        memory = GlobalAlloc(GMEM_MOVEABLE, size.LowPart);
    }
    if (memory)
    {
        DWORD read = 0;
        const bool whole = ReadFile(file, GlobalLock(memory), size.LowPart, &read, nullptr) && read == size.LowPart;
        GlobalUnlock(memory);
        if (!whole || CreateStreamOnHGlobal(memory, TRUE, &stream) != S_OK)
        {
            GlobalFree(memory);
        }
    }
    CloseHandle(file);
    return stream;
}
} // namespace

HRESULT CImage::Load(LPCWSTR fileName) noexcept
{
    IStream* const stream = fileName ? StreamOfFile(fileName) : nullptr;
    const HRESULT result = Load(stream);
    if (stream)
    {
        stream->Release();
    }
    return result;
}

HRESULT CImage::Load(IStream* stream) noexcept
{
    Gdiplus::GpBitmap* source = nullptr;
    if (!StartGdiplus() || !stream || GdipCreateBitmapFromStream(stream, &source) != Gdiplus::Ok)
    {
        return E_FAIL;
    }
    const GdiplusImage owner(source);
    return TakeBitmap(source);
}

HRESULT CImage::TakeBitmap(Gdiplus::GpBitmap* source)
{
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
