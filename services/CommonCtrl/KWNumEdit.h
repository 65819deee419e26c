// SPDX-License-Identifier: MIT
#pragma once

#include "../NxServicesExport.h"

#include <afxwin.h>

// An edit control for a decimal number above 0 that has an upper limit: digits and one point; nothing else can be typed or
// pasted. What stands there in the end and is no such number goes back to the last one that was.
class NX_SERVICES_EXPORT CKWNumEdit : public CEdit
{
public:
    // The limit itself is allowed. It holds once it is turned on; until then any number does, 0 as well.
    void SetUpperLimit(double limit);
    void UseUpperLimit(bool use);

    // To be called before the text is read: false when it had to go back. Happens by itself when the control loses the focus to
    // anything but the button that confirms its dialog.
    bool Settle();

protected:
    afx_msg void OnChar(UINT unit, UINT repeat, UINT flags);
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg LRESULT OnPaste(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    void ForgetForbidden();
    bool IsAllowed(const CString& text) const;
    // The text as it would be with these units in place of the selection.
    CString With(const CString& units) const;

    double limit_ = 0.0;
    bool limited_ = false;
    CString lastGood_;
};
