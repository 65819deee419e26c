// SPDX-License-Identifier: MIT
#include "KWMessageBox.h"

#include "../NxConfig/AppPath.h"
#include "../NxConfig/SystemUtility.h"

void KWMessageBox(const CString& text, UINT, CWnd* owner)
{
    const HWND main = owner && IsWindow(owner->GetSafeHwnd()) ? owner->GetSafeHwnd() : nullptr;
    const HWND popup = main ? GetLastActivePopup(main) : nullptr;
    const HWND over = IsWindowVisible(popup) ? popup : main;
    // The box disables its own owner alone.
    const bool disabled = over != main && !EnableWindow(main, FALSE);
    MessageBoxW(over, text, getEXETitle(), MB_OK | MB_ICONINFORMATION);
    if (disabled)
    {
        EnableWindow(main, TRUE);
    }
}

CString getEXETitle()
{
    const CString title = SystemUtility::GetBaseFileTitle(ExecutablePath());
    // A program that lies in two files has the second one's extension behind its own.
    return title.Right(4).CompareNoCase(L".exe") == 0 ? title.Left(title.GetLength() - 4) : title;
}
