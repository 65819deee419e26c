// SPDX-License-Identifier: MIT
#pragma once

#include "native/Contestant.h"

#include <string>
#include <vector>

/// The rectangles that CEGUI draws at present, in its order, each cut to what can be seen of it, with the pixels of its
/// textures. The OpenGL context has to be current.
/// @throws std::runtime_error for a window that is not drawn as one picture over its whole place
bench::DrawList ReadDrawList(int width, int height);

/// The textures alone, each with the name that it was loaded by.
struct NamedPicture
{
    std::string file; ///< relative to the skin
    bench::Picture picture;
};
std::vector<NamedPicture> ReadTextures();
