// SPDX-License-Identifier: MIT
#include "../SystemGl.h"

#include <windows.h>

#include <GL/gl.h>

namespace SystemGl
{
void ResetModelMatrix()
{
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
}

void UseVertices(const Vertex* vertices)
{
    glTexCoordPointer(2, GL_FLOAT, sizeof(Vertex), vertices->texture);
    glColorPointer(4, GL_FLOAT, sizeof(Vertex), vertices->color);
    glVertexPointer(3, GL_FLOAT, sizeof(Vertex), vertices->position);
}

void DrawTriangles(int first, int count)
{
    glDrawArrays(GL_TRIANGLES, first, count);
}

void BindTexture(unsigned int texture)
{
    glBindTexture(GL_TEXTURE_2D, texture);
}

void EnableScissor(bool enable)
{
    (enable ? glEnable : glDisable)(GL_SCISSOR_TEST);
}

void Scissor(int x, int y, int width, int height)
{
    glScissor(x, y, width, height);
}
} // namespace SystemGl
