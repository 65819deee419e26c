// SPDX-License-Identifier: MIT
#pragma once

/// The calls of OpenGL that the library makes itself; all others are CEGUI's and OpenSceneGraph's. A context has to be current.
namespace SystemGl
{
/// How a texture is read between its pixels, from now on. It stays bound.
/// @param nearest the nearest pixel as it stands; else a mixture of its neighbours
void FilterTexture(unsigned int texture, bool nearest);
} // namespace SystemGl
