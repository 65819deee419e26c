// SPDX-License-Identifier: MIT
#include "../SystemGl.h"

#include <windows.h>

#include <GL/gl.h>

namespace SystemGl
{
void FilterTexture(unsigned int texture, bool nearest)
{
    glBindTexture(GL_TEXTURE_2D, texture);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, nearest ? GL_NEAREST : GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, nearest ? GL_NEAREST : GL_LINEAR);
}
} // namespace SystemGl
