// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <osg/Camera>
#include <osg/Geometry>
#include <osg/ref_ptr>

#include <vector>

namespace host
{

/// Short notes at the lower right of the view, over the interface: what the host has received and done. Each stays for three
/// seconds and fades.
class Toasts
{
public:
    /// @param scene gets the camera that draws the notes, as its last child
    explicit Toasts(osg::Group& scene);

    /// The same note as the newest one counts up there instead of taking a place of its own.
    void Show(const CString& badge, const CString& title, const CString& detail);

    /// @param seconds since the last call
    /// @param view size in pixels
    /// @return whether the notes now look different
    bool Advance(double seconds, CSize view);
    /// Whether a note is coming or going; one that just stands changes nothing.
    bool IsChanging() const;
    bool IsEmpty() const { return notes_.empty(); }

private:
    struct Note
    {
        CString badge;
        CString title;
        CString detail;
        int count = 1;
        double age = 0.0;
        double shownAlpha = -1.0;
        osg::ref_ptr<osg::Geometry> card;
        CSize size;
    };

    void MakeCard(Note& note);
    void Place();

    osg::ref_ptr<osg::Camera> camera_;
    std::vector<Note> notes_; ///< the oldest first
    CSize view_;
    bool placed_ = true;
};

} // namespace host
