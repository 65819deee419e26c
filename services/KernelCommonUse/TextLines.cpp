// SPDX-License-Identifier: MIT
#include "TextLines.h"

#include <cstdint>
#include <cstring>

namespace
{
const char NullFault[] = "a null in it";

bool BeginsWith(const std::string& bytes, const char* mark, std::size_t size)
{
    return bytes.compare(0, size, mark, size) == 0;
}

// Calls take(first, end) with the bounds of every line.
template <class Text, class Take>
void ForEachLine(const Text& text, std::size_t start, Take take)
{
    for (std::size_t first = start; first < text.size();)
    {
        std::size_t end = first;
        while (end < text.size() && text[end] != '\n' && text[end] != '\r')
        {
            ++end;
        }
        take(first, end);
        const bool both = end + 1 < text.size() && text[end] == '\r' && text[end + 1] == '\n';
        first = end + (both ? 2 : 1);
    }
}

bool Decode(UINT codePage, const char* bytes, int size, CString& text)
{
    text.Empty();
    if (size == 0)
    {
        return true;
    }
    const int count = MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, bytes, size, nullptr, 0);
    if (count > 0)
    {
        MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, bytes, size, text.GetBuffer(count), count);
        text.ReleaseBuffer(count);
    }
    return count > 0;
}

std::vector<TextLine> SplitBytes(const std::string& bytes, std::size_t start, UINT codePage)
{
    std::vector<TextLine> lines;
    ForEachLine(bytes, start,
                [&](std::size_t first, std::size_t end)
                {
                    TextLine line;
                    if (std::memchr(bytes.data() + first, 0, end - first))
                    {
                        line.fault = NullFault;
                    }
                    else if (!Decode(codePage, bytes.data() + first, static_cast<int>(end - first), line.text))
                    {
                        line.fault = codePage == CP_UTF8 ? "not valid UTF-8" : "not valid in the ANSI code page";
                    }
                    lines.push_back(line);
                });
    return lines;
}

bool IsHighSurrogate(std::uint16_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}

bool IsLowSurrogate(std::uint16_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

TextLine LineOfUnits(const std::vector<std::uint16_t>& units, std::size_t first, std::size_t end)
{
    TextLine line;
    wchar_t* text = line.text.GetBuffer(static_cast<int>(end - first));
    for (std::size_t index = first; index < end; ++index)
    {
        const std::uint16_t unit = units[index];
        const bool pairBegins = IsHighSurrogate(unit) && index + 1 < end && IsLowSurrogate(units[index + 1]);
        const bool pairEnds = IsLowSurrogate(unit) && index > first && IsHighSurrogate(units[index - 1]);
        if (unit == 0)
        {
            line.fault = NullFault;
        }
        else if ((IsHighSurrogate(unit) && !pairBegins) || (IsLowSurrogate(unit) && !pairEnds))
        {
            line.fault = "not valid UTF-16";
        }
        text[index - first] = static_cast<wchar_t>(unit);
    }
    line.text.ReleaseBuffer(line.fault ? 0 : static_cast<int>(end - first));
    return line;
}

std::vector<TextLine> SplitUnits(const std::string& bytes, bool bigEndian)
{
    std::vector<std::uint16_t> units;
    for (std::size_t index = 2; index + 1 < bytes.size(); index += 2)
    {
        const unsigned char first = static_cast<unsigned char>(bytes[index]);
        const unsigned char second = static_cast<unsigned char>(bytes[index + 1]);
        units.push_back(static_cast<std::uint16_t>(bigEndian ? first << 8 | second : second << 8 | first));
    }
    if (bytes.size() % 2 != 0)
    {
        // Half a unit at the end: a lone surrogate in its place makes the last line one that is not valid.
        units.push_back(0xD800);
    }
    std::vector<TextLine> lines;
    ForEachLine(units, 0, [&](std::size_t first, std::size_t end) { lines.push_back(LineOfUnits(units, first, end)); });
    return lines;
}
} // namespace

std::vector<TextLine> SplitLines(const std::string& bytes, bool utf8WithoutMark)
{
    if (BeginsWith(bytes, "\xFF\xFE", 2) || BeginsWith(bytes, "\xFE\xFF", 2))
    {
        return SplitUnits(bytes, bytes[0] == '\xFE');
    }
    if (BeginsWith(bytes, "\xEF\xBB\xBF", 3))
    {
        return SplitBytes(bytes, 3, CP_UTF8);
    }
    CString all;
    const bool utf8 = utf8WithoutMark || Decode(CP_UTF8, bytes.data(), static_cast<int>(bytes.size()), all);
    return SplitBytes(bytes, 0, utf8 ? CP_UTF8 : CP_ACP);
}
