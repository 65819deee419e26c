// SPDX-License-Identifier: MIT
#include "IniReader.h"

#include "ServiceLog.h"
#include "StringConvert.h"
#include "TextFile.h"
#include "TextLines.h"

#include <string>

namespace
{
const wchar_t Blanks[] = L" \t";
const int MaxLinesReported = 100;

void Report(const CString& path, const char* fault)
{
    ServiceLog("The file " + CString2string(path) + " " + fault + ".");
}
} // namespace

IniReader::Result IniReader::Read(const CString& path, Encoding encoding)
{
    sections_.clear();
    std::string bytes;
    switch (TextFile::Read(path, bytes))
    {
    case TextFile::Result::Missing:
        return Result::Missing;
    case TextFile::Result::TooLarge:
        Report(path, "is larger than 4 MB and is not read");
        return Result::Refused;
    case TextFile::Result::Unreadable:
        Report(path, "cannot be read");
        return Result::Refused;
    case TextFile::Result::Read:
        break;
    }
    CString section;
    int number = 0;
    int malformed = 0;
    for (const TextLine& line : SplitLines(bytes, encoding == Encoding::Utf8))
    {
        ++number;
        if (const char* fault = line.fault ? line.fault : TakeLine(line.text, section); fault && ++malformed <= MaxLinesReported)
        {
            ServiceLog(CString2string(path) + ", line " + std::to_string(number) + ": " + fault + "; the line is skipped.");
        }
    }
    if (malformed > MaxLinesReported)
    {
        Report(path, ("has " + std::to_string(malformed - MaxLinesReported) + " more lines that are skipped").c_str());
    }
    return Result::Read;
}

const CString* IniReader::Find(const CString& section, const CString& key) const
{
    const auto keys = sections_.find(section);
    if (keys == sections_.end())
    {
        return nullptr;
    }
    const auto value = keys->second.find(key);
    return value == keys->second.end() ? nullptr : &value->second;
}

const char* IniReader::TakeLine(const CString& line, CString& section)
{
    CString text = line;
    text.Trim(Blanks);
    if (text.IsEmpty() || text[0] == L';' || text[0] == L'#')
    {
        return nullptr;
    }
    if (text[0] == L'[')
    {
        const int close = text.Find(L']');
        if (close < 0)
        {
            return "a section bracket that is not closed";
        }
        section = text.Mid(1, close - 1).Trim(Blanks);
        return nullptr;
    }
    const int equals = text.Find(L'=');
    if (equals < 0)
    {
        return "no '=' in it";
    }
    const CString key = text.Left(equals).TrimRight(Blanks);
    if (key.IsEmpty())
    {
        return "an empty key";
    }
    sections_[section].emplace(key, text.Mid(equals + 1).TrimLeft(Blanks));
    return nullptr;
}
