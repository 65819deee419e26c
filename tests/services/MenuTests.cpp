// SPDX-License-Identifier: MIT
// Menus made of XML files.
#include "TestFolder.h"
#include "support/GTest.h"

#include <MFCCommon/DynMenuCreater.h>
#include <NxConfig/ParamConfig.h>

#include <afxwin.h>

#include <fstream>
#include <iterator>

namespace
{
std::string TextAt(HMENU menu, int index)
{
    wchar_t text[300] = L"";
    GetMenuStringW(menu, static_cast<UINT>(index), text, 300, MF_BYPOSITION);
    return Utf8(text);
}

std::string ReadFile(const char* path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

UINT StateAt(HMENU menu, int index)
{
    return GetMenuState(menu, static_cast<UINT>(index), MF_BYPOSITION);
}
} // namespace

class MenuTest : public testing::Test
{
protected:
    bool Load(const std::string& xml) { return creater_.Load(folder_.Write(L"menu.xml", xml)); }
    HMENU Submenu(int index = 0) { return GetSubMenu(creater_.GetMenu(), index); }

    /// The file is refused with one line in the log that says so, and no menu is left.
    void ExpectRefused(const std::string& xml, const std::string& why)
    {
        TestFolder::TakeLog();
        EXPECT_FALSE(Load(xml)) << xml.substr(0, 200);
        EXPECT_EQ(creater_.GetMenu(), nullptr);
        const std::vector<std::string> log = TestFolder::TakeLog();
        ASSERT_EQ(log.size(), 1u) << xml.substr(0, 200);
        EXPECT_EQ(log[0].find("menu not loaded, " + why), 0u) << log[0];
        EXPECT_NE(log[0].find("menu.xml"), std::string::npos) << log[0];
    }

    TestFolder folder_;
    CDynMenuCreater creater_;
};

TEST_F(MenuTest, none_before_a_file_is_loaded)
{
    EXPECT_EQ(creater_.GetMenu(), nullptr);
}

TEST_F(MenuTest, items_separators_and_nested_menus_in_their_order)
{
    ASSERT_TRUE(Load("<menus><menu text=\"场景\"><item id=\"1\" text=\"一\"/><separator/><item id=\"61439\" text=\"Last\"/>"
                     "<menu text=\"More\"><item id=\"3\" text=\"Deep\"/></menu></menu>"
                     "<menu text=\"Second\"/></menus>"));
    EXPECT_EQ(GetMenuItemCount(creater_.GetMenu()), 2);
    EXPECT_EQ(TextAt(creater_.GetMenu(), 0), "场景");
    EXPECT_EQ(TextAt(creater_.GetMenu(), 1), "Second");
    EXPECT_EQ(GetMenuItemCount(Submenu(1)), 0);
    const HMENU scene = Submenu();
    ASSERT_EQ(GetMenuItemCount(scene), 4);
    EXPECT_EQ(GetMenuItemID(scene, 0), 1u);
    EXPECT_EQ(TextAt(scene, 0), "一");
    EXPECT_TRUE(StateAt(scene, 1) & MF_SEPARATOR);
    EXPECT_EQ(GetMenuItemID(scene, 2), 61439u);
    const HMENU more = GetSubMenu(scene, 3);
    ASSERT_NE(more, nullptr);
    EXPECT_EQ(TextAt(scene, 3), "More");
    EXPECT_EQ(GetMenuItemID(more, 0), 3u);
    EXPECT_TRUE(TestFolder::TakeLog().empty());
}

TEST_F(MenuTest, checked_and_disabled_items)
{
    ASSERT_TRUE(Load("<menus><menu text=\"m\"><item id=\"1\" text=\"a\"/><item id=\"2\" text=\"b\" checked=\"true\"/>"
                     "<item id=\"3\" text=\"c\" enabled=\"false\"/>"
                     "<item id=\"4\" text=\"d\" checked=\"false\" enabled=\"true\"/></menu></menus>"));
    const UINT wanted[] = {0, MF_CHECKED, MF_GRAYED, 0};
    for (int i = 0; i < 4; ++i)
    {
        EXPECT_EQ(StateAt(Submenu(), i) & (MF_CHECKED | MF_GRAYED), wanted[i]) << i;
    }
}

TEST_F(MenuTest, texts_from_the_translation)
{
    folder_.Write(L"languages\\zh-CN.ini", "[Common]\nLKEY20=添加\nLKEY21=更多\n");
    ASSERT_TRUE(Load("<menus><menu key=\"LKEY21\"><item id=\"1\" key=\"LKEY20\"/><item id=\"2\" key=\"LKEY99\"/>"
                     "<item id=\"3\" key=\"LKEY20\" text=\"unused\"/></menu></menus>"));
    EXPECT_EQ(TextAt(creater_.GetMenu(), 0), "更多");
    EXPECT_EQ(TextAt(Submenu(), 0), "添加");
    EXPECT_EQ(TextAt(Submenu(), 1), "LKEY99") << "a key without a translation is its own text";
    EXPECT_EQ(TextAt(Submenu(), 2), "添加") << "the key comes first";
}

TEST_F(MenuTest, the_example_of_the_documentation_is_read_as_it_says)
{
    const std::string document = ReadFile(NX_DOCS "/menus.md");
    const std::size_t begin = document.find("```xml\n");
    const std::size_t end = document.find("```", begin + 3);
    ASSERT_LT(begin, end);
    folder_.Write(L"languages\\zh-CN.ini", ReadFile(NX_APP_DATA "/languages/zh-CN.ini"));
    ASSERT_TRUE(Load(document.substr(begin + 7, end - begin - 7)));
    EXPECT_EQ(TextAt(creater_.GetMenu(), 0), "Scene");
    const HMENU scene = Submenu();
    ASSERT_EQ(GetMenuItemCount(scene), 5);
    EXPECT_EQ(GetMenuItemID(scene, 0), 40101u);
    EXPECT_EQ(TextAt(scene, 0), "在此处添加视点");
    EXPECT_TRUE(StateAt(scene, 1) & MF_SEPARATOR);
    EXPECT_EQ(GetMenuItemID(scene, 2), 40201u);
    EXPECT_EQ(TextAt(scene, 2), "Reset the camera");
    EXPECT_EQ(TextAt(scene, 3), "Time of day");
    const HMENU times = GetSubMenu(scene, 3);
    ASSERT_EQ(GetMenuItemCount(times), 2);
    EXPECT_TRUE(StateAt(times, 0) & MF_CHECKED);
    EXPECT_FALSE(StateAt(times, 1) & MF_CHECKED);
    EXPECT_TRUE(StateAt(scene, 4) & MF_GRAYED);
    EXPECT_TRUE(TestFolder::TakeLog().empty());
}

TEST_F(MenuTest, the_applications_own_scene_menu_offers_its_commands_in_both_languages)
{
    const struct
    {
        const char* language;
        std::vector<std::string> texts;
    } rows[] = {
        {"zh-CN", {"在此处添加视点", "", "重置镜头", "全场景", "", "编辑标题..."}},
        {"en", {"Add a view here", "", "Reset the camera", "Full scene", "", "Edit the title..."}},
    };
    folder_.Write(L"languages\\zh-CN.ini", ReadFile(NX_APP_DATA "/languages/zh-CN.ini"));
    folder_.Write(L"languages\\en.ini", ReadFile(NX_APP_DATA "/languages/en.ini"));
    const UINT commands[] = {40101, 0, 40201, 40202, 0, 40203};
    for (const auto& row : rows)
    {
        CParamConfig::getInstance()->setStringParam("Language", row.language);
        ASSERT_TRUE(Load(ReadFile(NX_APP_DATA "/sysmid/RButtonMenu.xml")));
        ASSERT_EQ(GetMenuItemCount(Submenu()), 6);
        for (int i = 0; i < 6; ++i)
        {
            EXPECT_EQ(TextAt(Submenu(), i), row.texts[static_cast<std::size_t>(i)]);
            EXPECT_EQ(GetMenuItemID(Submenu(), i), commands[i]) << i;
        }
    }
    CParamConfig::getInstance()->setStringParam("Language", "zh-CN");
    EXPECT_TRUE(TestFolder::TakeLog().empty());
}

TEST_F(MenuTest, comments_declarations_entities_and_a_byte_order_mark_are_fine)
{
    ASSERT_TRUE(Load("\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\"?><!-- c --><menus><!-- c -->"
                     "<menu text=\"a &amp; b\"><!-- c --><item id=\"1\" text=\"&lt;x&gt;\"/></menu></menus>"));
    EXPECT_EQ(TextAt(creater_.GetMenu(), 0), "a & b");
    EXPECT_EQ(TextAt(Submenu(), 0), "<x>");
}

TEST_F(MenuTest, a_file_in_utf16_is_read_too)
{
    const std::string ascii = "<menus><menu text=\"a\"><item id=\"1\" text=\"b\"/></menu></menus>";
    std::string wide = "\xFF\xFE";
    for (const char letter : ascii)
    {
        wide += letter;
        wide += '\0';
    }
    ASSERT_TRUE(Load(wide));
    EXPECT_EQ(TextAt(Submenu(), 0), "b");
}

TEST_F(MenuTest, an_empty_root_is_a_menu_without_anything)
{
    ASSERT_TRUE(Load("<menus/>"));
    ASSERT_NE(creater_.GetMenu(), nullptr);
    EXPECT_EQ(GetMenuItemCount(creater_.GetMenu()), 0);
}

TEST_F(MenuTest, missing_file)
{
    TestFolder::TakeLog();
    EXPECT_FALSE(creater_.Load(folder_.Path() + L"没有.xml"));
    const std::vector<std::string> log = TestFolder::TakeLog();
    ASSERT_EQ(log.size(), 1u);
    EXPECT_EQ(log[0].find("menu not loaded, there is no such file: "), 0u) << log[0];
    EXPECT_EQ(creater_.GetMenu(), nullptr);
}

TEST_F(MenuTest, a_folder_is_no_file)
{
    TestFolder::TakeLog();
    EXPECT_FALSE(creater_.Load(folder_.Path()));
    EXPECT_EQ(TestFolder::TakeLog().size(), 1u);
}

TEST_F(MenuTest, malformed_files)
{
    for (const char* xml : {"", "no xml", "<menus>", "<menus><menu text=\"a\"></menus>", "<menus a=b/>"})
    {
        ExpectRefused(xml, "");
    }
    ExpectRefused(Bytes("\0\0\0\0"), "");
}

TEST_F(MenuTest, wrong_elements)
{
    const struct
    {
        const char* xml;
        const char* why;
    } rows[] = {
        {"<menu text=\"a\"/>", "the root is not <menus>"},
        {"<Menus/>", "the root is not <menus>"},
        {"<menus><item id=\"1\" text=\"a\"/></menus>", "<item> does not belong into <menus>"},
        {"<menus><separator/></menus>", "<separator> does not belong into <menus>"},
        {"<menus><menus/></menus>", "<menus> does not belong into <menus>"},
        {"<menus><menu text=\"a\"><button/></menu></menus>", "<button> does not belong into <menu>"},
        {"<menus><menu/></menus>", "<menu> without \"text\" or \"key\""},
        {"<menus><menu text=\"a\"><item id=\"1\"/></menu></menus>", "<item> without \"text\" or \"key\""},
        {"<menus><menu text=\"a\"><item id=\"1\" text=\"b\" checked=\"yes\"/></menu></menus>",
         "\"checked\" is neither true nor false: yes"},
        {"<menus><menu text=\"a\"><item id=\"1\" text=\"b\" enabled=\"\"/></menu></menus>",
         "\"enabled\" is neither true nor false: "},
    };
    for (const auto& row : rows)
    {
        ExpectRefused(row.xml, row.why);
    }
}

TEST_F(MenuTest, wrong_ids)
{
    for (const char* id :
         {"0", "-1", "61440", "65536", "99999999999999999999", "4294967297", "", "x", "1x", " 1", "01", "0x10", "1.5", "+1"})
    {
        ExpectRefused("<menus><menu text=\"a\"><item id=\"" + std::string(id) + "\" text=\"b\"/></menu></menus>",
                      "\"id\" is not a command from 1 to 61439: \"" + std::string(id) + "\"");
    }
    ExpectRefused("<menus><menu text=\"a\"><item text=\"b\"/></menu></menus>", "\"id\" is not a command from 1 to 61439: \"\"");
}

TEST_F(MenuTest, an_id_only_once_in_the_whole_file)
{
    ExpectRefused("<menus><menu text=\"a\"><item id=\"5\" text=\"a\"/><item id=\"5\" text=\"b\"/></menu></menus>",
                  "\"id\" is there twice: 5");
    ExpectRefused("<menus><menu text=\"a\"><item id=\"5\" text=\"a\"/></menu><menu text=\"b\"><item id=\"5\" text=\"b\"/></menu>"
                  "</menus>",
                  "\"id\" is there twice: 5");
}

TEST_F(MenuTest, nested_too_deep)
{
    const auto nested = [](int depth)
    {
        std::string xml = "<menus>";
        for (int i = 0; i < depth; ++i)
        {
            xml += "<menu text=\"m\">";
        }
        for (int i = 0; i < depth; ++i)
        {
            xml += "</menu>";
        }
        return xml + "</menus>";
    };
    EXPECT_TRUE(Load(nested(16)));
    ExpectRefused(nested(17), "menus nested more than 16 deep");
    ExpectRefused(nested(5000), "menus nested more than 16 deep");
}

TEST_F(MenuTest, elements_by_the_thousand)
{
    const auto separators = [](int count)
    {
        std::string xml = "<menus><menu text=\"a\">";
        for (int i = 1; i < count; ++i)
        {
            xml += "<separator/>";
        }
        return xml + "</menu></menus>";
    };
    EXPECT_TRUE(Load(separators(5000)));
    EXPECT_EQ(GetMenuItemCount(Submenu()), 4999);
    ExpectRefused(separators(5001), "more than 5000 elements");
    ExpectRefused(separators(300000), "more than 5000 elements");
}

TEST_F(MenuTest, ten_megabytes)
{
    std::string xml = "<menus><menu text=\"a\"/><!--";
    xml.append(10 * 1024 * 1024, 'x');
    ExpectRefused(xml + "--></menus>", "the file is larger than 4 MiB");
}

TEST_F(MenuTest, four_megabytes_are_read)
{
    std::string xml = "<menus><menu text=\"a\"/></menus>";
    xml.append(4 * 1024 * 1024 - xml.size(), ' ');
    EXPECT_TRUE(Load(xml));
    ExpectRefused(xml + " ", "the file is larger than 4 MiB");
}

TEST_F(MenuTest, the_next_file_replaces_the_menu)
{
    ASSERT_TRUE(Load("<menus><menu text=\"a\"/></menus>"));
    const HMENU first = creater_.GetMenu();
    ASSERT_TRUE(Load("<menus><menu text=\"b\"/><menu text=\"c\"/></menus>"));
    EXPECT_EQ(GetMenuItemCount(creater_.GetMenu()), 2);
    EXPECT_TRUE(first == creater_.GetMenu() || !IsMenu(first)) << "the first is destroyed";
    ExpectRefused("<menus>", "");
}

TEST_F(MenuTest, destroyed_with_its_owner)
{
    HMENU menu = nullptr;
    {
        CDynMenuCreater creater;
        ASSERT_TRUE(creater.Load(folder_.Write(L"menu.xml", "<menus><menu text=\"a\"/></menus>")));
        menu = creater.GetMenu();
        EXPECT_TRUE(IsMenu(menu));
    }
    EXPECT_FALSE(IsMenu(menu));
}
