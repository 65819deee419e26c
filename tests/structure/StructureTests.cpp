// SPDX-License-Identifier: MIT
// What the project's own sources keep to: which wing may include which, where platforms are told apart, the size of files.
#include "SourceTree.h"

#include "support/GTest.h"

#include <algorithm>

namespace
{
/// In the order in which they build on each other.
const std::vector<std::string> wings = {"imaging", "widgets", "panels", "control_buttons", "frame", "gui_host"};
constexpr std::size_t MaxLines = 400;

/// The place of a path's wing in the order; wings.size() for a path in none.
std::size_t WingOf(const std::string& path)
{
    for (std::size_t i = 0; i < wings.size(); ++i)
    {
        if (path.rfind("src/" + wings[i] + "/", 0) == 0)
        {
            return i;
        }
    }
    return wings.size();
}

std::vector<SourceFile> AllSources()
{
    std::vector<SourceFile> all;
    for (const char* folder : {"src", "include", "services", "mfc", "platform", "examples", "tests"})
    {
        const std::vector<SourceFile> some = SourcesIn(folder);
        all.insert(all.end(), some.begin(), some.end());
    }
    return all;
}
} // namespace

TEST(Structure, sources_are_found)
{
    for (const char* folder : {"src/imaging", "src/widgets", "src/panels", "src/control_buttons", "src/frame", "src/gui_host",
                               "include", "services", "mfc"})
    {
        EXPECT_FALSE(SourcesIn(folder).empty()) << folder;
    }
}

TEST(Structure, includes_are_read_and_resolved)
{
    const SourceFile file = {"src/a/b.cpp", {"#include \"c.h\"", "  # include \"../d/e.h\"", "#include <f.h>", "\"g.h\""}};
    EXPECT_EQ(QuotedIncludes(file), (std::vector<std::string>{"c.h", "../d/e.h"}));
    EXPECT_EQ(Resolve(file.path, "c.h"), "src/a/c.h");
    EXPECT_EQ(Resolve(file.path, "../d/e.h"), "src/d/e.h");
    EXPECT_EQ(Resolve(file.path, "../../platform/x.h"), "platform/x.h");
    EXPECT_EQ(WingOf("src/widgets/x.h"), 1u);
    EXPECT_EQ(WingOf("src/gui_host/x.h"), 5u);
    EXPECT_EQ(WingOf("src/resources/x.h"), 6u);
}

TEST(Structure, every_source_lies_in_a_wing)
{
    for (const SourceFile& file : SourcesIn("src"))
    {
        EXPECT_TRUE(WingOf(file.path) < wings.size() || file.path.rfind("src/resources/", 0) == 0) << file.path;
    }
}

TEST(Structure, no_wing_includes_a_later_one)
{
    int checked = 0;
    for (const SourceFile& file : SourcesIn("src"))
    {
        for (const std::string& include : QuotedIncludes(file))
        {
            const std::string path = Resolve(file.path, include);
            ++checked;
            EXPECT_TRUE(Exists(path)) << file.path << " includes " << include;
            if (WingOf(path) < wings.size())
            {
                EXPECT_LE(WingOf(path), WingOf(file.path)) << file.path << " includes " << include;
            }
            else
            {
                EXPECT_TRUE(path == "platform/NativeFile.h" || path == "platform/NativePath.h" || path == "platform/SystemGl.h" ||
                            path.rfind("src/resources/", 0) == 0 || path.rfind("include/NxOsgCeGui/", 0) == 0)
                    << file.path << " includes " << include;
            }
        }
    }
    EXPECT_GT(checked, 50);
}

TEST(Structure, wings_are_not_reached_around_their_order)
{
    for (const SourceFile& file : SourcesIn("src"))
    {
        for (const std::string& line : file.lines)
        {
            for (const std::string& wing : wings)
            {
                EXPECT_NE(line.rfind("#include <" + wing + "/", 0), 0u) << file.path << ": " << line;
            }
        }
    }
}

TEST(Structure, public_headers_include_nothing_of_the_inside)
{
    for (const SourceFile& file : SourcesIn("include"))
    {
        EXPECT_EQ(QuotedIncludes(file), std::vector<std::string>{}) << file.path;
    }
}

TEST(Structure, library_tells_no_platforms_apart)
{
    for (const SourceFile& file : SourcesIn("src"))
    {
        for (const std::string& line : file.lines)
        {
            for (const char* macro : {"__WINE__", "__linux__", "_MSC_VER", "__MINGW32__"})
            {
                EXPECT_EQ(line.find(macro), std::string::npos) << file.path << ": " << line;
            }
        }
    }
}

TEST(Structure, picture_files_are_decoded_and_bitmaps_made_where_sizes_are_checked)
{
    const std::vector<std::string> guarded = {"src/imaging/ImageDecoder.cpp", "src/widgets/Gdiplus.cpp",
                                              "src/widgets/ImageEncoder.cpp", "mfc/atlimage.cpp", "mfc/atlimage_save.cpp"};
    int found = 0;
    for (const char* folder : {"src", "services", "mfc", "examples"})
    {
        for (const SourceFile& file : SourcesIn(folder))
        {
            for (const std::string& line : file.lines)
            {
                for (const char* maker : {"GdipCreateBitmapFrom", "GdipLoadImageFrom", "CreateDIBSection("})
                {
                    const bool makes = line.find(maker) != std::string::npos;
                    found += makes;
                    EXPECT_TRUE(!makes || std::count(guarded.begin(), guarded.end(), file.path)) << file.path << ": " << line;
                }
            }
            // Microsoft's CImage has no limit of its own.
            const auto holds = [&](const std::string& text)
            {
                return std::any_of(file.lines.begin(), file.lines.end(),
                                   [&](const std::string& line) { return line.find(text) != std::string::npos; });
            };
            if (file.path.rfind("mfc/", 0) != 0 && holds("CImage ") && holds(".Load("))
            {
                EXPECT_TRUE(holds("IsSafeImageFile(")) << file.path;
            }
        }
    }
    EXPECT_GE(found, 5);
}

TEST(Structure, files_are_short)
{
    for (const char* folder : {"src", "include", "services", "mfc"})
    {
        for (const SourceFile& file : SourcesIn(folder))
        {
            EXPECT_LE(file.lines.size(), MaxLines) << file.path;
        }
    }
}

TEST(Structure, sources_start_with_their_licence)
{
    for (const SourceFile& file : AllSources())
    {
        ASSERT_FALSE(file.lines.empty()) << file.path;
        EXPECT_EQ(file.lines[0], "// SPDX-License-Identifier: MIT") << file.path;
    }
}

TEST(Structure, sources_keep_to_the_line_width_and_have_no_tabs)
{
    constexpr std::ptrdiff_t MaxColumns = 130;
    for (const SourceFile& file : AllSources())
    {
        // The example's tables of a city are as wide as they are.
        if (file.path.rfind("examples/", 0) == 0)
        {
            continue;
        }
        for (const std::string& line : file.lines)
        {
            const std::ptrdiff_t columns =
                std::count_if(line.begin(), line.end(), [](unsigned char byte) { return (byte & 0xC0) != 0x80; });
            EXPECT_LE(columns, MaxColumns) << file.path << ": " << line;
            EXPECT_EQ(line.find('\t'), std::string::npos) << file.path << ": " << line;
        }
    }
}
