// SPDX-License-Identifier: MIT
// The seven WGL functions that OSG's Win32 window calls. Linking opengl32's import library would bring them, and with them
// every gl* function of its own in place of the native libGL; taken by name they come alone.
#include <windows.h>

namespace
{
template <class Function>
Function Wgl(const char* name)
{
    return reinterpret_cast<Function>(GetProcAddress(LoadLibraryW(L"opengl32.dll"), name));
}
} // namespace

#define WGL_FUNCTION(result, name, parameters, arguments)                                                                        \
    extern "C" result WINAPI name parameters                                                                                     \
    {                                                                                                                            \
        using Function = result(WINAPI*) parameters;                                                                             \
        static const Function function = Wgl<Function>(#name);                                                                   \
        return function arguments;                                                                                               \
    }

WGL_FUNCTION(HGLRC, wglCreateContext, (HDC dc), (dc))
WGL_FUNCTION(BOOL, wglDeleteContext, (HGLRC context), (context))
WGL_FUNCTION(BOOL, wglMakeCurrent, (HDC dc, HGLRC context), (dc, context))
WGL_FUNCTION(HGLRC, wglGetCurrentContext, (), ())
WGL_FUNCTION(HDC, wglGetCurrentDC, (), ())
WGL_FUNCTION(PROC, wglGetProcAddress, (LPCSTR name), (name))
WGL_FUNCTION(BOOL, wglShareLists, (HGLRC from, HGLRC to), (from, to))
