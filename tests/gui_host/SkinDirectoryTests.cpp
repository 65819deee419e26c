// SPDX-License-Identifier: MIT
// Where the skin is looked for.
#include "support/HostedFrame.h"

#include <gui_host/SkinFileKind.h>

#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/ParamConfig.h>
#include <NxConfig/SystemUtility.h>

#include <CEGUI/Exceptions.h>
#include <CEGUI/System.h>

#include <memory>

namespace
{
class SkinDirectory : public HostedFrame
{
protected:
    void SetUp() override
    {
        HostedFrame::SetUp();
        Host().Close();
    }
    void TearDown() override
    {
        CParamConfig::getInstance()->reload();
        TakeLog();
        HostedFrame::TearDown();
    }
    /// The four files of the skin that a start reads, copied into a folder.
    static std::vector<std::unique_ptr<FileReplaced>> CopySkin(const CString& folder)
    {
        std::vector<std::unique_ptr<FileReplaced>> copies;
        for (const wchar_t* file : {L"TavLookSkin.scheme", L"TavLook.looknfeel", L"TavLook.imageset", L"TavLook.png"})
        {
            copies.push_back(std::make_unique<FileReplaced>(folder + file, ReadBytes(SkinDir() + file)));
        }
        return copies;
    }
    static void Use(const char* directory) { CParamConfig::getInstance()->setStringParam("CEGUI_SkinDir", directory); }
    static CString ResourceDir() { return AppDir() + SystemUtility::GetResourceRelPath(); }
};
} // namespace

TEST_F(SkinDirectory, empty_parameter_yields_no_default_and_init_raises)
{
    Use("");
    EXPECT_THROW(Frame().Init(&Host().Viewer(), GUI_USER_FULL), CEGUI::Exception);
    EXPECT_FALSE(Frame().IsInit());
    EXPECT_FALSE(Frame().GetGUINode().valid());
    EXPECT_EQ(CEGUI::System::getSingletonPtr(), nullptr);
    EXPECT_EQ(CountLogLines("TavLookSkin.scheme"), 1) << "one line names the file";
}

TEST_F(SkinDirectory, absent_parameter_yields_no_default_and_init_raises)
{
    const FileTaken parameters(AppDir() + L"config\\parameters.ini");
    CParamConfig::getInstance()->reload();
    ASSERT_EQ(CParamConfig::getInstance()->getStringParam("CEGUI_SkinDir"), "");
    EXPECT_THROW(Frame().Init(&Host().Viewer(), GUI_USER_FULL), CEGUI::Exception);
    EXPECT_FALSE(Frame().IsInit());
    EXPECT_EQ(CountLogLines("TavLookSkin.scheme"), 1);
    const auto copies = CopySkin(ResourceDir());
    EXPECT_TRUE(Frame().Init(&Host().Viewer(), GUI_USER_FULL)) << "it is looked for in the resource directory itself";
}

TEST_F(SkinDirectory, may_have_a_chinese_name)
{
    const CString folder = ResourceDir() + L"皮肤\\";
    ASSERT_TRUE(CreateDirectoryW(folder, nullptr));
    {
        const auto copies = CopySkin(folder);
        // The parameter is in the system's code page.
        Use(strUtf8ToAnsi("皮肤\\").c_str());
        EXPECT_TRUE(Frame().Init(&Host().Viewer(), GUI_USER_FULL));
        Frame().CloseGuiSystem();
    }
    RemoveDirectoryW(folder);
}

TEST_F(SkinDirectory, init_works_once_the_parameter_is_back)
{
    Use("nowhere\\");
    EXPECT_THROW(Frame().Init(&Host().Viewer(), GUI_USER_FULL), CEGUI::Exception);
    Use("cegui\\TavLook\\");
    Restart();
    EXPECT_TRUE(Frame().IsInit());
    EXPECT_NE(Host().Find("TavTitleBackground"), nullptr);
    EXPECT_FALSE(Host().Shoot().At(400, 20) == Background());
}

TEST_F(SkinDirectory, is_application_and_resource_directory_alone_when_the_parameter_is_empty)
{
    const auto copies = CopySkin(ResourceDir());
    Use("");
    EXPECT_TRUE(Frame().Init(&Host().Viewer(), GUI_USER_FULL));
    EXPECT_TRUE(Frame().IsInit());
}

TEST(SkinFiles, are_known_by_their_endings)
{
    const struct
    {
        const char* file;
        bool xml;
    } rows[] = {
        {"a.scheme", true}, {"folder/TavLook.imageset", true}, {"a.looknfeel", true}, {"a.font", true}, {"a.png", false},
        {"scheme", false},  {"a.scheme.bak", false},           {".scheme", false},    {"", false},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(SkinFileKind::IsXml(row.file), row.xml) << row.file;
    }
    EXPECT_EQ(SkinFileKind::Mismatch("a.font", "<Font />"), "");
    EXPECT_EQ(SkinFileKind::Mismatch("a.font", "<Imageset />"), "its root element is 'Imageset' instead of 'Font'");
    EXPECT_EQ(SkinFileKind::Mismatch(".font", "<Imageset />"), "");
    EXPECT_EQ(SkinFileKind::Mismatch("a.font", "no XML"), "");
}
