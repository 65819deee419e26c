// SPDX-License-Identifier: MIT
// Data exchange between the controls of a dialog and its members; included by afxwin.h.
#pragma once

#include "cwnd.h"

class NX_MFC_EXPORT CDataExchange
{
public:
    CDataExchange(CWnd* dialog, BOOL saveAndValidate);

    // The control; an exchange with one that is not there fails.
    HWND PrepareCtrl(int id);
    // Gives the focus to the last control, and ends the exchange: UpdateData returns false.
    [[noreturn]] void Fail();

    // True: from the controls into the members.
    BOOL m_bSaveAndValidate;
    CWnd* m_pDlgWnd;

private:
    HWND lastControl_ = nullptr;
};

// Subclasses the control the first time.
NX_MFC_EXPORT void DDX_Control(CDataExchange* exchange, int id, CWnd& control);
NX_MFC_EXPORT void DDX_Text(CDataExchange* exchange, int id, CString& value);
// The text is a decimal number with a point, in six significant digits; the exchange fails on anything else.
NX_MFC_EXPORT void DDX_Text(CDataExchange* exchange, int id, float& value);
