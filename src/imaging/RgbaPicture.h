// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

/// Pixels in rows from the top, four bytes each: red, green, blue, alpha (not premultiplied).
struct RgbaPicture
{
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> pixels;
};
