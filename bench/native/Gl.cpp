// SPDX-License-Identifier: MIT
#include "Contestant.h"

#include <GL/gl.h>
#include <GL/glext.h>

namespace bench
{
void FinishDrawing()
{
    glFinish();
}

unsigned int UploadTexture(const Picture& picture)
{
    GLuint texture = 0;
    GLint former = 0;
    glGetIntegerv(GL_TEXTURE_BINDING_2D, &former);
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, picture.width, picture.height, 0, GL_RGBA, GL_UNSIGNED_BYTE, picture.rgba.data());
    glBindTexture(GL_TEXTURE_2D, static_cast<GLuint>(former));
    return texture;
}

void DeleteTextures(const std::vector<unsigned int>& textures)
{
    glDeleteTextures(static_cast<GLsizei>(textures.size()), textures.data());
}

const char* RendererName()
{
    return reinterpret_cast<const char*>(glGetString(GL_RENDERER));
}

const char* RendererVersion()
{
    return reinterpret_cast<const char*>(glGetString(GL_VERSION));
}
} // namespace bench
