// SPDX-License-Identifier: MIT
#include "PictureCompare.h"

#include <KernelCommonUse/StringConvert.h>

#include <atlimage.h>

#include <algorithm>
#include <cstdlib>

namespace
{
Pixel At(const PictureFile& picture, int x, int y)
{
    const std::uint32_t argb = picture.Argb(x, y);
    return {static_cast<int>(argb >> 16 & 0xFF), static_cast<int>(argb >> 8 & 0xFF), static_cast<int>(argb & 0xFF)};
}

template <class ColorAt>
void WritePicture(int width, int height, const CString& path, ColorAt colorAt)
{
    CImage image;
    image.Create(width, -height, 24);
    for (int y = 0; y < height; ++y)
    {
        auto* row = static_cast<std::uint8_t*>(image.GetBits()) + std::ptrdiff_t(y) * image.GetPitch();
        for (int x = 0; x < width; ++x)
        {
            const Pixel color = colorAt(x, y);
            row[x * 3] = static_cast<std::uint8_t>(color.blue);
            row[x * 3 + 1] = static_cast<std::uint8_t>(color.green);
            row[x * 3 + 2] = static_cast<std::uint8_t>(color.red);
        }
    }
    EXPECT_TRUE(SUCCEEDED(image.Save(path))) << CString2string(path);
}

void WriteCopy(const PictureFile& picture, const CString& path)
{
    if (picture.width > 0)
    {
        WritePicture(picture.width, picture.height, path, [&](int x, int y) { return At(picture, x, y); });
    }
}
} // namespace

testing::AssertionResult LooksLikeReference(const CString& actual, const CString& reference, Tolerance tolerance,
                                            const CString& name)
{
    const PictureFile seen = ReadPictureFile(actual);
    const PictureFile expected = ReadPictureFile(reference);
    const bool sameSize = seen.width > 0 && seen.width == expected.width && seen.height == expected.height;
    int most = 0;
    double sum = 0.0;
    for (int y = 0; sameSize && y < seen.height; ++y)
    {
        for (int x = 0; x < seen.width; ++x)
        {
            const int distance = Distance(At(seen, x, y), At(expected, x, y));
            most = std::max(most, distance);
            sum += distance;
        }
    }
    const double mean = sameSize ? sum / (double(seen.width) * seen.height) : 0.0;
    if (sameSize && most <= tolerance.most && mean <= tolerance.mean)
    {
        return testing::AssertionSuccess() << "differs by " << most << " at most, " << mean << " in the mean";
    }
    WriteCopy(seen, name + L"-actual.png");
    WriteCopy(expected, name + L"-expected.png");
    if (sameSize)
    {
        WritePicture(seen.width, seen.height, name + L"-difference.png",
                     [&](int x, int y)
                     {
                         const Pixel a = At(seen, x, y);
                         const Pixel b = At(expected, x, y);
                         return Pixel{std::abs(a.red - b.red), std::abs(a.green - b.green), std::abs(a.blue - b.blue)};
                     });
    }
    return testing::AssertionFailure() << seen.width << " x " << seen.height << " for " << expected.width << " x "
                                       << expected.height << ", differs by " << most << " at most and " << mean
                                       << " in the mean; " << CString2string(name) << "-*.png show how";
}
