// SPDX-License-Identifier: MIT
#pragma once

#include "Gdiplus.h"

#include <atlstr.h>

/// Measures texts in one font on the desktop's device context, without wrapping.
class TextMeasurer
{
public:
    /// @param pixels em height
    TextMeasurer(const CString& fontName, float pixels, gp::TextRenderingHint hint);
    virtual ~TextMeasurer();
    TextMeasurer(const TextMeasurer&) = delete;
    TextMeasurer& operator=(const TextMeasurer&) = delete;

    /// The text's box in pixels; 0 x 0 for an empty text, an empty or unknown font, or without a device context.
    virtual gp::RectF Box(const CString& text) const;

private:
    HDC dc_;
    gp::Graphics graphics_;
    gp::FontFamily family_;
    gp::Font font_;
    gp::StringFormat format_;
};
