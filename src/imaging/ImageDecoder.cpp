// SPDX-License-Identifier: MIT
#include "ImageDecoder.h"

#include "ImageSizeGuard.h"
#include "PngFile.h"
#include "TiffFile.h"

#include <cstdint>
#include <cstring>
#include <memory>
#include <new>

namespace
{
using namespace Gdiplus::DllExports;

struct ReleaseStream
{
    void operator()(IStream* stream) const { stream->Release(); }
};

/// A stream over a copy of the bytes and, behind them, the mark that ends a GIF file, which others ignore.
std::unique_ptr<IStream, ReleaseStream> StreamOf(const void* bytes, std::size_t size)
{
    constexpr char gifEnd = ';';
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size + 1);
    if (!memory)
    {
        return nullptr;
    }
    char* to = static_cast<char*>(GlobalLock(memory));
    std::memcpy(to, bytes, size);
    to[size] = gifEnd;
    GlobalUnlock(memory);
    IStream* stream = nullptr;
    if (CreateStreamOnHGlobal(memory, TRUE, &stream) != S_OK)
    {
        GlobalFree(memory);
        return nullptr;
    }
    return std::unique_ptr<IStream, ReleaseStream>(stream);
}

/// Empty when the file cannot be read, and when it is larger than any picture file.
std::vector<char> ReadWhole(const wchar_t* path)
{
    std::vector<char> bytes;
    const HANDLE file = CreateFileW(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
    {
        return bytes;
    }
    LARGE_INTEGER size = {};
    DWORD read = 0;
    if (GetFileSizeEx(file, &size) && size.QuadPart <= ImageSizeGuard::LargestFile)
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

/// @param alpha whether the bitmap keeps it
Gdiplus::GpBitmap* BitmapOf(const RgbaPicture& picture, bool alpha)
{
    const Gdiplus::PixelFormat format = alpha ? PixelFormat32bppARGB : PixelFormat24bppRGB;
    const std::size_t pixelSize = alpha ? 4 : 3;
    Gdiplus::GpBitmap* bitmap = nullptr;
    if (GdipCreateBitmapFromScan0(picture.width, picture.height, 0, format, nullptr, &bitmap) != Gdiplus::Ok)
    {
        return nullptr;
    }
    const Gdiplus::GpRect all = {0, 0, picture.width, picture.height};
    Gdiplus::BitmapData locked = {};
    if (GdipBitmapLockBits(bitmap, &all, Gdiplus::ImageLockModeWrite, format, &locked) != Gdiplus::Ok)
    {
        GdipDisposeImage(bitmap);
        return nullptr;
    }
    const std::uint8_t* from = picture.pixels.data();
    for (int row = 0; row < picture.height; ++row)
    {
        auto* to = static_cast<std::uint8_t*>(locked.Scan0) + std::ptrdiff_t(locked.Stride) * row;
        for (int x = 0; x < picture.width; ++x, from += 4, to += pixelSize)
        {
            const std::uint8_t pixel[] = {from[2], from[1], from[0], from[3]};
            std::memcpy(to, pixel, pixelSize);
        }
    }
    GdipBitmapUnlockBits(bitmap, &locked);
    return bitmap;
}

bool IsSafe(const void* bytes, std::size_t size)
{
    return ImageSizeGuard::AllowsFile(bytes, size) && !HasDamagedPng(bytes, size);
}
} // namespace

Gdiplus::GpBitmap* DecodeImage(const void* bytes, std::size_t size)
{
    Gdiplus::GpBitmap* bitmap = nullptr;
    try
    {
        if (IsTiff(bytes, size))
        {
            RgbaPicture picture;
            bool alpha = false;
            return ReadTiffFile(bytes, size, picture, alpha) ? BitmapOf(picture, alpha) : nullptr;
        }
        const auto stream = IsSafe(bytes, size) ? StreamOf(bytes, ImageSizeGuard::SizeToFirstPicture(bytes, size)) : nullptr;
        return stream && GdipCreateBitmapFromStream(stream.get(), &bitmap) == Gdiplus::Ok ? bitmap : nullptr;
    }
    catch (const std::bad_alloc&)
    {
        return nullptr;
    }
}

Gdiplus::GpBitmap* DecodeImageFile(const wchar_t* path)
{
    try
    {
        const std::vector<char> bytes = ReadWhole(path);
        return DecodeImage(bytes.data(), bytes.size());
    }
    catch (const std::bad_alloc&)
    {
        return nullptr;
    }
}

bool IsSafeImageFile(const wchar_t* path)
{
    try
    {
        const std::vector<char> bytes = ReadWhole(path);
        return IsSafe(bytes.data(), bytes.size());
    }
    catch (const std::bad_alloc&)
    {
        return false;
    }
}
