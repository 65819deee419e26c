// SPDX-License-Identifier: MIT
#include "../support/GTest.h"
#include "TestFolder.h"

#include <KernelCommonUse/MultiLanguage.h>
#include <NxConfig/ParamConfig.h>
#include <NxConfig/SystemUtility.h>

namespace
{
std::string Translated(const std::string& key, const std::string& defaultText = "", const std::string& section = "Common")
{
    return Utf8(CMultiLanguageMgr::GetInstance()->translation(key, defaultText, section));
}
} // namespace

TEST(Language, GivesTheTextTheDefaultOrTheKey)
{
    TestFolder folder;
    folder.Write(L"languages\\zh-CN.ini", "[Common]\nLKEY1=关闭\nLKEY10266.=点\n[Dialogs]\nLKEY1=别的\n");
    EXPECT_EQ(Translated("LKEY1"), "关闭");
    EXPECT_EQ(Translated("LKEY1", "Close"), "关闭");
    EXPECT_EQ(Translated("LKEY1", "", "Dialogs"), "别的");
    EXPECT_EQ(Translated("LKEY10266."), "点");
    EXPECT_EQ(Translated("LKEY10266"), "LKEY10266");
    EXPECT_EQ(Translated("LKEY2", "最小化"), "最小化");
    EXPECT_EQ(Translated("LKEY2"), "LKEY2");
    EXPECT_EQ(Translated("LKEY1", "", "Nowhere"), "LKEY1");
    EXPECT_EQ(Translated(""), "");
    EXPECT_EQ(folder.TakeLog(), std::vector<std::string>());
}

TEST(Language, ChangesAtRunTime)
{
    TestFolder folder;
    folder.Write(L"config\\parameters.ini", "[Parameters]\nLanguage=en\n");
    folder.Write(L"languages\\en.ini", "[Common]\nLKEY1=Close\n");
    folder.Write(L"languages\\zh-CN.ini", "\xEF\xBB\xBF[Common]\nLKEY1=关闭\n");
    EXPECT_EQ(Translated("LKEY1"), "Close");
    CParamConfig::getInstance()->setStringParam("Language", "zh-CN");
    EXPECT_EQ(Translated("LKEY1"), "关闭");
    CParamConfig::getInstance()->setStringParam("Language", "en");
    EXPECT_EQ(Translated("LKEY1"), "Close");
    CParamConfig::getInstance()->setStringParam("Language", "");
    EXPECT_EQ(Translated("LKEY1"), "关闭");
}

TEST(Language, FollowsTheApplicationDirectory)
{
    TestFolder first;
    first.Write(L"languages\\zh-CN.ini", "[Common]\nLKEY1=一\n");
    EXPECT_EQ(Translated("LKEY1"), "一");
    TestFolder second;
    second.Write(L"languages\\zh-CN.ini", "[Common]\nLKEY1=二\n");
    EXPECT_EQ(Translated("LKEY1"), "二");
    first.Write(L"languages\\zh-CN.ini", "[Common]\nLKEY1=三\n");
    SystemUtility::SetAppPath(first.Path());
    EXPECT_EQ(Translated("LKEY1"), "三");
}

TEST(Language, ReadsATableInAChineseFolder)
{
    TestFolder folder(L"规划");
    if (!folder.Exists())
    {
        GTEST_SKIP() << "needs a file system code page with Chinese characters";
    }
    folder.Write(L"languages\\城市.ini", "[Common]\nLKEY1=关闭\n");
    CParamConfig::getInstance()->setStringParam("Language", GetACP() == 936 ? "\xB3\xC7\xCA\xD0" : "none");
    EXPECT_EQ(Translated("LKEY1", "missing"), GetACP() == 936 ? "关闭" : "missing");
}

TEST(Language, ReportsAMissingTableOnce)
{
    TestFolder folder;
    const std::string table = Utf8(folder.Path()) + "languages\\zh-CN.ini";
    const std::vector<std::string> report{"The language table " + table + " is missing; the built-in texts are shown."};
    EXPECT_EQ(Translated("LKEY1", "Close"), "Close");
    EXPECT_EQ(Translated("LKEY2"), "LKEY2");
    EXPECT_EQ(folder.TakeLog(), report);
}

TEST(Language, ReportsMalformedLinesAndKeepsTheRest)
{
    TestFolder folder;
    const CString path =
        folder.Write(L"languages\\zh-CN.ini", Bytes("[Common]\nLKEY1=\xB9\xD8\nnonsense\n=x\n[bad\nLKEY2=a\0b\nLKEY3=进入\n"));
    EXPECT_EQ(Translated("LKEY1"), "LKEY1");
    EXPECT_EQ(Translated("LKEY2"), "LKEY2");
    EXPECT_EQ(Translated("LKEY3"), "进入");
    const std::string line = Utf8(path) + ", line ";
    const std::vector<std::string> report{
        line + "2: not valid UTF-8; the line is skipped.", line + "3: no '=' in it; the line is skipped.",
        line + "4: an empty key; the line is skipped.",    line + "5: a section bracket that is not closed; the line is skipped.",
        line + "6: a null in it; the line is skipped.",
    };
    EXPECT_EQ(folder.TakeLog(), report);
}

TEST(Language, RefusesATableOverFourMegabytes)
{
    TestFolder folder;
    const CString path = folder.Write(L"languages\\zh-CN.ini", "[Common]\nLKEY1=x\n;" + std::string(4 * 1024 * 1024, 'x'));
    EXPECT_EQ(Translated("LKEY1"), "LKEY1");
    EXPECT_EQ(folder.TakeLog(), std::vector<std::string>{"The file " + Utf8(path) + " is larger than 4 MB and is not read."});
}
