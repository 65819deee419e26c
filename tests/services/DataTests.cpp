// SPDX-License-Identifier: MIT
#include "../support/GTest.h"
#include "TestFolder.h"

#include <KernelCommonUse/MultiLanguage.h>
#include <NxConfig/ParamConfig.h>
#include <NxConfig/SystemUtility.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

// The application's own data files, read by the services.
namespace
{
std::string BytesOf(const std::string& name)
{
    std::ifstream file(NX_APP_DATA "/" + name, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

const char* const Keys[] = {"LKEY0",     "LKEY1",     "LKEY2",     "LKEY3",      "LKEY4",     "LKEY5",     "LKEY6",
                            "LKEY7",     "LKEY8",     "LKEY9",     "LKEY10",     "LKEY11",    "LKEY12",    "LKEY30",
                            "LKEY31",    "LKEY32",    "LKEY33",    "LKEY34",     "LKEY67",    "LKEY10134", "LKEY10159",
                            "LKEY10160", "LKEY10161", "LKEY10239", "LKEY10266.", "LKEY10361", "LKEY10362"};
} // namespace

TEST(ApplicationData, HasATextForEveryKeyInBothLanguages)
{
    TestFolder folder;
    folder.Write(L"languages\\zh-CN.ini", BytesOf("languages/zh-CN.ini"));
    folder.Write(L"languages\\en.ini", BytesOf("languages/en.ini"));
    CMultiLanguageMgr* manager = CMultiLanguageMgr::GetInstance();
    for (const char* language : {"zh-CN", "en"})
    {
        CParamConfig::getInstance()->setStringParam("Language", language);
        for (const char* key : Keys)
        {
            const CString text = manager->translation(key, "", "Common");
            EXPECT_NE(Utf8(text), key) << language;
            EXPECT_FALSE(text.IsEmpty()) << language << ": " << key;
        }
        EXPECT_EQ(Utf8(manager->translation("LKEY11", "", "Common")), "Noto Sans CJK SC");
    }
    EXPECT_EQ(Utf8(manager->translation("LKEY0", "", "Common")), "Riverside Masterplan");
    CParamConfig::getInstance()->setStringParam("Language", "zh-CN");
    EXPECT_EQ(Utf8(manager->translation("LKEY0", "", "Common")), "滨江新城总体规划");
    EXPECT_EQ(folder.TakeLog(), std::vector<std::string>());
}

TEST(ApplicationData, HasTheTextsThatAreBuiltIn)
{
    std::vector<std::string> built[2];
    std::vector<std::string> shipped[2];
    const char* const languages[] = {"zh-CN", "en"};
    CMultiLanguageMgr* manager = CMultiLanguageMgr::GetInstance();
    for (const bool withTables : {false, true})
    {
        TestFolder folder;
        if (withTables)
        {
            folder.Write(L"languages\\zh-CN.ini", BytesOf("languages/zh-CN.ini"));
            folder.Write(L"languages\\en.ini", BytesOf("languages/en.ini"));
        }
        for (int i = 0; i < 2; ++i)
        {
            CParamConfig::getInstance()->setStringParam("Language", languages[i]);
            for (const char* key : Keys)
            {
                (withTables ? shipped : built)[i].push_back(Utf8(manager->translation(key, "", "Common")));
            }
        }
    }
    EXPECT_EQ(built[0], shipped[0]);
    EXPECT_EQ(built[1], shipped[1]);
    EXPECT_NE(built[0], built[1]);
}

TEST(ApplicationData, EveryKeyOfATableIsAmongThoseThatAreChecked)
{
    for (const char* table : {"languages/zh-CN.ini", "languages/en.ini"})
    {
        std::istringstream lines(BytesOf(table));
        int count = 0;
        for (std::string line; std::getline(lines, line);)
        {
            if (line.rfind("LKEY", 0) == 0)
            {
                const std::string key = line.substr(0, line.find('='));
                EXPECT_NE(std::find(std::begin(Keys), std::end(Keys), key), std::end(Keys)) << key;
                ++count;
            }
        }
        EXPECT_EQ(count, std::end(Keys) - std::begin(Keys)) << table;
    }
}

TEST(ApplicationData, HasParametersAndDirectories)
{
    TestFolder folder;
    folder.Write(L"config\\parameters.ini", BytesOf("config/parameters.ini"));
    folder.Write(L"config\\directories.ini", BytesOf("config/directories.ini"));
    EXPECT_EQ(CParamConfig::getInstance()->getStringParam("CEGUI_SkinDir"), "cegui\\TavLook\\");
    EXPECT_EQ(CParamConfig::getInstance()->getStringParam("Language"), "zh-CN");
    EXPECT_EQ(CParamConfig::getInstance()->getStringParam("QMV发布右键菜单"), "");
    EXPECT_EQ(Utf8(SystemUtility::GetResourceRelPath()), "resource\\");
    EXPECT_EQ(Utf8(SystemUtility::GetCeguiResRelPath()), "resource\\cegui\\TavLook\\");
    EXPECT_EQ(Utf8(SystemUtility::GetSysMidPath()), "sysmid\\");
    EXPECT_EQ(folder.TakeLog(), std::vector<std::string>());
}
