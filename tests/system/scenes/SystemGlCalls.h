// SPDX-License-Identifier: MIT
#pragma once

// The system's OpenGL, called from tests. Under Winelib it takes its arguments in another way than the headers say there, so its
// functions have names of their own here.
#ifdef __WINE__
#define SCENE_GL(result, name, parameters) extern "C" result native_##name parameters __asm__(#name)
#else
#define SCENE_GL(result, name, parameters) extern "C" result native_##name parameters
#endif

SCENE_GL(void, glActiveTexture, (unsigned int unit));
SCENE_GL(void, glBindBuffer, (unsigned int target, unsigned int buffer));
SCENE_GL(void, glBindFramebuffer, (unsigned int target, unsigned int framebuffer));
SCENE_GL(void, glBindProgramPipeline, (unsigned int pipeline));
SCENE_GL(void, glBindRenderbuffer, (unsigned int target, unsigned int renderbuffer));
SCENE_GL(void, glBindSampler, (unsigned int unit, unsigned int sampler));
SCENE_GL(void, glBindTexture, (unsigned int target, unsigned int texture));
SCENE_GL(void, glBindVertexArray, (unsigned int array));
SCENE_GL(void, glBlendEquation, (unsigned int mode));
SCENE_GL(void, glBlendFunc, (unsigned int source, unsigned int destination));
SCENE_GL(void, glBufferData, (unsigned int target, long size, const void* data, unsigned int usage));
SCENE_GL(void, glClientActiveTexture, (unsigned int unit));
SCENE_GL(void, glClipControl, (unsigned int origin, unsigned int depth));
SCENE_GL(void, glColorMask, (unsigned char red, unsigned char green, unsigned char blue, unsigned char alpha));
SCENE_GL(void, glColorPointer, (int size, unsigned int type, int stride, const void* first));
SCENE_GL(unsigned int, glCreateShaderProgramv, (unsigned int type, int count, const char* const* sources));
SCENE_GL(void, glCullFace, (unsigned int face));
SCENE_GL(void, glDebugMessageCallback, (const void* function, const void* user));
SCENE_GL(void, glDeleteBuffers, (int count, const unsigned int* names));
SCENE_GL(void, glDeleteFramebuffers, (int count, const unsigned int* names));
SCENE_GL(void, glDeleteProgram, (unsigned int program));
SCENE_GL(void, glDeleteProgramPipelines, (int count, const unsigned int* names));
SCENE_GL(void, glDeleteRenderbuffers, (int count, const unsigned int* names));
SCENE_GL(void, glDeleteSamplers, (int count, const unsigned int* names));
SCENE_GL(void, glDeleteTextures, (int count, const unsigned int* names));
SCENE_GL(void, glDeleteVertexArrays, (int count, const unsigned int* names));
SCENE_GL(void, glDisable, (unsigned int capability));
SCENE_GL(void, glDisableClientState, (unsigned int array));
SCENE_GL(void, glDisableVertexAttribArray, (unsigned int index));
SCENE_GL(void, glEnable, (unsigned int capability));
SCENE_GL(void, glEnableClientState, (unsigned int array));
SCENE_GL(void, glEnableVertexAttribArray, (unsigned int index));
SCENE_GL(void, glFramebufferRenderbuffer, (unsigned int target, unsigned int attachment, unsigned int kind, unsigned int name));
SCENE_GL(void, glFrontFace, (unsigned int mode));
SCENE_GL(void, glGenBuffers, (int count, unsigned int* names));
SCENE_GL(void, glGenFramebuffers, (int count, unsigned int* names));
SCENE_GL(void, glGenProgramPipelines, (int count, unsigned int* names));
SCENE_GL(void, glGenRenderbuffers, (int count, unsigned int* names));
SCENE_GL(void, glGenSamplers, (int count, unsigned int* names));
SCENE_GL(void, glGenTextures, (int count, unsigned int* names));
SCENE_GL(void, glGenVertexArrays, (int count, unsigned int* names));
SCENE_GL(void, glGetDoublev, (unsigned int name, double* values));
SCENE_GL(unsigned int, glGetError, ());
SCENE_GL(void, glGetIntegeri_v, (unsigned int name, unsigned int index, int* values));
SCENE_GL(void, glGetIntegerv, (unsigned int name, int* values));
SCENE_GL(void, glGetPointerv, (unsigned int name, void** value));
SCENE_GL(void, glGetTexEnvfv, (unsigned int target, unsigned int name, float* values));
SCENE_GL(void, glGetVertexAttribPointerv, (unsigned int index, unsigned int name, void** value));
SCENE_GL(void, glGetVertexAttribiv, (unsigned int index, unsigned int name, int* values));
SCENE_GL(unsigned char, glIsEnabled, (unsigned int capability));
SCENE_GL(unsigned char, glIsEnabledi, (unsigned int capability, unsigned int index));
SCENE_GL(void, glLogicOp, (unsigned int operation));
SCENE_GL(void, glMatrixMode, (unsigned int mode));
SCENE_GL(void, glNormalPointer, (unsigned int type, int stride, const void* first));
SCENE_GL(void, glPixelStorei, (unsigned int name, int value));
SCENE_GL(void, glPolygonMode, (unsigned int face, unsigned int mode));
SCENE_GL(void, glPopAttrib, ());
SCENE_GL(void, glPopClientAttrib, ());
SCENE_GL(void, glPopMatrix, ());
SCENE_GL(void, glPushAttrib, (unsigned int mask));
SCENE_GL(void, glPushClientAttrib, (unsigned int mask));
SCENE_GL(void, glPushMatrix, ());
SCENE_GL(void, glReadPixels, (int x, int y, int width, int height, unsigned int format, unsigned int type, void* pixels));
SCENE_GL(void, glRenderbufferStorage, (unsigned int target, unsigned int format, int width, int height));
SCENE_GL(void, glRotatef, (float angle, float x, float y, float z));
SCENE_GL(void, glSamplerParameteri, (unsigned int sampler, unsigned int name, int value));
SCENE_GL(void, glScissor, (int x, int y, int width, int height));
SCENE_GL(void, glShadeModel, (unsigned int model));
SCENE_GL(void, glStencilFunc, (unsigned int function, int reference, unsigned int mask));
SCENE_GL(void, glTexBuffer, (unsigned int target, unsigned int format, unsigned int buffer));
SCENE_GL(void, glTexCoordPointer, (int size, unsigned int type, int stride, const void* first));
SCENE_GL(void, glTexEnvi, (unsigned int target, unsigned int name, int value));
SCENE_GL(void, glTexImage1D,
         (unsigned int target, int level, int internal, int width, int border, unsigned int format, unsigned int type,
          const void* pixels));
SCENE_GL(void, glTexImage2D,
         (unsigned int target, int level, int internal, int width, int height, int border, unsigned int format, unsigned int type,
          const void* pixels));
SCENE_GL(void, glTexImage3D,
         (unsigned int target, int level, int internal, int width, int height, int depth, int border, unsigned int format,
          unsigned int type, const void* pixels));
SCENE_GL(void, glTexParameteri, (unsigned int target, unsigned int name, int value));
SCENE_GL(void, glUseProgram, (unsigned int program));
SCENE_GL(void, glUseProgramStages, (unsigned int pipeline, unsigned int stages, unsigned int program));
SCENE_GL(void, glVertexAttribPointer,
         (unsigned int index, int size, unsigned int type, unsigned char normalized, int stride, const void* first));
SCENE_GL(void, glVertexPointer, (int size, unsigned int type, int stride, const void* first));
