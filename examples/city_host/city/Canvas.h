// SPDX-License-Identifier: MIT
#pragma once

#include "Mesh.h"
#include "Random.h"

#include <osg/Image>
#include <vector>

namespace city
{

/// A picture being painted; pixels from the bottom left, as OpenGL counts them.
class Canvas
{
public:
    Canvas(int width, int height, const Colour& fill);

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    /// Out of range wraps round, because every picture made here repeats.
    Colour& At(int x, int y);
    void Rectangle(int x0, int y0, int x1, int y1, const Colour& colour);
    /// From `bottom` to `top`.
    void Gradient(int x0, int y0, int x1, int y1, const Colour& bottom, const Colour& top);
    /// Brightens and darkens each pixel by at most `amount`.
    void Grain(Random& random, float amount);
    /// Brightens and darkens soft patches about `cells` to the width, repeating at the edges.
    void Clouds(Random& random, int cells, float amount);

    /// RGB bytes.
    osg::ref_ptr<osg::Image> Image() const;

private:
    int m_width;
    int m_height;
    std::vector<Colour> m_pixels;
};

/// Smooth noise in [0, 1] that repeats after the `cells` by `cells` lattice it was made of.
class Lattice
{
public:
    Lattice(Random& random, int cells);
    /// `u` and `v` in lattice cells.
    double At(double u, double v) const;

private:
    int m_cells;
    std::vector<double> m_values;
};

} // namespace city
