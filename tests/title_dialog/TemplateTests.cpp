// SPDX-License-Identifier: MIT
// The dialogs of the library's resources as they stand there, and how the controls of the one in use are laid out.
#include "TitleDialogTest.h"

#include <panels/TitleEditDialog.h>

namespace
{
constexpr int TitleEdit = 602;
constexpr int ChineseTitleEdit = 5011;
constexpr int Shadow = 5016;

INT_PTR CALLBACK NothingDone(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

/// A dialog from a template of the library, with nothing of the library behind it.
class RawDialog
{
public:
    explicit RawDialog(int id)
        : window_(CreateDialogParamW(GetModuleHandleW(L"NxOsgCeGui.dll"), MAKEINTRESOURCEW(id), nullptr, &NothingDone, 0))
    {
    }
    ~RawDialog() { DestroyWindow(window_); }
    RawDialog(const RawDialog&) = delete;
    RawDialog& operator=(const RawDialog&) = delete;

    HWND Window() const { return window_; }
    std::string Text(int id) const
    {
        CString text;
        CWnd::FromHandle(id ? GetDlgItem(window_, id) : window_)->GetWindowText(text);
        return Utf8(text);
    }

private:
    HWND window_;
};

struct Placed
{
    int id;
    RECT rect; // dialog units: left, top, width and height
};

std::string ClassOf(HWND window)
{
    wchar_t name[32] = {};
    GetClassNameW(window, name, 32);
    return Utf8(CString(name).MakeLower());
}
} // namespace

class TemplateTest : public TitleDialogTest
{
};

TEST_F(TemplateTest, texts_of_the_template)
{
    const RawDialog dialog(TitleEdit);
    ASSERT_TRUE(dialog.Window());
    const std::pair<int, const char*> texts[] = {{0, "Edit Title"}, {9000, "Text:"}, {9001, "Font:"}, {9002, "Text height:"},
                                                 {9003, "Color:"},  {1, "Confirm"},  {2, "Exit"},     {4089, ""},
                                                 {5015, ""}};
    for (const auto& [id, text] : texts)
    {
        EXPECT_EQ(dialog.Text(id), text) << id;
    }
}

TEST_F(TemplateTest, kinds_of_the_controls)
{
    const RawDialog dialog(TitleEdit);
    const auto has = [&](int id, LONG_PTR style)
    { return (GetWindowLongPtrW(GetDlgItem(dialog.Window(), id), GWL_STYLE) & style) == style; };
    for (const int id : {9000, 9001, 9002, 9003})
    {
        EXPECT_EQ(ClassOf(GetDlgItem(dialog.Window(), id)), "static") << id;
        EXPECT_TRUE(has(id, SS_RIGHT)) << id;
    }
    for (const int id : {4089, 5015})
    {
        EXPECT_EQ(ClassOf(GetDlgItem(dialog.Window(), id)), "edit") << id;
        EXPECT_TRUE(has(id, ES_AUTOHSCROLL | WS_TABSTOP)) << id;
    }
    EXPECT_EQ(ClassOf(GetDlgItem(dialog.Window(), 5014)), "combobox");
    EXPECT_TRUE(has(5014, CBS_DROPDOWNLIST | CBS_SORT | WS_TABSTOP));
    EXPECT_TRUE(has(4052, BS_OWNERDRAW | WS_TABSTOP));
    EXPECT_TRUE(has(1, BS_DEFPUSHBUTTON));
    EXPECT_FALSE(has(2, BS_DEFPUSHBUTTON));
    constexpr DWORD wanted = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME;
    EXPECT_EQ(static_cast<DWORD>(GetWindowLongPtrW(dialog.Window(), GWL_STYLE)) & wanted, wanted);
}

TEST_F(TemplateTest, places_of_the_controls)
{
    const RawDialog dialog(TitleEdit);
    const Placed controls[] = {
        {9000, {6, 18, 49, 8}},   {9001, {0, 37, 55, 8}},   {9002, {0, 62, 55, 8}},
        {9003, {0, 84, 55, 8}},   {4089, {60, 14, 87, 14}}, {5015, {60, 59, 87, 14}},
        {4052, {60, 80, 87, 14}}, {1, {30, 102, 50, 14}},   {2, {89, 102, 50, 14}},
    };
    for (const Placed& control : controls)
    {
        RECT expected = {control.rect.left, control.rect.top, control.rect.left + control.rect.right,
                         control.rect.top + control.rect.bottom};
        MapDialogRect(dialog.Window(), &expected);
        RECT seen = {};
        GetWindowRect(GetDlgItem(dialog.Window(), control.id), &seen);
        MapWindowPoints(nullptr, dialog.Window(), reinterpret_cast<POINT*>(&seen), 2);
        // Each edge is rounded by itself.
        EXPECT_NEAR(seen.left, expected.left, 1) << control.id;
        EXPECT_NEAR(seen.top, expected.top, 1) << control.id;
        EXPECT_NEAR(seen.right, expected.right, 1) << control.id;
        EXPECT_NEAR(seen.bottom, expected.bottom, 1) << control.id;
    }
    RECT client = {};
    GetClientRect(dialog.Window(), &client);
    RECT whole = {0, 0, 169, 123};
    MapDialogRect(dialog.Window(), &whole);
    EXPECT_NEAR(client.right, whole.right, 1);
    EXPECT_NEAR(client.bottom, whole.bottom, 1);
}

TEST_F(TemplateTest, the_list_of_fonts_stands_between_text_and_height)
{
    const RawDialog dialog(TitleEdit);
    RECT expected = {60, 36, 147, 66};
    MapDialogRect(dialog.Window(), &expected);
    RECT seen = {};
    GetWindowRect(GetDlgItem(dialog.Window(), 5014), &seen);
    MapWindowPoints(nullptr, dialog.Window(), reinterpret_cast<POINT*>(&seen), 2);
    EXPECT_NEAR(seen.left, expected.left, 1);
    EXPECT_NEAR(seen.top, expected.top, 1);
    EXPECT_NEAR(seen.right, expected.right, 1);
}

TEST_F(TemplateTest, its_own_dialog_keeps_the_places)
{
    OpenTitleEditDialog();
    RECT expected = {60, 14, 147, 28};
    MapDialogRect(Dialog(), &expected);
    RECT seen = {};
    GetWindowRect(Control(TextEdit), &seen);
    MapWindowPoints(nullptr, Dialog(), reinterpret_cast<POINT*>(&seen), 2);
    EXPECT_NEAR(seen.left, expected.left, 1);
    EXPECT_NEAR(seen.top, expected.top, 1);
}

TEST_F(TemplateTest, the_chinese_dialog_is_there_with_its_check_box_for_hosts)
{
    const RawDialog dialog(ChineseTitleEdit);
    ASSERT_TRUE(dialog.Window());
    EXPECT_EQ(dialog.Text(0), "修改标题");
    EXPECT_EQ(dialog.Text(Shadow), "是否显示阴影");
    EXPECT_EQ(ClassOf(GetDlgItem(dialog.Window(), Shadow)), "button");
    OpenTitleEditDialog();
    EXPECT_FALSE(Control(Shadow)) << "not in the one that is used";
}
