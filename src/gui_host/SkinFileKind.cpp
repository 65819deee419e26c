// SPDX-License-Identifier: MIT
#include "SkinFileKind.h"

#include <pugixml.hpp>

namespace
{
struct XmlKind
{
    std::string_view ending;
    const char* root;
};

constexpr XmlKind xmlKinds[] = {
    {".scheme", "GUIScheme"}, {".imageset", "Imageset"}, {".looknfeel", "Falagard"}, {".font", "Font"}};

const XmlKind* XmlKindOf(std::string_view file)
{
    for (const XmlKind& kind : xmlKinds)
    {
        if (file.size() > kind.ending.size() && file.substr(file.size() - kind.ending.size()) == kind.ending)
        {
            return &kind;
        }
    }
    return nullptr;
}
} // namespace

namespace SkinFileKind
{
bool IsXml(const std::string& file)
{
    return XmlKindOf(file) != nullptr;
}

std::string Mismatch(const std::string& file, std::string_view bytes)
{
    const XmlKind* kind = XmlKindOf(file);
    pugi::xml_document document;
    if (!kind || !document.load_buffer(bytes.data(), bytes.size(), pugi::parse_minimal))
    {
        return std::string();
    }
    const std::string root = document.document_element().name();
    return root == kind->root ? std::string() : "its root element is '" + root + "' instead of '" + kind->root + "'";
}
} // namespace SkinFileKind
