// SPDX-License-Identifier: MIT
// What CEGUI 0.8 has no counterpart of: it is left out, and a line each says so.
#include "OldSkinTest.h"

#include <gui_host/OldSkin.h>

#include <algorithm>

namespace
{
using OldSkinLog = OldSkinTest;

struct Row
{
    const char* name;
    /// The part in question begins in the second line of the file.
    const char* old;
    const char* what;
    /// What stays of it.
    const char* translated;
};

/// @param newRoot with its blanks and brackets as they are written
void ExpectLeftOut(const std::string& oldRoot, const std::string& newRoot, const std::string& end, const std::vector<Row>& rows)
{
    for (const Row& row : rows)
    {
        OldSkin skin;
        std::vector<OldSkin::LeftOut> leftOut;
        const std::optional<std::string> text = skin.Translate(oldRoot + "\n" + row.old + end, leftOut);
        ASSERT_TRUE(text) << row.name;
        ASSERT_EQ(leftOut.size(), 1u) << row.name;
        EXPECT_EQ(leftOut[0].what, row.what) << row.name;
        EXPECT_EQ(leftOut[0].line, 2) << row.name;
        EXPECT_EQ(OneLine(*text), newRoot + row.translated + end) << row.name;
    }
}
} // namespace

TEST(OldSkinLeftOut, parts_of_a_scheme)
{
    ExpectLeftOut(
        "<GUIScheme Name=\"S\"><LookNFeel Filename=\"l\" />", "<GUIScheme version=\"5\" name=\"S\"><LookNFeel filename=\"l\" />",
        "</GUIScheme>",
        {{"windows of a module", "<WindowSet Filename='Ours'><WindowFactory Name='Gauge' /></WindowSet>", "WindowSet \"Ours\"",
          ""},
         {"renderers of a module", "<WindowRendererSet Filename='Ours' />", "WindowRendererSet \"Ours\"", ""},
         {"set without a file", "<WindowRendererSet />", "WindowRendererSet without \"Filename\"", ""},
         {"renderer that is none of CEGUI's",
          "<WindowRendererSet Filename='CEGUIFalagardWRBase'><WindowRendererFactory Name='Falagard/Gauge' /></WindowRendererSet>",
          "WindowRendererFactory \"Falagard/Gauge\"", "<WindowRendererSet filename=\"CEGUICoreWindowRendererSet\" />"},
         {"renderer without a name",
          "<WindowRendererSet Filename='CEGUIFalagardWRBase'><WindowRendererFactory /></WindowRendererSet>",
          "WindowRendererFactory without \"Name\"", "<WindowRendererSet filename=\"CEGUICoreWindowRendererSet\" />"},
         {"mapping to a renderer of a module", "<FalagardMapping WindowType='L/G' Renderer='Ours/Gauge' />",
          "FalagardMapping \"L/G\" with Renderer \"Ours/Gauge\"", ""},
         {"mapping without a renderer", "<FalagardMapping WindowType='L/G' TargetType='Falagard/Button' />",
          "FalagardMapping \"L/G\" without \"Renderer\"", ""},
         {"attribute", "<WindowAlias Alias='A' Target='B' Colour='red' />", "attribute \"Colour\" of WindowAlias",
          "<WindowAlias alias=\"A\" target=\"B\" />"},
         {"element", "<Sound Filename='s.wav' />", "Sound \"s.wav\"", ""}});
}

TEST(OldSkinLeftOut, parts_of_an_imageset)
{
    ExpectLeftOut("<Imageset Name=\"I\"><Image Name=\"A\" />", "<Imageset version=\"2\" name=\"I\"><Image name=\"A\" />",
                  "</Imageset>",
                  {{"attribute", "<Image Name='B' Depth='3' />", "attribute \"Depth\" of Image \"B\"", "<Image name=\"B\" />"},
                   {"element", "<Region Name='B' />", "Region \"B\"", ""}});
}

TEST(OldSkinLeftOut, parts_of_a_look)
{
    ExpectLeftOut(
        "<Falagard><WidgetLook name=\"L\"><StateImagery name=\"s\" />",
        "<Falagard version=\"7\"><WidgetLook name=\"L\"><StateImagery name=\"s\" />", "</WidgetLook></Falagard>",
        {{"property", "<Property name='UnifiedXPosition' value='{0,1}' />", "Property \"UnifiedXPosition\"", ""},
         {"another", "<Property name='UnifiedYPosition' value='{0,1}' />", "Property \"UnifiedYPosition\"", ""},
         {"another", "<Property name='UnifiedWidth' value='{0,1}' />", "Property \"UnifiedWidth\"", ""},
         {"another", "<Property name='UnifiedHeight' value='{0,1}' />", "Property \"UnifiedHeight\"", ""},
         {"another", "<Property name='FadeTime' value='1' />", "Property \"FadeTime\"", ""},
         {"whole texture of an imageset", "<ImageryComponent><Image imageset='I' image='full_image' /></ImageryComponent>",
          "Image \"full_image\"", "<ImageryComponent />"},
         {"the same as a property", "<Property name='P' value='set:I image:full_image' />",
          "Property \"P\" with value \"set:I image:full_image\"", ""},
         {"picture without an image", "<Property name='P' value='set:I' />", "Property \"P\" with value \"set:I\"", ""},
         {"image without an imageset", "<ImageryComponent><Image image='A' /></ImageryComponent>",
          "Image \"A\" without \"imageset\"", "<ImageryComponent />"},
         {"imageset without an image", "<ImageryComponent><Image imageset='I' /></ImageryComponent>", "Image without \"image\"",
          "<ImageryComponent />"},
         {"property without a name", "<Property value='1' />", "Property without \"name\"", ""},
         {"child's renderer", "<Child type='t' nameSuffix='s' renderer='Ours/Gauge' />",
          "Child \"s\" with renderer \"Ours/Gauge\"", ""},
         {"attribute", "<Layer priority='1' opacity='2' />", "attribute \"opacity\" of Layer", "<Layer priority=\"1\" />"},
         {"element", "<Shadow name='dark' />", "Shadow \"dark\"", ""}});
}

TEST(OldSkinLeftOut, side_of_an_area_becomes_zero_and_one_side_of_an_operator_stays)
{
    ExpectLeftOut(
        "<Falagard><WidgetLook name=\"L\"><StateImagery name=\"s\" />",
        "<Falagard version=\"7\"><WidgetLook name=\"L\"><StateImagery name=\"s\" />", "</WidgetLook></Falagard>",
        {{"all of it", "<Dim type='Width'><PropertyDim name='UnifiedWidth' /></Dim>", "PropertyDim \"UnifiedWidth\"",
          "<Dim type=\"Width\"><AbsoluteDim value=\"0\" /></Dim>"},
         {"unknown", "<Dim type='Width'><ScreenDim /></Dim>", "ScreenDim",
          "<Dim type=\"Width\"><AbsoluteDim value=\"0\" /></Dim>"},
         {"left-hand",
          "<Dim type='Width'><PropertyDim name='UnifiedWidth'><DimOperator op='Add'><AbsoluteDim value='2' /></DimOperator>"
          "</PropertyDim></Dim>",
          "PropertyDim \"UnifiedWidth\"", "<Dim type=\"Width\"><AbsoluteDim value=\"2\" /></Dim>"},
         {"right-hand",
          "<Dim type='Width'><AbsoluteDim value='2'><DimOperator op='Add'><PropertyDim name='UnifiedWidth' /></DimOperator>"
          "</AbsoluteDim></Dim>",
          "PropertyDim \"UnifiedWidth\"", "<Dim type=\"Width\"><AbsoluteDim value=\"2\" /></Dim>"},
         {"operator",
          "<Dim type='Width'><AbsoluteDim value='2'><DimOperator op='Power'><AbsoluteDim value='3' /></DimOperator>"
          "</AbsoluteDim></Dim>",
          "DimOperator \"Power\"", "<Dim type=\"Width\"><AbsoluteDim value=\"2\" /></Dim>"},
         {"operator without an operand", "<Dim type='Width'><AbsoluteDim value='2'><DimOperator op='Add' /></AbsoluteDim></Dim>",
          "DimOperator \"Add\"", "<Dim type=\"Width\"><AbsoluteDim value=\"2\" /></Dim>"}});
}

TEST(OldSkinLeftOut, line_is_the_element_s_own)
{
    const std::string old =
        "<?xml version='1.0' ?>\r\n<!-- one\n two -->\n<Imageset\n Name='I'>\n\n  <Region\n Name='A' />\n<Image Name='B'\n"
        " Depth='1' /><Region/></Imageset>";
    OldSkin skin;
    for (const std::string& bytes : {old, "\xEF\xBB\xBF" + old})
    {
        std::vector<OldSkin::LeftOut> leftOut;
        ASSERT_TRUE(skin.Translate(bytes, leftOut));
        ASSERT_EQ(leftOut.size(), 3u);
        EXPECT_EQ(leftOut[0].line, 7);
        EXPECT_EQ(leftOut[1].line, 9) << "where the element begins, not the attribute";
        EXPECT_EQ(leftOut[2].line, 10);
    }
}

TEST(OldSkinLeftOut, nothing_is_said_of_the_schema_s_place)
{
    OldSkin skin;
    std::vector<OldSkin::LeftOut> leftOut;
    const std::optional<std::string> text =
        skin.Translate("<Falagard xmlns:xsi=\"x\" xsi:noNamespaceSchemaLocation=\"Falagard.xsd\"></Falagard>", leftOut);
    ASSERT_TRUE(text);
    EXPECT_EQ(OneLine(*text), "<Falagard version=\"7\" />");
    EXPECT_TRUE(leftOut.empty());
}

TEST_F(OldSkinLog, names_file_and_line_once)
{
    PutOldSkin();
    const std::vector<std::uint8_t> imageset = SkinFile(L"old_format/TavLook.imageset");
    std::string text(imageset.begin(), imageset.end());
    text.replace(text.find("</Imageset>"), 0, "<Region Name=\"nowhere\" />\n");
    Put(L"TavLook.imageset", text);
    Restart();
    const Lines lines = {"NxOsgCeGui: left out of a skin for CEGUI 0.6, Region \"nowhere\": TavLook.imageset, line 5"};
    EXPECT_EQ(TakeLog(), lines);
    Host().Resize(700, 500);
    Host().Resize(ViewWidth, ViewHeight);
    EXPECT_EQ(TakeLog(), Lines{}) << "the imageset is read with every size";
    Restart();
    EXPECT_EQ(TakeLog(), lines) << "the next start has a log of its own";
}

TEST(OldSkinLeftOut, of_a_file_that_no_end_of_is_known)
{
    const auto translated = [](const std::string& part, int count, std::vector<OldSkin::LeftOut>& leftOut)
    {
        std::string file = "<Falagard>";
        for (int i = 0; i < count; ++i)
        {
            file += part;
        }
        const ULONGLONG start = GetTickCount64();
        EXPECT_TRUE(OldSkin().Translate(file + "</Falagard>", leftOut));
        EXPECT_LT(GetTickCount64() - start, 20000u) << part;
    };
    std::vector<OldSkin::LeftOut> leftOut;
    translated("<Nothing/>\n", 300000, leftOut);
    ASSERT_EQ(leftOut.size(), 1001u);
    EXPECT_EQ(leftOut[999].what, "Nothing");
    EXPECT_EQ(leftOut[999].line, 1000);
    EXPECT_EQ(leftOut[1000].what, "and more");

    leftOut.clear();
    std::string letters = "x";
    while (letters.size() < 500000)
    {
        letters += "中";
    }
    translated("<Frame name=\"" + letters + "\" a='' b=''/>", 1, leftOut);
    ASSERT_EQ(leftOut.size(), 1u);
    EXPECT_EQ(leftOut[0].what, "Frame \"" + letters.substr(0, 199) + "...\"");
}

TEST(OldSkinLeftOut, elements_deeper_than_any_look)
{
    const auto nested = [](int depth)
    {
        std::string open;
        std::string close;
        for (int i = 0; i < depth; ++i)
        {
            open += "<Child>";
            close += "</Child>";
        }
        return "<Falagard>\n" + open + close + "</Falagard>";
    };
    std::vector<OldSkin::LeftOut> leftOut;
    EXPECT_TRUE(OldSkin().Translate(nested(99), leftOut));
    EXPECT_EQ(leftOut.size(), 0u);
    // By recursion so many would take more than a thread's stack.
    for (const int depth : {100, 300000})
    {
        leftOut.clear();
        const std::optional<std::string> text = OldSkin().Translate(nested(depth), leftOut);
        ASSERT_TRUE(text);
        ASSERT_EQ(leftOut.size(), 1u);
        EXPECT_EQ(leftOut[0].what, "Child more than 100 deep");
        EXPECT_EQ(leftOut[0].line, 2);
        EXPECT_LT(text->size(), 40000u);
    }
}
