// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <vector>

namespace host
{

/// How much of each pixel a line of text covers, 0 to 255, row by row from the top.
struct TextMask
{
    int width = 0;
    int height = 0;
    std::vector<unsigned char> coverage;
};

/// @param pixels height of the letters' body
CSize MeasureText(const CString& text, const CString& family, int pixels, bool bold = false);
TextMask DrawTextMask(const CString& text, const CString& family, int pixels, bool bold = false);

} // namespace host
