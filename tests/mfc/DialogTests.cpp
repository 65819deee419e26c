// SPDX-License-Identifier: MIT
// Dialogs from a template, their controls and the exchange of values with them.
#include "../support/GTest.h"
#include "Utf8.h"

#include <afxdlgs.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace
{
constexpr UINT Template = 100;
constexpr int TextEdit = 11;
constexpr int NumberEdit = 12;
constexpr int List = 13;
constexpr int Drawn = 14;

class RedButton : public CButton
{
public:
    void DrawItem(LPDRAWITEMSTRUCT item) override
    {
        ++drawn;
        id = item->CtlID;
    }
    int drawn = 0;
    UINT id = 0;
};

class Form : public CDialog
{
public:
    explicit Form(UINT id = Template) : CDialog(id) {}

    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        list.AddString(L"pear");
        list.AddString(L"apple");
        list.AddString(L"apple tree");
        if (endsAtOnce)
        {
            EndDialog(77);
        }
        if (raises)
        {
            throw std::runtime_error("from the initialisation");
        }
        return TRUE;
    }
    void OnOK() override
    {
        ++confirmed;
        CDialog::OnOK();
    }

    CString text = L"文字";
    float number = 16.5f;
    CComboBox list;
    RedButton button;
    int confirmed = 0;
    int clicked = 0;
    int chosen = 0;
    int destroyed = 0;
    bool endsAtOnce = false;
    bool raises = false;

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        DDX_Text(exchange, TextEdit, text);
        DDX_Text(exchange, NumberEdit, number);
        DDX_Control(exchange, List, list);
        DDX_Control(exchange, Drawn, button);
    }
    void PostNcDestroy() override { ++destroyed; }
    afx_msg void OnClicked() { ++clicked; }
    afx_msg void OnChosen() { ++chosen; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Form, CDialog)
    ON_BN_CLICKED(Drawn, &Form::OnClicked)
    ON_CBN_SELCHANGE(List, &Form::OnChosen)
END_MESSAGE_MAP()

std::string TextOf(CWnd& form, int id)
{
    CString text;
    form.GetDlgItem(id)->GetWindowText(text);
    return Utf8(text);
}

/// Runs the messages that wait, as a host's own loop does.
void RunMessages()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
    {
        if (!AfxPreTranslateMessage(&message))
        {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

WPARAM pressed = 0;

/// Presses a button of the dialog that has come up over the window.
void CALLBACK PressInPopup(HWND window, UINT, UINT_PTR timer, DWORD)
{
    const HWND popup = GetLastActivePopup(window);
    if (popup != window)
    {
        KillTimer(window, timer);
        PostMessageW(popup, WM_COMMAND, pressed, 0);
    }
}

class Dialog : public testing::Test
{
protected:
    void Show()
    {
        ASSERT_TRUE(form.Create(Template));
        form.ShowWindow(SW_SHOW);
        RunMessages();
    }
    void Key(UINT key)
    {
        PostMessageW(GetFocus(), WM_KEYDOWN, key, 1);
        RunMessages();
    }

    CWinApp application;
    Form form;
};
} // namespace

TEST_F(Dialog, ShowsItsMembersInItsControls)
{
    Show();
    EXPECT_EQ(TextOf(form, TextEdit), "文字");
    EXPECT_EQ(TextOf(form, NumberEdit), "16.5");
    EXPECT_EQ(CWnd::FromHandle(form), &form);
    EXPECT_EQ(form.GetDlgItem(List), &form.list);
}

TEST_F(Dialog, TakesItsMembersFromItsControls)
{
    Show();
    form.SetDlgItemText(TextEdit, L"changed");
    for (const auto& [shown, value] :
         std::vector<std::pair<const wchar_t*, float>>{{L"20", 20.0f}, {L"0.25", 0.25f}, {L"-3", -3.0f}, {L"1e3", 1000.0f}})
    {
        form.SetDlgItemText(NumberEdit, shown);
        EXPECT_TRUE(form.UpdateData()) << Utf8(shown);
        EXPECT_EQ(form.number, value);
    }
    EXPECT_EQ(Utf8(form.text), "changed");
}

TEST_F(Dialog, ExchangeFailsOnWhatIsNoNumber)
{
    Show();
    for (const wchar_t* shown : {L"", L"abc", L"1,5", L"2 ", L"1e99", L"inf", L"nan", L"１２"})
    {
        form.SetDlgItemText(NumberEdit, shown);
        EXPECT_FALSE(form.UpdateData()) << Utf8(shown);
        EXPECT_EQ(form.number, 16.5f);
    }
    EXPECT_EQ(GetFocus(), form.GetDlgItem(NumberEdit)->m_hWnd);
}

TEST_F(Dialog, ListIsSearchedAndRead)
{
    Show();
    EXPECT_EQ(form.list.GetCount(), 3);
    EXPECT_EQ(form.list.GetCurSel(), CB_ERR);
    CString text;
    form.list.GetLBText(1, text);
    EXPECT_EQ(Utf8(text), "apple tree") << "sorted";
    form.list.GetLBText(3, text);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(form.list.FindString(-1, L"APP"), 0);
    EXPECT_EQ(form.list.FindString(0, L"app"), 1);
    EXPECT_EQ(form.list.FindString(0, L"cherry"), CB_ERR);
    EXPECT_EQ(form.list.FindStringExact(-1, L"apple t"), CB_ERR);
    EXPECT_EQ(form.list.FindStringExact(-1, L"pear"), 2);
    EXPECT_EQ(form.list.SetCurSel(2), 2);
    EXPECT_EQ(form.list.GetCurSel(), 2);
    EXPECT_EQ(form.chosen, 0) << "only the user's choice is told";
}

TEST_F(Dialog, OwnerDrawnButtonDrawsItself)
{
    Show();
    form.button.drawn = 0;
    form.button.Invalidate();
    RunMessages();
    EXPECT_GE(form.button.drawn, 1);
    EXPECT_EQ(form.button.id, UINT(Drawn));
    form.button.SendMessage(BM_CLICK);
    EXPECT_EQ(form.clicked, 1);
}

TEST_F(Dialog, ConfirmedModelessDialogIsHiddenAndStays)
{
    Show();
    form.GetDlgItem(IDOK)->SendMessage(BM_CLICK);
    EXPECT_EQ(form.confirmed, 1);
    EXPECT_TRUE(IsWindow(form));
    EXPECT_FALSE(form.IsWindowVisible());
    form.ShowWindow(SW_SHOW);
    form.SetDlgItemText(NumberEdit, L"none");
    form.GetDlgItem(IDOK)->SendMessage(BM_CLICK);
    EXPECT_TRUE(form.IsWindowVisible());
    form.SendMessage(WM_CLOSE);
    RunMessages();
    EXPECT_FALSE(form.IsWindowVisible()) << "as by the cancel button";
    form.DestroyWindow();
    EXPECT_EQ(form.destroyed, 1);
    EXPECT_EQ(form.m_hWnd, nullptr);
    EXPECT_EQ(form.list.m_hWnd, nullptr);
}

TEST_F(Dialog, KeysWorkInAHostsOwnLoop)
{
    Show();
    EXPECT_EQ(GetFocus(), form.GetDlgItem(TextEdit)->m_hWnd);
    Key(VK_TAB);
    EXPECT_EQ(GetFocus(), form.GetDlgItem(NumberEdit)->m_hWnd);
    Key(VK_RETURN);
    EXPECT_EQ(form.confirmed, 1);
    form.ShowWindow(SW_SHOW);
    SetFocus(form.GetDlgItem(TextEdit)->m_hWnd);
    Key(VK_ESCAPE);
    EXPECT_EQ(form.confirmed, 1);
    EXPECT_FALSE(form.IsWindowVisible());
}

TEST_F(Dialog, WithoutItsTemplateThereIsNone)
{
    EXPECT_FALSE(form.Create(4711));
    EXPECT_EQ(form.m_hWnd, nullptr);
    EXPECT_EQ(form.destroyed, 0);
    AfxSetResourceHandle(GetModuleHandleW(L"kernel32.dll"));
    EXPECT_FALSE(form.Create(Template));
    AfxSetResourceHandle(nullptr);
    EXPECT_TRUE(form.Create(Template));
    EXPECT_FALSE(form.IsWindowVisible()) << "shown by the caller";
}

TEST_F(Dialog, AnExceptionOfItsInitialisationEndsThere)
{
    form.raises = true;
    ASSERT_TRUE(form.Create(Template));
    EXPECT_TRUE(IsWindow(form));
    EXPECT_EQ(form.list.GetCount(), 3);
    form.DestroyWindow();
    form.endsAtOnce = true;
    EXPECT_EQ(form.DoModal(), 77);
}

TEST_F(Dialog, ModalOneEndsWithItsResult)
{
    form.endsAtOnce = true;
    EXPECT_EQ(form.DoModal(), 77);
    EXPECT_EQ(form.m_hWnd, nullptr);
    EXPECT_EQ(form.destroyed, 1);
    Form none(4711);
    EXPECT_EQ(none.DoModal(), -1);
}

TEST_F(Dialog, ColorDialogGivesTheChosenColor)
{
    Show();
    application.m_pMainWnd = &form;
    for (const WPARAM button : {IDOK, IDCANCEL})
    {
        pressed = button;
        SetTimer(form, 1, 50, &PressInPopup);
        CColorDialog dialog(RGB(255, 0, 0));
        EXPECT_EQ(dialog.DoModal(), static_cast<INT_PTR>(button));
        EXPECT_EQ(dialog.GetColor(), RGB(255, 0, 0));
        EXPECT_TRUE(form.IsWindowEnabled());
    }
    application.m_pMainWnd = nullptr;
}
