// SPDX-License-Identifier: MIT
// What becomes of fonts that cannot be installed, and of those that are there in part.
#include "FontInstallTest.h"

#include <KernelCommonUse/StringConvert.h>

#include <gui_host/FontInstallation.h>
#include <panels/FontNames.h>

#include <sddl.h>

namespace
{
const wchar_t* const FontListKey = L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Fonts";

/// Nobody may write the machine's font list while the object lives.
class LockedFontList
{
public:
    LockedFontList()
    {
        RegOpenKeyExW(HKEY_LOCAL_MACHINE, FontListKey, 0, WRITE_DAC | READ_CONTROL, &key_);
        Set(L"D:(D;;KW;;;WD)(A;;KA;;;WD)");
    }
    ~LockedFontList()
    {
        Set(L"D:(A;;KA;;;WD)");
        RegCloseKey(key_);
    }
    LockedFontList(const LockedFontList&) = delete;
    LockedFontList& operator=(const LockedFontList&) = delete;

private:
    void Set(const wchar_t* rights)
    {
        PSECURITY_DESCRIPTOR descriptor = nullptr;
        EXPECT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorW(rights, SDDL_REVISION_1, &descriptor, nullptr));
        EXPECT_EQ(RegSetKeySecurity(key_, DACL_SECURITY_INFORMATION, descriptor), ERROR_SUCCESS);
        LocalFree(descriptor);
    }

    HKEY key_ = nullptr;
};
} // namespace

class FontFailureTest : public FontInstallTest
{
protected:
    /// One line, which names this.
    void ExpectOneLine(const std::string& named)
    {
        const Lines log = TakeLog();
        ASSERT_EQ(log.size(), 1u);
        EXPECT_NE(log[0].find(named), std::string::npos) << log[0];
    }
    static std::string Name(int number) { return Utf8(FileOf(number)); }
};

TEST_F(FontFailureTest, a_face_that_is_installed_touches_nothing)
{
    AddAppFile(L"nxunused.ttf", {1, 2, 3});
    const std::uint64_t listWritten = ListWritten();
    EXPECT_TRUE(InstallSystemFont("Noto Sans CJK SC", "nxunused.ttf"));
    EXPECT_TRUE(InstallSystemFont("Noto Sans CJK SC", ""));
    EXPECT_EQ(GetFileAttributesW(SystemFont(L"nxunused.ttf")), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(ListWritten(), listWritten);
    EXPECT_EQ(TakeFontChanges(), 0);
}

TEST_F(FontFailureTest, without_a_file_name_nothing_happens)
{
    const std::uint64_t listWritten = ListWritten();
    EXPECT_FALSE(InstallSystemFont("Nx Nowhere", ""));
    EXPECT_EQ(ListWritten(), listWritten);
    EXPECT_EQ(TakeFontChanges(), 0);
    ExpectOneLine("Nx Nowhere");
}

TEST_F(FontFailureTest, a_file_that_the_application_does_not_have_installs_nothing)
{
    const std::uint64_t listWritten = ListWritten();
    EXPECT_FALSE(InstallSystemFont("Nx Nowhere", "nxnowhere.ttf"));
    EXPECT_EQ(GetFileAttributesW(SystemFont(L"nxnowhere.ttf")), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(ListWritten(), listWritten);
    EXPECT_EQ(TakeFontChanges(), 0);
    ExpectOneLine(Utf8(AppFont(L"nxnowhere.ttf")));
}

TEST_F(FontFailureTest, a_folder_of_the_files_name_is_no_font_file)
{
    CreateDirectoryW(AppFont(L"nxfolder.ttf"), nullptr);
    EXPECT_FALSE(InstallSystemFont("Nx Nowhere", "nxfolder.ttf"));
    RemoveDirectoryW(AppFont(L"nxfolder.ttf"));
    ExpectOneLine("nxfolder.ttf");
}

TEST_F(FontFailureTest, a_new_face_is_copied_registered_and_broadcast)
{
    AddAppFont(1);
    ASSERT_FALSE(IsFontInstalled(Utf8ToCString(Face(1))));
    EXPECT_TRUE(InstallSystemFont(Face(1), Name(1)));
    EXPECT_EQ(ReadBytes(SystemFont(FileOf(1))), ReadBytes(AppFont(FileOf(1))));
    EXPECT_EQ(Utf8(Registered(L"nxface01").value_or(L"no value").GetString()), "nxface01.ttf");
    EXPECT_EQ(TakeFontChanges(), 1);
    EXPECT_TRUE(InstallSystemFont(Face(1), Name(1)));
    EXPECT_EQ(TakeFontChanges(), 0) << "the second time it is there";
}

TEST_F(FontFailureTest, a_file_that_is_no_font_is_copied_and_not_registered)
{
    AddAppFile(L"nxbad.ttf", {'n', 'o', ' ', 'f', 'o', 'n', 't'});
    const std::uint64_t listWritten = ListWritten();
    EXPECT_FALSE(InstallSystemFont("Nx Bad", "nxbad.ttf"));
    EXPECT_EQ(ReadBytes(SystemFont(L"nxbad.ttf")), ReadBytes(AppFont(L"nxbad.ttf")));
    EXPECT_EQ(ListWritten(), listWritten);
    EXPECT_EQ(TakeFontChanges(), 0);
    ExpectOneLine(Utf8(SystemFont(L"nxbad.ttf")));
}

TEST_F(FontFailureTest, a_file_in_the_systems_folder_is_never_replaced)
{
    AddAppFont(2);
    WriteBytes(SystemFont(FileOf(2)), {'o', 'l', 'd'});
    EXPECT_FALSE(InstallSystemFont(Face(2), Name(2)));
    EXPECT_EQ(ReadBytes(SystemFont(FileOf(2))), (std::vector<std::uint8_t>{'o', 'l', 'd'}));
    EXPECT_FALSE(Registered(L"nxface02"));
    ExpectOneLine(Utf8(SystemFont(FileOf(2))));
}

TEST_F(FontFailureTest, a_file_in_the_systems_folder_is_used_and_registered_without_a_copy)
{
    AddAppFont(3);
    WriteBytes(SystemFont(FileOf(3)), ReadBytes(AppFont(FileOf(3))));
    const std::uint64_t written = FileWritten(SystemFont(FileOf(3)));
    // The application's own file would be seen if it were copied.
    AddAppFile(FileOf(3), {1, 2, 3});
    Sleep(100);
    EXPECT_TRUE(InstallSystemFont(Face(3), Name(3)));
    EXPECT_EQ(FileWritten(SystemFont(FileOf(3))), written);
    EXPECT_EQ(Utf8(Registered(L"nxface03").value_or(L"no value").GetString()), "nxface03.ttf");
    EXPECT_EQ(TakeFontChanges(), 1);
}

TEST_F(FontFailureTest, a_font_of_another_family_is_installed_and_the_result_is_false_on_purpose)
{
    AddAppFont(4);
    EXPECT_FALSE(InstallSystemFont("Nx Other", Name(4)));
    EXPECT_TRUE(IsFontInstalled(Utf8ToCString(Face(4))));
    EXPECT_EQ(Utf8(Registered(L"nxface04").value_or(L"no value").GetString()), "nxface04.ttf");
    EXPECT_EQ(TakeFontChanges(), 1);
    ExpectOneLine(Utf8(SystemFont(FileOf(4))));
}

TEST_F(FontFailureTest, the_face_is_compared_letter_by_letter)
{
    AddAppFont(5);
    std::string lower = Face(5);
    lower[0] = 'n';
    EXPECT_FALSE(InstallSystemFont(lower, Name(5)));
    EXPECT_TRUE(IsFontInstalled(Utf8ToCString(Face(5))));
    ExpectOneLine(lower);
}

TEST_F(FontFailureTest, a_folder_in_the_copys_place_leaves_no_part_of_a_file)
{
    AddAppFont(6);
    CreateDirectoryW(SystemFont(FileOf(6)), nullptr);
    EXPECT_FALSE(InstallSystemFont(Face(6), Name(6)));
    EXPECT_FALSE(HasUnfinishedFile(SystemFont(L"")));
    EXPECT_FALSE(Registered(L"nxface06"));
    RemoveDirectoryW(SystemFont(FileOf(6)));
    ExpectOneLine(Utf8(SystemFont(FileOf(6))));
}

TEST_F(FontFailureTest, an_unfinished_copy_of_another_program_is_no_hindrance)
{
    AddAppFont(8);
    const CString unfinished = SystemFont(FileOf(8) + L".part");
    const HANDLE held = CreateFileW(unfinished, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(InstallSystemFont(Face(8), Name(8)));
    CloseHandle(held);
    EXPECT_FALSE(HasUnfinishedFile(SystemFont(L"")));
}

TEST_F(FontFailureTest, without_the_right_to_write_the_list_the_font_is_there_all_the_same)
{
    AddAppFont(7);
    {
        const LockedFontList locked;
        HKEY key = nullptr;
        ASSERT_NE(RegCreateKeyExW(HKEY_LOCAL_MACHINE, FontListKey, 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr),
                  ERROR_SUCCESS);
        EXPECT_TRUE(InstallSystemFont(Face(7), Name(7)));
    }
    EXPECT_TRUE(IsFontInstalled(Utf8ToCString(Face(7))));
    EXPECT_FALSE(Registered(L"nxface07"));
    EXPECT_EQ(TakeFontChanges(), 1);
}

TEST_F(FontFailureTest, an_interface_without_its_font_file_starts_and_says_so_once)
{
    const FileTaken file(AppFont(L"youyuan.ttf"));
    Uninstall(L"youyuan.ttf");
    Host().Close();
    Frame().ClearTitleSet();
    Restart(GUI_USER_FULL);
    EXPECT_TRUE(Frame().IsInit());
    // The log begins anew with each start.
    EXPECT_EQ(CountLogLines("youyuan.ttf"), 1);
}
