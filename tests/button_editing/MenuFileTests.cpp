// SPDX-License-Identifier: MIT
// Menu files that cannot be used: no menu, one line in the log, and the next right click tries again.
#include "EditingTest.h"

#include <NxConfig/ParamConfig.h>

#include <KernelCommonUse/StringConvert.h>

class MenuFileTest : public EditingTest
{
protected:
    /// A right click shows nothing and logs one line with these words in it.
    void ExpectRefused(const std::string& words)
    {
        RightClickScene();
        EXPECT_EQ(Log().TakeMenus(), Menus{});
        const Lines lines = TakeLog();
        ASSERT_EQ(lines.size(), 1u);
        EXPECT_NE(lines[0].find(words), std::string::npos) << lines[0];
        EXPECT_NE(lines[0].find(".xml"), std::string::npos) << "the file's name: " << lines[0];
    }
};

TEST_F(MenuFileTest, missing)
{
    DeleteFileW(MenuFile());
    ExpectRefused("there is no such file");
}

TEST_F(MenuFileTest, a_parameter_that_names_a_missing_file)
{
    CParamConfig::getInstance()->setStringParam("QMV发布右键菜单", strUtf8ToAnsi(CString2string(AppDir() + L"没有.xml")));
    ExpectRefused("没有.xml");
}

TEST_F(MenuFileTest, malformed)
{
    WriteMenu("<menus><menu text=\"Scene\"><item id=\"1\" text=\"a\"></menu></menus>");
    ExpectRefused("at byte");
    WriteMenu("");
    ExpectRefused("menu not loaded");
}

TEST_F(MenuFileTest, wrong_root)
{
    WriteMenu("<menu text=\"Scene\"><item id=\"1\" text=\"a\"/></menu>");
    ExpectRefused("the root is not <menus>");
}

TEST_F(MenuFileTest, duplicate_id)
{
    WriteMenu("<menus><menu text=\"a\"><item id=\"7\" text=\"a\"/><menu text=\"b\"><item id=\"7\" text=\"c\"/></menu></menu>"
              "</menus>");
    ExpectRefused("\"id\" is there twice: 7");
}

TEST_F(MenuFileTest, id_out_of_range)
{
    WriteMenu("<menus><menu text=\"a\"><item id=\"61440\" text=\"a\"/></menu></menus>");
    ExpectRefused("\"id\" is not a command from 1 to 61439: \"61440\"");
}

TEST_F(MenuFileTest, ten_megabytes)
{
    std::string xml = "<menus><menu text=\"Scene\"><item id=\"40201\" text=\"Item\"/></menu><!--";
    xml.append(10 * 1024 * 1024, ' ');
    WriteMenu(xml + "--></menus>");
    ExpectRefused("the file is larger than 4 MiB");
}

TEST_F(MenuFileTest, mended_it_is_shown_without_a_restart)
{
    WriteMenu("<menus>");
    ExpectRefused("menu not loaded");
    WriteMenu("<menus><menu text=\"Scene\"><item id=\"40201\" text=\"Item\"/></menu></menus>");
    RightClickScene();
    EXPECT_EQ(Log().TakeMenus(), SceneMenu());
}

TEST_F(MenuFileTest, without_any_menu_nothing_is_shown)
{
    WriteMenu("<menus/>");
    RightClickScene();
    EXPECT_EQ(Log().TakeMenus(), Menus{});
}

TEST_F(MenuFileTest, refused_files_use_up_the_suppression_all_the_same)
{
    Frame().EnablePopupMenu(false);
    DeleteFileW(MenuFile());
    RightClickScene();
    EXPECT_EQ(TakeLog(), Lines{}) << "not even looked for";
    ExpectRefused("there is no such file");
}
