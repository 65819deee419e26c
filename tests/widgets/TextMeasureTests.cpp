// SPDX-License-Identifier: MIT
// The size of texts before they are drawn.
#include "Fonts.h"
#include "Sheet.h"

#include <widgets/Gdiplus.h>
#include <widgets/TextPicture.h>

#include <cmath>

namespace
{
class TextMeasure : public SheetTest
{
protected:
    static RECT Measured(const CString& font, const CString& text)
    {
        RECT rect = {1, 2, 3, 4};
        MeasureTextSize(rect, font, text);
        return rect;
    }
};

/// The text's box as GDI+ gives it on a bitmap.
gp::RectF Box(const wchar_t* font, float pixels, const CString& text, gp::TextRenderingHint hint)
{
    const gp::Bitmap bitmap = gp::NewBitmap(8, 8);
    const gp::Graphics graphics = gp::GraphicsOf(bitmap.get());
    gp::SetQuality(graphics.get(), hint);
    const gp::FontFamily family = gp::NewFontFamily(font);
    const gp::Font used = gp::NewFont(family.get(), pixels);
    const gp::StringFormat format = gp::NewStringFormat();
    const gp::RectF layout = {0, 0, 0, 0};
    gp::RectF box = {0, 0, 0, 0};
    gp::GdipMeasureString(graphics.get(), text, text.GetLength(), used.get(), &layout, format.get(), &box, nullptr, nullptr);
    return box;
}
} // namespace

TEST_F(TextMeasure, nothing_to_measure_is_an_empty_rectangle)
{
    EXPECT_EQ(Text(Measured(Latin, L"")), Text({0, 0, 0, 0}));
    EXPECT_EQ(Text(Measured(L"", L"text")), Text({0, 0, 0, 0}));
    EXPECT_EQ(Text(Measured(L"", L"")), Text({0, 0, 0, 0}));
    EXPECT_EQ(Text(Measured(L"No Such Family", L"text")), Text({0, 0, 0, 0}));
    EXPECT_EQ(MeasureTextExtent(Latin, 20, L""), CSize(0, 0));
    EXPECT_EQ(MeasureTextExtent(L"", 20, L"text"), CSize(0, 0));
    EXPECT_EQ(MeasureTextExtent(L"No Such Family", 20, L"text"), CSize(0, 0));
}

TEST_F(TextMeasure, box_is_rounded_up_at_sixteen_pixels)
{
    for (const wchar_t* text : {L"x", L"Text", L"some longer text with blanks", L"two\nlines"})
    {
        const gp::RectF box = Box(Latin, 16, text, gp::TextRenderingHintAntiAlias);
        ASSERT_GT(box.Width, 0);
        EXPECT_EQ(Text(Measured(Latin, text)),
                  Text({0, 0, static_cast<LONG>(std::ceil(box.Width)), static_cast<LONG>(std::ceil(box.Height))}))
            << Utf8(text);
    }
}

TEST_F(TextMeasure, box_is_as_large_as_the_text_is_drawn_at_sixteen_pixels)
{
    const RECT rect = Measured(Latin, L"HHHHHHHHHH");
    // A capital H of this font is 0.752 of the em wide, and a line 1.164 high.
    EXPECT_NEAR(rect.right, 10 * 0.752 * 16, 10);
    EXPECT_NEAR(rect.bottom, 1.164 * 16, 2);
}

TEST_F(TextMeasure, text_is_measured_whole_and_on_one_line)
{
    const RECT one = Measured(Latin, L"word");
    const RECT many = Measured(Latin, L"word word word word word word word word word word word word word word word");
    EXPECT_EQ(many.bottom, one.bottom);
    EXPECT_GT(many.right, 12 * one.right);
    EXPECT_GT(Measured(Latin, L"word\nword").bottom, one.bottom + 14);
}

TEST_F(TextMeasure, chinese_characters_are_an_em_wide)
{
    const RECT two = Measured(Chinese, L"规划");
    const RECT six = Measured(Chinese, L"规划规划规划");
    EXPECT_EQ(six.right - two.right, 64);
    EXPECT_EQ(six.bottom, two.bottom);
}

TEST_F(TextMeasure, extent_follows_the_font_height)
{
    for (const int height : {10, 16, 30, 64})
    {
        const gp::RectF box = Box(Latin, static_cast<float>(height), L"Some title", gp::TextRenderingHintAntiAliasGridFit);
        EXPECT_EQ(MeasureTextExtent(Latin, height, L"Some title"),
                  CSize(static_cast<int>(std::ceil(box.Width)), static_cast<int>(std::ceil(box.Height))))
            << height;
    }
    const CSize low = MeasureTextExtent(Latin, 20, L"Some title");
    const CSize high = MeasureTextExtent(Latin, 80, L"Some title");
    EXPECT_NEAR(high.cx, 4 * low.cx, low.cx * 0.4);
    EXPECT_NEAR(high.cy, 4 * low.cy, 6);
}
