// SPDX-License-Identifier: MIT
#include "LookNesting.h"

#include <pugixml.hpp>

#include <algorithm>
#include <cstring>
#include <utility>

namespace
{
/// Deeper than any skin; elements and windows are gone through by recursion.
constexpr int Deepest = 100;
/// More than any window holds.
constexpr double MostWindows = 10000;

// Types and looks may have the same names.
std::string TypeNode(const char* name)
{
    return std::string("type ") + name;
}

std::string LookNode(const char* name)
{
    return std::string("look ") + name;
}

/// Goes through a document without recursion.
class Walk : public pugi::xml_tree_walker
{
public:
    bool for_each(pugi::xml_node& node) override
    {
        tooDeep_ = tooDeep_ || depth() >= Deepest;
        // A window that gets another look takes over what that one holds.
        if (std::strcmp(node.name(), "Property") == 0 && std::strcmp(node.attribute("name").value(), "LookNFeel") == 0)
        {
            looks_.push_back(LookNode(node.attribute("value").value()));
        }
        return !tooDeep_;
    }
    bool IsTooDeep() const { return tooDeep_; }
    const std::vector<std::string>& Looks() const { return looks_; }

private:
    bool tooDeep_ = false;
    std::vector<std::string> looks_;
};
} // namespace

std::string LookNesting::Add(std::string_view xml)
{
    // A byte order mark may come first; in UTF-16 each letter has a null.
    const std::size_t first = xml.find_first_not_of(std::string_view("\xEF\xBB\xBF\xFF\xFE\0 \t\r\n", 10));
    pugi::xml_document document;
    if (first == std::string_view::npos || xml[first] != '<' || !document.load_buffer(xml.data(), xml.size()))
    {
        return std::string();
    }
    Walk elements;
    document.traverse(elements);
    if (elements.IsTooDeep())
    {
        return "its elements are more than " + std::to_string(Deepest) + " deep";
    }
    const pugi::xml_node root = document.document_element();
    for (const pugi::xml_node mapping : root.children("FalagardMapping"))
    {
        held_[TypeNode(mapping.attribute("windowType").value())] = {{TypeNode(mapping.attribute("targetType").value()), false},
                                                                    {LookNode(mapping.attribute("lookNFeel").value()), false}};
    }
    for (const pugi::xml_node alias : root.children("WindowAlias"))
    {
        held_[TypeNode(alias.attribute("alias").value())] = {{TypeNode(alias.attribute("target").value()), false}};
    }
    for (pugi::xml_node look : root.children("WidgetLook"))
    {
        std::vector<std::pair<std::string, bool>> held;
        if (const pugi::xml_attribute inherited = look.attribute("inherits"))
        {
            held.emplace_back(LookNode(inherited.value()), false);
        }
        for (const pugi::xml_node child : look.children("Child"))
        {
            held.emplace_back(TypeNode(child.attribute("type").value()), true);
        }
        Walk properties;
        look.traverse(properties);
        for (const std::string& other : properties.Looks())
        {
            held.emplace_back(other, false);
        }
        held_[LookNode(look.attribute("name").value())] = std::move(held);
    }
    std::map<std::string, Visited> visited;
    for (const auto& [node, held] : held_)
    {
        const std::string wrong = Visit(node, 0, visited);
        if (!wrong.empty())
        {
            return wrong;
        }
    }
    return std::string();
}

std::string LookNesting::Visit(const std::string& node, int depth, std::map<std::string, Visited>& visited) const
{
    const auto found = held_.find(node);
    if (found == held_.end())
    {
        return std::string();
    }
    const auto [entry, isNew] = visited.insert({node, Visited()});
    Visited& visit = entry->second;
    if (!isNew)
    {
        return visit.complete ? std::string() : "the " + node + " holds itself";
    }
    for (const auto& [name, isWindow] : found->second)
    {
        const std::string wrong = depth < Deepest ? Visit(name, depth + 1, visited) : std::string();
        if (!wrong.empty())
        {
            return wrong;
        }
        const auto inner = visited.find(name);
        visit.windows += isWindow;
        if (inner != visited.end())
        {
            visit.windows += inner->second.windows;
            visit.height = std::max(visit.height, inner->second.height + 1);
        }
        if (depth >= Deepest || visit.height > Deepest || visit.windows > MostWindows)
        {
            return "the " + node + " holds too many windows in each other";
        }
    }
    visit.complete = true;
    return std::string();
}
