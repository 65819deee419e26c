// SPDX-License-Identifier: MIT
#include "ShortenText.h"

#include <vector>

namespace
{
const wchar_t* const Ellipsis = L"...";

/// The lengths of the text's beginnings, from nothing to all but the last character.
std::vector<int> BeginningsOf(const CString& text)
{
    std::vector<int> lengths;
    for (int i = 0; i < text.GetLength(); ++i)
    {
        if (i == 0 || !IS_LOW_SURROGATE(text.GetAt(i)) || !IS_HIGH_SURROGATE(text.GetAt(i - 1)))
        {
            lengths.push_back(i);
        }
    }
    return lengths;
}
} // namespace

TextShortener::TextShortener(const TextMeasurer& measurer) : measurer_(measurer), ellipsisWidth_(measurer.Box(Ellipsis).Width) {}

CString TextShortener::Fit(const CString& text, float maxWidth) const
{
    if (measurer_.Box(text).Width <= maxWidth)
    {
        return text;
    }
    // A longer beginning is never narrower, so the longest that fits is found by halving.
    const std::vector<int> lengths = BeginningsOf(text);
    std::size_t fits = 0;
    std::size_t tooLong = lengths.size();
    while (tooLong - fits > 1)
    {
        const std::size_t middle = (fits + tooLong) / 2;
        const bool narrow = measurer_.Box(text.Left(lengths[middle])).Width <= maxWidth - ellipsisWidth_;
        (narrow ? fits : tooLong) = middle;
    }
    return text.Left(lengths.empty() ? 0 : lengths[fits]) + Ellipsis;
}
