// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <osg/Camera>
#include <osg/Geometry>
#include <osg/ref_ptr>

namespace host
{

/// The start page of a publication in the middle of an otherwise dark view, over everything, until the user has seen it.
class StartScreen
{
public:
    /// @param scene gets the camera that draws it, and loses it with this
    /// @throws std::runtime_error when the picture cannot be read
    StartScreen(osg::Group& scene, const CString& picture);
    ~StartScreen();
    StartScreen(const StartScreen&) = delete;
    StartScreen& operator=(const StartScreen&) = delete;

    /// @param seconds since the last call
    /// @param view size in pixels
    /// @return whether it now looks different
    bool Advance(double seconds, CSize view);
    /// The user goes on.
    void End() { over_ = true; }
    bool IsOver() const { return over_; }

private:
    void Place(CSize view);

    osg::ref_ptr<osg::Group> scene_;
    osg::ref_ptr<osg::Camera> camera_;
    osg::ref_ptr<osg::Geometry> ground_;
    osg::ref_ptr<osg::Geometry> page_;
    osg::ref_ptr<osg::Geometry> hint_;
    CSize pageSize_;
    CSize hintSize_;
    CSize view_;
    double age_ = 0.0;
    bool over_ = false;
};

} // namespace host
