// SPDX-License-Identifier: MIT
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "Toasts.h"

#include "../host/Language.h"
#include "../host/OverlayCamera.h"
#include "ToastPicture.h"

#include <osg/Texture2D>

#include <algorithm>

namespace host
{
namespace
{

constexpr double ComeSeconds = 0.12;
constexpr double StaySeconds = 2.6;
constexpr double EndSeconds = 3.0;
constexpr std::size_t MostNotes = 4;
constexpr int OverInterface = 1; ///< in the order of what is drawn over the scene
// Of the cards, in view pixels; their shadows reach further.
constexpr int RightMargin = 20;
constexpr int BottomMargin = 22;
constexpr int Gap = 8;
/// The interface's property panel keeps the right edge while it is open.
constexpr int PropertyPanelWidth = 262;

double AlphaAt(double age)
{
    return std::clamp(std::min(age / ComeSeconds, (EndSeconds - age) / (EndSeconds - StaySeconds)), 0.0, 1.0);
}

} // namespace

Toasts::Toasts(osg::Group& scene) : camera_(NewOverlayCamera("notes", OverInterface))
{
    scene.addChild(camera_);
}

void Toasts::Show(const CString& badge, const CString& title, const CString& detail)
{
    if (!notes_.empty() && notes_.back().badge == badge && notes_.back().detail == detail)
    {
        Note& newest = notes_.back();
        ++newest.count;
        newest.age = std::min(newest.age, ComeSeconds);
        MakeCard(newest);
        return;
    }
    if (notes_.size() == MostNotes)
    {
        camera_->removeChild(notes_.front().card);
        notes_.erase(notes_.begin());
    }
    Note note;
    note.badge = badge;
    note.title = title;
    note.detail = detail;
    MakeCard(note);
    notes_.push_back(note);
}

void Toasts::MakeCard(Note& note)
{
    CString title = note.title;
    if (note.count > 1)
    {
        CString times;
        times.Format(L"  ×%d", note.count);
        title += times;
    }
    const osg::ref_ptr<osg::Image> picture = DrawToast(note.badge, title, note.detail, Translation("LKEY11"));
    const osg::ref_ptr<osg::Texture2D> texture = new osg::Texture2D(picture);
    texture->setResizeNonPowerOfTwoHint(false);
    texture->setFilter(osg::Texture::MIN_FILTER, osg::Texture::NEAREST);
    texture->setFilter(osg::Texture::MAG_FILTER, osg::Texture::NEAREST);
    camera_->removeChild(note.card);
    note.size = CSize(picture->s(), picture->t());
    note.card = osg::createTexturedQuadGeometry(osg::Vec3(), osg::Vec3(static_cast<float>(picture->s()), 0, 0),
                                                osg::Vec3(0, static_cast<float>(picture->t()), 0));
    note.card->setDataVariance(osg::Object::DYNAMIC);
    note.card->setUseDisplayList(false);
    note.card->getOrCreateStateSet()->setTextureAttributeAndModes(0, texture);
    note.shownAlpha = -1.0;
    camera_->addChild(note.card);
    placed_ = false;
}

bool Toasts::Advance(double seconds, CSize view)
{
    bool changed = !placed_ || (view != view_ && !notes_.empty());
    view_ = view;
    for (Note& note : notes_)
    {
        note.age += seconds;
        const double alpha = AlphaAt(note.age);
        if (alpha != note.shownAlpha)
        {
            note.shownAlpha = alpha;
            const osg::ref_ptr<osg::Vec4Array> color = new osg::Vec4Array(osg::Array::BIND_OVERALL, 1);
            color->front().set(1.0f, 1.0f, 1.0f, static_cast<float>(alpha));
            note.card->setColorArray(color);
            changed = true;
        }
    }
    while (!notes_.empty() && notes_.front().age >= EndSeconds)
    {
        camera_->removeChild(notes_.front().card);
        notes_.erase(notes_.begin());
        changed = true;
    }
    if (changed)
    {
        Place();
    }
    return changed;
}

bool Toasts::IsChanging() const
{
    return !placed_ ||
           std::any_of(notes_.begin(), notes_.end(),
                       [](const Note& note) { return AlphaAt(note.age) != note.shownAlpha || note.shownAlpha < 1.0; });
}

void Toasts::Place()
{
    placed_ = true;
    camera_->setProjectionMatrixAsOrtho2D(0, view_.cx, 0, view_.cy);
    const int panel = CeGuiMainFrame::GetInstance()->IsOpenPropertyDlg() ? PropertyPanelWidth : 0;
    int bottom = BottomMargin - ToastShadow;
    for (auto note = notes_.rbegin(); note != notes_.rend(); ++note)
    {
        const float left = static_cast<float>(view_.cx - panel - RightMargin + ToastShadow - note->size.cx);
        const float right = left + static_cast<float>(note->size.cx);
        const float low = static_cast<float>(bottom);
        const float high = low + static_cast<float>(note->size.cy);
        auto& corners = static_cast<osg::Vec3Array&>(*note->card->getVertexArray());
        // In the order of createTexturedQuadGeometry.
        corners[0].set(left, high, 0.0f);
        corners[1].set(left, low, 0.0f);
        corners[2].set(right, low, 0.0f);
        corners[3].set(right, high, 0.0f);
        corners.dirty();
        note->card->dirtyBound();
        bottom += note->size.cy - 2 * ToastShadow + Gap;
    }
}

} // namespace host
