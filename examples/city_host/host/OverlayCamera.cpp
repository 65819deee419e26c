// SPDX-License-Identifier: MIT
#include "OverlayCamera.h"

#include <osg/BlendFunc>

namespace host
{

osg::ref_ptr<osg::Camera> NewOverlayCamera(const char* name, int order)
{
    const osg::ref_ptr<osg::Camera> camera = new osg::Camera;
    camera->setName(name);
    camera->setReferenceFrame(osg::Transform::ABSOLUTE_RF);
    camera->setViewMatrix(osg::Matrixd::identity());
    camera->setClearMask(0);
    camera->setRenderOrder(osg::Camera::POST_RENDER, order);
    camera->setAllowEventFocus(false);
    camera->setComputeNearFarMode(osg::CullSettings::DO_NOT_COMPUTE_NEAR_FAR);
    osg::StateSet& state = *camera->getOrCreateStateSet();
    state.setMode(GL_LIGHTING, osg::StateAttribute::OFF);
    state.setMode(GL_DEPTH_TEST, osg::StateAttribute::OFF);
    state.setMode(GL_FOG, osg::StateAttribute::OFF);
    state.setMode(GL_CULL_FACE, osg::StateAttribute::OFF);
    state.setAttributeAndModes(new osg::BlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA));
    return camera;
}

} // namespace host
