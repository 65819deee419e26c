// SPDX-License-Identifier: MIT
#include "../support/GTest.h"
#include "Utf8.h"

namespace
{
template <class... Arguments>
std::string Formatted(const wchar_t* format, Arguments... arguments)
{
    CString text;
    text.Format(format, arguments...);
    return Utf8(text);
}
} // namespace

TEST(Format, WritesWholeNumbers)
{
    EXPECT_EQ(Formatted(L"%d", 42), "42");
    EXPECT_EQ(Formatted(L"%i", -42), "-42");
    EXPECT_EQ(Formatted(L"%5d|%-5d|%05d|%+d|% d", 42, 42, 42, 42, 42), "   42|42   |00042|+42| 42");
    EXPECT_EQ(Formatted(L"%.4d|%6.4d", 42, 42), "0042|  0042");
    EXPECT_EQ(Formatted(L"%*d|%-*d|%*d", 4, 1, 4, 2, -4, 3), "   1|2   |3   ");
    EXPECT_EQ(Formatted(L"%.*d", 3, 7), "007");
    EXPECT_EQ(Formatted(L"%u", 4294967295u), "4294967295");
    EXPECT_EQ(Formatted(L"%x|%X|%#x|%08X|%o", 255u, 255u, 255u, 0xABCDu, 8u), "ff|FF|0xff|0000ABCD|10");
    EXPECT_EQ(Formatted(L"%d", static_cast<int>(0x80000000)), "-2147483648");
    EXPECT_EQ(Formatted(L"%hd|%hu", 65537, 65537), "1|1");
}

TEST(Format, TakesLongFor32Bits)
{
    EXPECT_EQ(Formatted(L"%ld|%lu|%lx", static_cast<LONG>(-5), static_cast<DWORD>(4294967291u), static_cast<DWORD>(255)),
              "-5|4294967291|ff");
    EXPECT_EQ(Formatted(L"%ld", static_cast<long>(-7)), "-7");
}

TEST(Format, Writes64Bits)
{
    EXPECT_EQ(Formatted(L"%I64d|%lld", -1234567890123LL, 9007199254740993LL), "-1234567890123|9007199254740993");
    EXPECT_EQ(Formatted(L"%I64u|%I64x|%016I64X", 18446744073709551615ULL, 0x1234567890ULL, 0xABCULL),
              "18446744073709551615|1234567890|0000000000000ABC");
}

TEST(Format, WritesFractions)
{
    EXPECT_EQ(Formatted(L"%f|%.2f|%8.1f|%-8.1f|%+.0f", 0.5, 0.125, 2.25, 2.75, 3.0), "0.500000|0.12|     2.2|2.8     |+3");
    EXPECT_EQ(Formatted(L"%g|%g|%.3g|%e", 0.5, 1e20, 3.14159, 12345.0), "0.5|1e+20|3.14|1.234500e+04");
    EXPECT_EQ(Formatted(L"%lf", 1.5), "1.500000");
    EXPECT_EQ(Formatted(L"%.1f and %d", 1.5, 2), "1.5 and 2");
}

TEST(Format, WritesText)
{
    const CString text = L"城市";
    EXPECT_EQ(Formatted(L"%s", text.GetString()), "城市");
    EXPECT_EQ(Formatted(L"[%4s][%-4s][%.1s]", text.GetString(), text.GetString(), text.GetString()), "[  城市][城市  ][城]");
    EXPECT_EQ(Formatted(L"%ls", L"wide"), "wide");
    EXPECT_EQ(Formatted(L"%s", static_cast<LPCWSTR>(nullptr)), "(null)");
    EXPECT_EQ(Formatted(L"%s%s%s.bmp", L"a\\", L"b\\", L"c"), "a\\b\\c.bmp");
    EXPECT_EQ(Formatted(L"%S|%hs", "narrow", "text"), "narrow|text");
    EXPECT_EQ(Formatted(L"%c%c|%3c|%-3c|", L'a', L'城', L'x', L'y'), "a城|  x|y  |");
    const wchar_t unended[] = {L'a', L'b'};
    EXPECT_EQ(Formatted(L"%.2s", static_cast<LPCWSTR>(unended)), "ab");
}

TEST(Format, CopiesWhatItDoesNotKnow)
{
    EXPECT_EQ(Formatted(L"100%%"), "100%");
    EXPECT_EQ(Formatted(L"%q|%5Q"), "%q|%5Q");
    EXPECT_EQ(Formatted(L"100%"), "100%");
    EXPECT_EQ(Formatted(L"%-0"), "%-0");
    EXPECT_EQ(Formatted(L""), "");
    EXPECT_EQ(Formatted(static_cast<LPCWSTR>(nullptr)), "");
}

TEST(Format, ReadsItsOwnText)
{
    CString text = L"abc";
    text.Format(L"<%s>", text.GetString());
    EXPECT_EQ(Utf8(text), "<abc>");
    CString longText;
    longText.Format(L"%s%5000d", CString(L'x', 5000).GetString(), 1);
    EXPECT_EQ(longText.GetLength(), 10000);
}
