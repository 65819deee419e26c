// SPDX-License-Identifier: MIT
#include "TextTables.h"

#include "FuzzTarget.h"

#include <KernelCommonUse/StringConvert.h>
#include <KernelCommonUse/TextLines.h>

namespace
{
constexpr std::size_t MaxQuestions = 60;

std::string Utf16(const CString& text, bool bigEndian)
{
    std::string bytes;
    for (int i = 0; i < text.GetLength(); ++i)
    {
        const char low = static_cast<char>(text[i] & 0xFF);
        const char high = static_cast<char>(text[i] >> 8);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}
} // namespace

TextTable ReadTextTable(const std::string& bytes, bool utf8WithoutMark)
{
    TextTable table;
    CString section;
    CString text;
    for (const TextLine& line : SplitLines(bytes, utf8WithoutMark))
    {
        Require(!line.fault || line.text.IsEmpty(), "a line that is not valid has no text");
        if (line.fault)
        {
            continue;
        }
        text += line.text + L"\r\n";
        CString trimmed = line.text;
        trimmed.Trim(L" \t");
        const int close = trimmed.Find(L']');
        const int equals = trimmed.Find(L'=');
        if (trimmed[0] == L'[' && close > 0)
        {
            section = trimmed.Mid(1, close - 1).Trim(L" \t");
        }
        else if (equals > 0 && table.questions.size() < MaxQuestions)
        {
            const CString key = trimmed.Left(equals).TrimRight(L" \t");
            table.questions.push_back({section, key});
            table.questions.push_back({L"", key});
        }
    }
    table.utf8 = "\xEF\xBB\xBF" + CString2string(text);
    table.utf16 = "\xFF\xFE" + Utf16(text, false);
    table.utf16BigEndian = "\xFE\xFF" + Utf16(text, true);
    return table;
}

void RequireValue(const CString& value)
{
    for (int i = 0; i < value.GetLength(); ++i)
    {
        Require(value[i] != L'\r' && value[i] != L'\n' && value[i] != 0, "a value is one line");
    }
    CString trimmed = value;
    trimmed.Trim(L" \t");
    Require(trimmed == value, "a value has no blanks around it");
}

CString OtherCase(const CString& text)
{
    CString other = text;
    for (int i = 0; i < other.GetLength(); ++i)
    {
        const wchar_t letter = other[i];
        const bool lower = letter >= L'a' && letter <= L'z';
        const bool upper = letter >= L'A' && letter <= L'Z';
        if (lower || upper)
        {
            other.SetAt(i, static_cast<wchar_t>(letter ^ 0x20));
        }
    }
    return other;
}
