// SPDX-License-Identifier: MIT
#include "Compare.h"

#include "Pictures.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace driver
{
namespace
{

int Distance(const unsigned char* a, const unsigned char* b)
{
    return std::max({std::abs(a[0] - b[0]), std::abs(a[1] - b[1]), std::abs(a[2] - b[2])});
}

} // namespace

bool Difference::IsWithin(const Tolerance& tolerance) const
{
    return actual == expected && most <= tolerance.most && mean <= tolerance.mean;
}

std::string Difference::Text() const
{
    char text[160];
    if (actual != expected)
    {
        std::snprintf(text, sizeof(text), "is %ld x %ld pixels instead of %ld x %ld", static_cast<long>(actual.cx),
                      static_cast<long>(actual.cy), static_cast<long>(expected.cx), static_cast<long>(expected.cy));
    }
    else
    {
        std::snprintf(text, sizeof(text), "differs by %.2f at %ld,%ld and by %.4f in the mean", most, static_cast<long>(where.x),
                      static_cast<long>(where.y), mean);
    }
    return text;
}

Difference Compare(const osg::Image& actual, const osg::Image& expected, int cell)
{
    Difference difference;
    difference.actual = CSize(actual.s(), actual.t());
    difference.expected = CSize(expected.s(), expected.t());
    if (difference.actual != difference.expected)
    {
        return difference;
    }
    const int width = actual.s();
    const int height = actual.t();
    double all = 0.0;
    for (int top = 0; top < height; top += cell)
    {
        for (int left = 0; left < width; left += cell)
        {
            const int right = std::min(left + cell, width);
            const int bottom = std::min(top + cell, height);
            int sum = 0;
            for (int y = top; y < bottom; ++y)
            {
                const unsigned char* a = actual.data(left, height - 1 - y);
                const unsigned char* b = expected.data(left, height - 1 - y);
                for (int x = left; x < right; ++x, a += 3, b += 3)
                {
                    sum += Distance(a, b);
                }
            }
            all += sum;
            // The squares at the edges may be smaller; a pixel there counts no more than elsewhere.
            const double here = double(sum) / (cell * cell);
            if (here > difference.most)
            {
                difference.most = here;
                difference.where = CPoint(left, top);
            }
        }
    }
    difference.mean = width * height > 0 ? all / (double(width) * height) : 0.0;
    return difference;
}

osg::ref_ptr<osg::Image> DifferencePicture(const osg::Image& actual, const osg::Image& expected)
{
    osg::ref_ptr<osg::Image> picture = NewPicture(actual.s(), actual.t());
    int most = 1;
    for (int y = 0; y < actual.t(); ++y)
    {
        for (int x = 0; x < actual.s(); ++x)
        {
            most = std::max(most, Distance(actual.data(x, y), expected.data(x, y)));
        }
    }
    for (int y = 0; y < actual.t(); ++y)
    {
        for (int x = 0; x < actual.s(); ++x)
        {
            for (int component = 0; component < 3; ++component)
            {
                const int apart = std::abs(actual.data(x, y)[component] - expected.data(x, y)[component]);
                picture->data(x, y)[component] = static_cast<unsigned char>(apart * 255 / most);
            }
        }
    }
    return picture;
}

} // namespace driver
