// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <osg/Image>
#include <osg/ref_ptr>

namespace host
{

class User;

/// A publication that was started from its folder, as a user starts it, beside the program of the tour. It is closed at the end.
class PublishedProgram
{
public:
    /// @param user lets the tour's own program go on while it is waited for
    /// @throws std::runtime_error when it does not start
    PublishedProgram(User& user, const CString& folder);
    ~PublishedProgram();
    PublishedProgram(const PublishedProgram&) = delete;
    PublishedProgram& operator=(const PublishedProgram&) = delete;

    // What the screen shows of its window.
    /// @throws std::runtime_error when it does not come
    osg::ref_ptr<osg::Image> WaitForStartPage();
    osg::ref_ptr<osg::Image> WaitForScene();

private:
    HWND Window();
    osg::ref_ptr<osg::Image> WaitFor(bool startPage);

    User& user_;
};

} // namespace host
