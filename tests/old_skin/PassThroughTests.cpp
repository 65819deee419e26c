// SPDX-License-Identifier: MIT
// Files that are handed on as they are, and files on the disk, which are only read.
#include "OldSkinTest.h"

#include <gui_host/SkinResourceProvider.h>

#include <CEGUI/DataContainer.h>
#include <CEGUI/Exceptions.h>

#include <KernelCommonUse/StringConvert.h>

#include <map>

namespace
{
using OldSkinFiles = OldSkinTest;

/// What the provider hands CEGUI of a file with these bytes.
std::string Provided(const std::string& bytes)
{
    const CString path = AppDir() + L"provided.xml";
    const FileReplaced file(path, std::vector<std::uint8_t>(bytes.begin(), bytes.end()));
    SkinResourceProvider provider;
    CEGUI::RawDataContainer data;
    provider.loadRawDataContainer(CEGUI::String(CString2string(path)), data, "");
    return std::string(reinterpret_cast<const char*>(data.getDataPtr()), data.getSize());
}

struct FileState
{
    std::vector<std::uint8_t> bytes;
    FILETIME written;
    DWORD attributes;
};

std::map<std::string, FileState> FilesIn(const CString& folder)
{
    std::map<std::string, FileState> files;
    WIN32_FIND_DATAW entry;
    const HANDLE search = FindFirstFileW(folder + L"*", &entry);
    for (BOOL more = search != INVALID_HANDLE_VALUE; more; more = FindNextFileW(search, &entry))
    {
        const CString name = entry.cFileName;
        if (!(entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
        {
            files[Utf8(name)] = {ReadBytes(folder + name), entry.ftLastWriteTime, entry.dwFileAttributes};
        }
    }
    FindClose(search);
    return files;
}

std::string Text(const std::vector<std::uint8_t>& bytes)
{
    return std::string(bytes.begin(), bytes.end());
}
} // namespace

TEST_F(OldSkinFiles, in_the_new_formats_and_of_other_kinds_are_handed_on_byte_for_byte)
{
    for (const wchar_t* file : {L"TavLookSkin.scheme", L"TavLook.imageset", L"TavLook.looknfeel", L"TavLook.png"})
    {
        const std::string bytes = Text(ReadBytes(SkinDir() + file));
        ASSERT_FALSE(bytes.empty());
        EXPECT_TRUE(Provided(bytes) == bytes) << Utf8(file);
    }
    const struct
    {
        const char* name;
        std::string bytes;
    } files[] = {
        {"scheme with odd blanks", "\n<GUIScheme\tversion='5' name='S'>\r\n <WindowSet filename='W'/></GUIScheme>\n\n"},
        {"scheme of another version", "<GUIScheme version=\"4\" Name=\"S\"></GUIScheme>"},
        {"look of another version", "<Falagard version=\"6\"><WidgetLook name=\"L\"/></Falagard>"},
        {"new scheme that lacks its version", "<GUIScheme name=\"S\"><LookNFeel filename=\"l\"/></GUIScheme>"},
        {"new imageset that lacks its version", "<Imageset name=\"I\"/>"},
        {"layout", "<GUILayout><Window Type=\"T\" Name=\"N\"/></GUILayout>"},
        {"schema", "<xsd:schema xmlns:xsd=\"x\"><xsd:element name=\"Falagard\"/></xsd:schema>"},
        {"text", "Name=\"S\""},
        {"blanks", " \r\n\t"},
        {"nulls", std::string(12, '\0')},
        {"one letter", "<"},
        {"byte order mark alone", "\xFF\xFE"},
        {"bitmap", "BM<GUIScheme Name=\"S\"/>"},
    };
    for (const auto& file : files)
    {
        EXPECT_TRUE(Provided(file.bytes) == file.bytes) << file.name;
    }
}

TEST_F(OldSkinFiles, which_are_no_xml_are_handed_on_byte_for_byte)
{
    const std::string old = Text(SkinFile(L"old_format/TavLook.looknfeel"));
    ASSERT_NE(Provided(old), old);
    const std::string files[] = {old.substr(0, old.size() / 2),
                                 old.substr(0, old.size() - 3),
                                 "<" + old,
                                 "<Falagard><WidgetLook></Falagard></WidgetLook>",
                                 "<Falagard",
                                 "<Imageset Name='I>"};
    for (const std::string& bytes : files)
    {
        EXPECT_TRUE(Provided(bytes) == bytes) << bytes.substr(0, 40);
    }
}

TEST_F(OldSkinFiles, which_are_no_xml_end_the_start_as_in_the_new_formats)
{
    Host().Close();
    for (const bool oldFormat : {false, true})
    {
        const std::string whole =
            oldFormat ? Text(SkinFile(L"old_format/TavLook.looknfeel")) : Text(ReadBytes(SkinDir() + L"TavLook.looknfeel"));
        Put(L"TavLook.looknfeel", whole.substr(0, whole.size() / 2));
        EXPECT_THROW(Frame().Init(&Host().Viewer(), GUI_USER_FULL), CEGUI::Exception);
        EXPECT_FALSE(Frame().IsInit());
        EXPECT_EQ(CountLogLines("skin not loaded"), 1) << oldFormat;
        EXPECT_EQ(CountLogLines("left out"), 0) << oldFormat;
        // The second turn replaces the whole file.
        Put(L"TavLook.looknfeel", whole);
    }
    TakeLog();
}

TEST_F(OldSkinFiles, which_are_missing_raise)
{
    SkinResourceProvider provider;
    CEGUI::RawDataContainer data;
    EXPECT_THROW(provider.loadRawDataContainer("nowhere.scheme", data, ""), CEGUI::FileIOException);
}

TEST_F(OldSkinFiles, on_the_disk_stay_as_they_are)
{
    PutOldSkin();
    Host().Close();
    // Text pictures are made anew with every frame.
    const std::map<std::string, FileState> before = FilesIn(SkinDir());
    ASSERT_GE(before.size(), 20u);
    // File times are exact to the hundredth of a second and more.
    Sleep(30);
    Restart();
    Host().Resize(700, 500);
    Host().Close();
    std::map<std::string, FileState> after = FilesIn(SkinDir());
    for (const auto& [name, file] : before)
    {
        if (name.find(".bmp") == std::string::npos)
        {
            ASSERT_EQ(after.count(name), 1u) << name;
            EXPECT_TRUE(after[name].bytes == file.bytes) << name;
            EXPECT_EQ(CompareFileTime(&after[name].written, &file.written), 0) << name;
            EXPECT_EQ(after[name].attributes, file.attributes) << name;
        }
        after.erase(name);
    }
    for (const auto& [name, file] : after)
    {
        EXPECT_NE(name.find(".bmp"), std::string::npos) << name << " is new";
    }
    Restart();
    Host().Resize(ViewWidth, ViewHeight);
}
