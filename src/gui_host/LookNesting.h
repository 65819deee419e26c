// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What the windows of a skin's types hold: the mappings of its schemes and the children of its looks. CEGUI makes a window's
/// children with the window, so a type that holds itself would recurse until the stack ends.
class LookNesting
{
public:
    /// Adds a scheme's or a file of looks' types. A look that is known already is replaced, as CEGUI does.
    /// @param xml in CEGUI 0.8's format; anything else is ignored
    /// @return why CEGUI must not be given the file, naming the look or the element; empty when nothing is wrong
    std::string Add(std::string_view xml);

private:
    struct Visited
    {
        bool complete = false;
        int height = 0;
        double windows = 0;
    };

    std::string Visit(const std::string& node, int depth, std::map<std::string, Visited>& visited) const;

    /// By type or look, the types and looks whose windows belong to one of its windows, and whether each is a window of its own.
    std::map<std::string, std::vector<std::pair<std::string, bool>>> held_;
};
