// SPDX-License-Identifier: MIT
#include "afxdlgs.h"

#include <vector>

namespace
{
// The colours that a user has put together, kept from one dialog to the next.
COLORREF* CustomColors()
{
    static std::vector<COLORREF> colors(16, RGB(255, 255, 255));
    return colors.data();
}

// The application's main window takes no input while the object lives, unless it is the owner, which the dialog disables itself.
class MainWindowDisabled
{
public:
    MainWindowDisabled(HWND main, HWND owner) : main_(main != owner && ::IsWindowEnabled(main) ? main : nullptr)
    {
        if (main_)
        {
            ::EnableWindow(main_, FALSE);
        }
    }
    ~MainWindowDisabled()
    {
        if (main_)
        {
            ::EnableWindow(main_, TRUE);
        }
    }
    MainWindowDisabled(const MainWindowDisabled&) = delete;
    MainWindowDisabled& operator=(const MainWindowDisabled&) = delete;

private:
    HWND main_;
};
} // namespace

CColorDialog::CColorDialog(COLORREF color, DWORD flags, CWnd* parent)
{
    m_cc.lStructSize = sizeof(m_cc);
    m_cc.hwndOwner = parent ? parent->m_hWnd : nullptr;
    m_cc.rgbResult = color;
    m_cc.lpCustColors = CustomColors();
    m_cc.Flags = color ? flags | CC_RGBINIT : flags;
}

INT_PTR CColorDialog::DoModal()
{
    CHOOSECOLORW choice = m_cc;
    CWnd* mainWindow = AfxGetMainWnd();
    const HWND main = mainWindow ? mainWindow->m_hWnd : nullptr;
    if (!choice.hwndOwner && main)
    {
        const HWND popup = ::GetLastActivePopup(main);
        choice.hwndOwner = ::IsWindowVisible(popup) ? popup : main;
    }
    const MainWindowDisabled disabled(main, choice.hwndOwner);
    const bool chosen = ::ChooseColorW(&choice);
    m_cc.rgbResult = choice.rgbResult;
    return chosen ? IDOK : IDCANCEL;
}

COLORREF CColorDialog::GetColor() const
{
    return m_cc.rgbResult;
}
