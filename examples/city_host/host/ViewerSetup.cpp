// SPDX-License-Identifier: MIT
#include "ViewerSetup.h"

#include "../camera/OrbitCamera.h"

#include <osg/Notify>
#include <osgViewer/api/Win32/GraphicsWindowWin32>

#include <algorithm>
#include <stdexcept>

extern "C" void graphicswindow_Win32(void);

namespace host
{
namespace
{

/// Keeps OSG quieter while it lives.
class QuietOsg
{
public:
    explicit QuietOsg(osg::NotifySeverity level) : former_(osg::getNotifyLevel())
    {
        osg::setNotifyLevel(std::min(former_, level));
    }
    ~QuietOsg() { osg::setNotifyLevel(former_); }
    QuietOsg(const QuietOsg&) = delete;
    QuietOsg& operator=(const QuietOsg&) = delete;

private:
    osg::NotifySeverity former_;
};

osg::ref_ptr<osg::GraphicsContext> MakeContext(HWND view, CSize size, int samples)
{
    // It lists every window system that it passes over.
    const QuietOsg quiet(osg::WARN);
    osg::ref_ptr<osg::GraphicsContext::Traits> traits = new osg::GraphicsContext::Traits;
    traits->windowingSystemPreference = "Win32";
    traits->displayNum = 0;
    traits->screenNum = 0;
    traits->width = size.cx;
    traits->height = size.cy;
    traits->windowDecoration = false;
    traits->doubleBuffer = true;
    // Any: the viewer would otherwise ask for one first that not every driver names.
    traits->swapMethod = osg::DisplaySettings::SWAP_UNDEFINED;
    traits->samples = static_cast<unsigned int>(samples);
    traits->sampleBuffers = samples > 0 ? 1 : 0;
    traits->inheritedWindowData = new osgViewer::GraphicsWindowWin32::WindowData(view);
    traits->setInheritedWindowPixelFormat = true;
    return osg::GraphicsContext::createGraphicsContext(traits);
}

} // namespace

osg::ref_ptr<osgViewer::Viewer> MakeViewer(HWND view, CSize size, int samples)
{
    // Named so that the linker keeps the window system's registration.
    graphicswindow_Win32();
    const osg::ref_ptr<osg::GraphicsContext> context = MakeContext(view, size, samples);
    if (!context)
    {
        throw std::runtime_error(samples > 0 ? "no OpenGL context with so many samples" : "no OpenGL context for the window");
    }
    osg::ref_ptr<osgViewer::Viewer> viewer = new osgViewer::Viewer;
    viewer->setThreadingModel(osgViewer::Viewer::SingleThreaded);
    // Escape belongs to the interface, and the city brings its own light.
    viewer->setKeyEventSetsDone(0);
    viewer->setQuitEventSetsDone(false);
    viewer->setLightingMode(osg::View::NO_LIGHT);
    osg::Camera* camera = viewer->getCamera();
    camera->setGraphicsContext(context);
    camera->setViewport(new osg::Viewport(0, 0, size.cx, size.cy));
    camera->setProjectionMatrixAsPerspective(OrbitCamera::FieldOfView, double(size.cx) / size.cy, 1.0, 10000.0);
    return viewer;
}

void Realise(osgViewer::Viewer& viewer)
{
    {
        // It asks for the foreground for its own window, a child, and warns when the main window has it.
        const QuietOsg quiet(osg::FATAL);
        viewer.realize();
    }
    if (!viewer.isRealized())
    {
        throw std::runtime_error("the OpenGL context cannot be used");
    }
}

} // namespace host
