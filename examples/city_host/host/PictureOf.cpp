// SPDX-License-Identifier: MIT
#include "PictureOf.h"

namespace host
{

osg::ref_ptr<osg::Image> PictureOf(const CImage& picture)
{
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
