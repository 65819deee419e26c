// SPDX-License-Identifier: MIT
#pragma once

#include "support/FrameTest.h"

#include <functional>

/// Acts on the next dialog that comes up over all others, from inside of its own message loop: a message box, the colour dialog.
class PopupAnswer
{
public:
    explicit PopupAnswer(std::function<void(HWND popup)> act);
    ~PopupAnswer();
    PopupAnswer(const PopupAnswer&) = delete;
    PopupAnswer& operator=(const PopupAnswer&) = delete;

    int Answered() const;
};

/// Reads the text of a message box and presses its button.
struct MessageBoxRead
{
    CString caption;
    CString text;
    /// To be given to PopupAnswer.
    std::function<void(HWND)> Read();
};

/// The dialog for the title over the whole frame, driven by messages to its controls.
class TitleDialogTest : public FrameTest
{
protected:
    static constexpr int TextEdit = 4089;
    static constexpr int FontList = 5014;
    static constexpr int HeightEdit = 5015;
    static constexpr int ColorButton = 4052;
    static constexpr const wchar_t* Font = L"Noto Sans CJK SC";

    void SetUp() override;
    void TearDown() override;

    /// The dialog's window, null when there is none; a hidden one counts.
    static HWND Dialog();
    static int DialogCount();
    static bool IsShown() { return IsWindowVisible(Dialog()) != FALSE; }
    static HWND Control(int id) { return GetDlgItem(Dialog(), id); }
    static CString ControlText(int id);
    /// Double-clicks the title as a user does, and takes the message that the host gets.
    static void OpenByDoubleClick();
    static void SetText(int id, const CString& text);
    static void ChooseFont(const CString& face);
    /// Picks a colour with the colour dialog.
    static void PickColor(int red, int green, int blue);
    static void Press(int button);
    static void Confirm() { Press(IDOK); }
    static CString SelectedFont();
    /// A font of the list that is not the title's, and that can be drawn.
    static CString OtherFont();

    static std::string Title() { return Utf8(Frame().GetSceneTitle()); }
    /// What the title bar shows left of its buttons.
    static std::vector<Pixel> TitleBarPixels();
    /// The same for a title given to the frame directly. The frame keeps it.
    static std::vector<Pixel> PixelsOf(const CString& text, COLORREF color, const CString& face, float height);
    static int CountOfColor(const std::vector<Pixel>& pixels, Pixel color);
};
