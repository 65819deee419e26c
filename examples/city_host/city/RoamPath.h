// SPDX-License-Identifier: MIT
#pragma once

#include <osg/Matrixd>
#include <osg/Vec3d>
#include <vector>

namespace city
{

/// A closed flight round the city, smooth, clear of all buildings. Metres.
class RoamPath
{
public:
    RoamPath();

    /// `t` in turns: 0 and 1 are the same place; any other value is taken modulo 1. Even speed.
    osg::Vec3d Position(double t) const;
    /// Looking ahead along the path, turned a little inwards and downwards.
    osg::Matrixd ViewMatrix(double t) const;
    double Length() const { return m_lengths.back(); }

private:
    std::vector<osg::Vec3d> m_points; ///< close together along the curve; the last is the first again
    std::vector<double> m_lengths;    ///< from the start to each point
};

} // namespace city
