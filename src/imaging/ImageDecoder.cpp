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

/// A stream over a copy of the bytes.
std::unique_ptr<IStream, ReleaseStream> StreamOf(const std::vector<char>& bytes)
{
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    if (!memory)
    {
        return nullptr;
    }
    std::memcpy(GlobalLock(memory), bytes.data(), bytes.size());
    GlobalUnlock(memory);
    IStream* stream = nullptr;
    if (CreateStreamOnHGlobal(memory, TRUE, &stream) != S_OK)
    {
        GlobalFree(memory);
        return nullptr;
    }
    return std::unique_ptr<IStream, ReleaseStream>(stream);
}

/// The file with its first picture alone.
std::vector<char> OnlyFirstPicture(const char* bytes, std::size_t size)
{
    const ImageSizeGuard::Part part = ImageSizeGuard::FirstPicture(bytes, size);
    std::vector<char> only;
    if (ImageSizeGuard::IsIcon(bytes, size))
    {
        // The head of an icon of one picture, whose entry ends in the picture's place.
        constexpr std::uint32_t head = 22;
        only.assign(bytes, bytes + head);
        only[4] = 1;
        only[5] = 0;
        std::memcpy(&only[head - sizeof(head)], &head, sizeof(head));
    }
    only.insert(only.end(), bytes + part.at, bytes + part.at + part.size);
    // Ends a GIF file; others ignore it.
    only.push_back(';');
    return only;
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

Gdiplus::GpBitmap* Decode(const char* bytes, std::size_t size)
{
    const ImageSizeGuard::Part first = ImageSizeGuard::FirstPicture(bytes, size);
    RgbaPicture picture;
    bool alpha = false;
    if (IsPng(bytes + first.at, first.size))
    {
        return ReadPngFile(bytes + first.at, first.size, picture, alpha) ? BitmapOf(picture, alpha) : nullptr;
    }
    if (IsTiff(bytes, size))
    {
        return ReadTiffFile(bytes, size, picture, alpha) ? BitmapOf(picture, alpha) : nullptr;
    }
    Gdiplus::GpBitmap* bitmap = nullptr;
    const auto stream = ImageSizeGuard::AllowsFile(bytes, size) ? StreamOf(OnlyFirstPicture(bytes, size)) : nullptr;
    return stream && GdipCreateBitmapFromStream(stream.get(), &bitmap) == Gdiplus::Ok ? bitmap : nullptr;
}
} // namespace

Gdiplus::GpBitmap* DecodeImage(const void* bytes, std::size_t size)
{
    try
    {
        return Decode(static_cast<const char*>(bytes), size);
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
        return ImageSizeGuard::AllowsFile(bytes.data(), bytes.size());
    }
    catch (const std::bad_alloc&)
    {
        return false;
    }
}
