// SPDX-License-Identifier: MIT
#pragma once

#include "Gui.h"

/// The few OpenGL calls that tests make themselves. Under Winelib the system's OpenGL takes its arguments in another way than
/// the headers say there, so these are declared apart from them.
namespace NativeGl
{
/// Whether a context is current on this thread.
bool HasContext();
void ClearScreen(Pixel color);
/// @param y from the bottom of the view
Pixel ReadPixel(int x, int y);
/// How many textures there are in the current context.
int LiveTextures();
/// The sampler object of the active texture unit, 0 for none.
int BoundSampler();
int ActiveTextureUnit();
int ActiveClientTextureUnit();
/// The buffers that vertices and indices are read from, 0 for the program's own memory.
int BoundVertexBuffer();
int BoundElementBuffer();
bool IsGenericArrayEnabled(unsigned int index);
/// Leaves the error "invalid enumerant" waiting.
void RaiseError();
/// Takes the error that waits; false when there is none.
bool TakeError();
} // namespace NativeGl
