// SPDX-License-Identifier: MIT
#pragma once

#include <osgGA/GUIEventHandler>

namespace host
{

class OrbitCamera;

/// Gives the camera what the interface leaves: left drag orbits, right drag pans, the wheel zooms. It has to be the event
/// callback of a node behind the interface's in the scene, so that it sees each event right after the interface did.
class SceneInput : public osgGA::GUIEventHandler
{
public:
    /// @param camera outlives this
    explicit SceneInput(OrbitCamera& camera) : camera_(camera) {}

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

    void NoteWhereMouseIs();
    void Move(const osgGA::GUIEventAdapter& event);

    OrbitCamera& camera_;
    Drag drag_ = Drag::None;
    bool overInterface_ = false;
    float lastX_ = 0.0f;
    float lastY_ = 0.0f;
};

} // namespace host
