// SPDX-License-Identifier: MIT
// The dialog by keyboard, in a host's own message loop.
#include "TitleDialogTest.h"

#include <panels/TitleEditDialog.h>

class KeyboardTest : public TitleDialogTest
{
protected:
    /// A key that is pressed and released in the window that has the focus.
    static void Key(UINT key)
    {
        if (!GetFocus())
        {
            // The display has told late that the window which had it before is gone.
            SetForegroundWindow(Dialog());
        }
        ASSERT_TRUE(GetFocus());
        PostMessageW(GetFocus(), WM_KEYDOWN, key, 1);
        PostMessageW(GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
        Host().Frames(1);
    }
    static int Focused() { return GetDlgCtrlID(GetFocus()); }
};

TEST_F(KeyboardTest, tab_goes_through_the_controls_and_around)
{
    OpenTitleEditDialog();
    EXPECT_EQ(Focused(), TextEdit);
    for (const int id : {FontList, HeightEdit, ColorButton, IDOK, IDCANCEL, TextEdit})
    {
        Key(VK_TAB);
        EXPECT_EQ(Focused(), id);
    }
}

TEST_F(KeyboardTest, enter_confirms)
{
    OpenTitleEditDialog();
    SetText(TextEdit, L"By Enter");
    Key(VK_RETURN);
    EXPECT_FALSE(IsShown());
    EXPECT_EQ(Title(), "By Enter");
}

TEST_F(KeyboardTest, enter_in_the_height_keeps_the_dialog_open_over_a_bad_number)
{
    OpenTitleEditDialog();
    SetFocus(Control(HeightEdit));
    SendMessageW(Control(HeightEdit), EM_SETSEL, 0, -1);
    for (const wchar_t digit : {L'2', L'5', L'0'})
    {
        PostMessageW(Control(HeightEdit), WM_CHAR, digit, 1);
    }
    Host().Frames(1);
    EXPECT_EQ(Utf8(ControlText(HeightEdit)), "250");
    Key(VK_RETURN);
    EXPECT_TRUE(IsShown());
    EXPECT_EQ(Utf8(ControlText(HeightEdit)), "16");
}

TEST_F(KeyboardTest, escape_closes)
{
    OpenByDoubleClick();
    SetText(TextEdit, L"dropped");
    Key(VK_ESCAPE);
    EXPECT_EQ(DialogCount(), 0);
    EXPECT_EQ(Title(), "Title");
    EXPECT_TRUE(Host().TakeCodes().empty()) << "the view gets no Escape";
}

TEST_F(KeyboardTest, space_presses_the_color_button)
{
    OpenTitleEditDialog();
    SetFocus(Control(ColorButton));
    const PopupAnswer cancel([](HWND dialog) { PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); });
    Key(VK_SPACE);
    EXPECT_EQ(cancel.Answered(), 1);
}

TEST_F(KeyboardTest, arrows_choose_a_font)
{
    OpenTitleEditDialog();
    SendMessageW(Control(FontList), CB_SETCURSEL, 0, 0);
    SetFocus(Control(FontList));
    Key(VK_DOWN);
    EXPECT_EQ(SendMessageW(Control(FontList), CB_GETCURSEL, 0, 0), 1);
    const CString face = SelectedFont();
    Key(VK_RETURN);
    EXPECT_EQ(Utf8(Frame().GetSceneTitleFontStyle()), Utf8(face));
    TakeLog();
}

TEST_F(KeyboardTest, keys_do_not_reach_the_view_while_the_dialog_has_the_focus)
{
    OpenByDoubleClick();
    for (const int id : {TextEdit, FontList, HeightEdit, static_cast<int>(IDCANCEL)})
    {
        for (const UINT key : {VK_SPACE, VK_UP, VK_DOWN, VK_LEFT, VK_RIGHT, VK_PRIOR, VK_NEXT})
        {
            if (id == IDCANCEL && key == VK_SPACE)
            {
                continue;
            }
            SetFocus(Control(id));
            Key(key);
            EXPECT_TRUE(Host().TakeCodes().empty()) << id << " key " << key;
        }
    }
    Host().Key(VK_SPACE);
    EXPECT_EQ(Host().TakeCodes(), std::vector<WPARAM>{GUI_CMD_KEY_SPACE}) << "the view's own keys arrive";
}

TEST_F(KeyboardTest, text_is_typed)
{
    OpenTitleEditDialog();
    SendMessageW(Control(TextEdit), EM_SETSEL, 0, -1);
    for (const wchar_t unit : {L'N', L'e', L'w', L' ', L'新'})
    {
        PostMessageW(GetFocus(), WM_CHAR, unit, 1);
    }
    Host().Frames(1);
    Key(VK_RETURN);
    EXPECT_EQ(Title(), "New 新");
}
