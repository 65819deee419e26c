// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <vector>

/// TIFF files of the corpus, below its folder, that end a process in Wine's decoder.
constexpr const wchar_t* damagedTiffFiles[] = {L"\\tiff\\damaged_plain.tiff", L"\\tiff\\damaged_lzw.tiff",
                                               L"\\tiff\\damaged_tiles.tiff", L"\\tiff\\damaged_fax.tiff",
                                               L"\\tiff\\damaged_big_endian_zip.tiff"};

/// The bytes with a few of them changed, always the same ones for the same seed; every fourth loses its end as well.
inline std::vector<std::uint8_t> Spoilt(std::vector<std::uint8_t> bytes, unsigned int seed)
{
    std::uint32_t state = seed * 2654435761u + 1;
    const auto next = [&]
    {
        state = state * 1664525u + 1013904223u;
        return state >> 8;
    };
    const std::uint8_t values[] = {0, 1, 0x7F, 0x80, 0xFE, 0xFF};
    for (unsigned int left = 1 + next() % 8; left > 0; --left)
    {
        const std::uint32_t kind = next() % (std::size(values) + 2);
        // What follows a signature holds more of what decides than the pixels do.
        const std::size_t at = next() % 2 ? next() % bytes.size() : 4 + next() % (bytes.size() < 300 ? bytes.size() - 4 : 296);
        bytes[at] = kind < std::size(values) ? values[kind] : static_cast<std::uint8_t>(next());
    }
    if (seed % 4 == 3)
    {
        bytes.resize(bytes.size() / 2 + next() % (bytes.size() / 2));
    }
    return bytes;
}
