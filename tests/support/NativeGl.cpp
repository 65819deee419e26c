// SPDX-License-Identifier: MIT
#include "NativeGl.h"

// <osg/GL>, which Gui.h brings by way of OSG, declares the same functions: so these get names of their own.
#ifdef __WINE__
#define NATIVE_GL(result, name, parameters) extern "C" result native_##name parameters __asm__(#name)
#else
#define NATIVE_GL(result, name, parameters) constexpr auto native_##name = ::name
#endif

NATIVE_GL(void, glClear, (unsigned int mask));
NATIVE_GL(void, glClearColor, (float red, float green, float blue, float alpha));
NATIVE_GL(void, glDeleteTextures, (int count, const unsigned int* names));
NATIVE_GL(void, glDisable, (unsigned int capability));
NATIVE_GL(void, glEnable, (unsigned int capability));
NATIVE_GL(void, glGenTextures, (int count, unsigned int* names));
NATIVE_GL(unsigned int, glGetError, ());
NATIVE_GL(void, glGetIntegerv, (unsigned int name, int* values));
NATIVE_GL(const unsigned char*, glGetString, (unsigned int name));
NATIVE_GL(void, glGetVertexAttribiv, (unsigned int index, unsigned int name, int* values));
NATIVE_GL(unsigned char, glIsTexture, (unsigned int name));
NATIVE_GL(void, glReadPixels, (int x, int y, int width, int height, unsigned int format, unsigned int type, void* pixels));

namespace
{
int Integer(unsigned int name)
{
    int value = -1;
    native_glGetIntegerv(name, &value);
    return value;
}
} // namespace

namespace NativeGl
{
bool HasContext()
{
    return native_glGetString(GL_VERSION) != nullptr;
}

void ClearScreen(Pixel color)
{
    native_glDisable(GL_SCISSOR_TEST);
    native_glClearColor(color.red / 255.0f, color.green / 255.0f, color.blue / 255.0f, 1.0f);
    native_glClear(GL_COLOR_BUFFER_BIT);
}

Pixel ReadPixel(int x, int y)
{
    unsigned char pixel[4] = {};
    native_glReadPixels(x, y, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel);
    return {pixel[0], pixel[1], pixel[2]};
}

int LiveTextures()
{
    // Names are handed out in rising order, so all that live lie below a new one.
    unsigned int last = 0;
    native_glGenTextures(1, &last);
    native_glDeleteTextures(1, &last);
    int count = 0;
    for (unsigned int name = 1; name < last; ++name)
    {
        count += native_glIsTexture(name) != 0;
    }
    return count;
}

int BoundSampler()
{
    return Integer(0x8919 /* GL_SAMPLER_BINDING */);
}

int ActiveTextureUnit()
{
    return Integer(0x84E0 /* GL_ACTIVE_TEXTURE */) - 0x84C0 /* GL_TEXTURE0 */;
}

int ActiveClientTextureUnit()
{
    return Integer(0x84E1 /* GL_CLIENT_ACTIVE_TEXTURE */) - 0x84C0 /* GL_TEXTURE0 */;
}

int BoundVertexBuffer()
{
    return Integer(0x8894 /* GL_ARRAY_BUFFER_BINDING */);
}

int BoundElementBuffer()
{
    return Integer(0x8895 /* GL_ELEMENT_ARRAY_BUFFER_BINDING */);
}

bool IsGenericArrayEnabled(unsigned int index)
{
    int enabled = 0;
    native_glGetVertexAttribiv(index, 0x8622 /* GL_VERTEX_ATTRIB_ARRAY_ENABLED */, &enabled);
    return enabled != 0;
}

void RaiseError()
{
    native_glEnable(0xFFFF);
}

bool TakeError()
{
    return native_glGetError() != GL_NO_ERROR;
}
} // namespace NativeGl
