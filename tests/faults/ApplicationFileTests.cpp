// SPDX-License-Identifier: MIT
// The application's other files: settings, languages, shaders, fonts, menus and the start page's pictures.
#include "FaultTest.h"
#include "SpoiltFile.h"

#include <KernelCommonUse/StringConvert.h>
#include <MFCCommon/DynMenuCreater.h>
#include <NxConfig/SystemUtility.h>

#include <set>
#include <string>

namespace
{
/// Makes the services read their files again.
void Reread()
{
    const CString app = AppDir();
    SystemUtility::SetAppPath(app + L"..\\");
    SystemUtility::SetAppPath(app);
}

class ApplicationFiles : public FaultTest
{
protected:
    static void UseAll()
    {
        Host().Frames(2);
        UseEverything();
        Frame().ClearStaPageParameter();
        Frame().ClearTitleSet();
        CDynMenuCreater().Load(SystemUtility::GetSysMidPath(nullptr, nullptr) + L"RButtonMenu.xml");
        Host().Frames(1);
    }
    void ExpectMended()
    {
        Reread();
        ASSERT_TRUE(Start());
        Host().MoveMouse(Width / 2, Height / 2);
        EXPECT_TRUE(Stands());
        EXPECT_EQ(NewLog(), Lines{});
    }
    static std::set<CString> Used()
    {
        // The font file is not read where the font is installed: `FontInstallTests` spoils it.
        return {L"config\\directories.ini",           L"config\\parameters.ini", L"exeFiles\\shader\\cegui.fs",
                L"exeFiles\\shader\\cegui.vs",        L"languages\\zh-CN.ini",   L"resource\\exeGuiImage2.bmp",
                L"resource\\pics\\kwexeGuiImage.bmp", L"sysmid\\RButtonMenu.xml"};
    }
};
} // namespace

TEST_F(ApplicationFiles, spoilt_at_the_start_are_survived_and_the_next_start_mends_it)
{
    std::set<CString> seen;
    for (const CString& file : FilesOf(AppDir()))
    {
        if (Used().count(file) == 0)
        {
            continue;
        }
        seen.insert(file);
        for (const Spoiling& way : AnyFile())
        {
            Fault fault(Utf8(file) + ": " + way.name);
            if (&way == &AnyFile().front())
            {
                // Without the file things may be as it says.
                fault.MayMiss();
            }
            {
                const auto spoilt = way.spoil(AppDir() + file);
                const Openings openings(AppDir() + file);
                const CapturedOutput output;
                Reread();
                const bool started = Start();
                Lines log = NewLog();
                EXPECT_EQ(started, Frame().IsInit());
                EXPECT_EQ(started, Stands()) << testing::PrintToString(log);
                UseAll();
                const Lines more = NewLog();
                log.insert(log.end(), more.begin(), more.end());
                fault.Bites(!log.empty() || openings.Any() || output.Text().find(" create shader fail!") != std::string::npos);
                EXPECT_TRUE(started || !log.empty());
                // A start that fails for want of settings tells where they are looked for.
                EXPECT_TRUE(started || log.back().find("parameters.ini") != std::string::npos) << testing::PrintToString(log);
            }
            ExpectMended();
        }
    }
    EXPECT_EQ(seen, Used()) << "a file of the application has moved";
    EXPECT_EQ(UnfinishedFiles(AppDir()), Lines{});
}

TEST_F(ApplicationFiles, a_missing_language_table_leaves_every_text_as_it_is_built_in)
{
    Fault fault("no language table");
    const auto shown = [this]
    {
        Reread();
        EXPECT_TRUE(Start());
        Frame().ClearTitleSet();
        Frame().SetSceneTitleFontStyle(TitleFont);
        Frame().OpenPropertyDlg(nullptr, true);
        // Over the close button, whose tooltip shows.
        Host().MoveMouse(Width - 28, 25);
        Rebuild();
        Host().MoveMouse(Width / 2, Height / 2);
        Host().MoveMouse(Width - 28, 25);
        return Seen();
    };
    const auto before = shown();
    ASSERT_NE(GuiHost::Find("tavguitooltipwindow"), nullptr);
    EXPECT_EQ(NewLog(), Lines{});
    {
        const FileTaken table(AppDir() + L"languages\\zh-CN.ini");
        EXPECT_TRUE(shown() == before);
        const Lines log = NewLog();
        fault.Bites(log.size() == 1);
        ASSERT_EQ(log.size(), 1u);
        EXPECT_NE(log[0].find("zh-CN.ini is missing; the built-in texts are shown."), std::string::npos) << log[0];
    }
    Frame().OpenPropertyDlg(nullptr, false);
    ExpectMended();
}

TEST_F(ApplicationFiles, fonts_that_are_absent_leave_texts_out_and_are_told)
{
    Fault fault("no font of those that are wanted");
    const CString table = AppDir() + L"languages\\zh-CN.ini";
    const Bytes words = ReadBytes(table);
    std::string text(words.begin(), words.end());
    const std::size_t key = text.find("LKEY11=");
    ASSERT_NE(key, std::string::npos);
    text.replace(key, text.find('\n', key) - key, "LKEY11=No Such Family");
    {
        const FileReplaced replaced(table, Bytes(text.begin(), text.end()));
        const FileTaken font(AppDir() + L"fonts\\youyuan.ttf");
        Reread();
        Frame().SetSceneTitleFontStyle(L"No Such Family");
        ASSERT_TRUE(Start());
        Host().Frames(2);
        EXPECT_TRUE(Stands());
        const Lines log = NewLog();
        fault.Bites(!log.empty());
        EXPECT_EQ(Without(log, "No Such Family"), Lines{});
        Frame().OpenPropertyDlg(nullptr, true);
        Frame().CreateTooltipWindow(10, 100, L"tooltip");
        Frame().ChangeTitleText(L"title", 0, L"No Such Family", 20.0f);
        Host().Frames(1);
        EXPECT_EQ(Without(NewLog(), "No Such Family"), Lines{});
        EXPECT_GT(ReadPictureFile(SkinDir() + L"tavtooltipimgfile.bmp").width, 0);
        Frame().DestroyTooltipWindow();
        Frame().OpenPropertyDlg(nullptr, false);
        ExpectAnswers();
        NewLog();
    }
    Frame().SetSceneTitleFontStyle(TitleFont);
    ExpectMended();
}
