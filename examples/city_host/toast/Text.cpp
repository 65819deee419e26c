// SPDX-License-Identifier: MIT
#include "Text.h"

#include <atlimage.h>

namespace host
{
namespace
{

/// A memory device context with a font in it.
class FontContext
{
public:
    FontContext(const CString& family, int pixels, bool bold)
        : dc_(CreateCompatibleDC(nullptr)),
          font_(CreateFontW(-pixels, 0, 0, 0, bold ? FW_BOLD : FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                            OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, ANTIALIASED_QUALITY, DEFAULT_PITCH | FF_DONTCARE, family)),
          formerFont_(SelectObject(dc_, font_))
    {
    }
    ~FontContext()
    {
        SelectObject(dc_, formerFont_);
        DeleteObject(font_);
        DeleteDC(dc_);
    }
    FontContext(const FontContext&) = delete;
    FontContext& operator=(const FontContext&) = delete;

    CSize Measure(const CString& text) const
    {
        SIZE size = {};
        GetTextExtentPoint32W(dc_, text, text.GetLength(), &size);
        return CSize(size.cx, size.cy);
    }
    HFONT Font() const { return font_; }

private:
    HDC dc_;
    HFONT font_;
    HGDIOBJ formerFont_;
};

} // namespace

CSize MeasureText(const CString& text, const CString& family, int pixels, bool bold)
{
    return FontContext(family, pixels, bold).Measure(text);
}

TextMask DrawTextMask(const CString& text, const CString& family, int pixels, bool bold)
{
    TextMask mask;
    const FontContext font(family, pixels, bold);
    const CSize size = font.Measure(text);
    CImage picture;
    if (size.cx <= 0 || size.cy <= 0 || !picture.Create(size.cx, -size.cy, 32))
    {
        return mask;
    }
    const HDC dc = picture.GetDC();
    const HGDIOBJ formerFont = SelectObject(dc, font.Font());
    // White on black: the brightness then is the coverage.
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, RGB(255, 255, 255));
    TextOutW(dc, 0, 0, text, text.GetLength());
    GdiFlush();
    SelectObject(dc, formerFont);
    picture.ReleaseDC();

    mask.width = size.cx;
    mask.height = size.cy;
    mask.coverage.reserve(static_cast<std::size_t>(size.cx) * size.cy);
    for (int y = 0; y < size.cy; ++y)
    {
        const auto* row =
            static_cast<const unsigned char*>(picture.GetBits()) + static_cast<std::ptrdiff_t>(y) * picture.GetPitch();
        for (int x = 0; x < size.cx; ++x)
        {
            mask.coverage.push_back(row[x * 4 + 1]);
        }
    }
    return mask;
}

} // namespace host
