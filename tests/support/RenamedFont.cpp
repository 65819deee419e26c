// SPDX-License-Identifier: MIT
#include "RenamedFont.h"

namespace
{
using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t NameTag = 0x6E616D65; // "name"
constexpr std::size_t FirstTable = 12;
constexpr std::size_t TableEntry = 16;
constexpr std::size_t NameHeader = 6;
constexpr std::size_t NameRecord = 12;

std::size_t Number(const Bytes& bytes, std::size_t at, std::size_t size)
{
    std::size_t number = 0;
    for (std::size_t i = 0; i < size; ++i)
    {
        number = number << 8 | bytes.at(at + i);
    }
    return number;
}

void Put(Bytes& bytes, std::size_t at, std::size_t number, std::size_t size)
{
    for (std::size_t i = 0; i < size; ++i)
    {
        bytes.at(at + i) = static_cast<std::uint8_t>(number >> 8 * (size - 1 - i));
    }
}

/// In UTF-16 with the high byte first, or in one byte a letter.
Bytes Encoded(const CString& text, bool wide)
{
    Bytes bytes;
    for (int i = 0; i < text.GetLength(); ++i)
    {
        if (wide)
        {
            bytes.push_back(static_cast<std::uint8_t>(text[i] >> 8));
        }
        bytes.push_back(static_cast<std::uint8_t>(text[i] & 0xFF));
    }
    return bytes;
}

bool IsFamilyName(std::size_t id)
{
    return id == 1 || id == 4 || id == 16;
}
} // namespace

std::vector<std::uint8_t> RenamedFont(std::vector<std::uint8_t> font, const CString& family)
{
    std::size_t entry = FirstTable;
    while (Number(font, entry, 4) != NameTag)
    {
        entry += TableEntry;
    }
    const std::size_t start = Number(font, entry + 8, 4);
    const std::size_t count = Number(font, start + 2, 2);
    const std::size_t strings = start + Number(font, start + 4, 2);
    const std::size_t head = NameHeader + NameRecord * count;
    const auto at = [&font](std::size_t place) { return font.begin() + static_cast<std::ptrdiff_t>(place); };
    Bytes names(at(start), at(start + head));
    Put(names, 4, head, 2);
    for (std::size_t record = NameHeader; record < head; record += NameRecord)
    {
        const bool wide = Number(names, record, 2) != 1;
        const std::size_t old = strings + Number(names, record + 10, 2);
        const Bytes text = IsFamilyName(Number(names, record + 6, 2)) ? Encoded(family, wide)
                                                                      : Bytes(at(old), at(old + Number(names, record + 8, 2)));
        Put(names, record + 8, text.size(), 2);
        Put(names, record + 10, names.size() - head, 2);
        names.insert(names.end(), text.begin(), text.end());
    }
    // The new table lies at the end; nobody checks the sums.
    font.resize((font.size() + 3) / 4 * 4);
    Put(font, entry + 8, font.size(), 4);
    Put(font, entry + 12, names.size(), 4);
    font.insert(font.end(), names.begin(), names.end());
    return font;
}
