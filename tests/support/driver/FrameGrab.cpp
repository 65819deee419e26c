// SPDX-License-Identifier: MIT
#include "FrameGrab.h"

namespace driver
{
namespace
{

class ReadBack : public osg::Camera::DrawCallback
{
public:
    explicit ReadBack(osg::Image* picture) : picture_(picture) {}

    void operator()(osg::RenderInfo& info) const override
    {
        const osg::Viewport& viewport = *info.getCurrentCamera()->getViewport();
        picture_->readPixels(0, 0, static_cast<int>(viewport.width()), static_cast<int>(viewport.height()), GL_RGB,
                             GL_UNSIGNED_BYTE);
    }

private:
    osg::ref_ptr<osg::Image> picture_;
};

} // namespace

FrameGrab::FrameGrab(osgViewer::Viewer& viewer) : viewer_(viewer), picture_(new osg::Image)
{
    viewer_.getCamera()->setFinalDrawCallback(new ReadBack(picture_));
}

FrameGrab::~FrameGrab()
{
    viewer_.getCamera()->setFinalDrawCallback(nullptr);
}

} // namespace driver
