// SPDX-License-Identifier: MIT
// The numeric edit for the title's height.
#include "TitleDialogTest.h"

#include <panels/TitleEditDialog.h>

#include <cstring>

namespace
{
void PutIntoClipboard(const CString& text)
{
    const SIZE_T bytes = (static_cast<SIZE_T>(text.GetLength()) + 1) * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    std::memcpy(GlobalLock(memory), text.GetString(), bytes);
    GlobalUnlock(memory);
    ASSERT_TRUE(OpenClipboard(nullptr));
    EmptyClipboard();
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
}
} // namespace

class HeightTest : public TitleDialogTest
{
protected:
    void Type(const CString& text)
    {
        for (int i = 0; i < text.GetLength(); ++i)
        {
            SendMessageW(Control(HeightEdit), WM_CHAR, static_cast<WPARAM>(text[i]), 1);
        }
    }
    void SelectAll() { SendMessageW(Control(HeightEdit), EM_SETSEL, 0, -1); }
    std::string Height() { return Utf8(ControlText(HeightEdit)); }
};

TEST_F(HeightTest, numbers_up_to_100_are_taken)
{
    const std::vector<std::pair<const wchar_t*, float>> rows = {
        {L"100", 100.0f}, {L"1", 1.0f}, {L"16.75", 16.75f}, {L"0.5", 0.5f}, {L"050", 50.0f}, {L"7.", 7.0f}, {L".9", 0.9f}};
    for (const auto& [text, height] : rows)
    {
        OpenTitleEditDialog();
        SetText(HeightEdit, text);
        Confirm();
        EXPECT_FALSE(IsShown()) << Utf8(text);
        EXPECT_EQ(Frame().GetSceneTitleFontHeight(), height) << Utf8(text);
        EXPECT_NE(Place("TavTilteText"), "no window");
        EXPECT_EQ(TakeLog().size(), height < 1.0f ? 1u : 0u) << "a text of no whole pixel is left out";
    }
}

TEST_F(HeightTest, the_last_good_value_is_selected_whole)
{
    Frame().ChangeTitleText(L"Title", 0xE1C8C5, Font, 22.5f);
    OpenTitleEditDialog();
    SetText(HeightEdit, L"abc");
    Confirm();
    ASSERT_EQ(Height(), "22.5");
    DWORD first = 1;
    DWORD end = 0;
    SendMessageW(Control(HeightEdit), EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(first, 0u);
    EXPECT_EQ(end, 4u);
}

TEST_F(HeightTest, what_is_no_such_number_goes_back_and_leaves_the_dialog_open)
{
    Frame().ChangeTitleText(L"Title", 0xE1C8C5, Font, 22.0f);
    const std::vector<Pixel> before = TitleBarPixels();
    OpenTitleEditDialog();
    for (const wchar_t* text : {L"", L"0", L"0.0", L"-4", L"1e9", L"1000000000", L"100.01", L"abc", L"12a", L"1.2.3", L".", L" 9",
                                L"+9", L"nan", L"inf", L"0x10", L"１２", L"1,5", L"99999999999999999999999999999999999999999999"})
    {
        SetText(HeightEdit, text);
        Confirm();
        EXPECT_TRUE(IsShown()) << Utf8(text);
        EXPECT_EQ(Height(), "22") << Utf8(text);
        EXPECT_EQ(GetFocus(), Control(HeightEdit)) << Utf8(text);
        EXPECT_EQ(Frame().GetSceneTitleFontHeight(), 22.0f);
    }
    EXPECT_TRUE(TitleBarPixels() == before);
    Confirm();
    EXPECT_FALSE(IsShown()) << "the last good value is one to confirm";
    EXPECT_TRUE(TitleBarPixels() == before);
}

TEST_F(HeightTest, a_number_too_small_to_be_kept_leaves_the_dialog_open)
{
    OpenTitleEditDialog();
    SetText(HeightEdit, L"0.00000000000000000000000000000000000000000000000000000001");
    Confirm();
    EXPECT_TRUE(IsShown());
    EXPECT_EQ(Frame().GetSceneTitleFontHeight(), 16.0f);
}

TEST_F(HeightTest, only_digits_and_one_point_can_be_typed)
{
    OpenTitleEditDialog();
    SelectAll();
    Type(L"a2-5.b5e.9 x,");
    EXPECT_EQ(Height(), "25.59");
    Type(L"\b\b");
    EXPECT_EQ(Height(), "25.");
    SelectAll();
    Type(L".");
    EXPECT_EQ(Height(), ".") << "in place of what was selected, point included";
}

TEST_F(HeightTest, leaving_the_edit_brings_the_last_good_number_back)
{
    OpenTitleEditDialog();
    SetFocus(Control(HeightEdit));
    SelectAll();
    Type(L"250");
    EXPECT_EQ(Height(), "250") << "while it is being typed";
    SetFocus(Control(TextEdit));
    EXPECT_EQ(Height(), "16");
    SetFocus(Control(HeightEdit));
    SelectAll();
    Type(L"40");
    SetFocus(Control(TextEdit));
    EXPECT_EQ(Height(), "40");
    SetFocus(Control(HeightEdit));
    SelectAll();
    Type(L"0");
    SetFocus(Control(FontList));
    EXPECT_EQ(Height(), "40");
}

TEST_F(HeightTest, going_to_the_confirm_button_leaves_the_check_to_the_confirmation)
{
    OpenTitleEditDialog();
    SetFocus(Control(HeightEdit));
    SelectAll();
    Type(L"250");
    SetFocus(Control(IDOK));
    Confirm();
    EXPECT_TRUE(IsShown());
    EXPECT_EQ(Height(), "16");
}

TEST_F(HeightTest, only_numbers_can_be_pasted)
{
    OpenTitleEditDialog();
    for (const wchar_t* text : {L"abc", L"1e9", L"-5", L"1.5.5", L"12\r\n34", L"十六"})
    {
        PutIntoClipboard(text);
        SelectAll();
        SendMessageW(Control(HeightEdit), WM_PASTE, 0, 0);
        EXPECT_EQ(Height(), "16") << Utf8(text);
    }
    PutIntoClipboard(L"33.5");
    SelectAll();
    SendMessageW(Control(HeightEdit), WM_PASTE, 0, 0);
    EXPECT_EQ(Height(), "33.5");
    PutIntoClipboard(L"999");
    SelectAll();
    SendMessageW(Control(HeightEdit), WM_PASTE, 0, 0);
    Confirm();
    EXPECT_TRUE(IsShown());
    EXPECT_EQ(Frame().GetSceneTitleFontHeight(), 16.0f);
}

TEST_F(HeightTest, a_hosts_height_outside_the_limits_is_shown_as_one_inside)
{
    const std::vector<std::pair<float, std::string>> rows = {{150.0f, "100"}, {1e9f, "100"},      {0.0f, "16"},
                                                             {-3.0f, "16"},   {1e-12f, "16"},     {100.0f, "100"},
                                                             {0.25f, "0.25"}, {0.0001f, "0.0001"}};
    for (const auto& [height, shown] : rows)
    {
        Frame().SetSceneTitleFontHeight(height);
        OpenTitleEditDialog();
        EXPECT_EQ(Height(), shown) << height;
        Confirm();
        EXPECT_EQ(TakeLog().size(), Frame().GetSceneTitleFontHeight() < 1.0f ? 1u : 0u);
        EXPECT_FALSE(IsShown());
        CloseTitleEditDialog();
    }
}

TEST_F(HeightTest, without_its_limit_the_edit_takes_any_number)
{
    CKWNumEdit edit;
    edit.SubclassWindow(CreateWindowW(L"EDIT", L"", WS_POPUP, 0, 0, 100, 20, nullptr, nullptr, nullptr, nullptr));
    for (const wchar_t* good : {L"0", L"5000", L"0.001"})
    {
        edit.SetWindowText(good);
        EXPECT_TRUE(edit.Settle()) << Utf8(good);
    }
    edit.SetWindowText(L"none");
    EXPECT_FALSE(edit.Settle());
    CString text;
    edit.GetWindowText(text);
    EXPECT_EQ(Utf8(text), "0.001");
    edit.SetWindowText(L"5000");
    edit.SetUpperLimit(10.0);
    edit.UseUpperLimit(true);
    EXPECT_FALSE(edit.Settle());
    edit.GetWindowText(text);
    EXPECT_EQ(Utf8(text), "") << "a former value that the limit forbids is none to go back to";
}
