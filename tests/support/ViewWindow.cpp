// SPDX-License-Identifier: MIT
#include "ViewWindow.h"

#include <osgViewer/api/Win32/GraphicsWindowWin32>

osg::ref_ptr<osg::GraphicsContext> NewContext(HWND window, int width, int height)
{
    const osg::ref_ptr<osg::GraphicsContext::Traits> traits = new osg::GraphicsContext::Traits;
    traits->windowingSystemPreference = "Win32";
    traits->displayNum = 0;
    traits->screenNum = 0;
    traits->x = 0;
    traits->y = 0;
    traits->width = width;
    traits->height = height;
    traits->doubleBuffer = true;
    traits->windowDecoration = false;
    traits->inheritedWindowData = new osgViewer::GraphicsWindowWin32::WindowData(window);
    traits->setInheritedWindowPixelFormat = true;
    return osg::GraphicsContext::createGraphicsContext(traits);
}

ViewWindow::ViewWindow(HWND parent, int width, int height)
    : window_(CreateWindowExW(0, L"NxGuiTestView", L"", WS_CHILD | WS_VISIBLE, 0, 0, width, height, parent, nullptr,
                              GetModuleHandleW(nullptr), nullptr)),
      context_(NewContext(window_, width, height))
{
}
