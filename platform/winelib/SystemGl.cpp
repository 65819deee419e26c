// SPDX-License-Identifier: MIT
// The system's OpenGL takes its arguments otherwise than the headers tell a Win32 source, so its functions are declared here
// under names of their own.
#include "../SystemGl.h"

extern "C"
{
    void native_glBindTexture(unsigned int target, unsigned int texture) __asm__("glBindTexture");
    void native_glTexParameteri(unsigned int target, unsigned int name, int value) __asm__("glTexParameteri");
}

namespace
{
constexpr unsigned int Texture2D = 0x0DE1;
constexpr unsigned int MagFilter = 0x2800;
constexpr unsigned int MinFilter = 0x2801;
constexpr int Nearest = 0x2600;
constexpr int Linear = 0x2601;
} // namespace

namespace SystemGl
{
void FilterTexture(unsigned int texture, bool nearest)
{
    native_glBindTexture(Texture2D, texture);
    native_glTexParameteri(Texture2D, MinFilter, nearest ? Nearest : Linear);
    native_glTexParameteri(Texture2D, MagFilter, nearest ? Nearest : Linear);
}
} // namespace SystemGl
