// SPDX-License-Identifier: MIT
#include "GroundTextures.h"

#include "Canvas.h"
#include "TreeTexture.h"

#include <cmath>

namespace city
{
namespace
{

constexpr int kGroundPicture = 256;
const Colour kNeutral(0.96f, 0.96f, 0.96f);

Canvas Mottled(Random& random, float amount, float grain)
{
    Canvas canvas(kGroundPicture, kGroundPicture, kNeutral);
    canvas.Clouds(random, 4, amount);
    canvas.Clouds(random, 16, amount * 0.7f);
    canvas.Clouds(random, 64, amount * 0.5f);
    canvas.Grain(random, grain);
    return canvas;
}

/// Joints every `step` pixels.
void Joints(Canvas& canvas, int step, float shade)
{
    for (int y = 0; y < canvas.Height(); ++y)
        for (int x = 0; x < canvas.Width(); ++x)
            if (x % step == 0 || y % step == 0)
                canvas.At(x, y) *= shade;
}

/// The width of the picture is the width of the road: edge lines, a dashed lane line each side, a double middle line.
Canvas PaintRoad(Random& random)
{
    Canvas canvas(kGroundPicture, kGroundPicture, Colour(0.93f, 0.93f, 0.94f));
    canvas.Clouds(random, 32, 0.03f);
    canvas.Grain(random, 0.03f);
    const Colour line(1.55f, 1.53f, 1.45f);
    const auto upright = [&](double place, int width, int from, int to)
    {
        const int x = static_cast<int>(place * kGroundPicture) - width / 2;
        canvas.Rectangle(x, from, x + width, to, line);
    };
    upright(0.035, 3, 0, kGroundPicture);
    upright(0.965, 3, 0, kGroundPicture);
    upright(0.49, 2, 0, kGroundPicture);
    upright(0.51, 2, 0, kGroundPicture);
    for (int dash = 0; dash < kGroundPicture; dash += 128)
    {
        upright(0.265, 3, dash, dash + 52);
        upright(0.735, 3, dash, dash + 52);
    }
    return canvas;
}

Canvas PaintZebra()
{
    Canvas canvas(kGroundPicture, kGroundPicture, Colour(0.92f, 0.92f, 0.93f));
    constexpr int kStripes = 12;
    for (int i = 0; i < kStripes; ++i)
        canvas.Rectangle(kGroundPicture * i / kStripes, 0, kGroundPicture * i / kStripes + kGroundPicture / (2 * kStripes),
                         kGroundPicture, Colour(1.5f, 1.5f, 1.45f));
    return canvas;
}

Canvas PaintTiles(Random& random)
{
    Canvas canvas(kGroundPicture, kGroundPicture, kNeutral);
    constexpr int kRow = 16;
    for (int y = 0; y < kGroundPicture; ++y)
        for (int x = 0; x < kGroundPicture; ++x)
        {
            const float ridge = 0.82f + 0.18f * static_cast<float>(std::fabs(std::sin(3.14159 * x / kRow)));
            canvas.At(x, y) *= ridge * (y % kRow < 2 ? 0.80f : 1.0f);
        }
    canvas.Clouds(random, 16, 0.08f);
    return canvas;
}

Canvas PaintWater(Random& random)
{
    Canvas canvas(kGroundPicture, kGroundPicture, kNeutral);
    const Lattice broad(random, 8);
    const Lattice fine(random, 32);
    for (int y = 0; y < kGroundPicture; ++y)
        for (int x = 0; x < kGroundPicture; ++x)
        {
            const double u = static_cast<double>(x) / kGroundPicture;
            const double v = static_cast<double>(y) / kGroundPicture;
            const double ripple = broad.At(u * 8, v * 8) * 0.6 + fine.At(u * 32, v * 32) * 0.4;
            canvas.At(x, y) *= 0.95f + 0.07f * static_cast<float>(ripple);
        }
    return canvas;
}

} // namespace

double PictureSize(Surface surface)
{
    switch (surface)
    {
    case Surface::Roof:
        return 18.0;
    case Surface::Tiles:
        return 6.0;
    case Surface::Pavement:
        return 8.0;
    case Surface::Road:
        return 24.0;
    case Surface::Base:
        return 30.0;
    case Surface::Land:
        return 620.0;
    case Surface::Inlay:
    case Surface::Lot:
        return 40.0;
    case Surface::Pond:
    case Surface::Water:
        return 110.0;
    default:
        return 10.0;
    }
}

osg::ref_ptr<osg::Image> PaintGround(Surface surface)
{
    Random random(300u + static_cast<unsigned>(surface));
    switch (surface)
    {
    case Surface::Roof:
    {
        Canvas canvas = Mottled(random, 0.03f, 0.01f);
        Joints(canvas, 64, 0.93f);
        return canvas.Image();
    }
    case Surface::Pavement:
    {
        Canvas canvas = Mottled(random, 0.03f, 0.015f);
        Joints(canvas, 16, 0.90f);
        return canvas.Image();
    }
    case Surface::Foliage:
        return PaintTree();
    case Surface::Inlay:
        return Mottled(random, 0.04f, 0.02f).Image();
    case Surface::Lot:
        return Mottled(random, 0.06f, 0.03f).Image();
    case Surface::Land:
        return Mottled(random, 0.06f, 0.02f).Image();
    case Surface::Base:
        return Mottled(random, 0.03f, 0.03f).Image();
    case Surface::Road:
        return PaintRoad(random).Image();
    case Surface::Zebra:
        return PaintZebra().Image();
    case Surface::Tiles:
        return PaintTiles(random).Image();
    case Surface::Pond:
    case Surface::Water:
        return PaintWater(random).Image();
    default:
        return nullptr;
    }
}

} // namespace city
