// SPDX-License-Identifier: MIT
// Texts cut to a column's width, against a loop that drops one character at a time.
#include "PanelTest.h"

#include <panels/ShortenText.h>

#include <cmath>

namespace
{
class CountingMeasurer : public TextMeasurer
{
public:
    CountingMeasurer() : TextMeasurer(L"Noto Sans CJK SC", 12, gp::TextRenderingHintClearTypeGridFit) {}
    gp::RectF Box(const CString& text) const override
    {
        ++count;
        return TextMeasurer::Box(text);
    }
    float Width(const CString& text) const { return TextMeasurer::Box(text).Width; }
    mutable int count = 0;
};

CString WithoutLastCharacter(const CString& text)
{
    const int length = text.GetLength();
    const bool pair = length >= 2 && IS_LOW_SURROGATE(text.GetAt(length - 1)) && IS_HIGH_SURROGATE(text.GetAt(length - 2));
    return text.Left(length - (pair ? 2 : 1));
}

CString Naive(const CountingMeasurer& measurer, const CString& text, float maxWidth)
{
    if (measurer.Width(text) <= maxWidth)
    {
        return text;
    }
    CString rest = text;
    while (!rest.IsEmpty() && measurer.Width(rest) > maxWidth - measurer.Width(L"..."))
    {
        rest = WithoutLastCharacter(rest);
    }
    return rest + L"...";
}

/// Growing texts of one kind.
std::vector<CString> Texts()
{
    std::vector<CString> texts;
    for (const wchar_t* piece : {L"i", L"W", L"面", L"\xD83C\xDFD9", L"a\xD83C\xDFD9", L"Height m ", L"层高3.6", L"é", L"、",
                                 L"AV", L"x\xD83C", L"\xDFD9y", L"\t", L"e\x0301", L"1\n2", L"."})
    {
        for (int times = 1; times <= 30; ++times)
        {
            texts.push_back(Repeated(piece, times));
        }
    }
    for (const wchar_t* text : {L"建筑高度（不含屋顶设备）", L"Floor area above ground", L"   leading blanks and more",
                                L"trailing blanks          ", L"a      b       c        d", L"first\r\nsecond line, longer"})
    {
        texts.push_back(text);
    }
    texts.push_back(Repeated(L"占地面积 footprint \xD83C\xDFD9 ", 40));
    return texts;
}
} // namespace

TEST(ShortenTextTest, gives_what_dropping_one_character_after_the_other_gives)
{
    const CountingMeasurer measurer;
    const TextShortener shortener(measurer);
    int shortened = 0;
    for (const CString& text : Texts())
    {
        for (const float width : {80.0f, 110.0f})
        {
            const CString fit = shortener.Fit(text, width);
            ASSERT_EQ(Utf8(fit), Utf8(Naive(measurer, text, width))) << Utf8(text) << " in " << width;
            shortened += fit != text;
        }
    }
    EXPECT_GT(shortened, 300) << "the texts are long enough to say something";
}

TEST(ShortenTextTest, a_text_of_exactly_the_width_is_whole_and_a_pixel_less_room_cuts_it)
{
    const CountingMeasurer measurer;
    const TextShortener shortener(measurer);
    for (const wchar_t* text : {L"Footprint area", L"建筑占地面积", L"WWWWWWW"})
    {
        const float width = measurer.Width(text);
        EXPECT_EQ(Utf8(shortener.Fit(text, width)), Utf8(text));
        const CString cut = shortener.Fit(text, width - 1);
        EXPECT_EQ(Utf8(cut.Right(3)), "...");
        EXPECT_LT(cut.GetLength() - 3, CString(text).GetLength());
        EXPECT_LE(measurer.Width(cut.Left(cut.GetLength() - 3)) + measurer.Width(L"..."), width - 1);
        EXPECT_LE(measurer.Width(cut), width - 1);
        EXPECT_EQ(Utf8(cut), Utf8(Naive(measurer, text, width - 1)));
    }
}

TEST(ShortenTextTest, no_shortened_text_is_wider_than_its_column)
{
    const CountingMeasurer measurer;
    const TextShortener shortener(measurer);
    for (const CString& text : Texts())
    {
        EXPECT_LE(measurer.Width(shortener.Fit(text, 80)), 80) << Utf8(text);
        EXPECT_LE(measurer.Width(shortener.Fit(text, 110)), 110) << Utf8(text);
    }
}

TEST(ShortenTextTest, one_character_wider_than_the_column_leaves_the_dots_alone)
{
    // In a font of 200 pixels one character is wider than the column of values.
    const TextMeasurer measurer(L"Noto Sans CJK SC", 200, gp::TextRenderingHintClearTypeGridFit);
    const TextShortener shortener(measurer);
    ASSERT_GT(measurer.Box(L"面").Width, 110);
    EXPECT_EQ(Utf8(shortener.Fit(L"面", 110)), "...");
    EXPECT_EQ(Utf8(shortener.Fit(L"\xD83C\xDFD9", 110)), "...");
    EXPECT_EQ(Utf8(shortener.Fit(L"面积", 110)), "...");
}

TEST(ShortenTextTest, an_empty_text_stays_empty)
{
    const CountingMeasurer measurer;
    EXPECT_EQ(Utf8(TextShortener(measurer).Fit(L"", 80)), "");
}

TEST(ShortenTextTest, a_surrogate_pair_is_never_cut_in_half)
{
    const CountingMeasurer measurer;
    const TextShortener shortener(measurer);
    for (const wchar_t* piece : {L"\xD83C\xDFD9", L"\xD83C\xDFD9i"})
    {
        for (float width = 60; width < 100; width += 0.5f)
        {
            const CString cut = shortener.Fit(Repeated(piece, 20), width);
            ASSERT_GT(cut.GetLength(), 3);
            EXPECT_FALSE(IS_HIGH_SURROGATE(cut.GetAt(cut.GetLength() - 4))) << width;
        }
    }
}

TEST(ShortenTextTest, measures_no_more_often_than_the_logarithm_of_the_length)
{
    CountingMeasurer measurer;
    const TextShortener shortener(measurer);
    EXPECT_LE(measurer.count, 1) << "the dots, once for all texts";
    for (const int length : {1, 2, 3, 10, 100, 1000, 5000})
    {
        measurer.count = 0;
        shortener.Fit(Repeated(L"W", length), 80);
        EXPECT_LE(measurer.count, 2 + std::log2(length)) << length;
    }
}
