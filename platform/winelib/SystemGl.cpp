// SPDX-License-Identifier: MIT
// The system's OpenGL takes its arguments otherwise than the headers tell a Win32 source, so its functions are declared here
// under names of their own.
#include "../SystemGl.h"

#include <cstddef>

extern "C"
{
    void native_glBindBuffer(unsigned int target, unsigned int buffer) __asm__("glBindBuffer");
    void native_glBindProgramPipeline(unsigned int pipeline) __asm__("glBindProgramPipeline");
    void native_glBindTexture(unsigned int target, unsigned int texture) __asm__("glBindTexture");
    void native_glColorMask(unsigned char red, unsigned char green, unsigned char blue,
                            unsigned char alpha) __asm__("glColorMask");
    void native_glColorPointer(int size, unsigned int type, int stride, const void* first) __asm__("glColorPointer");
    void native_glDisable(unsigned int capability) __asm__("glDisable");
    void native_glDisableClientState(unsigned int array) __asm__("glDisableClientState");
    void native_glDrawArrays(unsigned int mode, int first, int count) __asm__("glDrawArrays");
    void native_glEnable(unsigned int capability) __asm__("glEnable");
    void native_glEnableClientState(unsigned int array) __asm__("glEnableClientState");
    void native_glGetFloatv(unsigned int name, float* values) __asm__("glGetFloatv");
    void native_glGetIntegerv(unsigned int name, int* values) __asm__("glGetIntegerv");
    void native_glGetTexEnviv(unsigned int target, unsigned int name, int* values) __asm__("glGetTexEnviv");
    unsigned char native_glIsEnabled(unsigned int capability) __asm__("glIsEnabled");
    void native_glLoadMatrixf(const float* matrix) __asm__("glLoadMatrixf");
    void native_glMatrixMode(unsigned int mode) __asm__("glMatrixMode");
    void native_glPixelStorei(unsigned int name, int value) __asm__("glPixelStorei");
    void native_glPolygonMode(unsigned int face, unsigned int mode) __asm__("glPolygonMode");
    void native_glPopAttrib() __asm__("glPopAttrib");
    void native_glPopClientAttrib() __asm__("glPopClientAttrib");
    void native_glPushAttrib(unsigned int mask) __asm__("glPushAttrib");
    void native_glPushClientAttrib(unsigned int mask) __asm__("glPushClientAttrib");
    void native_glScissor(int x, int y, int width, int height) __asm__("glScissor");
    void native_glShadeModel(unsigned int model) __asm__("glShadeModel");
    void native_glTexCoordPointer(int size, unsigned int type, int stride, const void* first) __asm__("glTexCoordPointer");
    void native_glTexEnvi(unsigned int target, unsigned int name, int value) __asm__("glTexEnvi");
    void native_glVertexPointer(int size, unsigned int type, int stride, const void* first) __asm__("glVertexPointer");
    void native_glViewport(int x, int y, int width, int height) __asm__("glViewport");
}

namespace
{
constexpr unsigned int Triangles = 0x0004;
constexpr unsigned int Front = 0x0404;
constexpr unsigned int Back = 0x0405;
constexpr unsigned int Texture2D = 0x0DE1;
constexpr unsigned int Float = 0x1406;
constexpr unsigned int TextureEnvironment = 0x2300;
constexpr unsigned int TextureEnvironmentMode = 0x2200;
constexpr unsigned int VertexArray = 0x8074;
constexpr unsigned int ColorArray = 0x8076;
constexpr unsigned int TextureCoordinateArray = 0x8078;
constexpr unsigned int AllAttributes = 0x000FFFFF;
constexpr unsigned int AllClientAttributes = 0xFFFFFFFF;
} // namespace

namespace SystemGl
{
void LoadMatrix(unsigned int stack, const float* matrix)
{
    native_glMatrixMode(stack);
    native_glLoadMatrixf(matrix);
}

void UseStack(unsigned int stack)
{
    native_glMatrixMode(stack);
}

void UseVertices(const void* vertices)
{
    const auto* first = static_cast<const char*>(vertices);
    native_glTexCoordPointer(2, Float, sizeof(Vertex), first + offsetof(Vertex, texture));
    native_glColorPointer(4, Float, sizeof(Vertex), first + offsetof(Vertex, color));
    native_glVertexPointer(3, Float, sizeof(Vertex), first + offsetof(Vertex, position));
}

void EnableVertexArrays()
{
    native_glEnableClientState(VertexArray);
    native_glEnableClientState(ColorArray);
    native_glEnableClientState(TextureCoordinateArray);
}

void DisableClientArray(unsigned int array)
{
    native_glDisableClientState(array);
}

void DrawTriangles(int first, int count)
{
    native_glDrawArrays(Triangles, first, count);
}

void BindTexture(unsigned int texture)
{
    native_glBindTexture(Texture2D, texture);
}

void Enable(unsigned int capability, bool enable)
{
    (enable ? native_glEnable : native_glDisable)(capability);
}

bool IsEnabled(unsigned int capability)
{
    return native_glIsEnabled(capability) != 0;
}

void Scissor(int x, int y, int width, int height)
{
    native_glScissor(x, y, width, height);
}

void Viewport(int x, int y, int width, int height)
{
    native_glViewport(x, y, width, height);
}

void Get(unsigned int name, int* values)
{
    native_glGetIntegerv(name, values);
}

void Get(unsigned int name, float* values)
{
    native_glGetFloatv(name, values);
}

int Get(unsigned int name)
{
    int value = 0;
    native_glGetIntegerv(name, &value);
    return value;
}

void PushState()
{
    native_glPushAttrib(AllAttributes);
}

void PopState()
{
    native_glPopAttrib();
}

void PushClientState()
{
    native_glPushClientAttrib(AllClientAttributes);
}

void PopClientState()
{
    native_glPopClientAttrib();
}

void PolygonMode(unsigned int front, unsigned int back)
{
    native_glPolygonMode(Front, front);
    native_glPolygonMode(Back, back);
}

void ShadeModel(unsigned int model)
{
    native_glShadeModel(model);
}

void ColorMask(bool red, bool green, bool blue, bool alpha)
{
    native_glColorMask(red, green, blue, alpha);
}

void TextureMode(int mode)
{
    native_glTexEnvi(TextureEnvironment, TextureEnvironmentMode, mode);
}

int TextureMode()
{
    int mode = 0;
    native_glGetTexEnviv(TextureEnvironment, TextureEnvironmentMode, &mode);
    return mode;
}

void PixelStore(unsigned int name, int value)
{
    native_glPixelStorei(name, value);
}

void BindBuffer(unsigned int target, unsigned int buffer)
{
    native_glBindBuffer(target, buffer);
}

void BindProgramPipeline(unsigned int pipeline)
{
    native_glBindProgramPipeline(pipeline);
}
} // namespace SystemGl
