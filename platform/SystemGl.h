// SPDX-License-Identifier: MIT
#pragma once

/// The calls of OpenGL that the library makes itself; all others are CEGUI's and OpenSceneGraph's. A context has to be current.
/// They are OpenGL's own, with what never varies here left out.
namespace SystemGl
{
/// A corner of a triangle, as `glTexCoordPointer`, `glColorPointer` and `glVertexPointer` are told of it.
struct Vertex
{
    float texture[2]; ///< 0 to 1 over the picture
    float color[4];   ///< red, green, blue, alpha: 0 to 1
    float position[3];
};

/// Positions are the projection's from now on.
void ResetModelMatrix();
/// All draws from now on take these.
void UseVertices(const Vertex* vertices);
void DrawTriangles(int first, int count);
void BindTexture(unsigned int texture);
void EnableScissor(bool enable);
/// In pixels, from the lower left corner of the context's drawable.
void Scissor(int x, int y, int width, int height);
} // namespace SystemGl
