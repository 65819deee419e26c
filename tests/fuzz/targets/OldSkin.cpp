// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"

#include <gui_host/OldSkin.h>

#include <pugixml.hpp>

#include <algorithm>

namespace
{
/// Parts the files of one skin in the bytes.
const std::string NextFile = "<!-- next file -->";

void FuzzFile(OldSkin& skin, const std::string& bytes)
{
    std::vector<OldSkin::LeftOut> leftOut;
    const std::optional<std::string> translated = skin.Translate(bytes, leftOut);
    if (!translated)
    {
        Require(leftOut.empty(), "nothing is left out of a file that is none of an old skin");
        return;
    }
    // In UTF-16 a line end may be half a letter.
    const auto lines = std::count(bytes.begin(), bytes.end(), '\n');
    std::size_t told = 0;
    for (const OldSkin::LeftOut& part : leftOut)
    {
        Require(!part.what.empty() && part.line >= 1 && part.line <= lines + 1, "what is left out is on a line of the file");
        told += part.what.size();
    }
    Require(told < 100 * bytes.size() + 10000, "what is left out is told in short");
    Require(translated->size() < 100 * bytes.size() + 1000, "a translation is not much larger than the file");
    pugi::xml_document document;
    Require(document.load_buffer(translated->data(), translated->size()), "a translation is XML");
    Require(document.document_element().attribute("version"), "a translation bears a version");
    Require(!OldSkin().Translate(*translated, leftOut), "a translation is no old file");
    Require(!skin.Translate(*translated, leftOut), "a translation is no old file for the skin either");
}
} // namespace

void FuzzOldSkin(const std::string& bytes)
{
    OldSkin skin;
    for (std::size_t begin = 0; begin <= bytes.size();)
    {
        const std::size_t end = std::min(bytes.find(NextFile, begin), bytes.size());
        FuzzFile(skin, bytes.substr(begin, end - begin));
        begin = end + NextFile.size();
    }
}
