// SPDX-License-Identifier: MIT
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "SceneInput.h"

#include "OrbitCamera.h"

#include <cstdlib>

namespace host
{

using Event = osgGA::GUIEventAdapter;

namespace
{

/// A press that moves further is a drag. View pixels.
constexpr int ClickTolerance = 4;

CPoint PointOf(const Event& event)
{
    // The viewer's y axis points up.
    return CPoint(static_cast<int>(event.getX()), static_cast<int>(event.getWindowHeight() - event.getY()));
}

bool IsNear(CPoint a, CPoint b)
{
    return std::abs(a.x - b.x) <= ClickTolerance && std::abs(a.y - b.y) <= ClickTolerance;
}

} // namespace

bool SceneInput::handle(const Event& event, osgGA::GUIActionAdapter&, osg::Object*, osg::NodeVisitor*)
{
    switch (event.getEventType())
    {
    case Event::MOVE:
    case Event::DRAG:
        NoteWhereMouseIs(PointOf(event));
        Move(event);
        break;
    case Event::PUSH:
        Press(event);
        break;
    case Event::DOUBLECLICK:
        isClick_ = false;
        if (!overInterface_ && event.getButton() == Event::LEFT_MOUSE_BUTTON)
        {
            events_.OnSceneDoubleClick();
        }
        break;
    case Event::RELEASE:
        Release(event);
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

void SceneInput::NoteWhereMouseIs(CPoint point)
{
    if (point == mouse_)
    {
        // To the interface that was no move.
        return;
    }
    mouse_ = point;
    // The interface says so while the mouse moves over it and never takes it back.
    CeGuiMainFrame& frame = *CeGuiMainFrame::GetInstance();
    overInterface_ = frame.IsDisplySystemMouse();
    frame.SetDisplySystemMouse(false);
}

void SceneInput::Press(const Event& event)
{
    pressed_ = PointOf(event);
    lastX_ = event.getX();
    lastY_ = event.getY();
    const bool onScene = !overInterface_ && !events_.IsOnInterface(pressed_);
    isClick_ = onScene && event.getButton() == Event::LEFT_MOUSE_BUTTON;
    if (onScene)
    {
        drag_ = event.getButton() == Event::LEFT_MOUSE_BUTTON    ? Drag::Orbit
                : event.getButton() == Event::RIGHT_MOUSE_BUTTON ? Drag::Pan
                                                                 : Drag::None;
    }
    else if (!overInterface_ && event.getButton() == Event::RIGHT_MOUSE_BUTTON)
    {
        // The scene's menu is for the scene.
        CeGuiMainFrame::GetInstance()->EnablePopupMenu(false);
    }
}

void SceneInput::Move(const Event& event)
{
    const double dx = event.getX() - lastX_;
    const double dy = lastY_ - event.getY();
    lastX_ = event.getX();
    lastY_ = event.getY();
    const bool left = drag_ != Drag::None && !IsNear(PointOf(event), pressed_);
    isClick_ = isClick_ && !left;
    if (left && drag_ == Drag::Pan)
    {
        // The release that ends a drag is not the one that opens the scene's menu.
        CeGuiMainFrame::GetInstance()->EnablePopupMenu(false);
    }
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

void SceneInput::Release(const Event& event)
{
    drag_ = Drag::None;
    if (isClick_ && event.getButton() == Event::LEFT_MOUSE_BUTTON && IsNear(PointOf(event), pressed_))
    {
        events_.OnSceneClick(PointOf(event));
    }
    isClick_ = false;
}

} // namespace host
