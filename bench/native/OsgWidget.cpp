// SPDX-License-Identifier: MIT
#include "Contestant.h"

#include <osg/BlendFunc>
#include <osg/Depth>
#include <osgViewer/View>
#include <osgWidget/Canvas>
#include <osgWidget/WindowManager>

#include <algorithm>
#include <string>

namespace bench
{
namespace
{
/// Rows from the bottom, as OSG's textures have them.
osg::ref_ptr<osg::Image> ImageOf(const Picture& picture)
{
    osg::ref_ptr<osg::Image> image = new osg::Image;
    image->allocateImage(picture.width, picture.height, 1, GL_RGBA, GL_UNSIGNED_BYTE);
    const std::size_t row = static_cast<std::size_t>(picture.width) * 4;
    for (int y = 0; y < picture.height; ++y)
    {
        const std::uint8_t* from = picture.rgba.data() + row * static_cast<std::size_t>(y);
        std::copy(from, from + row, image->data(0, picture.height - 1 - y));
    }
    return image;
}

osg::ref_ptr<osg::Texture2D> TextureOf(const Picture& picture)
{
    osg::ref_ptr<osg::Texture2D> texture = new osg::Texture2D(ImageOf(picture));
    texture->setResizeNonPowerOfTwoHint(false);
    texture->setFilter(osg::Texture::MIN_FILTER, osg::Texture::LINEAR);
    texture->setFilter(osg::Texture::MAG_FILTER, osg::Texture::LINEAR);
    texture->setWrap(osg::Texture::WRAP_S, osg::Texture::CLAMP_TO_EDGE);
    texture->setWrap(osg::Texture::WRAP_T, osg::Texture::CLAMP_TO_EDGE);
    return texture;
}
} // namespace

osg::Camera* MakeOsgWidget(const DrawList& list, osgViewer::View& view)
{
    auto* manager =
        new osgWidget::WindowManager(&view, static_cast<float>(list.width), static_cast<float>(list.height), 0xF0000000);
    std::vector<osg::ref_ptr<osg::Texture2D>> textures;
    for (const Picture& picture : list.pictures)
    {
        textures.push_back(TextureOf(picture));
    }
    osg::ref_ptr<osgWidget::Canvas> canvas = new osgWidget::Canvas("bench");
    for (std::size_t i = 0; i < list.quads.size(); ++i)
    {
        const Quad& quad = list.quads[i];
        auto* widget = new osgWidget::Widget("picture" + std::to_string(i), quad.right - quad.left, quad.bottom - quad.top);
        widget->setTexture(textures[static_cast<std::size_t>(quad.picture)], false, false);
        widget->setTexCoord(quad.u0, 1 - quad.v1, osgWidget::Widget::LOWER_LEFT);
        widget->setTexCoord(quad.u1, 1 - quad.v1, osgWidget::Widget::LOWER_RIGHT);
        widget->setTexCoord(quad.u1, 1 - quad.v0, osgWidget::Widget::UPPER_RIGHT);
        widget->setTexCoord(quad.u0, 1 - quad.v0, osgWidget::Widget::UPPER_LEFT);
        widget->setColor(1, 1, 1, 1);
        canvas->addWidget(widget, quad.left, static_cast<float>(list.height) - quad.bottom);
    }
    // The canvas' own background would be one rectangle more than the interface has.
    canvas->getBackground()->setNodeMask(0);
    manager->addChild(canvas);
    manager->resizeAllWindows();
    osg::StateSet& state = *manager->getOrCreateStateSet();
    // Blended pictures have to be drawn in their order, which state sorting would change.
    state.setRenderBinDetails(0, "TraversalOrderBin", osg::StateSet::OVERRIDE_RENDERBIN_DETAILS);
    state.setMode(GL_BLEND, osg::StateAttribute::ON | osg::StateAttribute::OVERRIDE);
    state.setAttributeAndModes(new osg::BlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA));
    state.setMode(GL_DEPTH_TEST, osg::StateAttribute::OFF | osg::StateAttribute::OVERRIDE);
    state.setMode(GL_LIGHTING, osg::StateAttribute::OFF | osg::StateAttribute::OVERRIDE);
    state.setMode(GL_CULL_FACE, osg::StateAttribute::OFF | osg::StateAttribute::OVERRIDE);
    osg::Camera* camera = manager->createParentOrthoCamera();
    camera->setClearMask(0);
    return camera;
}
} // namespace bench
