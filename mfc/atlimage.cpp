// SPDX-License-Identifier: MIT
#include "atlimage.h"

#include "gdiplus_start.h"

#include <imaging/ImageSizeGuard.h>

#include <cstdint>
#include <cstdlib>
#include <utility>

const DWORD CImage::createAlphaChannel;

namespace
{
int BytesPerRow(int width, int bitsPerPixel)
{
    return static_cast<int>((static_cast<std::int64_t>(width) * bitsPerPixel + 31) / 32 * 4);
}

bool IsDepth(int bitsPerPixel)
{
    return bitsPerPixel == 1 || bitsPerPixel == 4 || bitsPerPixel == 8 || bitsPerPixel == 16 || bitsPerPixel == 24 ||
           bitsPerPixel == 32;
}
} // namespace

CImage::CImage()
{
    CountImage();
}

CImage::~CImage()
{
    Destroy();
    UncountImage();
}

BOOL CImage::Create(int width, int height, int bitsPerPixel, DWORD flags) noexcept
{
    Destroy();
    const bool alpha = (flags & createAlphaChannel) != 0;
    if (!IsDepth(bitsPerPixel) || (alpha && bitsPerPixel != 32) ||
        !ImageSizeGuard::AllowsBitmap(width, std::llabs(height), bitsPerPixel))
    {
        return FALSE;
    }
    // A colour table of black entries has to stand behind the header of an indexed bitmap.
    struct
    {
        BITMAPINFOHEADER header;
        RGBQUAD colours[256];
    } info = {};
    info.header.biSize = sizeof(info.header);
    info.header.biWidth = width;
    info.header.biHeight = height;
    info.header.biPlanes = 1;
    info.header.biBitCount = static_cast<WORD>(bitsPerPixel);
    info.header.biCompression = BI_RGB;
    void* bits = nullptr;
    const HBITMAP bitmap =
        CreateDIBSection(nullptr, reinterpret_cast<const BITMAPINFO*>(&info), DIB_RGB_COLORS, &bits, nullptr, 0);
    if (!bitmap)
    {
        return FALSE;
    }
    Attach(bitmap, height > 0 ? DIBOR_BOTTOMUP : DIBOR_TOPDOWN);
    hasAlpha_ = alpha;
    return TRUE;
}

void CImage::Destroy() noexcept
{
    if (const HBITMAP bitmap = Detach())
    {
        DeleteObject(bitmap);
    }
}

void CImage::Attach(HBITMAP bitmap, DIBOrientation orientation) noexcept
{
    Destroy();
    bitmap_ = bitmap;
    ReadGeometry(orientation);
}

HBITMAP CImage::Detach() noexcept
{
    while (dcCount_ > 0)
    {
        ReleaseDC();
    }
    bits_ = nullptr;
    width_ = height_ = bitsPerPixel_ = pitch_ = 0;
    hasAlpha_ = false;
    return std::exchange(bitmap_, nullptr);
}

CImage::operator HBITMAP() const noexcept
{
    return bitmap_;
}

bool CImage::IsNull() const noexcept
{
    return !bitmap_;
}

int CImage::GetWidth() const noexcept
{
    return width_;
}

int CImage::GetHeight() const noexcept
{
    return height_;
}

int CImage::GetBPP() const noexcept
{
    return bitsPerPixel_;
}

int CImage::GetPitch() const noexcept
{
    return pitch_;
}

void* CImage::GetBits() noexcept
{
    return bits_;
}

const void* CImage::GetBits() const noexcept
{
    return bits_;
}

void CImage::ReleaseGDIPlus() noexcept
{
    StopGdiplus();
}

void CImage::Swap(CImage& other) noexcept
{
    std::swap(bitmap_, other.bitmap_);
    std::swap(bits_, other.bits_);
    std::swap(width_, other.width_);
    std::swap(height_, other.height_);
    std::swap(bitsPerPixel_, other.bitsPerPixel_);
    std::swap(pitch_, other.pitch_);
    std::swap(hasAlpha_, other.hasAlpha_);
    std::swap(dc_, other.dc_);
    std::swap(formerBitmap_, other.formerBitmap_);
    std::swap(dcCount_, other.dcCount_);
}

void CImage::ReadGeometry(DIBOrientation orientation)
{
    DIBSECTION section = {};
    const int size = bitmap_ ? GetObjectW(bitmap_, sizeof(section), &section) : 0;
    width_ = section.dsBm.bmWidth;
    height_ = section.dsBm.bmHeight;
    bitsPerPixel_ = section.dsBm.bmBitsPixel;
    if (size != sizeof(section))
    {
        return;
    }
    pitch_ = BytesPerRow(width_, bitsPerPixel_);
    bits_ = section.dsBm.bmBits;
    if (orientation == DIBOR_BOTTOMUP || (orientation == DIBOR_DEFAULT && section.dsBmih.biHeight > 0))
    {
        bits_ = static_cast<BYTE*>(bits_) + static_cast<std::ptrdiff_t>(height_ - 1) * pitch_;
        pitch_ = -pitch_;
    }
}
