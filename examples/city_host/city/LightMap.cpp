// SPDX-License-Identifier: MIT
#include "LightMap.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace city
{
namespace
{

constexpr int kPixels = 2048;
constexpr int kCoarse = 512;
constexpr int kMargin = 10; ///< pixels at the edge that stay open: the ground beyond repeats them
constexpr double kPixelsPerMetre = kPixels / LightMap::kSize;
constexpr double kLongestShadow = 700.0; ///< metres
constexpr float kDeepestShade = 0.42f;
constexpr double kCrownBottom = 0.3; ///< of a tree's height

using Raster = std::vector<std::uint8_t>;

void FillPolygon(Raster& raster, int size, double perMetre, const Polygon& shape, std::uint8_t value)
{
    double low = 1e9, high = -1e9;
    for (const osg::Vec2d& p : shape)
    {
        low = std::min(low, p.y());
        high = std::max(high, p.y());
    }
    const double middle = size * 0.5;
    const int from = std::max(0, static_cast<int>(std::ceil(low * perMetre + middle - 0.5)));
    const int to = std::min(size - 1, static_cast<int>(std::floor(high * perMetre + middle - 0.5)));
    for (int row = from; row <= to; ++row)
    {
        const double y = (row + 0.5 - middle) / perMetre;
        double left = 1e9, right = -1e9;
        for (std::size_t i = 0; i < shape.size(); ++i)
        {
            const osg::Vec2d& a = shape[i];
            const osg::Vec2d& b = shape[(i + 1) % shape.size()];
            if ((a.y() <= y) == (b.y() <= y))
                continue;
            const double x = a.x() + (b.x() - a.x()) * (y - a.y()) / (b.y() - a.y());
            left = std::min(left, x);
            right = std::max(right, x);
        }
        const int x0 = std::max(0, static_cast<int>(std::lround(left * perMetre + middle)));
        const int x1 = std::min(size, static_cast<int>(std::lround(right * perMetre + middle)));
        for (int x = x0; x < x1; ++x)
            raster[static_cast<std::size_t>(row) * size + x] = value;
    }
}

/// A running mean along rows (`step` 1) or columns (`step` the size).
template <class T>
void BlurLines(std::vector<T>& raster, int size, int radius, bool columns)
{
    std::vector<T> line(size);
    const std::size_t step = columns ? size : 1;
    for (int n = 0; n < size; ++n)
    {
        T* const first = raster.data() + static_cast<std::size_t>(n) * (columns ? 1 : size);
        float sum = 0.0f;
        const auto at = [&](int i) { return static_cast<float>(first[step * std::min(size - 1, std::max(0, i))]); };
        for (int i = -radius; i <= radius; ++i)
            sum += at(i);
        for (int i = 0; i < size; ++i)
        {
            line[i] = static_cast<T>(sum / (2 * radius + 1));
            sum += at(i + radius + 1) - at(i - radius);
        }
        for (int i = 0; i < size; ++i)
            first[step * i] = line[i];
    }
}

template <class T>
void Blur(std::vector<T>& raster, int size, int radius)
{
    BlurLines(raster, size, radius, false);
    BlurLines(raster, size, radius, true);
}

Raster PaintShadows(const std::vector<Caster>& casters, const osg::Vec3d& toSun)
{
    Raster shadow(static_cast<std::size_t>(kPixels) * kPixels, 0);
    const osg::Vec2d perHeight = osg::Vec2d(-toSun.x(), -toSun.y()) / std::max(0.05, toSun.z());
    for (const Caster& caster : casters)
    {
        const double limit = kLongestShadow / std::max(0.01, perHeight.length());
        if (caster.bottom > limit)
            continue;
        const Polygon base = Moved(caster.footprint, perHeight * caster.bottom);
        const Polygon tip = Moved(caster.footprint, perHeight * std::min(limit, caster.top));
        std::vector<osg::Vec2d> both(base);
        both.insert(both.end(), tip.begin(), tip.end());
        FillPolygon(shadow, kPixels, kPixelsPerMetre, ConvexHull(both), 255);
    }
    Blur(shadow, kPixels, 1);
    return shadow;
}

std::vector<Colour> PaintLamps(const std::vector<Lamp>& lamps, const Colour& colour)
{
    // At half the resolution: the pools are soft.
    constexpr int kSize = kPixels / 2;
    constexpr double kPerMetre = kPixelsPerMetre / 2;
    std::vector<Colour> pools;
    if (colour.length2() <= 0.0f)
        return pools;
    pools.resize(static_cast<std::size_t>(kSize) * kSize);
    for (const Lamp& lamp : lamps)
    {
        const double cx = lamp.place.x() * kPerMetre + kSize * 0.5, cy = lamp.place.y() * kPerMetre + kSize * 0.5;
        const double r = lamp.radius * kPerMetre;
        for (int y = std::max(0, static_cast<int>(cy - r)); y <= std::min(kSize - 1, static_cast<int>(cy + r)); ++y)
            for (int x = std::max(0, static_cast<int>(cx - r)); x <= std::min(kSize - 1, static_cast<int>(cx + r)); ++x)
            {
                const double d2 = ((x + 0.5 - cx) * (x + 0.5 - cx) + (y + 0.5 - cy) * (y + 0.5 - cy)) / (r * r);
                const float fall = static_cast<float>(std::max(0.0, 1.0 - d2));
                pools[static_cast<std::size_t>(y) * kSize + x] += colour * (fall * fall * lamp.bright);
            }
    }
    return pools;
}

} // namespace

LightMap::LightMap(const std::vector<Caster>& casters, const std::vector<Tree>& trees, std::vector<Lamp> lamps)
    : m_casters(casters), m_lamps(std::move(lamps))
{
    Raster built(static_cast<std::size_t>(kCoarse) * kCoarse, 0);
    for (const Caster& caster : casters)
        if (caster.top > 4.0 && caster.bottom < 1.0)
            FillPolygon(built, kCoarse, kCoarse / kSize, caster.footprint,
                        static_cast<std::uint8_t>(std::min(255.0, 120.0 + caster.top * 2.0)));
    Blur(built, kCoarse, 2);
    Blur(built, kCoarse, 3);
    m_openness.reserve(built.size());
    for (const std::uint8_t value : built)
        m_openness.push_back(1.0f - std::min(kDeepestShade, kDeepestShade * 1.25f * value / 255.0f));
    for (const Tree& tree : trees)
        m_casters.push_back({Ellipse(tree.place, tree.radius, tree.radius, 8), tree.height * kCrownBottom, tree.height * 0.85});
}

osg::ref_ptr<osg::Image> LightMap::Paint(const Daylight& light) const
{
    const Raster shadow = PaintShadows(m_casters, light.toSun);
    const std::vector<Colour> pools = PaintLamps(m_lamps, light.lamps);
    osg::ref_ptr<osg::Image> image = new osg::Image;
    image->allocateImage(kPixels, kPixels, 1, GL_RGB, GL_UNSIGNED_BYTE);
    const auto openness = [this](int x, int y)
    {
        const double u = std::max(0.0, (x + 0.5) * kCoarse / kPixels - 0.5),
                     v = std::max(0.0, (y + 0.5) * kCoarse / kPixels - 0.5);
        const int column = std::min(kCoarse - 2, static_cast<int>(u)), row = std::min(kCoarse - 2, static_cast<int>(v));
        const float s = static_cast<float>(u - column), t = static_cast<float>(v - row);
        const float* const at = m_openness.data() + static_cast<std::size_t>(row) * kCoarse + column;
        return (at[0] * (1 - s) + at[1] * s) * (1 - t) + (at[kCoarse] * (1 - s) + at[kCoarse + 1] * s) * t;
    };
    for (int y = 0; y < kPixels; ++y)
    {
        unsigned char* out = image->data(0, y);
        for (int x = 0; x < kPixels; ++x)
        {
            const bool edge = x < kMargin || y < kMargin || x >= kPixels - kMargin || y >= kPixels - kMargin;
            const float open = edge ? 1.0f : openness(x, y);
            const float lit = edge ? 1.0f : 1.0f - shadow[static_cast<std::size_t>(y) * kPixels + x] / 255.0f;
            Colour colour = light.ambient * open + light.sun * (lit * (0.5f + 0.5f * open));
            if (!pools.empty() && !edge)
                colour += pools[static_cast<std::size_t>(y / 2) * (kPixels / 2) + x / 2];
            for (int channel = 0; channel < 3; ++channel)
                *out++ = ByteOf(colour[channel]);
        }
    }
    return image;
}

} // namespace city
