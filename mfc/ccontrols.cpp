// SPDX-License-Identifier: MIT
#include "afxwin.h"

void CButton::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
    {
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    }
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    *result = TRUE;
    return TRUE;
}

void CEdit::GetSel(int& first, int& last) const
{
    DWORD start = 0;
    DWORD end = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    first = static_cast<int>(start);
    last = static_cast<int>(end);
}

void CEdit::SetSel(int first, int last)
{
    SendMessage(EM_SETSEL, static_cast<WPARAM>(first), last);
}

void CEdit::ReplaceSel(LPCWSTR text, BOOL canUndo)
{
    SendMessage(EM_REPLACESEL, static_cast<WPARAM>(canUndo), reinterpret_cast<LPARAM>(text));
}

int CComboBox::AddString(LPCWSTR text)
{
    return static_cast<int>(SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)));
}

int CComboBox::GetCount() const
{
    return static_cast<int>(SendMessage(CB_GETCOUNT));
}

int CComboBox::FindString(int startAfter, LPCWSTR text) const
{
    return static_cast<int>(SendMessage(CB_FINDSTRING, static_cast<WPARAM>(startAfter), reinterpret_cast<LPARAM>(text)));
}

int CComboBox::FindStringExact(int startAfter, LPCWSTR text) const
{
    return static_cast<int>(SendMessage(CB_FINDSTRINGEXACT, static_cast<WPARAM>(startAfter), reinterpret_cast<LPARAM>(text)));
}

int CComboBox::GetCurSel() const
{
    return static_cast<int>(SendMessage(CB_GETCURSEL));
}

int CComboBox::SetCurSel(int index)
{
    return static_cast<int>(SendMessage(CB_SETCURSEL, static_cast<WPARAM>(index)));
}

void CComboBox::GetLBText(int index, CString& text) const
{
    const LRESULT length = SendMessage(CB_GETLBTEXTLEN, static_cast<WPARAM>(index));
    if (length == CB_ERR)
    {
        text.Empty();
        return;
    }
    const LRESULT copied =
        SendMessage(CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.GetBuffer(static_cast<int>(length))));
    text.ReleaseBuffer(copied == CB_ERR ? 0 : static_cast<int>(copied));
}
