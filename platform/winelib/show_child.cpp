// SPDX-License-Identifier: MIT
// Wine 8 draws the OpenGL pictures of a child window beside the screen and loses them there: it copies each to the X window
// of the child, and a child has none. OSG's Win32 window swaps its buffers through this function instead, which then takes
// the picture to the X window of the top-level window itself.
#include "XScreen.h"

#include <windows.h>

#include <osg/Image>

namespace
{
/// What Wine notes about a top-level window.
const char* const XWindowProperty = "__wine_x11_whole_window";
} // namespace

extern "C" BOOL WINAPI SwapAndShow(HDC dc)
{
    const HWND view = WindowFromDC(dc);
    const HWND top = GetAncestor(view, GA_ROOT);
    RECT client = {};
    if (view != top && IsWindowVisible(view) && !IsIconic(top) && GetClientRect(view, &client) && client.right > 0 &&
        client.bottom > 0)
    {
        // By OSG, whose OpenGL is the native one.
        static const osg::ref_ptr<osg::Image> picture = new osg::Image;
        picture->readPixels(0, 0, client.right, client.bottom, GL_BGRA, GL_UNSIGNED_BYTE);
        POINT origin = {};
        RECT window = {};
        ClientToScreen(view, &origin);
        GetWindowRect(top, &window);
        PutOnXWindow(reinterpret_cast<unsigned long>(GetPropA(top, XWindowProperty)), origin.x - window.left,
                     origin.y - window.top, client.right, client.bottom, picture->data());
    }
    return SwapBuffers(dc);
}
