// SPDX-License-Identifier: MIT
// Dialogs from templates of the resources, and their controls; included by afxwin.h.
#pragma once

#include "cwnd.h"

// The template is taken from the module that AfxGetResourceHandle names at the time of the call.
class NX_MFC_EXPORT CDialog : public CWnd
{
public:
    CDialog() = default;
    // For DoModal.
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);

    // Modeless.
    virtual BOOL Create(UINT templateId, CWnd* parent = nullptr);
    // What EndDialog was given, or -1 when there is no dialog.
    virtual INT_PTR DoModal();
    // Ends a modal dialog, hides a modeless one.
    void EndDialog(int result);

    virtual BOOL OnInitDialog();
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    virtual void OnOK();
    virtual void OnCancel();

    DECLARE_MESSAGE_MAP()

private:
    static INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    UINT templateId_ = 0;
    CWnd* parent_ = nullptr;
};

class NX_MFC_EXPORT CButton : public CWnd
{
public:
    // For buttons of the style BS_OWNERDRAW, which draw themselves nowhere else.
    virtual void DrawItem(LPDRAWITEMSTRUCT item);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};

class NX_MFC_EXPORT CEdit : public CWnd
{
public:
    void GetSel(int& first, int& last) const;
    void SetSel(int first, int last);
    void ReplaceSel(LPCWSTR text, BOOL canUndo = FALSE);
};

// Each gives CB_ERR (-1) when there is no such entry.
class NX_MFC_EXPORT CComboBox : public CWnd
{
public:
    int AddString(LPCWSTR text);
    int GetCount() const;
    // Searches the entries after the given one (-1: all), then those before, for one that begins with the text, or is it; case
    // does not count.
    int FindString(int startAfter, LPCWSTR text) const;
    int FindStringExact(int startAfter, LPCWSTR text) const;
    int GetCurSel() const;
    int SetCurSel(int index);
    void GetLBText(int index, CString& text) const;
};
