// SPDX-License-Identifier: MIT
#include "PictureFile.h"

#include "../host/PictureOf.h"

#include <KernelCommonUse/StringConvert.h>

#include <imaging/ImageDecoder.h>

#include <stdexcept>

namespace host
{
namespace
{

/// Drawn over to a format whose bytes are known.
bool ReadTopDown(const CString& path, CImage& picture)
{
    CImage file;
    if (!IsSafeImageFile(path) || FAILED(file.Load(path)) || !picture.Create(file.GetWidth(), -file.GetHeight(), 32))
    {
        return false;
    }
    const HDC from = file.GetDC();
    const HDC to = picture.GetDC();
    const BOOL drawn = BitBlt(to, 0, 0, picture.GetWidth(), picture.GetHeight(), from, 0, 0, SRCCOPY);
    GdiFlush();
    picture.ReleaseDC();
    file.ReleaseDC();
    return drawn != FALSE;
}

} // namespace

osg::ref_ptr<osg::Image> ReadPictureFile(const CString& path)
{
    CImage picture;
    if (!ReadTopDown(path, picture))
    {
        throw std::runtime_error("the picture cannot be read: " + CString2string(path));
    }
    return PictureOf(picture);
}

} // namespace host
