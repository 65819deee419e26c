// SPDX-License-Identifier: MIT
#include "OldSkinNames.h"

#include <algorithm>
#include <map>

namespace
{
using Names = std::map<std::string, std::string>;

const char* const RendererPrefix = "Falagard/";
const char* const Whitespace = " \t\r\n";

const Names& WindowTypes()
{
    static const Names names = {{"CEGUI/Checkbox", "CEGUI/ToggleButton"}, {"DefaultGUISheet", "DefaultWindow"}};
    return names;
}

/// Behind the prefix. The one that is called otherwise in 0.8 is looked up in a table of its own.
const std::set<std::string>& Renderers()
{
    static const std::set<std::string> renderers = {
        "Button",    "Default",    "Editbox",           "FrameWindow",    "ItemEntry", "ItemListbox", "ListHeader",
        "Listbox",   "Menubar",    "ListHeaderSegment", "MenuItem",       "PopupMenu", "ProgressBar", "MultiColumnList",
        "Scrollbar", "Slider",     "MultiLineEditbox",  "ScrollablePane", "Static",    "StaticImage", "StaticText",
        "TabButton", "TabControl", "Titlebar",          "ToggleButton",   "Tooltip",   "Tree"};
    return renderers;
}

const Names& RenamedRenderers()
{
    static const Names names = {{"SystemButton", "Button"}};
    return names;
}

const Names& Properties()
{
    static const Names names = {{"CaratIndex", "CaretIndex"},
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
                                {"ZOrderChangeEnabled", "ZOrderingEnabled"}};
    return names;
}

const std::set<std::string>& GoneProperties()
{
    // 0.8 has only position and size as wholes, and tooltips that do not fade.
    static const std::set<std::string> names = {"FadeTime", "UnifiedHeight", "UnifiedWidth", "UnifiedXPosition",
                                                "UnifiedYPosition"};
    return names;
}

const Names& TextFormats()
{
    static const Names names = {{"HorzCentred", "CentreAligned"},
                                {"HorzJustified", "Justified"},
                                {"VertCentred", "CentreAligned"},
                                {"WordWrapCentred", "WordWrapCentreAligned"}};
    return names;
}

std::string Renamed(const Names& names, const std::string& name)
{
    const auto found = names.find(name);
    return found == names.end() ? name : found->second;
}

/// The word behind `label` from `at` on, and `at` moved behind it; nothing when the label is not there.
std::optional<std::string> TakeWord(const std::string& text, const std::string& label, std::size_t& at)
{
    at = text.find_first_not_of(Whitespace, at);
    if (at == std::string::npos || text.compare(at, label.size(), label) != 0)
    {
        return std::nullopt;
    }
    const std::size_t begin = at + label.size();
    at = std::min(text.find_first_of(Whitespace, begin), text.size());
    return text.substr(begin, at - begin);
}
} // namespace

std::string OldSkinNames::WindowType(const std::string& type)
{
    return Renamed(WindowTypes(), type);
}

std::optional<std::string> OldSkinNames::Renderer(const std::string& renderer)
{
    const std::string prefix = RendererPrefix;
    if (renderer.rfind(prefix, 0) != 0)
    {
        return std::nullopt;
    }
    const std::string name = Renamed(RenamedRenderers(), renderer.substr(prefix.size()));
    return Renderers().count(name) ? std::optional<std::string>("Core/" + name) : std::nullopt;
}

std::optional<std::string> OldSkinNames::RendererModule(const std::string& file)
{
    std::string name = file;
    // A debug build's module, and a file's name, are the same module.
    for (const std::string ending : {".dll", "_d"})
    {
        if (name.size() > ending.size() && name.compare(name.size() - ending.size(), ending.size(), ending) == 0)
        {
            name.resize(name.size() - ending.size());
        }
    }
    return name == "CEGUIFalagardWRBase" ? std::optional<std::string>("CEGUICoreWindowRendererSet") : std::nullopt;
}

std::string OldSkinNames::Switch(const std::string& value)
{
    return value == "true" || value == "True" || value == "1" ? "true" : "false";
}

std::string OldSkinNames::FontKind(const std::string& kind)
{
    static const Names names = {{"Dynamic", "FreeType"}, {"Static", "Pixmap"}};
    return Renamed(names, kind);
}

std::string OldSkinNames::Section(const std::string& section)
{
    // An edit box looks for its caret by name.
    return section == "Carat" ? "Caret" : section;
}

std::optional<std::string> OldSkinNames::Property(const std::string& property) const
{
    if (defined_.count(property))
    {
        return property;
    }
    return GoneProperties().count(property) ? std::nullopt : std::optional<std::string>(Renamed(Properties(), property));
}

std::optional<std::string> OldSkinNames::PropertyValue(const std::string& property, const std::string& value) const
{
    std::size_t at = 0;
    if (const std::optional<std::string> imageset = TakeWord(value, "set:", at))
    {
        const std::optional<std::string> image = TakeWord(value, "image:", at);
        return image ? Image(*imageset, *image) : std::nullopt;
    }
    return property == "HorzFormatting" || property == "VertFormatting" ? Renamed(TextFormats(), value) : value;
}

std::optional<std::string> OldSkinNames::Image(const std::string& imageset, const std::string& image) const
{
    if (image != "full_image")
    {
        return imageset + "/" + image;
    }
    // 0.6 has this image in every imageset, 0.8 only where the imageset is one picture file.
    return wholePictures_.count(imageset) ? std::optional<std::string>(imageset) : std::nullopt;
}
