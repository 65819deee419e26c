// SPDX-License-Identifier: MIT
#include "../SystemGl.h"

#include <windows.h>

#include <GL/gl.h>

#include <cstddef>

namespace
{
/// Contexts may have functions of their own, so it is looked up at each call; these are called seldom.
template <typename Function>
Function Extension(const char* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(wglGetProcAddress(name)));
}
} // namespace

namespace SystemGl
{
void LoadMatrix(unsigned int stack, const float* matrix)
{
    glMatrixMode(stack);
    glLoadMatrixf(matrix);
}

void UseStack(unsigned int stack)
{
    glMatrixMode(stack);
}

void UseVertices(const void* vertices)
{
    const auto* first = static_cast<const char*>(vertices);
    glTexCoordPointer(2, GL_FLOAT, sizeof(Vertex), first + offsetof(Vertex, texture));
    glColorPointer(4, GL_FLOAT, sizeof(Vertex), first + offsetof(Vertex, color));
    glVertexPointer(3, GL_FLOAT, sizeof(Vertex), first + offsetof(Vertex, position));
}

void EnableVertexArrays()
{
    glEnableClientState(GL_VERTEX_ARRAY);
    glEnableClientState(GL_COLOR_ARRAY);
    glEnableClientState(GL_TEXTURE_COORD_ARRAY);
}

void DisableClientArray(unsigned int array)
{
    glDisableClientState(array);
}

void DrawTriangles(int first, int count)
{
    glDrawArrays(GL_TRIANGLES, first, count);
}

void BindTexture(unsigned int texture)
{
    glBindTexture(GL_TEXTURE_2D, texture);
}

void Enable(unsigned int capability, bool enable)
{
    (enable ? glEnable : glDisable)(capability);
}

bool IsEnabled(unsigned int capability)
{
    return glIsEnabled(capability) != GL_FALSE;
}

void Scissor(int x, int y, int width, int height)
{
    glScissor(x, y, width, height);
}

void Viewport(int x, int y, int width, int height)
{
    glViewport(x, y, width, height);
}

void Get(unsigned int name, int* values)
{
    glGetIntegerv(name, values);
}

void Get(unsigned int name, float* values)
{
    glGetFloatv(name, values);
}

int Get(unsigned int name)
{
    int value = 0;
    glGetIntegerv(name, &value);
    return value;
}

void PushState()
{
    glPushAttrib(GL_ALL_ATTRIB_BITS);
}

void PopState()
{
    glPopAttrib();
}

void PushClientState()
{
    glPushClientAttrib(GL_CLIENT_ALL_ATTRIB_BITS);
}

void PopClientState()
{
    glPopClientAttrib();
}

void PolygonMode(unsigned int front, unsigned int back)
{
    glPolygonMode(GL_FRONT, front);
    glPolygonMode(GL_BACK, back);
}

void ShadeModel(unsigned int model)
{
    glShadeModel(model);
}

void ColorMask(bool red, bool green, bool blue, bool alpha)
{
    glColorMask(red, green, blue, alpha);
}

void TextureMode(int mode)
{
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, mode);
}

int TextureMode()
{
    int mode = 0;
    glGetTexEnviv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, &mode);
    return mode;
}

void PixelStore(unsigned int name, int value)
{
    glPixelStorei(name, value);
}

void BindBuffer(unsigned int target, unsigned int buffer)
{
    if (const auto bind = Extension<void(APIENTRY*)(unsigned int, unsigned int)>("glBindBuffer"))
    {
        bind(target, buffer);
    }
}

void BindProgramPipeline(unsigned int pipeline)
{
    if (const auto bind = Extension<void(APIENTRY*)(unsigned int)>("glBindProgramPipeline"))
    {
        bind(pipeline);
    }
}
} // namespace SystemGl
