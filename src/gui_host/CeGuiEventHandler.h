// SPDX-License-Identifier: MIT
#pragma once

#include <osgGA/GUIEventHandler>

/// Carries the viewer's events into CEGUI. It is the event callback of the drawable, so the scene graph's event traversal
/// brings them.
class CeGuiEventHandler : public osgGA::GUIEventHandler
{
public:
    /// @return whether the viewer shall not see the event: a wheel that a window used, a drag that moves a control button.
    ///     Never raises: what a resize or a slot could not do is one line in CEGUI.log.
    bool handle(const osgGA::GUIEventAdapter& ea, osgGA::GUIActionAdapter& aa, osg::Object* object,
                osg::NodeVisitor* visitor) override;
};
