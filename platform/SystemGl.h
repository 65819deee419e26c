// SPDX-License-Identifier: MIT
#pragma once

/// The calls of OpenGL that the library makes itself and that OpenSceneGraph's table of functions does not hold; all others are
/// CEGUI's and OpenSceneGraph's. A context has to be current. They are OpenGL's own, with what never varies here left out.
namespace SystemGl
{
/// A corner of a triangle, as `glTexCoordPointer`, `glColorPointer` and `glVertexPointer` are told of it.
struct Vertex
{
    float texture[2]; ///< 0 to 1 over the picture
    float color[4];   ///< red, green, blue, alpha: 0 to 1
    float position[3];
};

/// Leaves the stack (`GL_MODELVIEW`, `GL_PROJECTION`, `GL_TEXTURE`: the active unit's) as the one that matrix calls work on.
/// @param matrix 16 numbers, column by column
void LoadMatrix(unsigned int stack, const float* matrix);
void UseStack(unsigned int stack);
/// All draws from now on take these.
/// @param vertices of type `Vertex`; an offset while a buffer object is bound
void UseVertices(const void* vertices);
/// Enables the arrays that `UseVertices` sets, for texture coordinates those of the active client unit.
void EnableVertexArrays();
void DisableClientArray(unsigned int array);
void DrawTriangles(int first, int count);
void BindTexture(unsigned int texture);
void Enable(unsigned int capability, bool enable);
bool IsEnabled(unsigned int capability);
/// In pixels, from the lower left corner of the context's drawable.
void Scissor(int x, int y, int width, int height);
void Viewport(int x, int y, int width, int height);

/// A value, or the first ones of several.
void Get(unsigned int name, int* values);
void Get(unsigned int name, float* values);
int Get(unsigned int name);
/// Everything that `glPushAttrib` saves.
void PushState();
void PopState();
/// Everything that `glPushClientAttrib` saves.
void PushClientState();
void PopClientState();

/// Front and back.
void PolygonMode(unsigned int front, unsigned int back);
void ShadeModel(unsigned int model);
void ColorMask(bool red, bool green, bool blue, bool alpha);
/// The active unit's.
void TextureMode(int mode);
int TextureMode();

void PixelStore(unsigned int name, int value);
/// Nothing where OpenGL has no buffer objects.
void BindBuffer(unsigned int target, unsigned int buffer);
/// Nothing where OpenGL has no program pipelines.
void BindProgramPipeline(unsigned int pipeline);
} // namespace SystemGl
