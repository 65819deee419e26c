// SPDX-License-Identifier: MIT
// The system's OpenGL takes its arguments otherwise than the headers tell a Win32 source, so its functions are declared here
// under names of their own.
#include "../SystemGl.h"

extern "C"
{
    void native_glBindTexture(unsigned int target, unsigned int texture) __asm__("glBindTexture");
    void native_glColorPointer(int size, unsigned int type, int stride, const void* first) __asm__("glColorPointer");
    void native_glDisable(unsigned int capability) __asm__("glDisable");
    void native_glDrawArrays(unsigned int mode, int first, int count) __asm__("glDrawArrays");
    void native_glEnable(unsigned int capability) __asm__("glEnable");
    void native_glLoadIdentity() __asm__("glLoadIdentity");
    void native_glMatrixMode(unsigned int mode) __asm__("glMatrixMode");
    void native_glScissor(int x, int y, int width, int height) __asm__("glScissor");
    void native_glTexCoordPointer(int size, unsigned int type, int stride, const void* first) __asm__("glTexCoordPointer");
    void native_glVertexPointer(int size, unsigned int type, int stride, const void* first) __asm__("glVertexPointer");
}

namespace
{
constexpr unsigned int Triangles = 0x0004;
constexpr unsigned int ScissorTest = 0x0C11;
constexpr unsigned int Texture2D = 0x0DE1;
constexpr unsigned int Float = 0x1406;
constexpr unsigned int ModelView = 0x1700;
} // namespace

namespace SystemGl
{
void ResetModelMatrix()
{
    native_glMatrixMode(ModelView);
    native_glLoadIdentity();
}

void UseVertices(const Vertex* vertices)
{
    native_glTexCoordPointer(2, Float, sizeof(Vertex), vertices->texture);
    native_glColorPointer(4, Float, sizeof(Vertex), vertices->color);
    native_glVertexPointer(3, Float, sizeof(Vertex), vertices->position);
}

void DrawTriangles(int first, int count)
{
    native_glDrawArrays(Triangles, first, count);
}

void BindTexture(unsigned int texture)
{
    native_glBindTexture(Texture2D, texture);
}

void EnableScissor(bool enable)
{
    (enable ? native_glEnable : native_glDisable)(ScissorTest);
}

void Scissor(int x, int y, int width, int height)
{
    native_glScissor(x, y, width, height);
}
} // namespace SystemGl
