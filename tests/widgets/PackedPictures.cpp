// SPDX-License-Identifier: MIT
#include "PackedPictures.h"

#include <string>

namespace
{
using Bytes = std::vector<std::uint8_t>;

class Writer
{
public:
    Writer& U8(std::uint32_t value)
    {
        bytes.push_back(static_cast<std::uint8_t>(value));
        return *this;
    }
    Writer& U16(std::uint32_t value) { return U8(value).U8(value >> 8); }
    Writer& U32(std::uint32_t value) { return U16(value).U16(value >> 16); }
    Writer& Big16(std::uint32_t value) { return U8(value >> 8).U8(value); }
    Writer& Fill(std::size_t count, std::uint8_t value)
    {
        bytes.insert(bytes.end(), count, value);
        return *this;
    }
    Writer& Add(const Bytes& more)
    {
        bytes.insert(bytes.end(), more.begin(), more.end());
        return *this;
    }
    Writer& Text(const std::string& text) { return Add(Bytes(text.begin(), text.end())); }

    Bytes bytes;
};

struct Tag
{
    std::uint32_t tag;
    std::uint32_t value;
};

/// @param next the offset of the next page's directory, 0 for none
void Directory(Writer& out, const std::vector<Tag>& tags, std::uint32_t next)
{
    constexpr std::uint32_t shortType = 3;
    constexpr std::uint32_t longType = 4;
    out.U16(static_cast<std::uint32_t>(tags.size()));
    for (const Tag& tag : tags)
    {
        out.U16(tag.tag).U16(tag.value > 0xFFFF || tag.tag == 273 ? longType : shortType).U32(1).U32(tag.value);
    }
    out.U32(next);
}

constexpr std::uint32_t DirectorySize(std::uint32_t tags)
{
    return 2 + tags * 12 + 4;
}
} // namespace

std::vector<std::uint8_t> GreyJpeg(std::uint32_t width, std::uint32_t height)
{
    Writer out;
    out.Big16(0xFFD8);
    out.Big16(0xFFDB).Big16(67).U8(0).Fill(64, 1);
    out.Big16(0xFFC0).Big16(17).U8(8).Big16(height).Big16(width).U8(3);
    out.U8(1).U8(0x22).U8(0).U8(2).U8(0x11).U8(0).U8(3).U8(0x11).U8(0);
    // Two tables of one code of one bit: no difference to the block before, and the end of the block.
    for (const std::uint32_t table : {0x00, 0x10})
    {
        out.Big16(0xFFC4).Big16(20).U8(table).U8(1).Fill(15, 0).U8(0);
    }
    out.Big16(0xFFDA).Big16(12).U8(3).U8(1).U8(0).U8(2).U8(0).U8(3).U8(0).U8(0).U8(63).U8(0);
    // Six blocks of two bits for each 16 x 16 pixels.
    out.Fill((std::size_t(width) * height / 256 * 12 + 7) / 8, 0);
    return out.Big16(0xFFD9).bytes;
}

std::vector<std::uint8_t> Animation(const std::vector<std::uint8_t>& still, int pictures)
{
    const std::size_t head = 13 + (still[10] & 0x80 ? std::size_t(3) << ((still[10] & 7) + 1) : 0);
    Writer out;
    out.Add(Bytes(still.begin(), still.begin() + static_cast<std::ptrdiff_t>(head)));
    const Bytes picture(still.begin() + static_cast<std::ptrdiff_t>(head), still.end() - 1);
    for (int i = 0; i < pictures; ++i)
    {
        out.Add(picture);
    }
    return out.U8(';').bytes;
}

std::vector<std::uint8_t> Icon(const std::vector<std::vector<std::uint8_t>>& pictures)
{
    Writer out;
    out.U16(0).U16(1).U16(static_cast<std::uint32_t>(pictures.size()));
    std::size_t at = 6 + 16 * pictures.size();
    for (const Bytes& picture : pictures)
    {
        out.U32(0).U16(1).U16(32).U32(static_cast<std::uint32_t>(picture.size())).U32(static_cast<std::uint32_t>(at));
        at += picture.size();
    }
    for (const Bytes& picture : pictures)
    {
        out.Add(picture);
    }
    return out.bytes;
}

std::vector<std::uint8_t> IconBitmap(std::uint32_t side, std::uint32_t color)
{
    Writer out;
    out.U32(40).U32(side).U32(side * 2).U16(1).U16(32).U32(0).U32(0).U32(0).U32(0).U32(0).U32(0);
    for (std::uint32_t i = 0; i < side * side; ++i)
    {
        out.U32(color);
    }
    return out.Fill((side + 31) / 32 * 4 * side, 0).bytes;
}

std::vector<std::uint8_t> WhiteFax(std::uint32_t width, std::uint32_t height)
{
    constexpr std::uint32_t tags = 7;
    const std::uint32_t data = 8 + DirectorySize(tags);
    const std::uint32_t size = (height + 24 + 7) / 8;
    Writer out;
    out.Text("II*").U8(0).U32(8);
    Directory(out, {{256, width}, {257, height}, {259, 4}, {262, 0}, {273, data}, {278, height}, {279, size}}, 0);
    // A set bit is a row like the one above; the end of the data is 000000000001 twice, and padding after it does no harm.
    return out.Fill(height / 8, 0xFF).Fill(size - height / 8, height % 8 ? 0xFF : 0).bytes;
}

std::vector<std::uint8_t> GreyTiff(const std::vector<TiffPage>& pages)
{
    constexpr std::uint32_t tags = 7;
    Writer out;
    out.Text("II*").U8(0).U32(8);
    std::uint32_t at = 8;
    for (const TiffPage& page : pages)
    {
        const std::uint32_t data = at + DirectorySize(tags);
        at = data + page.bytes;
        Directory(out,
                  {{256, page.width}, {257, page.height}, {258, 8}, {262, 1}, {273, data}, {278, page.height}, {279, page.bytes}},
                  &page == &pages.back() ? 0 : at);
        out.Fill(page.bytes, page.grey);
    }
    return out.bytes;
}

std::vector<std::uint8_t> PremultipliedTiff(const std::vector<std::uint8_t>& pixel)
{
    constexpr std::uint32_t tags = 9;
    constexpr std::uint32_t data = 8 + DirectorySize(tags);
    Writer out;
    out.Text("II*").U8(0).U32(8);
    Directory(out, {{256, 1}, {257, 1}, {258, 8}, {262, 2}, {273, data}, {277, 4}, {278, 1}, {279, 4}, {338, 1}}, 0);
    return out.Add(pixel).bytes;
}
