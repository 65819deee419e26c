// SPDX-License-Identifier: MIT
#include "../support/GTest.h"
#include "TestFolder.h"

#include <KernelCommonUse/FileOp.h>
#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/ParamConfig.h>
#include <NxConfig/SystemUtility.h>

TEST(SystemUtility, FindsTheExecutablesFolder)
{
    wchar_t module[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, module, MAX_PATH);
    const CString path = module;
    const CString folder = path.Left(path.ReverseFind(L'\\') + 1);
    EXPECT_EQ(Utf8(SystemUtility::GetAppPath()), Utf8(folder));
    EXPECT_EQ(Utf8(FileOp::GetAppPath()), Utf8(folder));
    SystemUtility::SetAppPath(L"Z:\\somewhere");
    EXPECT_EQ(Utf8(SystemUtility::GetAppPath()), "Z:\\somewhere\\");
    SystemUtility::SetAppPath(L"Z:\\somewhere\\");
    EXPECT_EQ(Utf8(FileOp::GetAppPath()), "Z:\\somewhere\\");
    SystemUtility::SetAppPath(L"Z:/somewhere/");
    EXPECT_EQ(Utf8(SystemUtility::GetAppPath()), "Z:\\somewhere\\");
    SystemUtility::SetAppPath(L"");
    EXPECT_EQ(Utf8(SystemUtility::GetAppPath()), Utf8(folder));
}

TEST(SystemUtility, HasDefaultDirectories)
{
    TestFolder folder;
    EXPECT_EQ(Utf8(SystemUtility::GetResourceRelPath()), "resource\\");
    EXPECT_EQ(Utf8(SystemUtility::GetCeguiResRelPath()), "resource\\cegui\\TavLook\\");
    EXPECT_EQ(Utf8(SystemUtility::GetSysMidPath()), "sysmid\\");
    EXPECT_EQ(folder.TakeLog(), std::vector<std::string>());
}

TEST(SystemUtility, LetsTextPicturesFollowTheSkinWhereNothingElseIsSaid)
{
    TestFolder folder;
    folder.Write(L"config\\directories.ini", "[Directories]\nResource=res\nCeguiResource=\n");
    folder.Write(L"config\\parameters.ini", "[Parameters]\nCEGUI_SkinDir=cegui\\Other\\\n");
    EXPECT_EQ(Utf8(SystemUtility::GetCeguiResRelPath()), "res\\cegui\\Other\\");
    CParamConfig::getInstance()->setStringParam("CEGUI_SkinDir", "light");
    EXPECT_EQ(Utf8(SystemUtility::GetCeguiResRelPath()), "res\\light\\");
    CParamConfig::getInstance()->setStringParam("CEGUI_SkinDir", "");
    EXPECT_EQ(Utf8(SystemUtility::GetCeguiResRelPath()), "res\\cegui\\TavLook\\");
    TestFolder other;
    other.Write(L"config\\directories.ini", "[Directories]\nCeguiResource=mine\n");
    other.Write(L"config\\parameters.ini", "[Parameters]\nCEGUI_SkinDir=cegui\\Other\\\n");
    EXPECT_EQ(Utf8(SystemUtility::GetCeguiResRelPath()), "mine\\") << "what is said holds";
}

TEST(SystemUtility, ReadsDirectoriesAndEndsThemInABackslash)
{
    TestFolder folder;
    folder.Write(L"config\\directories.ini", "[Directories]\nResource=资源\nCeguiResource=a\\b\\\nSysMid=\n");
    EXPECT_EQ(Utf8(SystemUtility::GetResourceRelPath()), "资源\\");
    EXPECT_EQ(Utf8(SystemUtility::GetCeguiResRelPath()), "a\\b\\");
    EXPECT_EQ(Utf8(SystemUtility::GetSysMidPath()), "sysmid\\");
    {
        TestFolder other;
        other.Write(L"config\\directories.ini", "[Directories]\nSysMid=mid\n");
        EXPECT_EQ(Utf8(SystemUtility::GetResourceRelPath()), "resource\\");
        EXPECT_EQ(Utf8(SystemUtility::GetSysMidPath()), "mid\\");
        EXPECT_EQ(Utf8(SystemUtility::GetSysMidPath(nullptr, nullptr)), Utf8(other.Path()) + "mid\\");
        EXPECT_EQ(Utf8(SystemUtility::GetSysMidPath(nullptr, L"a.xml")), Utf8(other.Path()) + "mid\\a.xml");
        EXPECT_EQ(Utf8(SystemUtility::GetSysMidPath(L"Q:\\x", L"a.xml")), "Q:\\x\\mid\\a.xml");
    }
}

TEST(SystemUtility, TakesTheBaseTitleOfAFile)
{
    struct Row
    {
        const wchar_t* path;
        const char* title;
    };
    const Row rows[] = {
        {L"", ""},
        {L"a", "a"},
        {L"a.bmp", "a"},
        {L"c:\\图 片\\标题.bmp", "标题"},
        {L"c:\\a.b\\c", "c"},
        {L"c:\\a\\b.tar.gz", "b.tar"},
        {L"/home/x.y/z.png", "z"},
        {L"c:\\a/b\\c.png", "c"},
        {L"c:\\a\\", ""},
        {L".hidden", ""},
        {L"a.", "a"},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(Utf8(SystemUtility::GetBaseFileTitle(row.path)), row.title) << Utf8(row.path);
    }
}

TEST(ParamConfig, GivesParametersInTheAnsiCodePage)
{
    TestFolder folder;
    folder.Write(L"config\\parameters.ini", "Outside=1\n[Parameters]\nCEGUI_SkinDir=cegui\\TavLook\\\n"
                                            "QMV发布右键菜单 = D:\\菜单.xml\nEmpty=\n[Other]\nElse=2\n");
    CParamConfig* config = CParamConfig::getInstance();
    ASSERT_EQ(config, CParamConfig::getInstance());
    EXPECT_EQ(config->getStringParam("CEGUI_SkinDir"), "cegui\\TavLook\\");
    EXPECT_EQ(config->getStringParam("QMV发布右键菜单"), _w2a(L"D:\\菜单.xml"));
    for (const char* name : {"Empty", "Outside", "Else", "None", ""})
    {
        EXPECT_EQ(config->getStringParam(name), "") << name;
    }
}

TEST(ParamConfig, ReadsAParameterFileInCodePage936)
{
    if (GetACP() != 936)
    {
        GTEST_SKIP() << "needs the code page 936";
    }
    TestFolder folder;
    folder.Write(L"config\\parameters.ini", "[Parameters]\nQMV" + strUtf8ToAnsi("发布右键菜单") + "=\xB3\xC7\n");
    EXPECT_EQ(CParamConfig::getInstance()->getStringParam("QMV发布右键菜单"), "\xB3\xC7");
}

TEST(ParamConfig, ChangesForThisProcessOnly)
{
    TestFolder folder;
    folder.Write(L"config\\parameters.ini", "[Parameters]\nLanguage=en\n");
    CParamConfig* config = CParamConfig::getInstance();
    config->setStringParam("Language", "zh-CN");
    config->setStringParam("新", "1");
    EXPECT_EQ(config->getStringParam("Language"), "zh-CN");
    EXPECT_EQ(config->getStringParam("language"), "zh-CN");
    EXPECT_EQ(config->getStringParam("新"), "1");
    config->setStringParam("Language", "");
    EXPECT_EQ(config->getStringParam("Language"), "");
    config->reload();
    EXPECT_EQ(config->getStringParam("Language"), "en");
    EXPECT_EQ(config->getStringParam("新"), "");
    folder.Write(L"config\\parameters.ini", "[Parameters]\nLanguage=fr\n");
    EXPECT_EQ(config->getStringParam("Language"), "en");
    config->reload();
    EXPECT_EQ(config->getStringParam("Language"), "fr");
}

TEST(ParamConfig, FollowsTheApplicationDirectory)
{
    TestFolder first;
    first.Write(L"config\\parameters.ini", "[Parameters]\nA=1\n");
    CParamConfig* config = CParamConfig::getInstance();
    EXPECT_EQ(config->getStringParam("A"), "1");
    TestFolder second;
    EXPECT_EQ(config->getStringParam("A"), "");
    config->setStringParam("A", "2");
    SystemUtility::SetAppPath(second.Path());
    EXPECT_EQ(config->getStringParam("A"), "2");
    SystemUtility::SetAppPath(first.Path());
    EXPECT_EQ(config->getStringParam("A"), "1");
    EXPECT_EQ(TestFolder::TakeLog(), std::vector<std::string>());
}

TEST(ParamConfig, ReportsMalformedLines)
{
    TestFolder folder;
    const CString path = folder.Write(L"config\\parameters.ini", "[Parameters]\nnonsense\nA=1\n");
    EXPECT_EQ(CParamConfig::getInstance()->getStringParam("A"), "1");
    EXPECT_EQ(folder.TakeLog(), std::vector<std::string>{Utf8(path) + ", line 2: no '=' in it; the line is skipped."});
}
