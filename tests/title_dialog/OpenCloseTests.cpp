// SPDX-License-Identifier: MIT
// How the dialog comes up and goes.
#include "TitleDialogTest.h"

#include <KernelCommonUse/KWMessageBox.h>
#include <KernelCommonUse/MultiLanguage.h>

#include <panels/TitleEditDialog.h>

namespace
{
CString Translated(const char* key)
{
    return CMultiLanguageMgr::GetInstance()->translation(key, "", "Common");
}
} // namespace

class OpenCloseTest : public TitleDialogTest
{
};

TEST_F(OpenCloseTest, a_double_click_on_the_title_opens_it)
{
    EXPECT_EQ(DialogCount(), 0);
    OpenByDoubleClick();
    EXPECT_EQ(DialogCount(), 1);
    EXPECT_EQ(GetWindow(Dialog(), GW_OWNER), Host().MainWindow());
    EXPECT_TRUE(IsWindowEnabled(Host().MainWindow())) << "modeless";
}

TEST_F(OpenCloseTest, a_right_click_on_the_title_opens_it)
{
    const CPoint title = GuiHost::CentreOf("TavTilteText");
    // This is about the dialog, not about the menu.
    Frame().EnablePopupMenu(false);
    Host().RightClick(title.x, title.y);
    EXPECT_EQ(Host().TakeCodes(), std::vector<WPARAM>{GUI_CMD_EDIT_TITLE});
    EXPECT_TRUE(IsShown());
}

TEST_F(OpenCloseTest, a_single_click_opens_nothing)
{
    const CPoint title = GuiHost::CentreOf("TavTilteText");
    Host().Click(title.x, title.y);
    EXPECT_EQ(DialogCount(), 0);
}

TEST_F(OpenCloseTest, for_the_restricted_user_nothing_opens)
{
    Restart(GUI_USER_RESTRICTED);
    const CPoint title = GuiHost::CentreOf("TavTilteText");
    Host().DoubleClick(title.x, title.y);
    // This is about the dialog, not about the menu.
    Frame().EnablePopupMenu(false);
    Host().RightClick(title.x, title.y);
    EXPECT_EQ(DialogCount(), 0);
    EXPECT_TRUE(Host().TakeCodes().empty());
}

TEST_F(OpenCloseTest, shows_the_title_and_its_labels)
{
    Frame().ChangeTitleText(L"河滨 Plan", 0x00336699, Font, 24.5f);
    OpenTitleEditDialog();
    EXPECT_EQ(Utf8(ControlText(TextEdit)), "河滨 Plan");
    EXPECT_EQ(Utf8(ControlText(HeightEdit)), "24.5");
    EXPECT_EQ(Utf8(SelectedFont()), Utf8(Font));
    CString caption;
    CWnd::FromHandle(Dialog())->GetWindowText(caption);
    EXPECT_EQ(Utf8(caption), Utf8(Translated("LKEY10361")));
    const std::vector<std::pair<int, const char*>> labels = {{9000, "LKEY10362"}, {9001, "LKEY10159"}, {9002, "LKEY10160"},
                                                             {9003, "LKEY10161"}, {1, "LKEY67"},       {2, "LKEY10134"}};
    for (const auto& [id, key] : labels)
    {
        EXPECT_EQ(Utf8(ControlText(id)), Utf8(Translated(key))) << id;
    }
}

TEST_F(OpenCloseTest, stands_in_the_middle_of_the_desktop)
{
    OpenTitleEditDialog();
    CRect desktop;
    CRect dialog;
    GetWindowRect(GetDesktopWindow(), desktop);
    GetWindowRect(Dialog(), dialog);
    EXPECT_EQ(dialog.left, (desktop.Width() - dialog.Width()) / 2);
    EXPECT_EQ(dialog.top, (desktop.Height() - dialog.Height()) / 2);
}

TEST_F(OpenCloseTest, the_color_button_is_the_color_all_over)
{
    Frame().SetSceneTitleColor(0x00336699);
    OpenTitleEditDialog();
    Host().Frames(1);
    UpdateWindow(Control(ColorButton));
    CRect rect;
    GetClientRect(Control(ColorButton), rect);
    const HDC dc = GetDC(Control(ColorButton));
    for (const CPoint point : {CPoint(0, 0), CPoint(rect.right - 1, rect.bottom - 1), rect.CenterPoint()})
    {
        EXPECT_EQ(GetPixel(dc, point.x, point.y), COLORREF(0x00336699)) << point.x << ',' << point.y;
    }
    ReleaseDC(Control(ColorButton), dc);
}

TEST_F(OpenCloseTest, the_color_button_is_painted_anew_with_another_color)
{
    OpenTitleEditDialog();
    Host().Frames(1);
    const HWND control = Control(ColorButton);
    UpdateWindow(control);
    ASSERT_FALSE(GetUpdateRect(control, nullptr, FALSE));
    auto* button = dynamic_cast<CColorSelBtnT*>(CWnd::FromHandlePermanent(control));
    ASSERT_NE(button, nullptr);
    button->SetColor(0x00996633);
    EXPECT_TRUE(GetUpdateRect(control, nullptr, FALSE));
    UpdateWindow(control);
    CRect rect;
    GetClientRect(control, rect);
    const HDC dc = GetDC(control);
    EXPECT_EQ(GetPixel(dc, rect.CenterPoint().x, rect.CenterPoint().y), COLORREF(0x00996633));
    ReleaseDC(control, dc);
}

TEST_F(OpenCloseTest, opening_twice_shows_the_same_one)
{
    OpenTitleEditDialog();
    const HWND first = Dialog();
    SetText(TextEdit, L"begun");
    OpenTitleEditDialog();
    EXPECT_EQ(DialogCount(), 1);
    EXPECT_EQ(Dialog(), first);
    EXPECT_EQ(Utf8(ControlText(TextEdit)), "begun");
}

TEST_F(OpenCloseTest, once_confirmed_it_comes_back_with_what_its_controls_held)
{
    OpenTitleEditDialog();
    const HWND first = Dialog();
    SetText(TextEdit, L"Confirmed");
    Confirm();
    EXPECT_FALSE(IsShown());
    EXPECT_EQ(Dialog(), first) << "hidden";
    Frame().SetSceneTitle(L"by the host");
    OpenTitleEditDialog();
    EXPECT_TRUE(IsShown());
    EXPECT_EQ(Dialog(), first);
    EXPECT_EQ(Utf8(ControlText(TextEdit)), "Confirmed");
}

TEST_F(OpenCloseTest, exit_close_and_escape_destroy_it_without_a_change)
{
    const std::function<void()> ways[] = {[] { Press(IDCANCEL); }, [] { SendMessageW(Dialog(), WM_CLOSE, 0, 0); },
                                          [] { SendMessageW(Dialog(), WM_SYSCOMMAND, SC_CLOSE, 0); },
                                          [] { CloseTitleEditDialog(); }, [] { DestroyWindow(Dialog()); }};
    for (const auto& way : ways)
    {
        OpenTitleEditDialog();
        ASSERT_TRUE(IsShown());
        EXPECT_EQ(Utf8(ControlText(TextEdit)), "Title");
        SetText(TextEdit, L"dropped");
        way();
        EXPECT_EQ(DialogCount(), 0);
        EXPECT_EQ(Title(), "Title");
        Host().Frames(1);
    }
    CloseTitleEditDialog();
}

TEST_F(OpenCloseTest, a_press_on_a_button_of_the_frame_closes_it)
{
    OpenByDoubleClick();
    const CPoint button = GuiHost::CentreOf("TavTilteMaxboxButtom");
    Host().MoveMouse(button.x, button.y);
    EXPECT_TRUE(IsShown()) << "hovering does not";
    Host().Press(button.x, button.y);
    EXPECT_EQ(DialogCount(), 0);
    Host().Release(400, 300);
}

TEST_F(OpenCloseTest, a_click_on_a_control_button_closes_it)
{
    Show({Record(L"one"), Record(L"two")});
    OpenTitleEditDialog();
    SlideIn(1, 300);
    const CPoint entry = GuiHost::CentreOf("two_P");
    Host().Click(entry.x, entry.y);
    EXPECT_EQ(DialogCount(), 0);
    EXPECT_EQ(Frame().GetBtnIndex(), 1);
}

TEST_F(OpenCloseTest, the_end_of_the_interface_closes_it)
{
    OpenByDoubleClick();
    Host().Close();
    EXPECT_EQ(DialogCount(), 0);
    OpenTitleEditDialog();
    SetText(TextEdit, L"Stored");
    Confirm();
    EXPECT_EQ(Title(), "Stored") << "without an interface the title is stored only";
    Restart(GUI_USER_FULL);
}

TEST_F(OpenCloseTest, a_new_frame_leaves_it_open)
{
    OpenByDoubleClick();
    Rebuild();
    EXPECT_TRUE(IsShown());
    SetText(TextEdit, L"After");
    Confirm();
    const std::vector<Pixel> shown = TitleBarPixels();
    EXPECT_TRUE(shown == PixelsOf(L"After", 0xE1C8C5, Font, 16.0f));
}

TEST_F(OpenCloseTest, it_says_so_when_it_cannot_be_created)
{
    CWnd gone;
    gone.m_hWnd = reinterpret_cast<HWND>(static_cast<INT_PTR>(0x7FFF0));
    CWnd* const main = AfxGetApp()->m_pMainWnd;
    AfxGetApp()->m_pMainWnd = &gone;
    MessageBoxRead message;
    const PopupAnswer answer(message.Read());
    OpenTitleEditDialog();
    AfxGetApp()->m_pMainWnd = main;
    gone.m_hWnd = nullptr;
    EXPECT_EQ(answer.Answered(), 1);
    EXPECT_EQ(Utf8(message.text), Utf8(Translated("LKEY10266.")));
    EXPECT_EQ(Utf8(message.caption), "TitleDialogTests");
    EXPECT_EQ(DialogCount(), 0);
    OpenTitleEditDialog();
    EXPECT_TRUE(IsShown());
}

TEST_F(OpenCloseTest, the_host_sizes_the_view_and_draws_frames_while_the_message_is_up_that_a_double_click_led_to)
{
    CWnd gone;
    gone.m_hWnd = reinterpret_cast<HWND>(static_cast<INT_PTR>(0x7FFF0));
    CWnd* const main = AfxGetApp()->m_pMainWnd;
    for (const bool ends : {false, true})
    {
        AfxGetApp()->m_pMainWnd = &gone;
        MessageBoxRead message;
        const auto read = message.Read();
        {
            const PopupAnswer answer(
                [&](HWND popup)
                {
                    Host().Viewer().getEventQueue()->windowResize(0, 0, ViewWidth, ViewHeight);
                    Host().Viewer().frame();
                    Host().Viewer().frame();
                    if (ends)
                    {
                        Host().Close();
                        Host().Viewer().frame();
                    }
                    read(popup);
                });
            Host().DoubleClick(60, 25);
            AfxGetApp()->m_pMainWnd = main;
            EXPECT_EQ(answer.Answered(), 1);
        }
        EXPECT_EQ(Utf8(message.text), Utf8(Translated("LKEY10266.")));
        EXPECT_EQ(DialogCount(), 0);
        if (ends)
        {
            Host().Start();
        }
        Host().TakeMessages();
        OpenByDoubleClick();
        EXPECT_TRUE(IsShown());
        CloseTitleEditDialog();
    }
    gone.m_hWnd = nullptr;
}

TEST_F(OpenCloseTest, the_modules_resources_are_what_they_were)
{
    const HINSTANCE former = AfxGetResourceHandle();
    OpenTitleEditDialog();
    EXPECT_EQ(AfxGetResourceHandle(), former);
}

TEST_F(OpenCloseTest, the_color_button_is_disabled_and_enabled)
{
    OpenTitleEditDialog();
    auto* button = dynamic_cast<CColorSelBtnT*>(CWnd::FromHandlePermanent(Control(ColorButton)));
    ASSERT_NE(button, nullptr);
    button->Disable();
    EXPECT_FALSE(IsWindowEnabled(Control(ColorButton)));
    button->Enable();
    EXPECT_TRUE(IsWindowEnabled(Control(ColorButton)));
}
