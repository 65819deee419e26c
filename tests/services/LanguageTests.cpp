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
    const CString path =
        folder.Write(L"languages\\zh-CN.ini", "[Common]\nLKEY1=关闭\nLKEY10266.=点\nLKEY3=\n[Dialogs]\nLKEY1=别的\n");
    EXPECT_EQ(Translated("LKEY1"), "关闭");
    EXPECT_EQ(Translated("LKEY1", "Close"), "关闭");
    EXPECT_EQ(Translated("LKEY1", "", "Dialogs"), "别的");
    EXPECT_EQ(Translated("LKEY10266."), "点");
    EXPECT_EQ(Translated("LKEY10266"), "LKEY10266");
    EXPECT_EQ(Translated("LKEY20", "最小化"), "最小化");
    EXPECT_EQ(Translated("LKEY20"), "LKEY20");
    EXPECT_EQ(Translated("LKEY1", "", "Nowhere"), "LKEY1") << "the built-in texts are of one section";
    EXPECT_EQ(Translated("LKEY3"), "") << "a text that is there may be empty";
    EXPECT_EQ(Translated(""), "");
    const std::string begin = "The language table " + Utf8(path) + " has no text for ";
    const std::vector<std::string> report{begin + "LKEY10266; the key itself is shown.",
                                          begin + "LKEY20; the key itself is shown.", begin + "LKEY1; the key itself is shown."};
    EXPECT_EQ(folder.TakeLog(), report);
}

TEST(Language, ShowsTheBuiltInTextOfAKeyThatItsTableLacksAndReportsItOnce)
{
    TestFolder folder;
    const CString path = folder.Write(L"languages\\zh-CN.ini", "[Common]\nLKEY1=关\n");
    EXPECT_EQ(Translated("LKEY1"), "关");
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_EQ(Translated("LKEY2"), "最小化");
    }
    EXPECT_EQ(Translated("LKEY2", "min"), "min") << "a caller's own text goes before";
    const std::string line = "The language table " + Utf8(path) + " has no text for LKEY2; the built-in text is shown.";
    EXPECT_EQ(folder.TakeLog(), std::vector<std::string>{line});
}

TEST(Language, ReportsAHundredMissingKeysAtMost)
{
    TestFolder folder;
    folder.Write(L"languages\\zh-CN.ini", "[Common]\nLKEY1=关\n");
    for (int i = 0; i < 150; ++i)
    {
        const std::string key = "key " + std::to_string(i);
        EXPECT_EQ(Translated(key), key);
    }
    EXPECT_EQ(folder.TakeLog().size(), 100u);
}

TEST(Language, HasBuiltInTextsInEnglishForAllButChinese)
{
    TestFolder folder;
    const struct
    {
        const char* language;
        const char* close;
    } rows[] = {{"", "关闭"}, {"zh-CN", "关闭"}, {"zh-TW", "关闭"}, {"ZH", "关闭"}, {"en", "Close"}, {"fr", "Close"}};
    for (const auto& row : rows)
    {
        CParamConfig::getInstance()->setStringParam("Language", row.language);
        EXPECT_EQ(Translated("LKEY1"), row.close) << row.language;
    }
}

TEST(Language, TakesNoFolderForTheNameOfATable)
{
    TestFolder folder;
    folder.Write(L"secret.ini", "[Common]\nLKEY1=outside\n");
    folder.Write(L"languages\\zh-CN.ini", "[Common]\nLKEY1=关\n");
    for (const char* language : {"..\\secret", "../secret", "zh-CN\\..\\..\\secret", "C:secret", ".\\zh-CN"})
    {
        CParamConfig::getInstance()->setStringParam("Language", language);
        EXPECT_EQ(Translated("LKEY1"), language[0] == 'z' ? "关闭" : "Close") << language;
        EXPECT_EQ(Translated("LKEY2"), language[0] == 'z' ? "最小化" : "Minimize") << language;
        EXPECT_EQ(folder.TakeLog(), std::vector<std::string>{"The language \"" + std::string(language) +
                                                             "\" is not the name of a table; the built-in texts are shown."});
    }
    EXPECT_FALSE(CMultiLanguageMgr::IsTableName(L""));
    EXPECT_TRUE(CMultiLanguageMgr::IsTableName(L"城市"));
    EXPECT_TRUE(CMultiLanguageMgr::IsTableName(L"zh-CN"));
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
    EXPECT_EQ(Translated("LKEY2"), "最小化");
    EXPECT_EQ(folder.TakeLog(), report);
    EXPECT_EQ(Translated("LKEY20"), "LKEY20");
    EXPECT_EQ(folder.TakeLog(),
              std::vector<std::string>{"The language table " + table + " has no text for LKEY20; the key itself is shown."});
}

TEST(Language, ReportsMalformedLinesAndKeepsTheRest)
{
    TestFolder folder;
    const CString path =
        folder.Write(L"languages\\zh-CN.ini", Bytes("[Common]\nLKEY1=\xB9\xD8\nnonsense\n=x\n[bad\nLKEY2=a\0b\nLKEY3=进入\n"));
    EXPECT_EQ(Translated("LKEY3"), "进入");
    const std::string line = Utf8(path) + ", line ";
    const std::vector<std::string> report{
        line + "2: not valid UTF-8; the line is skipped.", line + "3: no '=' in it; the line is skipped.",
        line + "4: an empty key; the line is skipped.",    line + "5: a section bracket that is not closed; the line is skipped.",
        line + "6: a null in it; the line is skipped.",
    };
    EXPECT_EQ(folder.TakeLog(), report);
    EXPECT_EQ(Translated("LKEY1"), "关闭");
    EXPECT_EQ(Translated("LKEY2"), "最小化");
    EXPECT_EQ(folder.TakeLog().size(), 2u);
}

TEST(Language, RefusesATableOverFourMegabytes)
{
    TestFolder folder;
    const CString path = folder.Write(L"languages\\zh-CN.ini", "[Common]\nLKEY1=x\n;" + std::string(4 * 1024 * 1024, 'x'));
    EXPECT_EQ(Translated("LKEY1"), "关闭");
    EXPECT_EQ(folder.TakeLog(), std::vector<std::string>{"The file " + Utf8(path) + " is larger than 4 MB and is not read."});
}
