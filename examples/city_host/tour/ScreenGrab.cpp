// SPDX-License-Identifier: MIT
#include "ScreenGrab.h"

#include "../host/PictureOf.h"

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
    return PictureOf(picture);
}

} // namespace host
