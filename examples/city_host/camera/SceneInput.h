// SPDX-License-Identifier: MIT
#pragma once

#include <osgGA/GUIEventHandler>

#include <afxwin.h>

namespace host
{

class OrbitCamera;

/// What the user does to the scene besides moving the camera. Called from within the viewer's `frame`: whoever is told notes
/// it and acts between frames. Points are view pixels, from the top left.
class SceneEvents
{
public:
    virtual ~SceneEvents() = default;

    /// A left press and release in one place.
    virtual void OnSceneClick(CPoint point) = 0;
    /// The click before was the first half of a double click.
    virtual void OnSceneDoubleClick() = 0;
    /// Whether a point lies on a part of the interface that does not say so itself.
    virtual bool IsOnInterface(CPoint point) const = 0;
};

/// Gives the camera what the interface leaves: left drag orbits, right drag pans, the wheel zooms. It has to be the event
/// callback of a node behind the interface's in the scene, so that it sees each event right after the interface did.
class SceneInput : public osgGA::GUIEventHandler
{
public:
    /// @param camera, events outlive this
    SceneInput(OrbitCamera& camera, SceneEvents& events) : camera_(camera), events_(events) {}

    using osgGA::GUIEventHandler::handle;
    bool handle(const osgGA::GUIEventAdapter& event, osgGA::GUIActionAdapter& viewer, osg::Object* object,
                osg::NodeVisitor* visitor) override;

private:
    enum class Drag
    {
        None,
        Orbit,
        Pan
    };

    void NoteWhereMouseIs(CPoint point);
    void Press(const osgGA::GUIEventAdapter& event);
    void Move(const osgGA::GUIEventAdapter& event);
    void Release(const osgGA::GUIEventAdapter& event);

    OrbitCamera& camera_;
    SceneEvents& events_;
    Drag drag_ = Drag::None;
    bool overInterface_ = false;
    bool isClick_ = false;          ///< the button that is down has not left its place
    CPoint mouse_ = CPoint(-1, -1); ///< at the last move
    CPoint pressed_;
    float lastX_ = 0.0f;
    float lastY_ = 0.0f;
};

} // namespace host
