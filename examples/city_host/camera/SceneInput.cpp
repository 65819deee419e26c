// SPDX-License-Identifier: MIT
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "SceneInput.h"

#include "OrbitCamera.h"

namespace host
{

using Event = osgGA::GUIEventAdapter;

bool SceneInput::handle(const Event& event, osgGA::GUIActionAdapter&, osg::Object*, osg::NodeVisitor*)
{
    switch (event.getEventType())
    {
    case Event::MOVE:
    case Event::DRAG:
        NoteWhereMouseIs();
        Move(event);
        break;
    case Event::PUSH:
        if (!overInterface_)
        {
            drag_ = event.getButton() == Event::LEFT_MOUSE_BUTTON    ? Drag::Orbit
                    : event.getButton() == Event::RIGHT_MOUSE_BUTTON ? Drag::Pan
                                                                     : Drag::None;
        }
        lastX_ = event.getX();
        lastY_ = event.getY();
        break;
    case Event::RELEASE:
        drag_ = Drag::None;
        break;
    case Event::SCROLL:
        // It belongs to whatever the mouse is over.
        if (!overInterface_)
        {
            camera_.Zoom(event.getScrollingMotion() == Event::SCROLL_UP ? 1.0 : -1.0);
        }
        break;
    default:
        break;
    }
    return false;
}

void SceneInput::NoteWhereMouseIs()
{
    // The interface says so while the mouse moves over it and never takes it back.
    CeGuiMainFrame& frame = *CeGuiMainFrame::GetInstance();
    overInterface_ = frame.IsDisplySystemMouse();
    frame.SetDisplySystemMouse(false);
}

void SceneInput::Move(const Event& event)
{
    const double dx = event.getX() - lastX_;
    const double dy = lastY_ - event.getY();
    lastX_ = event.getX();
    lastY_ = event.getY();
    if (event.getHandled())
    {
        return;
    }
    switch (drag_)
    {
    case Drag::Orbit:
        camera_.Orbit(dx, dy);
        break;
    case Drag::Pan:
        camera_.Pan(dx, dy, event.getWindowHeight());
        break;
    case Drag::None:
        break;
    }
}

} // namespace host
