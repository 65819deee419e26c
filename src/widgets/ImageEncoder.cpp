// SPDX-License-Identifier: MIT
#include "ImageEncoder.h"

#include "BmpFile.h"

#include <KernelCommonUse/WholeFile.h>

#include <algorithm>
#include <cwctype>
#include <map>
#include <vector>

namespace
{
constexpr UINT Levels = 6;                             // of red, green and blue in a GIF's palette
constexpr UINT Transparent = Levels * Levels * Levels; // its last entry

UINT Level(gp::ARGB component)
{
    return ((component & 0xFF) * (Levels - 1) + 127) / 255;
}

BYTE PaletteIndex(gp::ARGB color)
{
    return static_cast<BYTE>(color >> 24 < 128 ? Transparent
                                               : (Level(color >> 16) * Levels + Level(color >> 8)) * Levels + Level(color));
}

/// The bitmap in 8 bits over a fixed palette: not every GDI+ makes one for a GIF itself, and then it writes a file that
/// nothing can read.
gp::Bitmap Indexed(gp::GpBitmap* bitmap)
{
    UINT width = 0;
    UINT height = 0;
    gp::GdipGetImageWidth(bitmap, &width);
    gp::GdipGetImageHeight(bitmap, &height);
    gp::Bitmap indexed = gp::Make<gp::Bitmap>(
        [&](gp::GpBitmap** made)
        {
            return gp::GdipCreateBitmapFromScan0(static_cast<INT>(width), static_cast<INT>(height), 0, PixelFormat8bppIndexed,
                                                 nullptr, made);
        });
    // Two words of head, then the entries.
    std::vector<gp::ARGB> words(2 + Transparent + 1);
    words[0] = gp::PaletteFlagsHasAlpha;
    words[1] = Transparent + 1;
    for (UINT i = 0; i < Transparent; ++i)
    {
        constexpr UINT step = 255 / (Levels - 1);
        words[2 + i] = 0xFF000000u | i / (Levels * Levels) * step << 16 | i / Levels % Levels * step << 8 | i % Levels * step;
    }
    gp::GdipSetImagePalette(indexed.get(), reinterpret_cast<const gp::ColorPalette*>(words.data()));

    const gp::GpRect all = {0, 0, static_cast<INT>(width), static_cast<INT>(height)};
    gp::BitmapData from = {};
    gp::BitmapData to = {};
    if (!indexed || gp::GdipBitmapLockBits(bitmap, &all, gp::ImageLockModeRead, PixelFormat32bppARGB, &from) != gp::Ok)
    {
        return nullptr;
    }
    if (gp::GdipBitmapLockBits(indexed.get(), &all, gp::ImageLockModeWrite, PixelFormat8bppIndexed, &to) == gp::Ok)
    {
        for (UINT row = 0; row < height; ++row)
        {
            const BYTE* read = static_cast<const BYTE*>(from.Scan0) + std::ptrdiff_t(from.Stride) * row;
            BYTE* write = static_cast<BYTE*>(to.Scan0) + std::ptrdiff_t(to.Stride) * row;
            const auto* pixels = reinterpret_cast<const gp::ARGB*>(read);
            std::transform(pixels, pixels + width, write, PaletteIndex);
        }
        gp::GdipBitmapUnlockBits(indexed.get(), &to);
    }
    gp::GdipBitmapUnlockBits(bitmap, &from);
    return indexed;
}

bool Encode(gp::GpBitmap* bitmap, const CString& path, const CLSID& clsid)
{
    return bitmap && !path.IsEmpty() && gp::GdipSaveImageToFile(bitmap, path, &clsid, nullptr) == gp::Ok;
}
} // namespace

CString GetFileExtension(const CString& path)
{
    const int dot = path.ReverseFind(L'.');
    if (path.GetLength() < 3 || dot < 0)
    {
        return CString();
    }
    CString extension = path.Mid(dot + 1);
    for (int i = 0; i < extension.GetLength(); ++i)
    {
        extension.SetAt(i, static_cast<wchar_t>(std::towlower(extension.GetAt(i))));
    }
    return extension;
}

bool GetMimeTypeByExtension(const CString& extension, CString& mimeType)
{
    // "tif" is left out on purpose.
    const std::map<CString, CString> mimeTypes = {
        {L"bmp", L"image/bmp"}, {L"jpeg", L"image/jpeg"}, {L"jpg", L"image/jpeg"},
        {L"gif", L"image/gif"}, {L"tiff", L"image/tiff"}, {L"png", L"image/png"},
    };
    const auto found = mimeTypes.find(extension);
    if (found == mimeTypes.end())
    {
        return false;
    }
    mimeType = found->second;
    return true;
}

int GetEncoderClsid(const CString& mimeType, CLSID& clsid)
{
    gp::RequireGdiplus();
    UINT count = 0;
    UINT bytes = 0;
    gp::GdipGetImageEncodersSize(&count, &bytes);
    if (bytes == 0)
    {
        return -1;
    }
    // GDI+ lays the strings that the entries point to behind them in the same buffer.
    std::vector<gp::ImageCodecInfo> buffer(bytes / sizeof(gp::ImageCodecInfo) + 1);
    if (gp::GdipGetImageEncoders(count, bytes, buffer.data()) != gp::Ok)
    {
        return -1;
    }
    for (UINT i = 0; i < count; ++i)
    {
        if (mimeType == buffer[i].MimeType)
        {
            clsid = buffer[i].Clsid;
            return static_cast<int>(i);
        }
    }
    return -1;
}

bool GetEncoderForPath(const CString& path, CLSID& clsid)
{
    CString mimeType;
    return GetMimeTypeByExtension(GetFileExtension(path), mimeType) && GetEncoderClsid(mimeType, clsid) >= 0;
}

bool SaveBitmap(gp::GpBitmap* bitmap, const CString& path, const CLSID& clsid)
{
    WholeFile file(path);
    const CString extension = GetFileExtension(path);
    const bool written = extension == L"bmp"   ? WriteBmpFile(bitmap, file.Unfinished())
                         : extension == L"gif" ? Encode(Indexed(bitmap).get(), file.Unfinished(), clsid)
                                               : Encode(bitmap, file.Unfinished(), clsid);
    return written && file.Commit();
}
