// SPDX-License-Identifier: MIT
// The system's own dialogs.
#pragma once

#include "afxwin.h"

#include <commdlg.h>

class NX_MFC_EXPORT CColorDialog : public CDialog
{
public:
    // Without a parent it comes up over the application's main window, or what was last active of its popups, and neither takes
    // input meanwhile.
    explicit CColorDialog(COLORREF color = 0, DWORD flags = 0, CWnd* parent = nullptr);

    // IDOK or IDCANCEL.
    INT_PTR DoModal() override;
    COLORREF GetColor() const;

    CHOOSECOLORW m_cc = {};
};
