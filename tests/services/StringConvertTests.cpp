// SPDX-License-Identifier: MIT
#include "../support/GTest.h"
#include "TestFolder.h"

#include <KernelCommonUse/FileOp.h>
#include <KernelCommonUse/ServiceLog.h>
#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/SystemUtility.h>

TEST(StringConvert, GoesToUtf8AndBack)
{
    const wchar_t building[] = {0xD83C, 0xDFD9, 0};
    struct Row
    {
        const char* name;
        CString wide;
        std::string utf8;
    };
    const Row rows[] = {
        {"empty", L"", ""},
        {"ASCII", L"abc", "abc"},
        {"Chinese", L"城市", "城市"},
        {"surrogates", building, "\xF0\x9F\x8F\x99"},
        {"null inside", CString(L"a\0b", 3), Bytes("a\0b")},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(CString2string(row.wide), row.utf8) << row.name;
        EXPECT_EQ(CString2string(Utf8ToCString(row.utf8)), row.utf8) << row.name;
        EXPECT_EQ(Utf8ToCString(row.utf8).GetLength(), row.wide.GetLength()) << row.name;
    }
    EXPECT_EQ(CString2string(Utf8ToCString("a\xFFz")), "a\xEF\xBF\xBDz");
}

TEST(StringConvert, CountsTwoBytesForAChineseCharacterInCodePage936)
{
    if (GetACP() != 936)
    {
        GTEST_SKIP() << "needs the code page 936";
    }
    EXPECT_EQ(strUtf8ToAnsi("城市ab"), "\xB3\xC7\xCA\xD0"
                                       "ab");
    EXPECT_EQ(_w2a(L"城市"), "\xB3\xC7\xCA\xD0");
    EXPECT_EQ(Utf8(_a2w("\xB3\xC7\xCA\xD0")), "城市");
    EXPECT_EQ(strUtf8ToAnsi(""), "");
    EXPECT_EQ(_w2a(L"\x0E01"), "?");
}

TEST(StringConvert, PutsQuestionMarksWhereTheCodePageHasNoCharacter)
{
    if (GetACP() != 1252)
    {
        GTEST_SKIP() << "needs the code page 1252";
    }
    EXPECT_EQ(strUtf8ToAnsi("城市é"), "??\xE9");
    EXPECT_EQ(Utf8(_a2w("\xE9\x80")), "é€");
}

TEST(FileOp, KnowsFilesFromFolders)
{
    TestFolder folder;
    const CString file = folder.Write(L"data\\a b.txt", "x");
    EXPECT_TRUE(FileOp::FileExist(file));
    EXPECT_FALSE(FileOp::FileExist(folder.Path() + L"data"));
    EXPECT_FALSE(FileOp::FileExist(folder.Path() + L"none"));
    EXPECT_FALSE(FileOp::FileExist(L""));
    EXPECT_EQ(Utf8(FileOp::GetAppPath()), Utf8(folder.Path()));
}

namespace
{
std::vector<std::string> collected;

void CollectHere(const std::string& line)
{
    collected.push_back(line);
}
} // namespace

TEST(ServiceLog, KeepsLinesUntilThereIsASink)
{
    SetServiceLogSink(CollectHere);
    SetServiceLogSink(nullptr);
    collected.clear();
    for (int number = 0; number < 130; ++number)
    {
        ServiceLog("行" + std::to_string(number));
    }
    EXPECT_TRUE(collected.empty());
    SetServiceLogSink(CollectHere);
    ASSERT_EQ(collected.size(), 100u);
    EXPECT_EQ(collected.front(), "行0");
    EXPECT_EQ(collected.back(), "行99");
    ServiceLog("now");
    EXPECT_EQ(collected.back(), "now");
    SetServiceLogSink(nullptr);
    ServiceLog("kept");
    EXPECT_EQ(collected.size(), 101u);
    SetServiceLogSink(CollectHere);
    ASSERT_EQ(collected.size(), 102u);
    EXPECT_EQ(collected.back(), "kept");
    SetServiceLogSink(nullptr);
}
