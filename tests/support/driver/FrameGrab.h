// SPDX-License-Identifier: MIT
#pragma once

#include <osg/Image>
#include <osg/ref_ptr>
#include <osgViewer/Viewer>

namespace driver
{

/// Reads the next frames of a viewer back, with all that is drawn over the scene, while it lives.
class FrameGrab
{
public:
    explicit FrameGrab(osgViewer::Viewer& viewer);
    ~FrameGrab();
    FrameGrab(const FrameGrab&) = delete;
    FrameGrab& operator=(const FrameGrab&) = delete;

    /// RGB, bottom row first; empty before a frame was drawn. The next frame goes into the same picture.
    const osg::ref_ptr<osg::Image>& Picture() const { return picture_; }

private:
    osgViewer::Viewer& viewer_;
    osg::ref_ptr<osg::Image> picture_;
};

} // namespace driver
