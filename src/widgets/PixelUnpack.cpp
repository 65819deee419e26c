// SPDX-License-Identifier: MIT
#include "PixelUnpack.h"

#include "../../platform/SystemGl.h"

namespace
{
// Names that the headers of OpenGL 1.1 lack among them.
constexpr unsigned int Alignment = 0x0CF5;
constexpr unsigned int Names[] = {
    0x0CF0, // GL_UNPACK_SWAP_BYTES
    0x0CF1, // GL_UNPACK_LSB_FIRST
    0x0CF2, // GL_UNPACK_ROW_LENGTH
    0x0CF3, // GL_UNPACK_SKIP_ROWS
    0x0CF4, // GL_UNPACK_SKIP_PIXELS
    0x806D, // GL_UNPACK_SKIP_IMAGES
    0x806E, // GL_UNPACK_IMAGE_HEIGHT
    Alignment,
};
constexpr unsigned int Buffer = 0x88EC;        // GL_PIXEL_UNPACK_BUFFER
constexpr unsigned int BufferBinding = 0x88EF; // GL_PIXEL_UNPACK_BUFFER_BINDING
} // namespace

PixelUnpack::PixelUnpack() : buffer_(SystemGl::Get(BufferBinding))
{
    static_assert(std::size(Names) == Count);
    for (std::size_t i = 0; i < Count; ++i)
    {
        found_[i] = SystemGl::Get(Names[i]);
        SystemGl::PixelStore(Names[i], Names[i] == Alignment ? 1 : 0);
    }
    if (buffer_ != 0)
    {
        SystemGl::BindBuffer(Buffer, 0);
    }
}

PixelUnpack::~PixelUnpack()
{
    if (buffer_ != 0)
    {
        SystemGl::BindBuffer(Buffer, static_cast<unsigned int>(buffer_));
    }
    for (std::size_t i = 0; i < Count; ++i)
    {
        SystemGl::PixelStore(Names[i], found_[i]);
    }
}
