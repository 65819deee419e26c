// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <osg/Camera>
#include <osg/Group>
#include <osg/Texture2D>
#include <osg/ref_ptr>

namespace host
{

/// Draws the interface larger than its pixels: each of them becomes a square of whole pixels of the view, so that nothing
/// blurs. The interface is drawn into a picture of its own that is as much smaller than the view, and the picture is laid over
/// the scene, which keeps all of the view's pixels. Events reach the interface in its own pixels.
class InterfaceScale
{
public:
    /// @param root the viewer's scene; outlives this
    /// @param slot the group below it that the interface hangs under
    InterfaceScale(osg::Group& root, osg::Group& slot);
    ~InterfaceScale();
    InterfaceScale(const InterfaceScale&) = delete;
    InterfaceScale& operator=(const InterfaceScale&) = delete;

    /// View pixels to one of the interface's, at least 1. Holds from the next size event on.
    void Set(int scale) { scale_ = scale < 1 ? 1 : scale; }
    int Get() const { return scale_; }

    /// Of the interface, at this size of the view.
    CSize Inner(CSize view) const { return CSize(view.cx / scale_, view.cy / scale_); }
    /// A point of the view in the interface's pixels.
    CPoint Inner(CPoint point) const;

private:
    class Events;

    /// Gives the interface's camera the picture to draw into, or the view itself at a scale of 1.
    void Fit(CSize view);

    osg::Group& root_;
    osg::Group& slot_;
    int scale_ = 1;
    osg::ref_ptr<osg::Texture2D> picture_;
    osg::ref_ptr<osg::Camera> overlay_;
};

} // namespace host
