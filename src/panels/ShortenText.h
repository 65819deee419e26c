// SPDX-License-Identifier: MIT
#pragma once

#include "../widgets/TextMeasurer.h"

/// Shortens texts to a width as dropping one character after the other from the end would, until the rest and "..." fit.
/// A surrogate pair is one character.
class TextShortener
{
public:
    /// @param measurer has to outlive this object
    explicit TextShortener(const TextMeasurer& measurer);

    /// The text itself when it is no wider than maxWidth pixels, else the longest beginning of it that leaves room for "...",
    /// followed by "...". Measures no more often than log2 of the text's length plus 2.
    CString Fit(const CString& text, float maxWidth) const;

private:
    const TextMeasurer& measurer_;
    float ellipsisWidth_;
};
