// SPDX-License-Identifier: MIT
#include "Pictures.h"

#include "support/GTest.h"
#include "support/Gui.h"

#include <widgets/ImageEncoder.h>

#include <algorithm>

namespace
{
class ByteStream
{
public:
    void U16(std::uint32_t value)
    {
        bytes.push_back(static_cast<std::uint8_t>(value));
        bytes.push_back(static_cast<std::uint8_t>(value >> 8));
    }
    void U32(std::uint32_t value)
    {
        U16(value);
        U16(value >> 16);
    }
    std::vector<std::uint8_t> bytes;
};

ByteStream BmpHeader(const Argb& picture, int height, std::uint32_t bits, std::uint32_t colors)
{
    const std::uint32_t offset = 14 + 40 + colors * 4;
    const std::uint32_t row = (static_cast<std::uint32_t>(picture.width) * bits + 31) / 32 * 4;
    const std::uint32_t size = row * static_cast<std::uint32_t>(picture.height);
    ByteStream out;
    out.U16(0x4D42);
    out.U32(offset + size);
    out.U32(0);
    out.U32(offset);
    out.U32(40);
    out.U32(static_cast<std::uint32_t>(picture.width));
    out.U32(static_cast<std::uint32_t>(height));
    out.U16(1);
    out.U16(bits);
    out.U32(0);
    out.U32(size);
    out.U32(2835);
    out.U32(2835);
    out.U32(colors);
    out.U32(0);
    return out;
}

std::uint32_t At(const Argb& picture, int x, int y)
{
    return picture.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width) + static_cast<std::size_t>(x)];
}
} // namespace

Argb Solid(int width, int height, std::uint32_t color)
{
    return {width, height, std::vector<std::uint32_t>(static_cast<std::size_t>(width * height), color)};
}

std::vector<std::uint8_t> Bmp32(const Argb& picture, bool topDown)
{
    ByteStream out = BmpHeader(picture, topDown ? -picture.height : picture.height, 32, 0);
    for (int row = 0; row < picture.height; ++row)
    {
        for (int x = 0; x < picture.width; ++x)
        {
            out.U32(At(picture, x, topDown ? row : picture.height - 1 - row));
        }
    }
    return out.bytes;
}

std::vector<std::uint8_t> Bmp24(const Argb& picture)
{
    ByteStream out = BmpHeader(picture, picture.height, 24, 0);
    for (int y = picture.height - 1; y >= 0; --y)
    {
        for (int x = 0; x < picture.width; ++x)
        {
            const std::uint32_t color = At(picture, x, y);
            out.U16(color);
            out.bytes.push_back(static_cast<std::uint8_t>(color >> 16));
        }
        out.bytes.resize(out.bytes.size() + static_cast<std::size_t>(picture.width % 4));
    }
    return out.bytes;
}

std::vector<std::uint8_t> Bmp8(const Argb& picture)
{
    std::vector<std::uint32_t> palette = picture.pixels;
    std::sort(palette.begin(), palette.end());
    palette.erase(std::unique(palette.begin(), palette.end()), palette.end());
    ByteStream out = BmpHeader(picture, picture.height, 8, static_cast<std::uint32_t>(palette.size()));
    for (const std::uint32_t color : palette)
    {
        out.U32(color & 0xFFFFFF);
    }
    for (int y = picture.height - 1; y >= 0; --y)
    {
        for (int x = 0; x < picture.width; ++x)
        {
            const auto entry = std::lower_bound(palette.begin(), palette.end(), At(picture, x, y));
            out.bytes.push_back(static_cast<std::uint8_t>(entry - palette.begin()));
        }
        out.bytes.resize(out.bytes.size() + static_cast<std::size_t>((4 - picture.width % 4) % 4));
    }
    return out.bytes;
}

void WriteWithEncoder(const Argb& picture, const wchar_t* mimeType, const CString& path)
{
    CLSID encoder;
    ASSERT_GE(GetEncoderClsid(mimeType, encoder), 0);
    const gp::Bitmap bitmap = gp::NewBitmap(picture.width, picture.height);
    for (int y = 0; y < picture.height; ++y)
    {
        for (int x = 0; x < picture.width; ++x)
        {
            gp::GdipBitmapSetPixel(bitmap.get(), x, y, At(picture, x, y));
        }
    }
    // A GIF wants its colours indexed first.
    const bool gif = CString(mimeType) == L"image/gif";
    ASSERT_TRUE(SaveBitmap(bitmap.get(), gif ? path + L".gif" : path + L".other", encoder));
    ASSERT_TRUE(MoveFileExW(gif ? path + L".gif" : path + L".other", path, MOVEFILE_REPLACE_EXISTING));
}

void WriteSkinPicture(const wchar_t* file, std::uint32_t color, int width, int height)
{
    ASSERT_TRUE(WriteBytes(SkinDir() + file, Bmp32(Solid(width, height, color))));
}
