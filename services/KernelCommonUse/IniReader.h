// SPDX-License-Identifier: MIT
#pragma once

#include <afx.h>

#include <map>

struct NoCaseLess
{
    bool operator()(const CString& left, const CString& right) const { return left.CompareNoCase(right) < 0; }
};

// The one reader behind language tables, parameters and ini files; for the services' own use. Sections and keys are matched
// without regard to case, as in every ini file; blanks around sections, keys and values do not count; a line that begins with
// ';' or '#' is a comment; of equal keys the first holds; keys before the first section belong to the section without a name.
//
// A malformed line is skipped with one log line that names the file and the line, and the rest holds: a line without '=', with
// an empty key, with a section bracket that is not closed, with a null in it, or with bytes that its encoding does not know.
// Beyond the hundredth such line of a file one log line says how many more there are.
class IniReader
{
public:
    enum class Encoding
    {
        // By the byte order mark (UTF-8, UTF-16 of either order); without one UTF-8 when the whole file is that, else ANSI.
        Detect,
        // UTF-8 with or without a mark, UTF-16 with one.
        Utf8
    };

    enum class Result
    {
        Read,
        Missing,
        // There, but larger than 4 MB or not to be read; logged.
        Refused
    };

    // Replaces what was read before; after Missing and Refused there is nothing.
    Result Read(const CString& path, Encoding encoding);

    // Null when there is no such key. Holds until the next Read.
    const CString* Find(const CString& section, const CString& key) const;

private:
    // The line's fault, null when there is none. The section is the one the lines so far have led to.
    const char* TakeLine(const CString& line, CString& section);

    std::map<CString, std::map<CString, CString, NoCaseLess>, NoCaseLess> sections_;
};
