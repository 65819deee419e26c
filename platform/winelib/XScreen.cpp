// SPDX-License-Identifier: MIT
// Apart from its only user, since X and Win32 share names.
#include "XScreen.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <cstring>
#include <vector>

void PutOnXWindow(unsigned long xWindow, int left, int top, int width, int height, const unsigned char* pixels)
{
    // A connection of our own: Wine's belong to its threads.
    static Display* const display = XOpenDisplay(nullptr);
    if (!display || !xWindow)
    {
        return;
    }
    const int screen = DefaultScreen(display);
    static const GC context = XCreateGC(display, DefaultRootWindow(display), 0, nullptr);
    const std::size_t stride = static_cast<std::size_t>(width) * 4;
    static std::vector<char> rows;
    rows.resize(stride * height);
    for (int y = 0; y < height; ++y)
    {
        std::memcpy(rows.data() + y * stride, pixels + (height - 1 - y) * stride, stride);
    }
    const auto depth = static_cast<unsigned int>(DefaultDepth(display, screen));
    XImage* image =
        XCreateImage(display, DefaultVisual(display, screen), depth, ZPixmap, 0, rows.data(), static_cast<unsigned int>(width),
                     static_cast<unsigned int>(height), 32, static_cast<int>(stride));
    if (!image)
    {
        return;
    }
    image->byte_order = LSBFirst;
    XPutImage(display, xWindow, context, image, 0, 0, left, top, static_cast<unsigned int>(width),
              static_cast<unsigned int>(height));
    XFlush(display);
    // The pixels are the vector's.
    image->data = nullptr;
    XDestroyImage(image);
}
