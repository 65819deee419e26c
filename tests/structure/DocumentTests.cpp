// SPDX-License-Identifier: MIT
// What the documents say about the project's own files holds: its version, and the files that they lead to.
#include "SourceTree.h"

#include "support/GTest.h"

#include <regex>

namespace
{
/// The first match of an expression's group in a file.
std::string Find(const std::string& path, const std::string& expression)
{
    for (const std::string& line : ReadSource(path).lines)
    {
        std::smatch match;
        if (std::regex_search(line, match, std::regex(expression)))
        {
            return match[1];
        }
    }
    return "nothing in " + path;
}
} // namespace

TEST(Documents, have_the_version_of_the_project)
{
    const std::string version = Find("CMakeLists.txt", "^project\\(NxOsgCeGui VERSION ([0-9.]+) ");
    EXPECT_TRUE(std::regex_match(version, std::regex("[0-9]+\\.[0-9]+\\.[0-9]+"))) << version;
    EXPECT_EQ(Find("CHANGELOG.md", "^## (\\S+)"), version);
    EXPECT_EQ(Find("vcpkg.json", "\"version\": \"([^\"]*)\""), version);
    const std::string asked = Find("examples/smallest_host/CMakeLists.txt", "find_package\\(NxOsgCeGui (\\S+) ");
    EXPECT_EQ(version.rfind(asked + ".", 0), 0u) << asked;
}

TEST(Documents, lead_to_files_that_are_there)
{
    int checked = 0;
    for (const char* document :
         {"README.md", "CHANGELOG.md", "THIRD_PARTY.md", "docs/building-on-windows.md", "docs/configuration.md",
          "docs/integrating.md", "docs/linux.md", "docs/menus.md", "docs/operations.md", "docs/skin.md"})
    {
        const std::vector<std::string> lines = ReadSource(document).lines;
        EXPECT_FALSE(lines.empty()) << document;
        const std::regex link("\\]\\(([^)#:]+)\\)");
        for (const std::string& line : lines)
        {
            for (std::sregex_iterator found(line.begin(), line.end(), link), end; found != end; ++found)
            {
                ++checked;
                EXPECT_TRUE(Exists(Resolve(std::string("./") + document, (*found)[1]))) << document << ": " << (*found)[1];
            }
        }
    }
    EXPECT_GT(checked, 5);
}
