// SPDX-License-Identifier: MIT
#include "atlimage.h"

#include "atlimage_codecs.h"
#include "gdiplus_image.h"
#include "gdiplus_start.h"

#include <cstdlib>

using namespace Gdiplus::DllExports;

namespace
{
// Wine's BMP encoder writes 24 bits and drops the alpha that the original keeps, so a picture with alpha is written here:
// 32 bits, bottom-up, as the original does.
HRESULT SaveAlphaBmp(const CImage& image, LPCWSTR fileName)
{
    const DWORD rowSize = static_cast<DWORD>(image.GetWidth()) * 4;
    const DWORD height = static_cast<DWORD>(image.GetHeight());
    BITMAPINFOHEADER info = {};
    info.biSize = sizeof(info);
    info.biWidth = image.GetWidth();
    info.biHeight = image.GetHeight();
    info.biPlanes = 1;
    info.biBitCount = 32;
    info.biCompression = BI_RGB;
    info.biSizeImage = rowSize * height;
    BITMAPFILEHEADER header = {};
    header.bfType = 0x4D42;
    header.bfOffBits = sizeof(header) + sizeof(info);
    header.bfSize = header.bfOffBits + info.biSizeImage;

    const HANDLE file = CreateFileW(fileName, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
    {
        return E_FAIL;
    }
    const auto write = [file](const void* bytes, DWORD size)
    {
        DWORD written = 0;
        return WriteFile(file, bytes, size, &written, nullptr) && written == size;
    };
    bool complete = write(&header, sizeof(header)) && write(&info, sizeof(info));
    const BYTE* row =
        static_cast<const BYTE*>(image.GetBits()) + static_cast<std::ptrdiff_t>(image.GetHeight() - 1) * image.GetPitch();
    for (DWORD index = 0; complete && index < height; ++index, row -= image.GetPitch())
    {
        complete = write(row, rowSize);
    }
    CloseHandle(file);
    return complete ? S_OK : E_FAIL;
}

Gdiplus::PixelFormat FormatOfDepth(int bitsPerPixel, bool alpha)
{
    switch (bitsPerPixel)
    {
    case 1:
        return PixelFormat1bppIndexed;
    case 4:
        return PixelFormat4bppIndexed;
    case 8:
        return PixelFormat8bppIndexed;
    case 16:
        return PixelFormat16bppRGB555;
    case 24:
        return PixelFormat24bppRGB;
    default:
        return alpha ? PixelFormat32bppARGB : PixelFormat32bppRGB;
    }
}

void SetPalette(Gdiplus::GpBitmap* bitmap, const CImage& image)
{
    RGBQUAD colours[Palette::MaximumCount] = {};
    const UINT count = GetDIBColorTable(image.GetDC(), 0, Palette::MaximumCount, colours);
    image.ReleaseDC();
    Palette palette;
    palette.Get()->Count = count;
    for (UINT index = 0; index < count; ++index)
    {
        const RGBQUAD& colour = colours[index];
        palette.Entries()[index] = 0xFF000000u | static_cast<Gdiplus::ARGB>(colour.rgbRed) << 16 |
                                   static_cast<Gdiplus::ARGB>(colour.rgbGreen) << 8 | colour.rgbBlue;
    }
    GdipSetImagePalette(bitmap, palette.Get());
}

// A view of the image's own pixels, not a copy, where they can be reached.
GdiplusImage ViewOf(const CImage& image, bool alpha)
{
    Gdiplus::GpBitmap* view = nullptr;
    if (!image.GetBits())
    {
        GdipCreateBitmapFromHBITMAP(image, nullptr, &view);
        return GdiplusImage(view);
    }
    GdipCreateBitmapFromScan0(image.GetWidth(), image.GetHeight(), image.GetPitch(), FormatOfDepth(image.GetBPP(), alpha),
                              static_cast<BYTE*>(const_cast<void*>(image.GetBits())), &view);
    if (view && image.GetBPP() <= 8)
    {
        SetPalette(view, image);
    }
    return GdiplusImage(view);
}
} // namespace

HRESULT CImage::Save(LPCWSTR fileName, REFGUID fileType) const noexcept
{
    if (IsNull() || !fileName || !StartGdiplus())
    {
        return E_FAIL;
    }
    const CodecList encoders = CodecList::Encoders();
    const Gdiplus::ImageCodecInfo* encoder =
        fileType == GUID_NULL ? encoders.ForFileName(fileName) : encoders.ForFormat(fileType);
    if (!encoder)
    {
        return E_FAIL;
    }
    if (hasAlpha_ && encoder->FormatID == ImageFormats::Bmp)
    {
        return SaveAlphaBmp(*this, fileName);
    }
    const GdiplusImage view = ViewOf(*this, hasAlpha_);
    return view && GdipSaveImageToFile(view.get(), fileName, &encoder->Clsid, nullptr) == Gdiplus::Ok ? S_OK : E_FAIL;
}
