// SPDX-License-Identifier: MIT
#pragma once

#include "Mesh.h"

#include <osg/Geometry>
#include <osg/Group>

namespace city
{

struct SkyColours
{
    Colour zenith;
    Colour horizon;   ///< the haze has this colour too
    Colour glow;      ///< added around the sun
    float glowWidth;  ///< in (0, 1]: how far round the sun it reaches
    osg::Vec3d toSun; ///< of length 1
    float stars;      ///< 0: none, 1: bright
};

/// A dome of colour that follows the eye. It is drawn first, writes no depth, is never clipped by the view's depth
/// range and does not widen it.
class Sky : public osg::Group
{
public:
    Sky();
    void SetColours(const SkyColours& colours);

    void traverse(osg::NodeVisitor& visitor) override;
    osg::BoundingSphere computeBound() const override { return {}; }

private:
    osg::ref_ptr<osg::Geometry> m_dome;
    osg::ref_ptr<osg::Geometry> m_stars;
};

} // namespace city
