// SPDX-License-Identifier: MIT
#include "PictureFile.h"

#include <KernelCommonUse/StringConvert.h>

#include <atlimage.h>

#include <stdexcept>

namespace host
{
namespace
{

/// Drawn over to a format whose bytes are known.
bool ReadTopDown(const CString& path, CImage& picture)
{
    CImage file;
    if (FAILED(file.Load(path)) || !picture.Create(file.GetWidth(), -file.GetHeight(), 32))
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
    osg::ref_ptr<osg::Image> image = new osg::Image;
    image->allocateImage(picture.GetWidth(), picture.GetHeight(), 1, GL_RGB, GL_UNSIGNED_BYTE);
    for (int y = 0; y < picture.GetHeight(); ++y)
    {
        const auto* row =
            static_cast<const unsigned char*>(picture.GetBits()) + static_cast<std::ptrdiff_t>(y) * picture.GetPitch();
        unsigned char* target = image->data(0, picture.GetHeight() - 1 - y);
        for (int x = 0; x < picture.GetWidth(); ++x)
        {
            target[x * 3] = row[x * 4 + 2];
            target[x * 3 + 1] = row[x * 4 + 1];
            target[x * 3 + 2] = row[x * 4];
        }
    }
    return image;
}

} // namespace host
