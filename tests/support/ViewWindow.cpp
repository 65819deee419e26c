// SPDX-License-Identifier: MIT
#include "ViewWindow.h"

#include <osgViewer/api/Win32/GraphicsWindowWin32>

ViewWindow::ViewWindow(HWND parent, int width, int height)
    : window_(CreateWindowExW(0, L"NxGuiTestView", L"", WS_CHILD | WS_VISIBLE, 0, 0, width, height, parent, nullptr,
                              GetModuleHandleW(nullptr), nullptr))
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
    traits->inheritedWindowData = new osgViewer::GraphicsWindowWin32::WindowData(window_);
    traits->setInheritedWindowPixelFormat = true;
    context_ = osg::GraphicsContext::createGraphicsContext(traits);
}
