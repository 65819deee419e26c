// SPDX-License-Identifier: MIT
// What each part of a skin for CEGUI 0.6 becomes.
#include "OldSkinTest.h"

#include <gui_host/OldSkin.h>

namespace
{
struct Row
{
    const char* name;
    const char* old;
    const char* translated;
};

/// Translates each row's text between the root element's tags.
void ExpectTranslated(const std::string& oldRoot, const std::string& newRoot, const std::string& end,
                      const std::vector<Row>& rows, OldSkin& skin)
{
    for (const Row& row : rows)
    {
        std::vector<OldSkin::LeftOut> leftOut;
        const std::optional<std::string> text = skin.Translate(oldRoot + row.old + end, leftOut);
        ASSERT_TRUE(text) << row.name;
        EXPECT_EQ(OneLine(*text), newRoot + row.translated + end) << row.name;
        EXPECT_TRUE(leftOut.empty()) << row.name << ": " << leftOut.front().what;
    }
}

void ExpectTranslated(const std::string& oldRoot, const std::string& newRoot, const std::string& end,
                      const std::vector<Row>& rows)
{
    OldSkin skin;
    ExpectTranslated(oldRoot, newRoot, end, rows, skin);
}

void ExpectScheme(const std::vector<Row>& rows)
{
    ExpectTranslated("<GUIScheme Name=\"S\">", "<GUIScheme version=\"5\" name=\"S\">", "</GUIScheme>", rows);
}

void ExpectLook(const std::vector<Row>& rows, OldSkin skin = OldSkin())
{
    ExpectTranslated("<Falagard><WidgetLook name=\"L\">", "<Falagard version=\"7\"><WidgetLook name=\"L\">",
                     "</WidgetLook></Falagard>", rows, skin);
}

std::string Mapping(const std::string& renderer, const std::string& name)
{
    return "<FalagardMapping " + std::string(name) + "=\"" + renderer + "\" />";
}
} // namespace

TEST(OldSkinTranslation, elements_of_a_scheme)
{
    ExpectScheme({
        {"imageset", "<Imageset Name='A' Filename='a.imageset' ResourceGroup='g' />",
         "<Imageset name=\"A\" filename=\"a.imageset\" resourceGroup=\"g\" />"},
        {"imageset without name", "<Imageset Filename='a.imageset' />", "<Imageset filename=\"a.imageset\" />"},
        {"picture as imageset", "<ImagesetFromImage Name='A' Filename='a.png' ResourceGroup='g' />",
         "<ImagesetFromImage name=\"A\" filename=\"a.png\" resourceGroup=\"g\" />"},
        {"font", "<Font Name='F' Filename='f.font' ResourceGroup='g' />",
         "<Font name=\"F\" filename=\"f.font\" resourceGroup=\"g\" />"},
        {"look", "<LookNFeel Filename='l.looknfeel' ResourceGroup='g' />",
         "<LookNFeel filename=\"l.looknfeel\" resourceGroup=\"g\" />"},
        {"renderers", "<WindowRendererSet Filename='CEGUIFalagardWRBase' />",
         "<WindowRendererSet filename=\"CEGUICoreWindowRendererSet\" />"},
        {"renderers of a debug build", "<WindowRendererSet Filename='CEGUIFalagardWRBase_d.dll' />",
         "<WindowRendererSet filename=\"CEGUICoreWindowRendererSet\" />"},
        {"some renderers",
         "<WindowRendererSet Filename='CEGUIFalagardWRBase'><WindowRendererFactory Name='Falagard/Button' />"
         "<WindowRendererFactory Name='Falagard/StaticImage' /></WindowRendererSet>",
         "<WindowRendererSet filename=\"CEGUICoreWindowRendererSet\"><WindowRendererFactory name=\"Core/Button\" />"
         "<WindowRendererFactory name=\"Core/StaticImage\" /></WindowRendererSet>"},
        {"two renderers that are one now",
         "<WindowRendererSet Filename='CEGUIFalagardWRBase'><WindowRendererFactory Name='Falagard/Button' />"
         "<WindowRendererFactory Name='Falagard/SystemButton' /></WindowRendererSet>",
         "<WindowRendererSet filename=\"CEGUICoreWindowRendererSet\"><WindowRendererFactory name=\"Core/Button\" />"
         "</WindowRendererSet>"},
        {"alias", "<WindowAlias Alias='A' Target='B' />", "<WindowAlias alias=\"A\" target=\"B\" />"},
        {"alias of a renamed type", "<WindowAlias Alias='A' Target='DefaultGUISheet' />",
         "<WindowAlias alias=\"A\" target=\"DefaultWindow\" />"},
        {"mapping",
         "<FalagardMapping WindowType='L/B' TargetType='CEGUI/PushButton' Renderer='Falagard/Button' LookNFeel='L/B' />",
         "<FalagardMapping windowType=\"L/B\" targetType=\"CEGUI/PushButton\" renderer=\"Core/Button\" lookNFeel=\"L/B\" />"},
        {"mapping of a renamed type", "<FalagardMapping TargetType='CEGUI/Checkbox' Renderer='Falagard/ToggleButton' />",
         "<FalagardMapping targetType=\"CEGUI/ToggleButton\" renderer=\"Core/ToggleButton\" />"},
    });
}

TEST(OldSkinTranslation, every_renderer)
{
    for (const std::string name :
         {"Button",     "Default",           "Editbox",        "FrameWindow", "ItemEntry",    "ItemListbox", "ListHeader",
          "Listbox",    "ListHeaderSegment", "Menubar",        "MenuItem",    "PopupMenu",    "ProgressBar", "Scrollbar",
          "Slider",     "MultiColumnList",   "ScrollablePane", "Static",      "StaticText",   "StaticImage", "TabButton",
          "TabControl", "MultiLineEditbox",  "Titlebar",       "Tooltip",     "ToggleButton", "Tree"})
    {
        const std::string old = Mapping("Falagard/" + name, "Renderer");
        const std::string translated = Mapping("Core/" + name, "renderer");
        ExpectScheme({{name.c_str(), old.c_str(), translated.c_str()}});
    }
    const std::string old = Mapping("Falagard/SystemButton", "Renderer");
    const std::string translated = Mapping("Core/Button", "renderer");
    ExpectScheme({{"system button", old.c_str(), translated.c_str()}});
}

TEST(OldSkinTranslation, imageset)
{
    ExpectTranslated(
        "<Imageset Name='I' Imagefile='i.png' ResourceGroup='g' NativeHorzRes='800' NativeVertRes='600'>",
        "<Imageset version=\"2\" name=\"I\" imagefile=\"i.png\" resourceGroup=\"g\" nativeHorzRes=\"800\" "
        "nativeVertRes=\"600\">",
        "</Imageset>",
        {{"image", "<Image Name='A' XPos='1' YPos='2' Width='3' Height='4' />",
          "<Image name=\"A\" xPos=\"1\" yPos=\"2\" width=\"3\" height=\"4\" />"},
         {"image with offsets", "<Image Name='A' XPos='1' YPos='2' Width='3' Height='4' XOffset='-5' YOffset='-6' />",
          "<Image name=\"A\" xPos=\"1\" yPos=\"2\" width=\"3\" height=\"4\" xOffset=\"-5\" yOffset=\"-6\" />"}});
    for (const auto& [old, translated] : std::vector<std::pair<std::string, std::string>>{
             {"true", "true"}, {"True", "true"}, {"1", "true"}, {"false", "false"}, {"False", "false"}, {"0", "false"}})
    {
        ExpectTranslated("<Imageset Name='I' AutoScaled='" + old + "'>",
                         "<Imageset version=\"2\" name=\"I\" autoScaled=\"" + translated + "\">", "</Imageset>",
                         {{old.c_str(), "<Image Name='A' />", "<Image name=\"A\" />"}});
    }
}

TEST(OldSkinTranslation, font)
{
    ExpectTranslated("<Font Name='F' Filename='f.ttf' ResourceGroup='g' Type='FreeType' Size='10' NativeHorzRes='800' "
                     "NativeVertRes='600' AutoScaled='True' AntiAlias='False' LineSpacing='12'>",
                     "<Font version=\"3\" name=\"F\" filename=\"f.ttf\" resourceGroup=\"g\" type=\"FreeType\" size=\"10\" "
                     "nativeHorzRes=\"800\" nativeVertRes=\"600\" autoScaled=\"true\" antiAlias=\"false\" lineSpacing=\"12\">",
                     "</Font>",
                     {{"mapping", "<Mapping Codepoint='65' Image='A' HorzAdvance='7' />",
                       "<Mapping codepoint=\"65\" image=\"A\" horzAdvance=\"7\" />"}});
    for (const auto& [old, translated] :
         std::vector<std::pair<std::string, std::string>>{{"Dynamic", "FreeType"}, {"Static", "Pixmap"}, {"Pixmap", "Pixmap"}})
    {
        ExpectTranslated("<Font Name='F' Type='" + old + "'>", "<Font version=\"3\" name=\"F\" type=\"" + translated + "\">",
                         "</Font>", {{old.c_str(), "<Mapping Image='A' />", "<Mapping image=\"A\" />"}});
    }
}

TEST(OldSkinTranslation, pictures_of_a_look_get_one_name)
{
    ExpectLook({
        {"image", "<Image imageset='I' image='A' />", "<Image name=\"I/A\" />"},
        {"image of a frame", "<Image type='TopEdge' imageset='I' image='A' />", "<Image name=\"I/A\" component=\"TopEdge\" />"},
        {"size of an image", "<Dim type='Width'><ImageDim imageset='I' image='A' dimension='Width' /></Dim>",
         "<Dim type=\"Width\"><ImageDim name=\"I/A\" dimension=\"Width\" /></Dim>"},
        {"property", "<Property name='P' value='set:I image:A' />", "<Property name=\"P\" value=\"I/A\" />"},
        {"property with blanks", "<Property name='P' value='  set:I   image:A ' />", "<Property name=\"P\" value=\"I/A\" />"},
        {"definition", "<PropertyDefinition name='P' initialValue='set:I image:A' redrawOnWrite='true' layoutOnWrite='true' />",
         "<PropertyDefinition name=\"P\" initialValue=\"I/A\" layoutOnWrite=\"true\" redrawOnWrite=\"true\" />"},
        {"picture from a property", "<ImageProperty name='P' />", "<ImageProperty name=\"P\" />"},
    });
}

TEST(OldSkinTranslation, picture_file_as_imageset_is_named_like_the_imageset)
{
    OldSkin skin;
    std::vector<OldSkin::LeftOut> leftOut;
    skin.Translate("<GUIScheme Name='S'><ImagesetFromImage Name='W' Filename='w.png' /><ImagesetFromImage Filename='v.png' />"
                   "</GUIScheme>",
                   leftOut);
    ASSERT_TRUE(leftOut.empty());
    ExpectLook({{"by name", "<Image imageset='W' image='full_image' />", "<Image name=\"W\" />"},
                {"by file", "<Image imageset='v.png' image='full_image' />", "<Image name=\"v.png\" />"},
                {"property", "<Property name='P' value='set:W image:full_image' />", "<Property name=\"P\" value=\"W\" />"}},
               skin);
}

TEST(OldSkinTranslation, renamed_properties)
{
    for (const auto& [old, translated] :
         std::vector<std::pair<std::string, std::string>>{{"CaratIndex", "CaretIndex"},
                                                          {"CustomTooltipType", "TooltipType"},
                                                          {"EditSelectionLength", "SelectionLength"},
                                                          {"EditSelectionStart", "SelectionStart"},
                                                          {"MaxEditTextLength", "MaxTextLength"},
                                                          {"MouseButtonDownAutoRepeat", "MouseAutoRepeatEnabled"},
                                                          {"RiseOnClick", "RiseOnClickEnabled"},
                                                          {"Tooltip", "TooltipText"},
                                                          {"UnifiedAreaRect", "Area"},
                                                          {"UnifiedMaxSize", "MaxSize"},
                                                          {"UnifiedMinSize", "MinSize"},
                                                          {"UnifiedPosition", "Position"},
                                                          {"UnifiedSize", "Size"},
                                                          {"ZOrderChangeEnabled", "ZOrderingEnabled"},
                                                          {"Visible", "Visible"},
                                                          {"OurOwn", "OurOwn"}})
    {
        const struct
        {
            const char* before;
            const char* after;
        } places[] = {{"<Property name=\"", "\" value=\"v\" />"},
                      {"<PropertyLinkDefinition name=\"link\" widget=\"w\" targetProperty=\"", "\" />"},
                      {"<ColourProperty name=\"", "\" />"},
                      {"<ColourRectProperty name=\"", "\" />"},
                      {"<TextProperty name=\"", "\" />"},
                      {"<FontProperty name=\"", "\" />"},
                      {"<HorzFormatProperty name=\"", "\" />"},
                      {"<VertFormatProperty name=\"", "\" />"},
                      {"<AreaProperty name=\"", "\" />"},
                      {"<Section section=\"s\" controlProperty=\"", "\" />"},
                      {"<PropertyDim widget=\"w\" name=\"", "\" type=\"Width\" />"}};
        for (const auto& place : places)
        {
            ExpectLook(
                {{place.before, (place.before + old + place.after).c_str(), (place.before + translated + place.after).c_str()}});
        }
    }
}

TEST(OldSkinTranslation, property_that_the_look_makes_itself_keeps_its_name)
{
    const char* const same = "<PropertyDefinition name=\"Tooltip\" initialValue=\"\" />"
                             "<Property name=\"Tooltip\" value=\"v\" /><TextProperty name=\"Tooltip\" />";
    ExpectLook({{"definition", same, same}});
}

TEST(OldSkinTranslation, values_of_text_formats)
{
    ExpectLook({
        {"across", "<Property name='HorzFormatting' value='HorzCentred' />",
         "<Property name=\"HorzFormatting\" value=\"CentreAligned\" />"},
        {"justified", "<Property name='HorzFormatting' value='HorzJustified' />",
         "<Property name=\"HorzFormatting\" value=\"Justified\" />"},
        {"wrapped", "<Property name='HorzFormatting' value='WordWrapCentred' />",
         "<Property name=\"HorzFormatting\" value=\"WordWrapCentreAligned\" />"},
        {"down", "<Property name='VertFormatting' value='VertCentred' />",
         "<Property name=\"VertFormatting\" value=\"CentreAligned\" />"},
        {"kept", "<Property name='HorzFormatting' value='LeftAligned' />",
         "<Property name=\"HorzFormatting\" value=\"LeftAligned\" />"},
        {"text of this kind elsewhere", "<Property name='Text' value='HorzCentred' />",
         "<Property name=\"Text\" value=\"HorzCentred\" />"},
    });
}

TEST(OldSkinTranslation, operators_of_dimensions)
{
    ExpectLook({
        {"none", "<Dim type='Width'><AbsoluteDim value='1' /></Dim>", "<Dim type=\"Width\"><AbsoluteDim value=\"1\" /></Dim>"},
        {"one",
         "<Dim type='Width'><AbsoluteDim value='1'><DimOperator op='Add'><AbsoluteDim value='2' "
         "/></DimOperator></AbsoluteDim></Dim>",
         "<Dim type=\"Width\"><OperatorDim op=\"Add\"><AbsoluteDim value=\"1\" /><AbsoluteDim value=\"2\" "
         "/></OperatorDim></Dim>"},
        {"two, the second one reckoned first",
         "<Dim type='Width'><AbsoluteDim value='9'><DimOperator op='Subtract'><WidgetDim widget='w' dimension='Width'>"
         "<DimOperator op='Divide'><AbsoluteDim value='3' /></DimOperator></WidgetDim></DimOperator></AbsoluteDim></Dim>",
         "<Dim type=\"Width\"><OperatorDim op=\"Subtract\"><AbsoluteDim value=\"9\" /><OperatorDim op=\"Divide\">"
         "<WidgetDim widget=\"w\" dimension=\"Width\" /><AbsoluteDim value=\"3\" /></OperatorDim></OperatorDim></Dim>"},
        {"font",
         "<Dim type='Height'><FontDim widget='w' font='F' string='s' type='HorzExtent' padding='4'>"
         "<DimOperator op='Multiply'><UnifiedDim scale='0.5' offset='1' type='Height' /></DimOperator></FontDim></Dim>",
         "<Dim type=\"Height\"><OperatorDim op=\"Multiply\">"
         "<FontDim widget=\"w\" font=\"F\" string=\"s\" type=\"HorzExtent\" padding=\"4\" />"
         "<UnifiedDim scale=\"0.5\" offset=\"1\" type=\"Height\" /></OperatorDim></Dim>"},
        {"one that does nothing",
         "<Dim type='Width'><AbsoluteDim value='1'><DimOperator op='Noop'><AbsoluteDim value='2' "
         "/></DimOperator></AbsoluteDim></Dim>",
         "<Dim type=\"Width\"><AbsoluteDim value=\"1\" /></Dim>"},
    });
}

TEST(OldSkinTranslation, caret_of_an_edit_box)
{
    ExpectLook({{"section", "<ImagerySection name='Carat' />", "<ImagerySection name=\"Caret\" />"},
                {"its use", "<Section section='Carat' look='L' />", "<Section section=\"Caret\" look=\"L\" />"}});
}

TEST(OldSkinTranslation, child_windows)
{
    ExpectLook({{"skin's type", "<Child type='L/Titlebar' nameSuffix='__auto_titlebar__' />",
                 "<Child type=\"L/Titlebar\" nameSuffix=\"__auto_titlebar__\" />"},
                {"renamed type", "<Child type='CEGUI/Checkbox' nameSuffix='s' look='L/C' renderer='Falagard/ToggleButton' />",
                 "<Child type=\"CEGUI/ToggleButton\" nameSuffix=\"s\" look=\"L/C\" renderer=\"Core/ToggleButton\" />"}});
}

TEST(OldSkinTranslation, what_is_the_same_in_both_versions)
{
    for (const char* same : {
             "<NamedArea name=\"n\"><Area><AreaProperty name=\"p\" /></Area></NamedArea>",
             "<Child type=\"t\" nameSuffix=\"s\"><VertAlignment type=\"TopAligned\" /><HorzAlignment type=\"LeftAligned\" "
             "/></Child>",
             "<ImagerySection name=\"s\"><Colours topLeft=\"1\" topRight=\"2\" bottomLeft=\"3\" bottomRight=\"4\" />"
             "<FrameComponent><Area /></FrameComponent></ImagerySection>",
             "<ImageryComponent><VertFormat type=\"Tiled\" /><HorzFormat type=\"Stretched\" /></ImageryComponent>",
             "<TextComponent><Text string=\"s &amp; t\" font=\"F\" /></TextComponent>",
             "<StateImagery name=\"Enabled\" clipped=\"false\"><Layer priority=\"2\"><Section section=\"s\" "
             "/></Layer></StateImagery>",
         })
    {
        ExpectLook({{same, same, same}});
    }
}

TEST(OldSkinTranslation, file_in_utf16_or_with_a_byte_order_mark)
{
    const std::string old = "<?xml version=\"1.0\"?>\n<Imageset Name='图'>\n<Image Name='A' /></Imageset>";
    const CString wide = L"<?xml version=\"1.0\"?>\n<Imageset Name='图'>\n<Image Name='A' /></Imageset>";
    std::string little = "\xFF\xFE";
    std::string big = "\xFE\xFF";
    for (int i = 0; i < wide.GetLength(); ++i)
    {
        const char low = static_cast<char>(wide[i] & 0xFF);
        const char high = static_cast<char>(wide[i] >> 8);
        little += {low, high};
        big += {high, low};
    }
    for (const std::string& bytes : {old, "\xEF\xBB\xBF" + old, little, big})
    {
        OldSkin skin;
        std::vector<OldSkin::LeftOut> leftOut;
        const std::optional<std::string> text = skin.Translate(bytes, leftOut);
        ASSERT_TRUE(text);
        EXPECT_EQ(OneLine(*text), "<Imageset version=\"2\" name=\"图\"><Image name=\"A\" /></Imageset>");
    }
}
