// SPDX-License-Identifier: MIT
// What a command line and a publication may ask of the host: both come from somewhere else.
#include "support/GTest.h"
#include "support/Gui.h"

#include <Options.h>
#include <publish/Publication.h>
#include <skin/SkinFolder.h>

#include <KernelCommonUse/ServiceLog.h>
#include <KernelCommonUse/StringConvert.h>

#include <stdexcept>

namespace
{
std::vector<std::string>& ServiceLines()
{
    static std::vector<std::string> lines;
    return lines;
}

CString Skins()
{
    return host::ResourceFolder() + L"cegui\\";
}

/// The skin's folder that a value of "--skin" leads to; the error when it is refused.
std::string SkinOf(const CString& value)
{
    host::Options options;
    CString error;
    const bool taken = host::ParseOptions(L"CityHost.exe --skin \"" + value + L"\"", options, error);
    return CString2string(taken ? options.skinFolder : error);
}
} // namespace

TEST(HostOptions, a_skin_is_named_or_given_as_a_folder)
{
    const std::string expected = CString2string(Skins() + L"TavLookLight\\");
    EXPECT_EQ(SkinOf(L"TavLookLight"), expected);
    EXPECT_EQ(SkinOf(Skins() + L"TavLookLight"), expected);
    EXPECT_EQ(SkinOf(Skins() + L"TavLook\\..\\TavLookLight\\new_skin\\.."), expected);
    CString slashes = Skins() + L"TavLookLight";
    slashes.Replace(L'\\', L'/');
    EXPECT_EQ(SkinOf(slashes), expected);
}

TEST(HostOptions, a_folder_that_is_no_skin_of_its_own_is_refused)
{
    const std::string refused = "--skin wants the name of a skin, or its folder";
    // A scheme where an empty parameter looks for one.
    const FileReplaced scheme(host::ResourceFolder() + L"TavLookSkin.scheme", ReadBytes(SkinDir() + L"TavLookSkin.scheme"));
    const FileReplaced above(AppDir() + L"TavLookSkin.scheme", ReadBytes(SkinDir() + L"TavLookSkin.scheme"));
    for (const CString& value : {CString(L"TavLook\\.."), Skins() + L"TavLook\\..", Skins() + L"TavLook\\..\\..", Skins() + L"..",
                                 host::ResourceFolder(), AppDir(), CString(L".."), CString(L"."), CString(L"..\\"),
                                 Skins() + L"Nowhere", CString(L"Nowhere"), CString(L"\\"), AppDir() + L"languages"})
    {
        EXPECT_EQ(SkinOf(value), refused) << CString2string(value);
    }
}

TEST(HostOptions, the_language_of_a_publication_is_the_name_of_a_table)
{
    const CString folder = AppDir() + L"presentation";
    CreateDirectoryW(folder, nullptr);
    const struct
    {
        const char* value;
        const char* language;
    } rows[] = {{"en", "en"}, {"zh-CN", "zh-CN"}, {"..\\..\\secret", ""}, {"../secret", ""}, {"C:\\secret", ""}, {"", ""}};
    SetServiceLogSink([](const std::string& line) { ServiceLines().push_back(line); });
    for (const auto& row : rows)
    {
        ServiceLines().clear();
        const std::string text = std::string("[Publication]\nLanguage=") + row.value + "\nTitle=t\nDistance=10\n";
        const FileReplaced settings(folder + L"\\publication.ini", std::vector<std::uint8_t>(text.begin(), text.end()));
        EXPECT_EQ(CString2string(host::ReadPublication(folder).language), row.language);
        EXPECT_EQ(ServiceLines().size(), *row.language ? 0u : 1u) << row.value;
    }
    SetServiceLogSink(nullptr);
    RemoveDirectoryW(folder);
}
