// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"

#include <imaging/ImageSizeGuard.h>
#include <widgets/GuiImageCodec.h>

namespace
{
const std::uint8_t* Data(const std::string& bytes)
{
    return reinterpret_cast<const std::uint8_t*>(bytes.data());
}
} // namespace

void FuzzPicture(const std::string& bytes)
{
    RgbaPicture picture;
    // As thumbnails and CImage have it decoded.
    gp::BitmapOf(bytes.data(), bytes.size());
    if (!DecodePicture(Data(bytes), bytes.size(), picture))
    {
        return;
    }
    Require(picture.width > 0 && picture.height > 0, "a picture has pixels");
    const std::size_t pixels = std::size_t(picture.width) * static_cast<std::size_t>(picture.height);
    Require(picture.pixels.size() == pixels * 4, "a picture has four bytes a pixel");
    Require(ImageSizeGuard::AllowsBitmap(picture.width, picture.height), "a picture has an allowed size");
    if (pixels > 1u << 16)
    {
        return;
    }
    const gp::Bitmap bitmap = gp::NewBitmap(picture.width, picture.height);
    for (int y = 0; y < picture.height; ++y)
    {
        for (int x = 0; x < picture.width; ++x)
        {
            const std::uint8_t* from = &picture.pixels[(std::size_t(y) * picture.width + x) * 4];
            gp::GdipBitmapSetPixel(bitmap.get(), x, y, gp::ARGB(from[3]) << 24 | from[0] << 16 | from[1] << 8 | from[2]);
        }
    }
    const CString path = ScratchFolder() + L"again.bmp";
    Require(WriteBmpFile(bitmap.get(), path), "a picture can be written");
    HANDLE file = CreateFileW(path, GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    std::string written(GetFileSize(file, nullptr), '\0');
    DWORD read = 0;
    ReadFile(file, &written[0], static_cast<DWORD>(written.size()), &read, nullptr);
    CloseHandle(file);
    RgbaPicture again;
    Require(ReadBmpFile(Data(written), read, again), "what was written is read");
    Require(again.width == picture.width && again.height == picture.height && again.pixels == picture.pixels,
            "a picture that is written again is the same");
}
