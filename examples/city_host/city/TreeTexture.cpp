// SPDX-License-Identifier: MIT
#include "TreeTexture.h"

#include "Canvas.h"
#include "Random.h"

#include <osg/Math>

#include <algorithm>
#include <cmath>

namespace city
{
namespace
{

constexpr int kHalf = 128; ///< pixels of one half, across and up
constexpr int kLeaves = 260;
const Colour kTrunk(.48f, .42f, .36f);

struct Picture
{
    Canvas colours{2 * kHalf, kHalf, Colour(.80f, .82f, .78f)};
    std::vector<unsigned char> alpha = std::vector<unsigned char>(2 * kHalf * kHalf, 0);

    void Dot(double cx, double cy, double radius, const Colour& colour)
    {
        for (int y = static_cast<int>(cy - radius); y <= cy + radius; ++y)
            for (int x = static_cast<int>(cx - radius); x <= cx + radius; ++x)
                if ((x - cx) * (x - cx) + (y - cy) * (y - cy) <= radius * radius && x >= 0 && y >= 0 && x < 2 * kHalf &&
                    y < kHalf)
                {
                    colours.At(x, y) = colour;
                    alpha[static_cast<std::size_t>(y) * 2 * kHalf + x] = 255;
                }
    }
};

/// Tufts of leaves fill an ellipse, the later and lighter ones higher up, where `lit` says so.
void AddCrown(Picture& picture, Random& random, double cx, double cy, double rx, double ry, bool fromSide)
{
    for (int i = 0; i < kLeaves; ++i)
    {
        const double angle = random.Range(0.0, 2.0 * osg::PI);
        const double out = std::sqrt(random.Unit()) * (1.0 - 0.35 * i / kLeaves);
        const double x = cx + std::cos(angle) * rx * out;
        const double y = cy + std::sin(angle) * ry * out + (fromSide ? 4.0 * i / kLeaves : 0.0);
        const double height = fromSide ? (y - cy) / ry * 0.5 + 0.5 : 1.0 - 0.6 * out;
        const float light = static_cast<float>(0.70 + 0.30 * height + random.Range(-0.07, 0.07));
        picture.Dot(x, y, random.Range(4.0, 8.0), Colour(.98f, 1.0f, .93f) * light);
    }
}

} // namespace

osg::ref_ptr<osg::Image> PaintTree()
{
    Random random(900);
    Picture picture;
    for (int y = 0; y < 50; ++y)
        for (int x = -3; x <= 3; ++x)
            picture.Dot(kHalf * 0.5 + x, y, 1.0, kTrunk);
    AddCrown(picture, random, kHalf / 2.0, kHalf * 0.57, kHalf * 0.42, kHalf * 0.36, true);
    AddCrown(picture, random, kHalf * 1.5, kHalf * 0.5, kHalf * 0.42, kHalf * 0.42, false);
    osg::ref_ptr<osg::Image> image = new osg::Image;
    image->allocateImage(2 * kHalf, kHalf, 1, GL_RGBA, GL_UNSIGNED_BYTE);
    unsigned char* out = image->data();
    for (int y = 0; y < kHalf; ++y)
        for (int x = 0; x < 2 * kHalf; ++x)
        {
            const Colour& colour = picture.colours.At(x, y);
            for (int channel = 0; channel < 3; ++channel)
                *out++ = ByteOf(colour[channel]);
            *out++ = picture.alpha[static_cast<std::size_t>(y) * 2 * kHalf + x];
        }
    return image;
}

} // namespace city
