// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <osg/Image>
#include <osg/ref_ptr>

#include <string>

namespace driver
{

/// How far a picture may lie from another, of 255 a component.
struct Tolerance
{
    int cell;    ///< side of the squares that `most` goes by, in pixels; 1: single pixels
    double most; ///< in the mean of any such square
    double mean; ///< in the mean of the whole picture
};

/// How far two pictures lie apart. Of a pixel, it is its components' largest difference.
struct Difference
{
    CSize actual;
    CSize expected;
    double most = 0.0;
    double mean = 0.0;
    CPoint where; ///< the top left of the square with `most`, pixels from the picture's top left

    bool IsWithin(const Tolerance& tolerance) const;
    std::string Text() const;
};

/// @param cell side of the squares, in pixels
Difference Compare(const osg::Image& actual, const osg::Image& expected, int cell);

/// Black where two pictures of the same size are the same, and the brightest where they differ most.
osg::ref_ptr<osg::Image> DifferencePicture(const osg::Image& actual, const osg::Image& expected);

} // namespace driver
