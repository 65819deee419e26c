// SPDX-License-Identifier: MIT
#include "../support/GTest.h"
#include "TestFolder.h"

#include <KernelCommonUse/MultiLanguage.h>
#include <NxConfig/ParamConfig.h>
#include <NxConfig/SystemUtility.h>

#include <fstream>
#include <iterator>

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
