// SPDX-License-Identifier: MIT
#pragma once

#include "Site.h"

#include <osg/Image>
#include <vector>

namespace city
{

struct Daylight
{
    osg::Vec3d toSun; ///< of length 1; z > 0
    Colour ambient;   ///< what reaches open ground in the shade
    Colour sun;       ///< what the sun adds
    Colour lamps;     ///< what street lamps add next to them
};

/// The light on the ground as a picture seen from above: shadows, the shade between buildings, pools of lamp light.
class LightMap
{
public:
    /// Metres along one side of the square that the picture shows; its middle is the origin.
    static constexpr double kSize = 2800.0;

    LightMap(const std::vector<Caster>& casters, const std::vector<Tree>& trees, std::vector<Lamp> lamps);
    /// Paints the picture anew; about a tenth of a second.
    osg::ref_ptr<osg::Image> Paint(const Daylight& light) const;

private:
    std::vector<Caster> m_casters;
    std::vector<Lamp> m_lamps;
    std::vector<float> m_openness; ///< a coarse raster of how much sky the ground sees, in [0, 1]
};

} // namespace city
