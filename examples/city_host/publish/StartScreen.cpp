// SPDX-License-Identifier: MIT
#include "StartScreen.h"

#include "../host/Language.h"
#include "../host/OverlayCamera.h"
#include "../toast/Text.h"
#include "PictureFile.h"

#include <osg/Texture2D>

namespace host
{
namespace
{

constexpr double PageSeconds = 4.0;
constexpr int OverNotes = 2; ///< in the order of what is drawn over the scene
constexpr int HintPixels = 14;
constexpr int HintBelow = 28; ///< pixels between page and hint
/// A view of this many pictures' width shows the page at twice its size.
constexpr int RoomyWidth = 5;
const osg::Vec4 GroundColor(0.055f, 0.071f, 0.098f, 1.0f);
const unsigned char HintColor[] = {0xA9, 0xB1, 0xC6};

osg::ref_ptr<osg::Image> DrawHint()
{
    const TextMask mask =
        DrawTextMask(Say({L"单击或按任意键进入", L"Click or press a key to go on"}), Translation("LKEY11"), HintPixels);
    osg::ref_ptr<osg::Image> image = new osg::Image;
    image->allocateImage(mask.width, mask.height, 1, GL_RGBA, GL_UNSIGNED_BYTE);
    for (int y = 0; y < mask.height; ++y)
    {
        unsigned char* target = image->data(0, mask.height - 1 - y);
        for (int x = 0; x < mask.width; ++x)
        {
            target[x * 4] = HintColor[0];
            target[x * 4 + 1] = HintColor[1];
            target[x * 4 + 2] = HintColor[2];
            target[x * 4 + 3] = mask.coverage[static_cast<std::size_t>(y) * mask.width + x];
        }
    }
    return image;
}

osg::ref_ptr<osg::Geometry> MakeQuad(osg::Image* picture)
{
    const osg::ref_ptr<osg::Geometry> quad = osg::createTexturedQuadGeometry(osg::Vec3(), osg::Vec3(1, 0, 0), osg::Vec3(0, 1, 0));
    quad->setDataVariance(osg::Object::DYNAMIC);
    quad->setUseDisplayList(false);
    if (picture)
    {
        const osg::ref_ptr<osg::Texture2D> texture = new osg::Texture2D(picture);
        texture->setResizeNonPowerOfTwoHint(false);
        texture->setFilter(osg::Texture::MIN_FILTER, osg::Texture::LINEAR);
        texture->setFilter(osg::Texture::MAG_FILTER, osg::Texture::LINEAR);
        quad->getOrCreateStateSet()->setTextureAttributeAndModes(0, texture);
    }
    return quad;
}

/// From the bottom left of the view.
void PlaceQuad(osg::Geometry& quad, int left, int bottom, CSize size)
{
    const auto x = static_cast<float>(left);
    const auto y = static_cast<float>(bottom);
    const auto width = static_cast<float>(size.cx);
    const auto height = static_cast<float>(size.cy);
    auto& corners = static_cast<osg::Vec3Array&>(*quad.getVertexArray());
    corners[0].set(x, y + height, 0.0f);
    corners[1].set(x, y, 0.0f);
    corners[2].set(x + width, y, 0.0f);
    corners[3].set(x + width, y + height, 0.0f);
    corners.dirty();
    quad.dirtyBound();
}

} // namespace

StartScreen::StartScreen(osg::Group& scene, const CString& picture)
    : scene_(&scene), camera_(NewOverlayCamera("start page", OverNotes))
{
    const osg::ref_ptr<osg::Image> page = ReadPictureFile(picture);
    const osg::ref_ptr<osg::Image> hint = DrawHint();
    pageSize_ = CSize(page->s(), page->t());
    hintSize_ = CSize(hint->s(), hint->t());
    ground_ = MakeQuad(nullptr);
    const osg::ref_ptr<osg::Vec4Array> color = new osg::Vec4Array(osg::Array::BIND_OVERALL, 1);
    color->front() = GroundColor;
    ground_->setColorArray(color);
    page_ = MakeQuad(page);
    hint_ = MakeQuad(hint);
    // In this order one over the other.
    camera_->addChild(ground_);
    camera_->addChild(page_);
    camera_->addChild(hint_);
    scene.addChild(camera_);
}

StartScreen::~StartScreen()
{
    scene_->removeChild(camera_);
}

bool StartScreen::Advance(double seconds, CSize view)
{
    age_ += seconds;
    over_ = over_ || age_ >= PageSeconds;
    const bool changed = view != view_;
    if (changed)
    {
        Place(view);
    }
    return changed;
}

void StartScreen::Place(CSize view)
{
    view_ = view;
    camera_->setProjectionMatrixAsOrtho2D(0, view.cx, 0, view.cy);
    const int scale = view.cx >= RoomyWidth * pageSize_.cx ? 2 : 1;
    const CSize page(pageSize_.cx * scale, pageSize_.cy * scale);
    const int bottom = (view.cy - page.cy) / 2;
    PlaceQuad(*ground_, 0, 0, view);
    PlaceQuad(*page_, (view.cx - page.cx) / 2, bottom, page);
    PlaceQuad(*hint_, (view.cx - hintSize_.cx) / 2, bottom - HintBelow - hintSize_.cy, hintSize_);
}

} // namespace host
