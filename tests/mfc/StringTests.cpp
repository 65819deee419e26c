// SPDX-License-Identifier: MIT
#include "../support/GTest.h"
#include "Utf8.h"

#include <map>

TEST(String, IsEmptyAtFirst)
{
    const CString text;
    EXPECT_EQ(text.GetLength(), 0);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(text.GetString()[0], L'\0');
    EXPECT_EQ(text.GetAt(0), L'\0');
}

TEST(String, IsMadeOfEveryKindOfText)
{
    EXPECT_EQ(Utf8(CString(L"城市")), "城市");
    EXPECT_EQ(CString(L"城市").GetLength(), 2);
    EXPECT_EQ(Utf8(CString(L"abcdef", 3)), "abc");
    EXPECT_EQ(CString(L"a\0b", 3).GetLength(), 3);
    EXPECT_EQ(Utf8(CString(L'x', 4)), "xxxx");
    EXPECT_EQ(Utf8(CString(L'x', 0)), "");
    EXPECT_EQ(Utf8(CString(L'x', -1)), "");
    EXPECT_EQ(Utf8(CString("plain")), "plain");
    EXPECT_EQ(Utf8(CString(static_cast<LPCWSTR>(nullptr))), "");
    EXPECT_EQ(Utf8(CString(static_cast<LPCSTR>(nullptr))), "");
}

TEST(String, TakesNarrowTextForTheAnsiCodePage)
{
    if (GetACP() != 936)
    {
        GTEST_SKIP() << "needs the code page 936";
    }
    EXPECT_EQ(Utf8(CString("\xB3\xC7\xCA\xD0")), "城市");
    CString text;
    text = "\xB3\xC7";
    EXPECT_EQ(Utf8(text), "城");
}

TEST(String, IsAValue)
{
    CString first = L"one";
    CString second = first;
    second += L"+";
    EXPECT_EQ(Utf8(first), "one");
    EXPECT_EQ(Utf8(second), "one+");

    CString moved = std::move(second);
    EXPECT_EQ(Utf8(moved), "one+");
    EXPECT_TRUE(second.IsEmpty()); // NOLINT(bugprone-use-after-move): a moved string is an empty one
    second = L"again";
    EXPECT_EQ(Utf8(second), "again");
    first = std::move(moved);
    EXPECT_EQ(Utf8(first), "one+");
    EXPECT_TRUE(moved.IsEmpty()); // NOLINT(bugprone-use-after-move)
}

TEST(String, IsAssignedFromItsOwnText)
{
    CString text = L"abcdef";
    text = text.GetString() + 2;
    EXPECT_EQ(Utf8(text), "cdef");
    text += text;
    EXPECT_EQ(Utf8(text), "cdefcdef");
    text += text.GetString() + 6;
    EXPECT_EQ(Utf8(text), "cdefcdefef");
    text = *&text;
    EXPECT_EQ(Utf8(text), "cdefcdefef");
    text = L'z';
    EXPECT_EQ(Utf8(text), "z");
}

TEST(String, GivesUnitsByIndexAndNullOutside)
{
    CString text = L"abc";
    EXPECT_EQ(text[0], L'a');
    EXPECT_EQ(text.GetAt(2), L'c');
    EXPECT_EQ(text[3], L'\0');
    EXPECT_EQ(text[-1], L'\0');
    EXPECT_EQ(text[100], L'\0');
    text.SetAt(1, L'B');
    text.SetAt(3, L'!');
    text.SetAt(-1, L'!');
    EXPECT_EQ(Utf8(text), "aBc");
    text.Empty();
    EXPECT_TRUE(text.IsEmpty());
}

TEST(String, IsJoinedWithEveryKindOfText)
{
    const CString text = L"b";
    EXPECT_EQ(Utf8(text + text), "bb");
    EXPECT_EQ(Utf8(text + L"c"), "bc");
    EXPECT_EQ(Utf8(L"a" + text), "ab");
    EXPECT_EQ(Utf8(text + L'c'), "bc");
    EXPECT_EQ(Utf8(L'a' + text), "ab");
    EXPECT_EQ(Utf8(text + static_cast<LPCWSTR>(nullptr)), "b");
    EXPECT_EQ(Utf8(text + CString()), "b");
}

TEST(String, ComparesByOrdinal)
{
    struct Row
    {
        const wchar_t* left;
        const wchar_t* right;
        int order;
        int orderNoCase;
    };
    const Row rows[] = {
        {L"", L"", 0, 0},          {L"", L"a", -1, -1},
        {L"a", L"", 1, 1},         {L"abc", L"abd", -1, -1},
        {L"abc", L"abcd", -1, -1}, {L"B", L"a", -1, 1},
        {L"ABC", L"abc", -1, 0},   {L"城市", L"城市", 0, 0},
        {L"Z", L"城", -1, -1},     {L"\x7FFF", L"\x8000", -1, -1},
    };
    const auto sign = [](int value) { return (value > 0) - (value < 0); };
    for (const Row& row : rows)
    {
        const CString left = row.left;
        const CString right = row.right;
        SCOPED_TRACE(Utf8(left) + " and " + Utf8(right));
        EXPECT_EQ(sign(left.Compare(row.right)), row.order);
        EXPECT_EQ(sign(left.CompareNoCase(row.right)), row.orderNoCase);
        EXPECT_EQ(left == right, row.order == 0);
        EXPECT_EQ(left != right, row.order != 0);
        EXPECT_EQ(left < right, row.order < 0);
        EXPECT_EQ(left <= right, row.order <= 0);
        EXPECT_EQ(left > right, row.order > 0);
        EXPECT_EQ(left >= right, row.order >= 0);
        EXPECT_EQ(left == row.right, row.order == 0);
        EXPECT_EQ(row.left == right, row.order == 0);
        EXPECT_EQ(left < row.right, row.order < 0);
        EXPECT_EQ(row.left < right, row.order < 0);
        EXPECT_EQ(row.left >= right, row.order >= 0);
    }
    EXPECT_TRUE(CString() == static_cast<LPCWSTR>(nullptr));
}

TEST(String, IsAKeyOfAMap)
{
    std::map<CString, int> numbers;
    numbers[L"二"] = 2;
    numbers[L"一"] = 1;
    EXPECT_EQ(numbers[CString(L"二")], 2);
    EXPECT_EQ(numbers.size(), 2u);
}

TEST(String, GivesABufferAndTakesItBack)
{
    CString text = L"abc";
    wchar_t* buffer = text.GetBuffer(10);
    EXPECT_EQ(buffer[0], L'a');
    EXPECT_EQ(buffer[3], L'\0');
    buffer[3] = L'd';
    text.ReleaseBuffer();
    EXPECT_EQ(Utf8(text), "abcd");
    text.GetBuffer(2);
    text.ReleaseBuffer(2);
    EXPECT_EQ(Utf8(text), "ab");
    text.GetBuffer(0)[0] = L'\0';
    text.ReleaseBuffer();
    EXPECT_TRUE(text.IsEmpty());

    CString empty;
    EXPECT_EQ(empty.GetBuffer(0)[0], L'\0');
    empty.ReleaseBuffer();
    EXPECT_TRUE(empty.IsEmpty());
    lstrcpyW(empty.GetBuffer(20), L"written");
    empty.ReleaseBuffer(100);
    EXPECT_EQ(empty.GetLength(), 20);
    empty.ReleaseBuffer();
    EXPECT_EQ(Utf8(empty), "written");
}
