// SPDX-License-Identifier: MIT
#include "afxwin.h"

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

CDialog::CDialog(UINT templateId, CWnd* parent) : templateId_(templateId), parent_(parent) {}

INT_PTR CALLBACK CDialog::DialogProcedure(HWND window, UINT message, WPARAM, LPARAM lParam)
{
    // Everything else comes through the subclassed window; what is left is the system's own to do.
    if (message != WM_INITDIALOG)
    {
        return FALSE;
    }
    CDialog* dialog = reinterpret_cast<CDialog*>(lParam);
    try
    {
        return dialog->SubclassWindow(window) ? dialog->OnInitDialog() : TRUE;
    }
    catch (...)
    {
        return AfxProcessWndProcException(window, message);
    }
}

BOOL CDialog::Create(UINT templateId, CWnd* parent)
{
    return CreateDialogParamW(AfxGetResourceHandle(), MAKEINTRESOURCEW(templateId), parent ? parent->m_hWnd : nullptr,
                              &CDialog::DialogProcedure, reinterpret_cast<LPARAM>(this)) != nullptr;
}

INT_PTR CDialog::DoModal()
{
    const CWnd* parent = parent_ ? parent_ : AfxGetMainWnd();
    return DialogBoxParamW(AfxGetResourceHandle(), MAKEINTRESOURCEW(templateId_), parent ? parent->m_hWnd : nullptr,
                           &CDialog::DialogProcedure, reinterpret_cast<LPARAM>(this));
}

void CDialog::EndDialog(int result)
{
    ::EndDialog(m_hWnd, result);
}

BOOL CDialog::OnInitDialog()
{
    UpdateData(FALSE);
    return TRUE;
}

void CDialog::OnOK()
{
    if (UpdateData())
    {
        EndDialog(IDOK);
    }
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

BOOL CDialog::PreTranslateMessage(MSG* message)
{
    const bool key = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
    const bool mouse = message->message >= WM_MOUSEFIRST && message->message <= WM_MOUSELAST;
    return (key || mouse) && IsDialogMessage(message);
}
