// SPDX-License-Identifier: MIT
#include "Canvas.h"

#include <algorithm>
#include <cmath>

namespace city
{

Canvas::Canvas(int width, int height, const Colour& fill)
    : m_width(width), m_height(height), m_pixels(static_cast<std::size_t>(width) * height, fill)
{
}

Colour& Canvas::At(int x, int y)
{
    const int wrappedX = ((x % m_width) + m_width) % m_width;
    const int wrappedY = ((y % m_height) + m_height) % m_height;
    return m_pixels[static_cast<std::size_t>(wrappedY) * m_width + wrappedX];
}

void Canvas::Rectangle(int x0, int y0, int x1, int y1, const Colour& colour)
{
    Gradient(x0, y0, x1, y1, colour, colour);
}

void Canvas::Gradient(int x0, int y0, int x1, int y1, const Colour& bottom, const Colour& top)
{
    for (int y = y0; y < y1; ++y)
    {
        const float t = y1 - y0 > 1 ? static_cast<float>(y - y0) / (y1 - y0 - 1) : 0.0f;
        const Colour colour = bottom * (1.0f - t) + top * t;
        for (int x = x0; x < x1; ++x)
            At(x, y) = colour;
    }
}

void Canvas::Grain(Random& random, float amount)
{
    for (Colour& pixel : m_pixels)
        pixel *= 1.0f + amount * static_cast<float>(random.Range(-1.0, 1.0));
}

void Canvas::Clouds(Random& random, int cells, float amount)
{
    const Lattice lattice(random, cells);
    for (int y = 0; y < m_height; ++y)
        for (int x = 0; x < m_width; ++x)
        {
            const double v = lattice.At(static_cast<double>(x) * cells / m_width, static_cast<double>(y) * cells / m_height);
            At(x, y) *= 1.0f + amount * static_cast<float>(2.0 * v - 1.0);
        }
}

osg::ref_ptr<osg::Image> Canvas::Image() const
{
    osg::ref_ptr<osg::Image> image = new osg::Image;
    image->allocateImage(m_width, m_height, 1, GL_RGB, GL_UNSIGNED_BYTE);
    unsigned char* out = image->data();
    for (const Colour& pixel : m_pixels)
        for (int channel = 0; channel < 3; ++channel)
            *out++ = ByteOf(pixel[channel]);
    return image;
}

Lattice::Lattice(Random& random, int cells) : m_cells(cells)
{
    for (int i = 0; i < cells * cells; ++i)
        m_values.push_back(random.Unit());
}

double Lattice::At(double u, double v) const
{
    const auto value = [this](int x, int y)
    {
        const int column = ((x % m_cells) + m_cells) % m_cells;
        const int row = ((y % m_cells) + m_cells) % m_cells;
        return m_values[static_cast<std::size_t>(row) * m_cells + column];
    };
    const int x = static_cast<int>(std::floor(u));
    const int y = static_cast<int>(std::floor(v));
    const auto smooth = [](double t) { return t * t * (3.0 - 2.0 * t); };
    const double s = smooth(u - x);
    const double t = smooth(v - y);
    const double low = value(x, y) * (1.0 - s) + value(x + 1, y) * s;
    const double high = value(x, y + 1) * (1.0 - s) + value(x + 1, y + 1) * s;
    return low * (1.0 - t) + high * t;
}

} // namespace city
