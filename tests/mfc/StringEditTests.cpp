// SPDX-License-Identifier: MIT
#include "../support/GTest.h"
#include "Utf8.h"

TEST(StringParts, AreCutToTheText)
{
    const CString text = L"abcdef";
    struct Row
    {
        const char* name;
        CString part;
        const char* expected;
    };
    const Row rows[] = {
        {"Left(2)", text.Left(2), "ab"},     {"Left(0)", text.Left(0), ""},
        {"Left(-1)", text.Left(-1), ""},     {"Left(9)", text.Left(9), "abcdef"},
        {"Right(2)", text.Right(2), "ef"},   {"Right(0)", text.Right(0), ""},
        {"Right(-1)", text.Right(-1), ""},   {"Right(9)", text.Right(9), "abcdef"},
        {"Mid(4)", text.Mid(4), "ef"},       {"Mid(6)", text.Mid(6), ""},
        {"Mid(9)", text.Mid(9), ""},         {"Mid(-1)", text.Mid(-1), "abcdef"},
        {"Mid(1,3)", text.Mid(1, 3), "bcd"}, {"Mid(4,9)", text.Mid(4, 9), "ef"},
        {"Mid(4,-1)", text.Mid(4, -1), ""},  {"Mid(1,INT_MAX)", text.Mid(1, 0x7FFFFFFF), "bcdef"},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(Utf8(row.part), row.expected) << row.name;
    }
}

TEST(StringFind, GivesTheFirstHitFromTheStart)
{
    const CString text = L"a城b城";
    EXPECT_EQ(text.Find(L'城'), 1);
    EXPECT_EQ(text.Find(L'城', 2), 3);
    EXPECT_EQ(text.Find(L'城', 4), -1);
    EXPECT_EQ(text.Find(L'城', 9), -1);
    EXPECT_EQ(text.Find(L'城', -1), -1);
    EXPECT_EQ(text.Find(L'x'), -1);
    EXPECT_EQ(text.Find(L'\0'), -1);
    EXPECT_EQ(text.Find(L"b城"), 2);
    EXPECT_EQ(text.Find(L"城", 2), 3);
    EXPECT_EQ(text.Find(L"城x"), -1);
    EXPECT_EQ(text.Find(L"", 4), 4);
    EXPECT_EQ(text.Find(static_cast<LPCWSTR>(nullptr)), -1);
    EXPECT_EQ(text.ReverseFind(L'城'), 3);
    EXPECT_EQ(text.ReverseFind(L'a'), 0);
    EXPECT_EQ(text.ReverseFind(L'x'), -1);
    EXPECT_EQ(CString().Find(L'x'), -1);
    EXPECT_EQ(CString().ReverseFind(L'x'), -1);
}

TEST(StringReplace, CountsWhatItReplaced)
{
    CString text = L"a/b/c";
    EXPECT_EQ(text.Replace(L'/', L'\\'), 2);
    EXPECT_EQ(Utf8(text), "a\\b\\c");
    EXPECT_EQ(text.Replace(L'x', L'y'), 0);
    EXPECT_EQ(text.Replace(L'a', L'a'), 0);
    EXPECT_EQ(text.Replace(L"\\", L"::"), 2);
    EXPECT_EQ(Utf8(text), "a::b::c");
    EXPECT_EQ(text.Replace(L"::", L""), 2);
    EXPECT_EQ(Utf8(text), "abc");
    EXPECT_EQ(text.Replace(L"b", nullptr), 1);
    EXPECT_EQ(Utf8(text), "ac");
    EXPECT_EQ(text.Replace(L"", L"x"), 0);
    text = L"aaa";
    EXPECT_EQ(text.Replace(L"aa", L"a"), 1);
    EXPECT_EQ(Utf8(text), "aa");
    EXPECT_EQ(text.Replace(L"a", L"aa"), 2);
    EXPECT_EQ(Utf8(text), "aaaa");
}

TEST(StringEdit, RemovesInsertsAndDeletes)
{
    CString text = L"a-b-c";
    EXPECT_EQ(text.Remove(L'-'), 2);
    EXPECT_EQ(Utf8(text), "abc");
    EXPECT_EQ(text.Remove(L'-'), 0);
    EXPECT_EQ(CString().Remove(L'-'), 0);
    EXPECT_EQ(text.Insert(1, L"XY"), 5);
    EXPECT_EQ(Utf8(text), "aXYbc");
    EXPECT_EQ(text.Insert(99, L'!'), 6);
    EXPECT_EQ(text.Insert(-1, L'?'), 7);
    EXPECT_EQ(Utf8(text), "?aXYbc!");
    EXPECT_EQ(text.Delete(0), 6);
    EXPECT_EQ(text.Delete(1, 2), 4);
    EXPECT_EQ(Utf8(text), "abc!");
    EXPECT_EQ(text.Delete(3, 99), 3);
    EXPECT_EQ(text.Delete(3), 3);
    EXPECT_EQ(text.Delete(0, -1), 3);
    EXPECT_EQ(Utf8(text), "abc");
    EXPECT_EQ(text.Delete(0, 3), 0);
    EXPECT_EQ(CString().Delete(0), 0);
}

TEST(StringTrim, TakesWhiteSpaceUnitsOrSets)
{
    EXPECT_EQ(Utf8(CString(L" \t\r\n a b \x3000\n").Trim()), "a b");
    EXPECT_EQ(Utf8(CString(L"  a ").TrimLeft()), "a ");
    EXPECT_EQ(Utf8(CString(L"  a ").TrimRight()), "  a");
    EXPECT_EQ(Utf8(CString(L"\\a\\").Trim(L'\\')), "a");
    EXPECT_EQ(Utf8(CString(L"\\a\\").TrimLeft(L'\\')), "a\\");
    EXPECT_EQ(Utf8(CString(L"\\a\\\\").TrimRight(L'\\')), "\\a");
    EXPECT_EQ(Utf8(CString(L"xyaxy").Trim(L"yx")), "a");
    EXPECT_EQ(Utf8(CString(L"xyaxy").TrimLeft(L"yx")), "axy");
    EXPECT_EQ(Utf8(CString(L"xyaxy").TrimRight(L"yx")), "xya");
    EXPECT_EQ(Utf8(CString(L"   ").Trim()), "");
    EXPECT_EQ(Utf8(CString().Trim()), "");
    EXPECT_EQ(Utf8(CString(L"a").Trim(L"")), "a");
}

TEST(StringCase, ChangesInPlace)
{
    CString text = L"aBc城É";
    EXPECT_EQ(Utf8(text.MakeUpper()), "ABC城É");
    EXPECT_EQ(Utf8(text.MakeLower()), "abc城é");
    EXPECT_EQ(Utf8(CString().MakeUpper()), "");
}
