// SPDX-License-Identifier: MIT
#include "TitleDialogTest.h"

#include <panels/FontNames.h>
#include <panels/TitleEditDialog.h>
#include <widgets/Gdiplus.h>

#include <algorithm>

namespace
{
constexpr int MessageText = 0xFFFF;
// Of the colour dialog.
constexpr int RedEdit = 706;
constexpr int GreenEdit = 707;
constexpr int BlueEdit = 708;

std::function<void(HWND)> answer;
UINT_PTR timer = 0;
int answered = 0;

bool IsTitleDialog(HWND window)
{
    return GetDlgItem(window, 4089) && GetDlgItem(window, 5015);
}

bool IsDialogWindow(HWND window)
{
    wchar_t name[16] = {};
    GetClassNameW(window, name, 16);
    return CString(name) == L"#32770";
}

struct DialogSearch
{
    bool titleDialogs;
    std::vector<HWND> found;
};

BOOL CALLBACK CollectDialog(HWND window, LPARAM search)
{
    auto& wanted = *reinterpret_cast<DialogSearch*>(search);
    if (IsDialogWindow(window) && IsTitleDialog(window) == wanted.titleDialogs)
    {
        wanted.found.push_back(window);
    }
    return TRUE;
}

std::vector<HWND> Dialogs(bool titleDialogs)
{
    DialogSearch search = {titleDialogs, {}};
    EnumThreadWindows(GetCurrentThreadId(), &CollectDialog, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

void CALLBACK Answer(HWND, UINT, UINT_PTR, DWORD)
{
    for (const HWND popup : Dialogs(false))
    {
        if (answer && IsWindowVisible(popup))
        {
            ++answered;
            std::exchange(answer, nullptr)(popup);
            return;
        }
    }
}
} // namespace

PopupAnswer::PopupAnswer(std::function<void(HWND)> act)
{
    answer = std::move(act);
    answered = 0;
    timer = SetTimer(nullptr, 0, 20, &Answer);
}

PopupAnswer::~PopupAnswer()
{
    KillTimer(nullptr, timer);
    answer = nullptr;
}

int PopupAnswer::Answered() const
{
    return answered;
}

std::function<void(HWND)> MessageBoxRead::Read()
{
    return [this](HWND popup)
    {
        CWnd::FromHandle(popup)->GetWindowText(caption);
        if (const HWND label = GetDlgItem(popup, MessageText))
        {
            CWnd::FromHandle(label)->GetWindowText(text);
        }
        PostMessageW(popup, WM_COMMAND, IDOK, 0);
    };
}

void TitleDialogTest::SetUp()
{
    CloseTitleEditDialog();
    FrameTest::SetUp();
}

void TitleDialogTest::TearDown()
{
    CloseTitleEditDialog();
    FrameTest::TearDown();
}

HWND TitleDialogTest::Dialog()
{
    const std::vector<HWND> found = Dialogs(true);
    return found.empty() ? nullptr : found[0];
}

int TitleDialogTest::DialogCount()
{
    return static_cast<int>(Dialogs(true).size());
}

CString TitleDialogTest::ControlText(int id)
{
    CString text;
    CWnd::FromHandle(Control(id))->GetWindowText(text);
    return text;
}

void TitleDialogTest::OpenByDoubleClick()
{
    const CPoint title = GuiHost::CentreOf("TavTilteText");
    Host().DoubleClick(title.x, title.y);
    EXPECT_EQ(Host().TakeCodes(), std::vector<WPARAM>{GUI_CMD_EDIT_TITLE});
    ASSERT_TRUE(IsShown());
}

void TitleDialogTest::SetText(int id, const CString& text)
{
    SetWindowTextW(Control(id), text);
}

void TitleDialogTest::ChooseFont(const CString& face)
{
    const LRESULT index =
        SendMessageW(Control(FontList), CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(face.GetString()));
    ASSERT_GE(index, 0) << Utf8(face);
    SendMessageW(Control(FontList), CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    SendMessageW(Dialog(), WM_COMMAND, MAKEWPARAM(FontList, CBN_SELCHANGE), reinterpret_cast<LPARAM>(Control(FontList)));
}

void TitleDialogTest::PickColor(int red, int green, int blue)
{
    const PopupAnswer pick(
        [=](HWND dialog)
        {
            SetDlgItemInt(dialog, RedEdit, static_cast<UINT>(red), FALSE);
            SetDlgItemInt(dialog, GreenEdit, static_cast<UINT>(green), FALSE);
            SetDlgItemInt(dialog, BlueEdit, static_cast<UINT>(blue), FALSE);
            PostMessageW(dialog, WM_COMMAND, IDOK, 0);
        });
    Press(ColorButton);
    EXPECT_EQ(pick.Answered(), 1);
}

void TitleDialogTest::Press(int button)
{
    SendMessageW(Control(button), BM_CLICK, 0, 0);
}

CString TitleDialogTest::SelectedFont()
{
    return ControlText(FontList);
}

CString TitleDialogTest::OtherFont()
{
    for (const CString& face : InstalledFontNames())
    {
        const bool listed = SendMessageW(Control(FontList), CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                         reinterpret_cast<LPARAM>(face.GetString())) >= 0;
        if (listed && face != Font && gp::NewFontFamily(face))
        {
            return face;
        }
    }
    return CString();
}

std::vector<Pixel> TitleDialogTest::TitleBarPixels()
{
    Host().MoveMouse(400, 301);
    Host().MoveMouse(400, 300);
    const Screenshot shot = Host().Shoot();
    std::vector<Pixel> pixels;
    for (int y = 0; y < 50; ++y)
    {
        for (int x = 50; x < 650; ++x)
        {
            pixels.push_back(shot.At(x, y));
        }
    }
    return pixels;
}

std::vector<Pixel> TitleDialogTest::PixelsOf(const CString& text, COLORREF color, const CString& face, float height)
{
    Frame().ChangeTitleText(text, color, face, height);
    return TitleBarPixels();
}

int TitleDialogTest::CountOfColor(const std::vector<Pixel>& pixels, Pixel color)
{
    return static_cast<int>(std::count_if(pixels.begin(), pixels.end(), [&](Pixel p) { return Distance(p, color) < 24; }));
}
