// SPDX-License-Identifier: MIT
#pragma once

#include "Compare.h"

namespace driver
{

/// What a picture is kept as.
struct ReferenceForm
{
    int factor;         ///< one pixel of the file for so many by so many of the picture
    const char* format; ///< "png" or "jpg"
};

/// Every pixel, for small pictures.
constexpr ReferenceForm WholePictures = {1, "png"};
/// A tenth of the room; compared with what becomes of the other picture in the same way, so that what this loses counts on
/// both sides.
constexpr ReferenceForm HalfSizeJpeg = {2, "jpg"};

struct Verdict
{
    bool same;
    std::string text; ///< how far apart, or why there is nothing to compare with
};

/// A folder of pictures that were found to be right, each a file named after it.
class References
{
public:
    /// @param tolerance in pixels of the files
    References(const CString& folder, ReferenceForm form, Tolerance tolerance);

    /// When they differ by more than the tolerance, NAME-actual.png, NAME-expected.png and NAME-difference.png are written.
    /// @param reports the folder that they are written to
    /// @throws std::runtime_error when they cannot be written
    Verdict Check(const CString& name, const osg::Image& actual, const CString& reports) const;

    /// Takes a picture for right.
    /// @throws std::runtime_error when it cannot be written
    void Remake(const CString& name, const osg::Image& picture) const;

private:
    CString File(const CString& name) const;

    CString folder_;
    ReferenceForm form_;
    Tolerance tolerance_;
};

} // namespace driver
