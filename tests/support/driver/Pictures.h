// SPDX-License-Identifier: MIT
// Pictures as the driver takes them: RGB, 8 bits a component, the bottom row first.
#pragma once

#include <afxwin.h>

#include <osg/Image>
#include <osg/ref_ptr>

#include <string>

namespace driver
{

osg::ref_ptr<osg::Image> NewPicture(int width, int height);

/// @param place pixels from the top left; what lies outside the picture is left out
osg::ref_ptr<osg::Image> Part(const osg::Image& picture, const RECT& place);

/// Each pixel the mean of FACTOR x FACTOR; what is left over at the right and at the top is left out.
osg::ref_ptr<osg::Image> Reduced(const osg::Image& picture, int factor);

/// A picture as the bytes of a file.
/// @param format "png" or "jpg"
/// @throws std::runtime_error when that cannot be done
std::string Encoded(const osg::Image& picture, const char* format);
/// @throws std::runtime_error when the bytes are no such picture
osg::ref_ptr<osg::Image> Decoded(const std::string& bytes, const char* format);

/// By the name's extension, "png" or "jpg".
/// @throws std::runtime_error when the file cannot be written, or read
void WritePictureFile(const CString& path, const osg::Image& picture);
osg::ref_ptr<osg::Image> LoadPictureFile(const CString& path);

} // namespace driver
