// SPDX-License-Identifier: MIT
#include <NxOsgCeGui/CeGuiMainFrame.h>
#include <osg/ShapeDrawable>
#include <osgGA/TrackballManipulator>

extern "C" void graphicswindow_Win32(void);

int main()
{
    graphicswindow_Win32(); // OSG's Win32 window: named, so that the linker keeps it
    osg::ref_ptr<osg::GraphicsContext::Traits> traits = new osg::GraphicsContext::Traits;
    traits->windowingSystemPreference = "Win32";
    traits->setScreenIdentifier(":0.0");
    traits->width = 1024;
    traits->height = 640;
    traits->doubleBuffer = true;
    traits->swapMethod = osg::DisplaySettings::SWAP_UNDEFINED; // any: not every driver names one
    osg::ref_ptr<osg::Group> root = new osg::Group;
    root->addChild(new osg::ShapeDrawable(new osg::Box));
    osgViewer::Viewer viewer;
    viewer.setThreadingModel(osgViewer::Viewer::SingleThreaded); // input, drawing and interface: one thread
    viewer.setKeyEventSetsDone(0);                               // Escape belongs to the interface
    viewer.getCamera()->setGraphicsContext(osg::GraphicsContext::createGraphicsContext(traits));
    viewer.getCamera()->setViewport(0, 0, traits->width, traits->height);
    viewer.setCameraManipulator(new osgGA::TrackballManipulator);
    viewer.setSceneData(root);
    viewer.realize();

    CeGuiMainFrame& gui = *CeGuiMainFrame::GetInstance();
    gui.Init(&viewer, GUI_USER_FULL);
    root->addChild(gui.GetGUINode());
    viewer.getEventQueue()->windowResize(0, 0, traits->width, traits->height); // the first size event builds the frame
    for (bool running = true; running && viewer.isRealized(); viewer.frame())
    {
        for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE); DispatchMessageW(&message))
        {
            running = running && !(message.message == GUI_HOST_MESSAGE && message.wParam == GUI_CMD_CLOSE);
        }
    }
    gui.CloseGuiSystem(); // before the window goes away
}
