// SPDX-License-Identifier: MIT
#pragma once

#include <afx.h>

#include <string>
#include <vector>

/// What the files of sections, keys and values are checked by: the questions that such a file may answer, and the same text in
/// other encodings.
struct TextTable
{
    struct Question
    {
        CString section;
        CString key;
    };

    /// Of the lines that are not malformed, the first few dozen.
    std::vector<Question> questions;
    /// Those lines, written again in UTF-8 and in UTF-16 of both orders, each with a mark.
    std::string utf8;
    std::string utf16;
    std::string utf16BigEndian;
};

TextTable ReadTextTable(const std::string& bytes, bool utf8WithoutMark);

/// That a value is one line without blanks around it.
void RequireValue(const CString& value);

/// ASCII letters change between small and capital.
CString OtherCase(const CString& text);
