// SPDX-License-Identifier: MIT
#include "OldSkinFormat.h"

#include <algorithm>

namespace
{
using Value = OldSkinValue;
using Kind = OldSkinKind;

const OldSkinFormat& Scheme()
{
    static const OldSkinFormat format = {
        "GUIScheme",
        "Name",
        "5",
        {{"GUIScheme", {{"Name", "name"}}},
         {"Imageset", {{"Name", "name"}, {"Filename", "filename"}, {"ResourceGroup", "resourceGroup"}}},
         {"ImagesetFromImage",
          {{"Name", "name"}, {"Filename", "filename"}, {"ResourceGroup", "resourceGroup"}},
          Kind::WholePicture},
         {"Font", {{"Name", "name"}, {"Filename", "filename"}, {"ResourceGroup", "resourceGroup"}}},
         {"LookNFeel", {{"Filename", "filename"}, {"ResourceGroup", "resourceGroup"}}},
         {"WindowRendererSet", {{"Filename", "filename", Value::RendererModule, true}}},
         {"WindowRendererFactory", {{"Name", "name", Value::Renderer, true}}, Kind::Once},
         {"WindowAlias", {{"Alias", "alias"}, {"Target", "target", Value::WindowType}}},
         {"FalagardMapping",
          {{"WindowType", "windowType"},
           {"TargetType", "targetType", Value::WindowType},
           {"Renderer", "renderer", Value::Renderer, true},
           {"LookNFeel", "lookNFeel"}}}}};
    return format;
}

const OldSkinFormat& Imageset()
{
    static const OldSkinFormat format = {"Imageset",
                                         "Name",
                                         "2",
                                         {{"Imageset",
                                           {{"Name", "name"},
                                            {"Imagefile", "imagefile"},
                                            {"ResourceGroup", "resourceGroup"},
                                            {"NativeHorzRes", "nativeHorzRes"},
                                            {"NativeVertRes", "nativeVertRes"},
                                            {"AutoScaled", "autoScaled", Value::Switch}}},
                                          {"Image",
                                           {{"Name", "name"},
                                            {"XPos", "xPos"},
                                            {"YPos", "yPos"},
                                            {"Width", "width"},
                                            {"Height", "height"},
                                            {"XOffset", "xOffset"},
                                            {"YOffset", "yOffset"}}}}};
    return format;
}

const OldSkinFormat& Font()
{
    static const OldSkinFormat format = {
        "Font",
        "Name",
        "3",
        {{"Font",
          {{"Name", "name"},
           {"Filename", "filename"},
           {"ResourceGroup", "resourceGroup"},
           {"Type", "type", Value::FontKind},
           {"Size", "size"},
           {"NativeHorzRes", "nativeHorzRes"},
           {"NativeVertRes", "nativeVertRes"},
           {"AutoScaled", "autoScaled", Value::Switch},
           {"AntiAlias", "antiAlias", Value::Switch},
           {"LineSpacing", "lineSpacing"}}},
         {"Mapping", {{"Codepoint", "codepoint"}, {"Image", "image"}, {"HorzAdvance", "horzAdvance"}}}}};
    return format;
}

/// The attributes of a look have the same names in both versions, but for those of images.
OldSkinAttribute Kept(const char* name, Value value = Value::Same)
{
    return {name, name, value};
}

const OldSkinFormat& Look()
{
    static const OldSkinAttribute property = {"name", "name", Value::PropertyName, true};
    static const OldSkinAttribute imageset = {"imageset", "", Value::Same, true};
    static const OldSkinAttribute image = {"image", "name", Value::Image, true};
    static const OldSkinAttribute type = Kept("type");
    static const OldSkinAttribute name = Kept("name");
    static const OldSkinFormat format = {
        "Falagard",
        nullptr,
        "7",
        {{"Falagard", {}},
         {"WidgetLook", {name}},
         {"PropertyDefinition",
          {name, Kept("initialValue", Value::PropertyValue), type, Kept("layoutOnWrite"), Kept("redrawOnWrite")}},
         {"PropertyLinkDefinition",
          {name, Kept("initialValue", Value::PropertyValue), type, Kept("layoutOnWrite"), Kept("redrawOnWrite"), Kept("widget"),
           Kept("targetProperty", Value::PropertyName)}},
         {"Property", {property, Kept("value", Value::PropertyValue)}},
         {"NamedArea", {name}},
         {"Child", {Kept("type", Value::WindowType), Kept("nameSuffix"), Kept("look"), Kept("renderer", Value::Renderer)}},
         {"HorzAlignment", {type}},
         {"VertAlignment", {type}},
         {"ImagerySection", {Kept("name", Value::Section)}},
         {"StateImagery", {name, Kept("clipped")}},
         {"Layer", {Kept("priority")}},
         {"Section", {Kept("section", Value::Section), Kept("look"), Kept("controlProperty", Value::PropertyName)}},
         {"Colours", {Kept("topLeft"), Kept("topRight"), Kept("bottomLeft"), Kept("bottomRight")}},
         {"ColourProperty", {property}},
         {"ColourRectProperty", {property}},
         {"FrameComponent", {}},
         {"ImageryComponent", {}},
         {"TextComponent", {}},
         {"Image", {imageset, image, {"type", "component"}}, Kind::Picture},
         {"ImageProperty", {property}},
         {"Text", {Kept("string"), Kept("font")}},
         {"TextProperty", {property}},
         {"FontProperty", {property}},
         {"HorzFormat", {type}},
         {"VertFormat", {type}},
         {"HorzFormatProperty", {property}},
         {"VertFormatProperty", {property}},
         {"Area", {}},
         {"AreaProperty", {property}},
         {"Dim", {type}, Kind::Side},
         {"AbsoluteDim", {Kept("value")}, Kind::Dimension},
         {"UnifiedDim", {Kept("scale"), Kept("offset"), type}, Kind::Dimension},
         {"ImageDim", {imageset, image, Kept("dimension")}, Kind::Dimension},
         {"WidgetDim", {Kept("widget"), Kept("dimension")}, Kind::Dimension},
         {"FontDim", {Kept("widget"), Kept("font"), Kept("string"), type, Kept("padding")}, Kind::Dimension},
         {"PropertyDim", {Kept("widget"), property, type}, Kind::Dimension}}};
    return format;
}
} // namespace

const OldSkinElement* OldSkinFormat::Find(const std::string& element) const
{
    const auto found = std::find_if(elements.begin(), elements.end(),
                                    [&](const OldSkinElement& candidate) { return element == candidate.name; });
    return found == elements.end() ? nullptr : &*found;
}

const OldSkinFormat* FindOldSkinFormat(const std::string& root)
{
    for (const OldSkinFormat* format : {&Scheme(), &Imageset(), &Look(), &Font()})
    {
        if (root == format->root)
        {
            return format;
        }
    }
    return nullptr;
}
