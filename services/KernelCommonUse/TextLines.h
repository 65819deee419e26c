// SPDX-License-Identifier: MIT
#pragma once

#include <afx.h>

#include <string>
#include <vector>

// One line of a text file without its line end. What cannot be text is named, and then the text is empty.
struct TextLine
{
    CString text;
    const char* fault = nullptr;
};

// The encoding is that of the byte order mark (UTF-8, UTF-16 of either order). Without one it is UTF-8, or, when that is not
// asked for and the bytes are not all UTF-8, the ANSI code page. Lines end with CR, LF or both.
std::vector<TextLine> SplitLines(const std::string& bytes, bool utf8WithoutMark);
