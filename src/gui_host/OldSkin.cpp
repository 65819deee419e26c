// SPDX-License-Identifier: MIT
#include "OldSkin.h"

#include "OldSkinFormat.h"

#include <KernelCommonUse/StringConvert.h>

#include <pugixml.hpp>

#include <algorithm>
#include <set>
#include <sstream>
#include <utility>

namespace
{
/// The text as UTF-8, so that a place in it is a place in what is parsed. An encoding that only XML's declaration tells of is
/// left as it is: names are plain English in all skins.
std::string Utf8(std::string_view bytes)
{
    const bool littleEndian = bytes.compare(0, 2, "\xFF\xFE") == 0;
    if (!littleEndian && bytes.compare(0, 2, "\xFE\xFF") != 0)
    {
        return std::string(bytes);
    }
    CString text;
    const int length = static_cast<int>(bytes.size() / 2) - 1;
    wchar_t* letters = text.GetBuffer(length);
    for (int i = 0; i < length; ++i)
    {
        const unsigned char first = static_cast<unsigned char>(bytes[2 * i + 2]);
        const unsigned char second = static_cast<unsigned char>(bytes[2 * i + 3]);
        letters[i] = static_cast<wchar_t>(littleEndian ? first | second << 8 : first << 8 | second);
    }
    text.ReleaseBuffer(length);
    return CString2string(text);
}

bool LooksLikeXml(std::string_view bytes)
{
    // A byte order mark may come first, in UTF-16 each letter has a null.
    const std::size_t first = bytes.find_first_not_of(std::string_view("\xEF\xBB\xBF\xFF\xFE\0 \t\r\n", 10));
    return first != std::string::npos && bytes[first] == '<';
}

/// Deeper than any look goes: a file that is deeper is no skin, and its elements are gone through by recursion.
constexpr int DeepestElement = 100;
/// Beyond these a list of what was left out is of no use to anybody.
constexpr std::size_t MaxLeftOut = 1000;
constexpr std::size_t MaxTitle = 200;

std::string Shortened(const std::string& text)
{
    std::size_t length = MaxTitle;
    if (text.size() <= length)
    {
        return text;
    }
    // Not within a letter of UTF-8.
    while (length > 0 && (text[length] & 0xC0) == 0x80)
    {
        --length;
    }
    return text.substr(0, length) + "...";
}

/// How an element is called where it is left out: with what tells it from its like.
std::string Titled(pugi::xml_node element)
{
    const char* const titles[] = {"Name", "name", "WindowType", "Filename", "nameSuffix", "section", "image"};
    for (const char* title : titles)
    {
        if (const pugi::xml_attribute attribute = element.attribute(title))
        {
            return Shortened(element.name()) + " \"" + Shortened(attribute.value()) + "\"";
        }
    }
    return Shortened(element.name());
}

/// One file on its way into 0.8's format.
class Translation
{
public:
    Translation(const OldSkinFormat& format, const std::string& text, OldSkinNames& names, std::vector<OldSkin::LeftOut>& leftOut)
        : format_(format), names_(names), leftOut_(leftOut), most_(leftOut.size() + MaxLeftOut)
    {
        for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', end + 1))
        {
            lineEnds_.push_back(static_cast<std::ptrdiff_t>(end));
        }
    }

    void Root(pugi::xml_node from, pugi::xml_document& to)
    {
        DefineProperties(from);
        pugi::xml_node root = Element(from, to);
        root.prepend_attribute("version") = format_.newVersion;
    }

    bool NamesPictures() const { return namesPictures_; }

private:
    class Deeper
    {
    public:
        explicit Deeper(int& depth) : depth_(depth) { ++depth_; }
        ~Deeper() { --depth_; }
        Deeper(const Deeper&) = delete;
        Deeper& operator=(const Deeper&) = delete;

    private:
        int& depth_;
    };

    void LeaveOut(pugi::xml_node element, const std::string& what)
    {
        if (leftOut_.size() > most_)
        {
            return;
        }
        const auto before = std::lower_bound(lineEnds_.begin(), lineEnds_.end(), element.offset_debug());
        leftOut_.push_back({leftOut_.size() < most_ ? what : "and more", 1 + static_cast<int>(before - lineEnds_.begin())});
    }

    void DefineProperties(pugi::xml_node root)
    {
        names_.ForgetDefined();
        for (const pugi::xml_node look : root.children("WidgetLook"))
        {
            for (const char* definition : {"PropertyDefinition", "PropertyLinkDefinition"})
            {
                for (const pugi::xml_node property : look.children(definition))
                {
                    names_.Define(property.attribute("name").value());
                }
            }
        }
    }

    /// The element's counterpart, or null when it is left out.
    pugi::xml_node Element(pugi::xml_node from, pugi::xml_node to)
    {
        const OldSkinElement* element = format_.Find(from.name());
        if (!element)
        {
            LeaveOut(from, Titled(from));
            return pugi::xml_node();
        }
        const Deeper deeper(depth_);
        if (depth_ > DeepestElement)
        {
            LeaveOut(from, Titled(from) + " more than 100 deep");
            return pugi::xml_node();
        }
        return element->kind == OldSkinKind::Dimension ? Dimension(*element, from, to) : Plain(*element, from, to);
    }

    pugi::xml_node Plain(const OldSkinElement& element, pugi::xml_node from, pugi::xml_node to)
    {
        pugi::xml_node made = to.append_child(element.name);
        if (!Attributes(element, from, made) || (element.kind == OldSkinKind::Once && !IsFirst(made)))
        {
            to.remove_child(made);
            return pugi::xml_node();
        }
        if (element.kind == OldSkinKind::WholePicture)
        {
            const pugi::xml_attribute name = from.attribute("Name");
            names_.DefineWholePicture((name && *name.value() ? name : from.attribute("Filename")).value());
        }
        namesPictures_ = namesPictures_ || element.kind == OldSkinKind::Picture;
        for (const pugi::xml_node child : from.children())
        {
            // A dimension's child is its operator.
            if (child.type() == pugi::node_element && element.kind != OldSkinKind::Dimension)
            {
                Element(child, made);
            }
        }
        if (element.kind == OldSkinKind::Side && !made.first_child())
        {
            // CEGUI does not stand an area that lacks one of its sides.
            made.append_child("AbsoluteDim").append_attribute("value") = "0";
        }
        return made;
    }

    /// Two of 0.6's names may have become one.
    bool IsFirst(pugi::xml_node made)
    {
        return once_.insert({made.parent().hash_value(), made.attribute("name").value()}).second;
    }

    /// 0.6 writes "a op b" as an operator inside a, 0.8 as a and b inside an operator. Of "a op b op c" both reckon the
    /// right-hand side first. Where one side is left out the other one stands alone.
    pugi::xml_node Dimension(const OldSkinElement& element, pugi::xml_node from, pugi::xml_node to)
    {
        const pugi::xml_node op = from.child("DimOperator");
        const std::string name = op.attribute("op").value();
        const pugi::xml_node operand = op.find_child([](pugi::xml_node node) { return node.type() == pugi::node_element; });
        const bool known = name == "Add" || name == "Subtract" || name == "Multiply" || name == "Divide";
        if (!known || !operand)
        {
            if (op && name != "Noop")
            {
                LeaveOut(op, "DimOperator \"" + Shortened(name) + "\"");
            }
            return Plain(element, from, to);
        }
        pugi::xml_node made = to.append_child("OperatorDim");
        made.append_attribute("op") = name.c_str();
        const bool first = Plain(element, from, made);
        const bool second = Element(operand, made);
        if (first && second)
        {
            return made;
        }
        const pugi::xml_node left = first || second ? to.append_move(made.first_child()) : pugi::xml_node();
        to.remove_child(made);
        return left;
    }

    bool Attributes(const OldSkinElement& element, pugi::xml_node from, pugi::xml_node to)
    {
        NoteUnknownAttributes(element, from);
        for (const OldSkinAttribute& rule : element.attributes)
        {
            const pugi::xml_attribute attribute = from.attribute(rule.name);
            if (!attribute)
            {
                if (rule.needed)
                {
                    LeaveOut(from, Titled(from) + " without \"" + rule.name + "\"");
                    return false;
                }
                continue;
            }
            const std::optional<std::string> value = Value(rule.value, from, attribute.value());
            if (!value)
            {
                const std::string title = Titled(from);
                const std::string quoted = " \"" + Shortened(attribute.value()) + "\"";
                LeaveOut(from, title == from.name() + quoted ? title : title + " with " + rule.name + quoted);
                return false;
            }
            if (*rule.newName)
            {
                to.append_attribute(rule.newName) = value->c_str();
            }
        }
        return true;
    }

    void NoteUnknownAttributes(const OldSkinElement& element, pugi::xml_node from)
    {
        std::string title;
        for (const pugi::xml_attribute attribute : from.attributes())
        {
            const std::string name = attribute.name();
            // Where an editor finds the schema says nothing about the skin.
            const bool schema = name.rfind("xmlns", 0) == 0 || name.rfind("xsi:", 0) == 0;
            const bool known = std::any_of(element.attributes.begin(), element.attributes.end(),
                                           [&](const OldSkinAttribute& rule) { return name == rule.name; });
            if (!known && !schema)
            {
                title = title.empty() ? Titled(from) : title;
                LeaveOut(from, "attribute \"" + Shortened(name) + "\" of " + title);
            }
        }
    }

    std::optional<std::string> Value(OldSkinValue kind, pugi::xml_node from, const std::string& value)
    {
        switch (kind)
        {
        case OldSkinValue::Switch:
            return OldSkinNames::Switch(value);
        case OldSkinValue::WindowType:
            return OldSkinNames::WindowType(value);
        case OldSkinValue::Renderer:
            return OldSkinNames::Renderer(value);
        case OldSkinValue::RendererModule:
            return OldSkinNames::RendererModule(value);
        case OldSkinValue::FontKind:
            return OldSkinNames::FontKind(value);
        case OldSkinValue::Section:
            return OldSkinNames::Section(value);
        case OldSkinValue::PropertyName:
            return names_.Property(value);
        case OldSkinValue::PropertyValue:
            return names_.PropertyValue(from.attribute("name").value(), value);
        case OldSkinValue::Image:
            return names_.Image(from.attribute("imageset").value(), value);
        default:
            return value;
        }
    }

    const OldSkinFormat& format_;
    std::vector<std::ptrdiff_t> lineEnds_;
    OldSkinNames& names_;
    std::vector<OldSkin::LeftOut>& leftOut_;
    const std::size_t most_;
    int depth_ = 0;
    /// Parent and name, of what a parent may have once under each name.
    std::set<std::pair<std::size_t, std::string>> once_;
    bool namesPictures_ = false;
};
} // namespace

std::optional<std::string> OldSkin::Translate(std::string_view bytes, std::vector<LeftOut>& leftOut)
{
    if (!LooksLikeXml(bytes))
    {
        return std::nullopt;
    }
    const std::string text = Utf8(bytes);
    pugi::xml_document old;
    if (!old.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8))
    {
        return std::nullopt;
    }
    const pugi::xml_node root = old.document_element();
    const OldSkinFormat* format = FindOldSkinFormat(root.name());
    if (!format || root.attribute("version") || (format->mark && !root.attribute(format->mark)))
    {
        return std::nullopt;
    }
    pugi::xml_document translated;
    Translation translation(*format, text, names_, leftOut);
    translation.Root(root, translated);
    namesPictures_ = translation.NamesPictures();
    std::ostringstream out;
    translated.save(out, " ", pugi::format_default, pugi::encoding_utf8);
    return out.str();
}
