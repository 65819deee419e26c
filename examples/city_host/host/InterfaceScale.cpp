// SPDX-License-Identifier: MIT
#include "InterfaceScale.h"

#include <osg/BlendFunc>
#include <osg/Geometry>
#include <osg/NodeCallback>
#include <osgGA/EventVisitor>
#include <osgGA/GUIActionAdapter>

#include <cmath>
#include <vector>

namespace host
{
namespace
{

using Event = osgGA::GUIEventAdapter;

/// Rounds towards the outside: a point left of or above the view stays there.
int Divided(double pixels, int scale)
{
    return static_cast<int>(std::floor(pixels / scale));
}

/// The interface asks a viewer for its viewport, which is the view's.
class WithoutViewer : public osgGA::GUIActionAdapter
{
public:
    explicit WithoutViewer(osgGA::GUIActionAdapter& viewer) : viewer_(viewer) {}
    void requestRedraw() override { viewer_.requestRedraw(); }
    void requestContinuousUpdate(bool needed) override { viewer_.requestContinuousUpdate(needed); }
    void requestWarpPointer(float x, float y) override { viewer_.requestWarpPointer(x, y); }

private:
    osgGA::GUIActionAdapter& viewer_;
};

osg::ref_ptr<Event> InInnerPixels(const Event& event, int scale)
{
    const osg::ref_ptr<Event> inner = new Event(event, osg::CopyOp::SHALLOW_COPY);
    const int height = event.getWindowHeight() / scale;
    inner->setWindowRectangle(event.getWindowX(), event.getWindowY(), event.getWindowWidth() / scale, height);
    inner->setX(static_cast<float>(Divided(event.getX(), scale)));
    // The viewer's y axis points up.
    inner->setY(static_cast<float>(height - Divided(event.getWindowHeight() - event.getY(), scale)));
    return inner;
}

osg::ref_ptr<osg::Camera> MakeOverlay(osg::Texture2D* picture)
{
    const osg::ref_ptr<osg::Camera> camera = new osg::Camera;
    camera->setName("interface, enlarged");
    camera->setReferenceFrame(osg::Transform::ABSOLUTE_RF);
    camera->setViewMatrix(osg::Matrixd::identity());
    camera->setProjectionMatrixAsOrtho2D(0, 1, 0, 1);
    camera->setClearMask(0);
    camera->setRenderOrder(osg::Camera::POST_RENDER, 0);
    camera->setAllowEventFocus(false);
    camera->setComputeNearFarMode(osg::CullSettings::DO_NOT_COMPUTE_NEAR_FAR);
    camera->addChild(osg::createTexturedQuadGeometry(osg::Vec3(), osg::Vec3(1, 0, 0), osg::Vec3(0, 1, 0)));
    osg::StateSet& state = *camera->getOrCreateStateSet();
    for (const GLenum mode : {GL_LIGHTING, GL_DEPTH_TEST, GL_FOG, GL_CULL_FACE})
    {
        state.setMode(mode, osg::StateAttribute::OFF);
    }
    // What was blended into the empty picture carries its alpha already.
    state.setAttributeAndModes(new osg::BlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA));
    state.setTextureAttributeAndModes(0, picture);
    return camera;
}

osg::ref_ptr<osg::Texture2D> MakePicture(CSize size)
{
    const osg::ref_ptr<osg::Texture2D> picture = new osg::Texture2D;
    picture->setTextureSize(size.cx, size.cy);
    picture->setInternalFormat(GL_RGBA8);
    picture->setResizeNonPowerOfTwoHint(false);
    picture->setFilter(osg::Texture::MIN_FILTER, osg::Texture::NEAREST);
    picture->setFilter(osg::Texture::MAG_FILTER, osg::Texture::NEAREST);
    picture->setWrap(osg::Texture::WRAP_S, osg::Texture::CLAMP_TO_EDGE);
    picture->setWrap(osg::Texture::WRAP_T, osg::Texture::CLAMP_TO_EDGE);
    return picture;
}

} // namespace

class InterfaceScale::Events : public osg::NodeCallback
{
public:
    explicit Events(InterfaceScale& scale) : scale_(scale) {}

    void operator()(osg::Node* node, osg::NodeVisitor* visitor) override
    {
        auto* const events = dynamic_cast<osgGA::EventVisitor*>(visitor);
        osgGA::GUIActionAdapter* const viewer = events ? events->getActionAdapter() : nullptr;
        if (!viewer)
        {
            traverse(node, visitor);
            return;
        }
        const osgGA::EventQueue::Events outer = events->getEvents();
        for (const auto& event : outer)
        {
            const Event* const adapter = event->asGUIEventAdapter();
            if (adapter && adapter->getEventType() == Event::RESIZE)
            {
                scale_.Fit(CSize(adapter->getWindowWidth(), adapter->getWindowHeight()));
            }
        }
        if (scale_.Get() == 1)
        {
            traverse(node, visitor);
            return;
        }
        osgGA::EventQueue::Events inner;
        for (const auto& event : outer)
        {
            const Event* const adapter = event->asGUIEventAdapter();
            inner.push_back(event);
            if (adapter)
            {
                inner.back() = InInnerPixels(*adapter, scale_.Get());
            }
        }
        WithoutViewer adapter(*viewer);
        events->setEvents(inner);
        events->setActionAdapter(&adapter);
        traverse(node, visitor);
        events->setActionAdapter(viewer);
        events->setEvents(outer);
        auto original = outer.begin();
        for (const auto& event : inner)
        {
            // What the interface has used up is so for whatever comes behind it.
            (*original)->setHandled((*original)->getHandled() || event->getHandled());
            ++original;
        }
    }

private:
    InterfaceScale& scale_;
};

InterfaceScale::InterfaceScale(osg::Group& root, osg::Group& slot) : root_(root), slot_(slot)
{
    slot_.setEventCallback(new Events(*this));
}

InterfaceScale::~InterfaceScale()
{
    slot_.setEventCallback(nullptr);
    root_.removeChild(overlay_);
}

CPoint InterfaceScale::Inner(CPoint point) const
{
    return CPoint(Divided(point.x, scale_), Divided(point.y, scale_));
}

void InterfaceScale::Fit(CSize view)
{
    auto* const camera = slot_.getNumChildren() > 0 ? dynamic_cast<osg::Camera*>(slot_.getChild(0)) : nullptr;
    const CSize inner = Inner(view);
    if (!camera || inner.cx <= 0 || inner.cy <= 0)
    {
        return;
    }
    root_.removeChild(overlay_);
    overlay_ = nullptr;
    camera->detach(osg::Camera::COLOR_BUFFER);
    camera->setRenderingCache(nullptr);
    if (scale_ == 1)
    {
        camera->setViewport(nullptr);
        camera->setRenderTargetImplementation(osg::Camera::FRAME_BUFFER);
        camera->setRenderOrder(osg::Camera::POST_RENDER, 0);
        camera->setClearMask(GL_DEPTH_BUFFER_BIT);
        picture_ = nullptr;
        return;
    }
    picture_ = MakePicture(inner);
    camera->setViewport(0, 0, inner.cx, inner.cy);
    camera->setRenderTargetImplementation(osg::Camera::FRAME_BUFFER_OBJECT);
    camera->setRenderOrder(osg::Camera::PRE_RENDER, 0);
    camera->setClearMask(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    camera->setClearColor(osg::Vec4(0, 0, 0, 0));
    camera->attach(osg::Camera::COLOR_BUFFER, picture_);
    overlay_ = MakeOverlay(picture_);
    root_.addChild(overlay_);
}

} // namespace host
