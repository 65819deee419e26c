// SPDX-License-Identifier: MIT
#include "ScreenGrab.h"

#include <atlimage.h>

#include <stdexcept>

namespace host
{
namespace
{

bool CopyFromScreen(CImage& picture, const RECT& area)
{
    const HDC screen = GetDC(nullptr);
    const HDC memory = picture.GetDC();
    const BOOL copied =
        BitBlt(memory, 0, 0, area.right - area.left, area.bottom - area.top, screen, area.left, area.top, SRCCOPY);
    GdiFlush();
    picture.ReleaseDC();
    ReleaseDC(nullptr, screen);
    return copied != FALSE;
}

} // namespace

osg::ref_ptr<osg::Image> GrabScreen(const RECT& area)
{
    CImage picture;
    if (!picture.Create(area.right - area.left, -(area.bottom - area.top), 32) || !CopyFromScreen(picture, area))
    {
        throw std::runtime_error("the screen cannot be read");
    }
    osg::ref_ptr<osg::Image> image = new osg::Image;
    image->allocateImage(picture.GetWidth(), picture.GetHeight(), 1, GL_RGB, GL_UNSIGNED_BYTE);
    for (int y = 0; y < picture.GetHeight(); ++y)
    {
        const auto* row =
            static_cast<const unsigned char*>(picture.GetBits()) + static_cast<std::ptrdiff_t>(y) * picture.GetPitch();
        unsigned char* target = image->data(0, picture.GetHeight() - 1 - y);
        for (int x = 0; x < picture.GetWidth(); ++x)
        {
            target[x * 3] = row[x * 4 + 2];
            target[x * 3 + 1] = row[x * 4 + 1];
            target[x * 3 + 2] = row[x * 4];
        }
    }
    return image;
}

} // namespace host
