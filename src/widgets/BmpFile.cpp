// SPDX-License-Identifier: MIT
#include "BmpFile.h"

#include <cstring>

namespace
{
constexpr std::uint16_t BmpMagic = 0x4D42; // "BM"
constexpr std::size_t HeaderSize = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
constexpr long MaxSide = 32768;

class File
{
public:
    explicit File(const CString& path)
        : handle_(CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr))
    {
    }
    ~File()
    {
        if (handle_ != INVALID_HANDLE_VALUE)
        {
            CloseHandle(handle_);
        }
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    bool Write(const void* data, std::size_t size)
    {
        DWORD written = 0;
        return handle_ != INVALID_HANDLE_VALUE && WriteFile(handle_, data, static_cast<DWORD>(size), &written, nullptr) &&
               written == size;
    }

private:
    HANDLE handle_;
};
} // namespace

bool WriteBmpFile(gp::GpBitmap* bitmap, const CString& path)
{
    UINT width = 0;
    UINT height = 0;
    gp::GdipGetImageWidth(bitmap, &width);
    gp::GdipGetImageHeight(bitmap, &height);
    const gp::GpRect all = {0, 0, static_cast<INT>(width), static_cast<INT>(height)};
    gp::BitmapData locked = {};
    if (gp::GdipBitmapLockBits(bitmap, &all, gp::ImageLockModeRead, PixelFormat32bppARGB, &locked) != gp::Ok)
    {
        return false;
    }

    const std::size_t rowSize = std::size_t(width) * 4;
    std::vector<std::uint8_t> bytes(HeaderSize + rowSize * height);
    BITMAPFILEHEADER file = {};
    file.bfType = BmpMagic;
    file.bfSize = static_cast<DWORD>(bytes.size());
    file.bfOffBits = HeaderSize;
    BITMAPINFOHEADER info = {};
    info.biSize = sizeof(info);
    info.biWidth = static_cast<LONG>(width);
    info.biHeight = static_cast<LONG>(height);
    info.biPlanes = 1;
    info.biBitCount = 32;
    info.biCompression = BI_RGB;
    info.biSizeImage = static_cast<DWORD>(rowSize * height);
    std::memcpy(bytes.data(), &file, sizeof(file));
    std::memcpy(bytes.data() + sizeof(file), &info, sizeof(info));
    for (UINT row = 0; row < height; ++row)
    {
        // A bitmap file's rows go from the bottom up.
        std::memcpy(bytes.data() + HeaderSize + rowSize * (height - 1 - row),
                    static_cast<const std::uint8_t*>(locked.Scan0) + std::ptrdiff_t(locked.Stride) * row, rowSize);
    }
    gp::GdipBitmapUnlockBits(bitmap, &locked);
    return File(path).Write(bytes.data(), bytes.size());
}

bool ReadBmpFile(const std::uint8_t* data, std::size_t size, RgbaPicture& picture)
{
    BITMAPFILEHEADER file;
    BITMAPINFOHEADER info;
    if (size < HeaderSize)
    {
        return false;
    }
    std::memcpy(&file, data, sizeof(file));
    std::memcpy(&info, data + sizeof(file), sizeof(info));
    if (file.bfType != BmpMagic || info.biBitCount != 32 || info.biCompression != BI_RGB || info.biWidth <= 0 ||
        info.biWidth > MaxSide || info.biHeight == 0 || info.biHeight > MaxSide || info.biHeight < -MaxSide)
    {
        return false;
    }
    const bool topDown = info.biHeight < 0;
    const std::size_t width = static_cast<std::size_t>(info.biWidth);
    const std::size_t height = static_cast<std::size_t>(topDown ? -info.biHeight : info.biHeight);
    if (file.bfOffBits > size || (size - file.bfOffBits) / 4 / width < height)
    {
        return false;
    }

    picture.width = static_cast<int>(width);
    picture.height = static_cast<int>(height);
    picture.pixels.resize(width * height * 4);
    for (std::size_t row = 0; row < height; ++row)
    {
        const std::uint8_t* from = data + file.bfOffBits + width * 4 * (topDown ? row : height - 1 - row);
        std::uint8_t* to = picture.pixels.data() + width * 4 * row;
        for (std::size_t i = 0; i < width * 4; i += 4)
        {
            to[i] = from[i + 2];
            to[i + 1] = from[i + 1];
            to[i + 2] = from[i];
            to[i + 3] = from[i + 3];
        }
    }
    return true;
}
