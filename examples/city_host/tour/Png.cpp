// SPDX-License-Identifier: MIT
#include "Png.h"

#include <KernelCommonUse/WholeFile.h>

#include <atlimage.h>

namespace host
{

bool WritePng(const CString& path, const osg::Image& picture)
{
    CImage image;
    if (!image.Create(picture.s(), -picture.t(), 24))
    {
        return false;
    }
    for (int y = 0; y < picture.t(); ++y)
    {
        auto* row = static_cast<unsigned char*>(image.GetBits()) + static_cast<std::ptrdiff_t>(y) * image.GetPitch();
        const unsigned char* source = picture.data(0, picture.t() - 1 - y);
        for (int x = 0; x < picture.s(); ++x)
        {
            row[x * 3] = source[x * 3 + 2];
            row[x * 3 + 1] = source[x * 3 + 1];
            row[x * 3 + 2] = source[x * 3];
        }
    }
    WholeFile file(path);
    return SUCCEEDED(image.Save(file.Unfinished())) && file.Commit();
}

} // namespace host
