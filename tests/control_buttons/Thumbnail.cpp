// SPDX-License-Identifier: MIT
#include "Thumbnail.h"

#include <widgets/Gdiplus.h>

#include <cmath>
#include <cstring>

namespace
{
const wchar_t* const Font = L"Noto Sans CJK SC";

CString FileOf(UINT index, const wchar_t* suffix)
{
    CString file;
    file.Format(L"%snew_skin/TavGuiButtonImg%u%s", SkinDir().GetString(), index, suffix);
    return file;
}

CSize CaptionSize(const CString& caption)
{
    gp::RectF box = {0, 0, 0, 0};
    if (!caption.IsEmpty())
    {
        const gp::FontFamily family = gp::NewFontFamily(Font);
        const gp::Font font = gp::NewFont(family.get(), 16.0f);
        const gp::StringFormat format = gp::NewStringFormat();
        const HDC dc = GetDC(GetDesktopWindow());
        {
            const gp::Graphics graphics =
                gp::Make<gp::Graphics>([&](gp::GpGraphics** g) { return gp::GdipCreateFromHDC(dc, g); });
            gp::GdipSetTextRenderingHint(graphics.get(), gp::TextRenderingHintAntiAlias);
            gp::GdipSetInterpolationMode(graphics.get(), gp::InterpolationModeHighQualityBicubic);
            gp::GdipSetSmoothingMode(graphics.get(), gp::SmoothingModeAntiAlias);
            const gp::RectF unbounded = {0, 0, 0, 0};
            gp::GdipMeasureString(graphics.get(), caption, caption.GetLength(), font.get(), &unbounded, format.get(), &box,
                                  nullptr, nullptr);
        }
        ReleaseDC(GetDesktopWindow(), dc);
    }
    return CSize(static_cast<int>(std::ceil(box.Width)), static_cast<int>(std::ceil(box.Height)));
}

gp::Bitmap Load(const CString& file)
{
    return gp::Make<gp::Bitmap>([&](gp::GpBitmap** bitmap) { return gp::GdipCreateBitmapFromFile(file, bitmap); });
}

void Draw(gp::GpGraphics* canvas, const CString& file, int x, int y, int width, int height)
{
    const gp::Bitmap picture = Load(file);
    ASSERT_TRUE(picture) << Utf8(file);
    ASSERT_EQ(gp::GdipDrawImageRectI(canvas, picture.get(), x, y, width, height), gp::Ok);
}

/// A bitmap file of 32 bits a pixel, rows from the bottom, with no resolution given.
Bytes FileBytes(gp::GpBitmap* bitmap)
{
    UINT width = 0;
    UINT height = 0;
    gp::GdipGetImageWidth(bitmap, &width);
    gp::GdipGetImageHeight(bitmap, &height);
    const std::uint32_t size = width * height * 4;
    Bytes bytes = {'B', 'M'};
    const auto put = [&](std::uint32_t value, int count)
    {
        for (int i = 0; i < count; ++i)
        {
            bytes.push_back(static_cast<std::uint8_t>(value >> 8 * i));
        }
    };
    for (const std::uint32_t value : {54 + size, 0u, 54u, 40u, width, height})
    {
        put(value, 4);
    }
    put(1, 2);
    put(32, 2);
    for (const std::uint32_t value : {0u, size, 0u, 0u, 0u, 0u})
    {
        put(value, 4);
    }
    for (int y = static_cast<int>(height) - 1; y >= 0; --y)
    {
        for (int x = 0; x < static_cast<int>(width); ++x)
        {
            gp::ARGB color = 0;
            gp::GdipBitmapGetPixel(bitmap, x, y, &color);
            put(color, 4);
        }
    }
    return bytes;
}
} // namespace

CString NormalFile(UINT index)
{
    return FileOf(index, L"_N.bmp");
}

CString PushedFile(UINT index)
{
    return FileOf(index, L"_P.bmp");
}

CString PicturePath(const wchar_t* file)
{
    return AppDir() + file;
}

Argb Motley(int width, int height)
{
    Argb picture = {width, height, {}};
    for (int y = 0; y < height; ++y)
    {
        for (int x = 0; x < width; ++x)
        {
            const std::uint32_t red = static_cast<std::uint32_t>(x * 255 / width);
            const std::uint32_t green = static_cast<std::uint32_t>(y * 255 / height);
            picture.pixels.push_back(0xFF000000u | red << 16 | green << 8 | ((x / 8 + y / 8) % 2 ? 200u : 20u));
        }
    }
    return picture;
}

Bytes ComposedAfresh(const CString& caption, const CString& picture, int kind, bool pushed)
{
    const CString skin = SkinDir() + L"new_skin/";
    gp::Bitmap canvas = gp::NewBitmap(126, 96);
    if (const gp::Bitmap border = Load(skin + (pushed ? L"borderP.png" : L"borderN.png")))
    {
        UINT width = 0;
        UINT height = 0;
        gp::GdipGetImageWidth(border.get(), &width);
        gp::GdipGetImageHeight(border.get(), &height);
        canvas = gp::NewBitmap(static_cast<int>(width), static_cast<int>(height));
        for (int y = 0; y < static_cast<int>(height); ++y)
        {
            for (int x = 0; x < static_cast<int>(width); ++x)
            {
                gp::ARGB color = 0;
                gp::GdipBitmapGetPixel(border.get(), x, y, &color);
                gp::GdipBitmapSetPixel(canvas.get(), x, y, color);
            }
        }
    }
    {
        const gp::Graphics graphics = gp::GraphicsOf(canvas.get());
        gp::GdipSetTextRenderingHint(graphics.get(), gp::TextRenderingHint(4));
        gp::GdipSetInterpolationMode(graphics.get(), gp::InterpolationMode(7));
        gp::GdipSetSmoothingMode(graphics.get(), gp::SmoothingMode(4));
        Draw(graphics.get(), picture, 3, 3, 120, 90);
        if (kind == 1)
        {
            Draw(graphics.get(), skin + L"videoplay.png", 40, 24, 41, 41);
        }
        const CSize size = CaptionSize(caption);
        const int w = size.cx;
        const int h = size.cy;
        Draw(graphics.get(), skin + (pushed ? L"textBGP.png" : L"textBGN.png"), 116 - w, 86 - h, 123 - (116 - w), 93 - (86 - h));
        if (!caption.IsEmpty())
        {
            const gp::FontFamily family = gp::NewFontFamily(Font);
            const gp::Font font = gp::NewFont(family.get(), 16.0f);
            const gp::StringFormat format = gp::NewStringFormat();
            const gp::SolidBrush brush = gp::NewSolidBrush(0xFFFFFFFF);
            const gp::RectF place = {static_cast<float>(121 - w > 5 ? 121 - w : 5), static_cast<float>(91 - h), 0, 0};
            gp::GdipDrawString(graphics.get(), caption, caption.GetLength(), font.get(), &place, format.get(), brush.get());
        }
    }
    return FileBytes(canvas.get());
}

void ThumbnailTest::TearDown()
{
    for (const CString& file : files_)
    {
        DeleteFileW(file);
    }
    for (UINT index = 0; index < 20; ++index)
    {
        DeleteFileW(NormalFile(index));
        DeleteFileW(PushedFile(index));
    }
    FrameTest::TearDown();
}

CString ThumbnailTest::Write(const wchar_t* file, const Argb& picture, const wchar_t* mimeType)
{
    const CString path = PicturePath(file);
    files_.push_back(path);
    WriteWithEncoder(picture, mimeType, path);
    return path;
}

CString ThumbnailTest::Write(const wchar_t* file, const Bytes& bytes)
{
    const CString path = PicturePath(file);
    files_.push_back(path);
    WriteBytes(path, bytes);
    return path;
}

void ThumbnailTest::ExpectComposed(const CString& caption, const CString& picture, int kind, const CString& shown, UINT index)
{
    CString stem;
    stem.Format(L"new_skin/TavGuiButtonImg%u", index);
    EXPECT_EQ(MakeThumbnail(caption, picture, index, kind), stem);
    const CString& seen = shown.IsEmpty() ? picture : shown;
    EXPECT_TRUE(ReadBytes(NormalFile(index)) == ComposedAfresh(caption, seen, kind, false)) << "normal picture";
    EXPECT_TRUE(ReadBytes(PushedFile(index)) == ComposedAfresh(caption, seen, kind, true)) << "pushed picture";
}
