// SPDX-License-Identifier: MIT
#pragma once

#include <array>

/// While the object lives, textures are loaded from memory as CEGUI hands them over: one row after the other. A scene's last
/// texture may have left a row length, an offset or a buffer object. A context has to be current.
class PixelUnpack
{
public:
    PixelUnpack();
    ~PixelUnpack();
    PixelUnpack(const PixelUnpack&) = delete;
    PixelUnpack& operator=(const PixelUnpack&) = delete;

private:
    static constexpr std::size_t Count = 8;
    std::array<int, Count> found_ = {};
    int buffer_ = 0;
};
