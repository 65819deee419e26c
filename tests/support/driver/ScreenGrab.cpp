// SPDX-License-Identifier: MIT
#include "ScreenGrab.h"

#include <stdexcept>

namespace driver
{
namespace
{

/// A device context in memory that holds a picture of 32 bits a pixel, its bottom row first.
class MemoryPicture
{
public:
    MemoryPicture(HDC like, LONG width, LONG height) : context_(CreateCompatibleDC(like))
    {
        BITMAPINFO form = {};
        form.bmiHeader.biSize = sizeof(form.bmiHeader);
        form.bmiHeader.biWidth = width;
        form.bmiHeader.biHeight = height;
        form.bmiHeader.biPlanes = 1;
        form.bmiHeader.biBitCount = 32;
        bitmap_ = CreateDIBSection(like, &form, DIB_RGB_COLORS, &bits_, nullptr, 0);
        former_ = bitmap_ ? SelectObject(context_, bitmap_) : nullptr;
    }
    ~MemoryPicture()
    {
        if (bitmap_)
        {
            SelectObject(context_, former_);
            DeleteObject(bitmap_);
        }
        DeleteDC(context_);
    }
    MemoryPicture(const MemoryPicture&) = delete;
    MemoryPicture& operator=(const MemoryPicture&) = delete;

    HDC Context() const { return context_; }
    /// Null when the picture could not be made.
    const unsigned char* Bits() const { return static_cast<const unsigned char*>(bits_); }

private:
    HDC context_;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ former_ = nullptr;
    void* bits_ = nullptr;
};

} // namespace

osg::ref_ptr<osg::Image> GrabScreen(const RECT& area)
{
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const HDC screen = GetDC(nullptr);
    const MemoryPicture memory(screen, width, height);
    const bool copied = memory.Bits() && BitBlt(memory.Context(), 0, 0, width, height, screen, area.left, area.top, SRCCOPY);
    GdiFlush();
    ReleaseDC(nullptr, screen);
    if (!copied)
    {
        throw std::runtime_error("the screen cannot be read");
    }
    osg::ref_ptr<osg::Image> picture = new osg::Image;
    picture->allocateImage(width, height, 1, GL_RGB, GL_UNSIGNED_BYTE);
    const unsigned char* source = memory.Bits();
    for (int y = 0; y < height; ++y)
    {
        unsigned char* target = picture->data(0, y);
        for (int x = 0; x < width; ++x, source += 4, target += 3)
        {
            target[0] = source[2];
            target[1] = source[1];
            target[2] = source[0];
        }
    }
    return picture;
}

} // namespace driver
