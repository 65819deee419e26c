// SPDX-License-Identifier: MIT
#include "TitleDialogTest.h"

#include <KernelCommonUse/StringConvert.h>

#include <panels/FontNames.h>
#include <panels/TitleEditDialog.h>

#include <algorithm>
#include <set>

namespace
{
std::vector<std::string> Entries(HWND list)
{
    std::vector<std::string> entries;
    const LRESULT count = SendMessageW(list, CB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i)
    {
        wchar_t text[LF_FACESIZE] = {};
        SendMessageW(list, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
        entries.push_back(Utf8(text));
    }
    return entries;
}

/// A file of the application's "Fonts" directory for the life of the object.
class ShxFile
{
public:
    explicit ShxFile(const wchar_t* name) : path_(AppDir() + L"Fonts\\" + name)
    {
        CreateDirectoryW(AppDir() + L"Fonts", nullptr);
        WriteBytes(path_, {1, 2, 3});
    }
    ~ShxFile()
    {
        DeleteFileW(path_);
        RemoveDirectoryW(AppDir() + L"Fonts");
    }
    ShxFile(const ShxFile&) = delete;
    ShxFile& operator=(const ShxFile&) = delete;

private:
    CString path_;
};

std::vector<std::string> Filled(const std::vector<CString>& names)
{
    CComboBox list;
    list.Attach(CreateWindowW(L"COMBOBOX", L"", WS_POPUP | CBS_DROPDOWNLIST | CBS_SORT, 0, 0, 100, 100, nullptr, nullptr, nullptr,
                              nullptr));
    FillFontList(list, names);
    const HWND window = list.Detach();
    const std::vector<std::string> entries = Entries(window);
    DestroyWindow(window);
    return entries;
}

using Names = std::vector<std::string>;
} // namespace

class FontListTest : public TitleDialogTest
{
};

TEST_F(FontListTest, a_name_that_begins_another_is_left_out_after_it)
{
    EXPECT_EQ(Filled({L"Arial Black", L"Arial"}), Names{"Arial Black"});
    EXPECT_EQ(Filled({L"Arial", L"Arial Black"}), (Names{"Arial", "Arial Black"}));
    EXPECT_EQ(Filled({L"Song", L"Kai", L"Song", L"SONG", L"kai"}), (Names{"Kai", "Song"}));
    EXPECT_EQ(Filled({}), Names{});
}

TEST_F(FontListTest, holds_the_installed_fonts_once_each)
{
    OpenTitleEditDialog();
    const Names entries = Entries(Control(FontList));
    EXPECT_EQ(std::set<std::string>(entries.begin(), entries.end()).size(), entries.size());
    ASSERT_FALSE(InstalledFontNames().empty());
    for (const CString& name : InstalledFontNames())
    {
        bool begun = false;
        for (const std::string& entry : entries)
        {
            begun = begun || Utf8ToCString(entry).Left(name.GetLength()).CompareNoCase(name) == 0;
        }
        EXPECT_TRUE(begun) << Utf8(name);
    }
}

TEST_F(FontListTest, a_font_that_is_not_listed_selects_the_first_and_stays)
{
    Frame().SetSceneTitleFontStyle(L"No Such Family");
    OpenByDoubleClick();
    EXPECT_EQ(SendMessageW(Control(FontList), CB_GETCURSEL, 0, 0), 0);
    Confirm();
    EXPECT_EQ(Utf8(Frame().GetSceneTitleFontStyle()), "No Such Family");
    const Lines log = TakeLog();
    ASSERT_EQ(log.size(), 1u);
    EXPECT_NE(log[0].find("No Such Family"), std::string::npos) << log[0];
}

TEST_F(FontListTest, a_face_that_is_gone_leaves_no_text_and_a_line_in_the_log_until_another_is_chosen)
{
    const std::vector<Pixel> before = TitleBarPixels();
    Frame().SetSceneTitleFontStyle(L"Gone Since");
    OpenByDoubleClick();
    Confirm();
    const Lines log = TakeLog();
    ASSERT_EQ(log.size(), 1u);
    EXPECT_NE(log[0].find("Gone Since"), std::string::npos) << log[0];
    const std::vector<Pixel> none = TitleBarPixels();
    OpenTitleEditDialog();
    ChooseFont(Font);
    Confirm();
    EXPECT_TRUE(TitleBarPixels() == before);
    EXPECT_TRUE(none == PixelsOf(L"", 0xE1C8C5, Font, 16.0f)) << "no text";
}

TEST_F(FontListTest, holds_shape_fonts_by_their_file_names_and_no_folders)
{
    const ShxFile file(L"nxshape.SHX");
    const ShxFile other(L"nxshape.txt");
    const CString folder = AppDir() + L"Fonts\\nxfolder.shx";
    CreateDirectoryW(folder, nullptr);
    OpenTitleEditDialog();
    const Names entries = Entries(Control(FontList));
    RemoveDirectoryW(folder);
    EXPECT_EQ(std::count(entries.begin(), entries.end(), "nxshape.SHX"), 1);
    for (const std::string& entry : entries)
    {
        EXPECT_EQ(entry.find("nxfolder"), std::string::npos);
        EXPECT_EQ(entry.find("nxshape.txt"), std::string::npos);
        EXPECT_NE(entry[0], '.');
    }
}

TEST_F(FontListTest, without_the_folder_of_shape_fonts_holds_the_installed_ones)
{
    const CString folder = AppDir() + L"Fonts";
    ASSERT_TRUE(MoveFileW(folder, folder + L".taken"));
    const std::vector<CString> names = InstalledFontNames();
    EXPECT_TRUE(MoveFileW(folder + L".taken", folder));
    EXPECT_FALSE(names.empty());
    EXPECT_EQ(names.size(), InstalledFontNames().size());
}

TEST_F(FontListTest, is_sorted)
{
    OpenTitleEditDialog();
    EXPECT_TRUE(GetWindowLongPtrW(Control(FontList), GWL_STYLE) & CBS_SORT);
    EXPECT_EQ(Filled({L"Beta", L"Alpha", L"Gamma"}), (Names{"Alpha", "Beta", "Gamma"}));
}

TEST_F(FontListTest, a_shape_font_leaves_no_text_and_a_line_in_the_log_until_another_is_chosen)
{
    const ShxFile file(L"hztxt.shx");
    const std::vector<Pixel> before = TitleBarPixels();
    OpenByDoubleClick();
    SetText(TextEdit, L"Shapes");
    ChooseFont(L"hztxt.shx");
    Confirm();
    EXPECT_EQ(Utf8(Frame().GetSceneTitleFontStyle()), "hztxt.shx");
    const Lines log = TakeLog();
    ASSERT_EQ(log.size(), 1u);
    EXPECT_NE(log[0].find("hztxt.shx"), std::string::npos) << log[0];
    const std::vector<Pixel> none = TitleBarPixels();
    EXPECT_FALSE(none == before);
    EXPECT_TRUE(none == PixelsOf(L"", 0xE1C8C5, Font, 16.0f)) << "no text";
    Frame().ChangeTitleText(L"Shapes", 0xE1C8C5, L"hztxt.shx", 16.0f);
    TakeLog();
    OpenByDoubleClick();
    EXPECT_EQ(Utf8(SelectedFont()), "hztxt.shx");
    ChooseFont(Font);
    Confirm();
    const std::vector<Pixel> shown = TitleBarPixels();
    EXPECT_TRUE(shown == PixelsOf(L"Shapes", 0xE1C8C5, Font, 16.0f));
}

TEST_F(FontListTest, a_choice_that_is_none_keeps_the_font)
{
    OpenTitleEditDialog();
    SendMessageW(Control(FontList), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    SendMessageW(Dialog(), WM_COMMAND, MAKEWPARAM(FontList, CBN_SELCHANGE), reinterpret_cast<LPARAM>(Control(FontList)));
    Confirm();
    EXPECT_EQ(Utf8(Frame().GetSceneTitleFontStyle()), Utf8(Font));
}
