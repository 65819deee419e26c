// SPDX-License-Identifier: MIT
// What becomes of the values that are confirmed, seen in the scene.
#include "TitleDialogTest.h"

#include <KernelCommonUse/KWMessageBox.h>
#include <KernelCommonUse/MultiLanguage.h>

#include <panels/TitleEditDialog.h>

#include <CEGUI/Renderer.h>
#include <CEGUI/System.h>

class ConfirmTest : public TitleDialogTest
{
};

TEST_F(ConfirmTest, the_whole_way_from_a_double_click_to_the_new_picture)
{
    const std::vector<Pixel> before = TitleBarPixels();
    OpenByDoubleClick();
    const CString face = OtherFont();
    ASSERT_FALSE(face.IsEmpty());
    SetText(TextEdit, L"东湖 East Lake");
    ChooseFont(face);
    SetText(HeightEdit, L"28");
    PickColor(255, 255, 0);
    EXPECT_TRUE(TitleBarPixels() == before) << "nothing changes before it is confirmed";
    Confirm();
    EXPECT_FALSE(IsShown());
    EXPECT_EQ(Title(), "东湖 East Lake");
    EXPECT_EQ(Utf8(Frame().GetSceneTitleFontStyle()), Utf8(face));
    EXPECT_EQ(Frame().GetSceneTitleFontHeight(), 28.0f);
    EXPECT_EQ(Frame().GetSceneTitleColor(), RGB(255, 255, 0));
    const std::vector<Pixel> after = TitleBarPixels();
    EXPECT_FALSE(after == before);
    EXPECT_GT(CountOfColor(after, {255, 255, 0}), 100);
    EXPECT_TRUE(after == PixelsOf(L"东湖 East Lake", RGB(255, 255, 0), face, 28.0f));
}

TEST_F(ConfirmTest, the_widest_title_that_can_be_typed_leaves_the_frame_whole)
{
    OpenByDoubleClick();
    SetText(TextEdit, CString(L'\x2E3B', 100));
    SetText(HeightEdit, L"100");
    Confirm();
    EXPECT_FALSE(IsShown());
    const int widest = static_cast<int>(CEGUI::System::getSingleton().getRenderer()->getMaxTextureSize());
    const RECT title = GuiHost::RectOf("TavTilteText");
    EXPECT_EQ(title.right - title.left, widest);
    Host().Resize(ViewWidth + 20, ViewHeight);
    EXPECT_TRUE(Visible("TavTilteCloseButtom"));
    EXPECT_TRUE(Visible("TavBottomBorderBackground"));
    EXPECT_EQ(Title(), Utf8(CString(L'\x2E3B', 100)));
    EXPECT_EQ(TakeLog(), Lines{});
}

TEST_F(ConfirmTest, confirming_at_once_changes_nothing)
{
    const std::vector<Pixel> before = TitleBarPixels();
    OpenByDoubleClick();
    Confirm();
    EXPECT_TRUE(TitleBarPixels() == before);
    EXPECT_EQ(Title(), "Title");
    EXPECT_EQ(Frame().GetSceneTitleColor(), COLORREF(0xE1C8C5));
    EXPECT_EQ(Frame().GetSceneTitleFontHeight(), 16.0f);
}

TEST_F(ConfirmTest, an_empty_text_is_taken)
{
    OpenByDoubleClick();
    SetText(TextEdit, L"");
    Confirm();
    EXPECT_EQ(Title(), "");
    EXPECT_EQ(Place("TavTilteText"), "50,10 - 150,40");
}

TEST_F(ConfirmTest, a_text_of_100_characters_is_taken)
{
    OpenTitleEditDialog();
    const CString text(L'城', 100);
    SetText(TextEdit, text);
    Confirm();
    EXPECT_FALSE(IsShown());
    EXPECT_EQ(Title(), Utf8(text));
}

TEST_F(ConfirmTest, a_text_of_101_characters_is_refused)
{
    const std::vector<Pixel> before = TitleBarPixels();
    OpenByDoubleClick();
    SetText(TextEdit, CString(L'城', 101));
    SetText(HeightEdit, L"30");
    MessageBoxRead message;
    {
        const PopupAnswer answer(message.Read());
        Confirm();
        EXPECT_EQ(answer.Answered(), 1);
    }
    EXPECT_EQ(Utf8(message.text), Utf8(CMultiLanguageMgr::GetInstance()->translation("LKEY12", "", "Common")));
    EXPECT_EQ(Utf8(message.caption), "TitleDialogTests");
    EXPECT_TRUE(IsShown());
    EXPECT_TRUE(IsWindowEnabled(Dialog()));
    EXPECT_TRUE(IsWindowEnabled(Host().MainWindow()));
    EXPECT_EQ(ControlText(TextEdit).GetLength(), 101);
    EXPECT_EQ(Title(), "Title");
    EXPECT_EQ(Frame().GetSceneTitleFontHeight(), 16.0f);
    EXPECT_TRUE(TitleBarPixels() == before);
    SetText(TextEdit, L"Short");
    Confirm();
    EXPECT_EQ(Title(), "Short");
}

TEST_F(ConfirmTest, a_color_that_is_not_chosen_changes_nothing)
{
    OpenTitleEditDialog();
    {
        const PopupAnswer cancel([](HWND dialog) { PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); });
        Press(ColorButton);
        EXPECT_EQ(cancel.Answered(), 1);
    }
    EXPECT_TRUE(IsWindowEnabled(Dialog()));
    Confirm();
    EXPECT_EQ(Frame().GetSceneTitleColor(), COLORREF(0xE1C8C5));
}

TEST_F(ConfirmTest, while_a_color_is_chosen_neither_dialog_nor_frame_takes_input)
{
    OpenTitleEditDialog();
    bool dialogEnabled = true;
    bool mainEnabled = true;
    {
        const PopupAnswer look(
            [&](HWND dialog)
            {
                dialogEnabled = IsWindowEnabled(Dialog());
                mainEnabled = IsWindowEnabled(Host().MainWindow());
                PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
            });
        Press(ColorButton);
    }
    EXPECT_FALSE(dialogEnabled);
    EXPECT_FALSE(mainEnabled);
    EXPECT_TRUE(IsWindowEnabled(Dialog()));
    EXPECT_TRUE(IsWindowEnabled(Host().MainWindow()));
}

TEST_F(ConfirmTest, the_interface_may_end_while_a_color_is_chosen)
{
    OpenByDoubleClick();
    {
        const PopupAnswer close([](HWND) { Host().Close(); });
        Press(ColorButton);
        EXPECT_EQ(close.Answered(), 1);
    }
    EXPECT_EQ(DialogCount(), 0);
    EXPECT_TRUE(IsWindowEnabled(Host().MainWindow()));
    Restart(GUI_USER_FULL);
}

TEST_F(ConfirmTest, a_second_confirmation_takes_what_has_changed_since)
{
    OpenByDoubleClick();
    SetText(TextEdit, L"First");
    Confirm();
    OpenByDoubleClick();
    SetText(HeightEdit, L"20");
    Confirm();
    EXPECT_EQ(Title(), "First");
    const std::vector<Pixel> shown = TitleBarPixels();
    EXPECT_TRUE(shown == PixelsOf(L"First", 0xE1C8C5, Font, 20.0f));
}
