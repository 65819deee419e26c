// SPDX-License-Identifier: MIT
#include "afxwin.h"

#include <charconv>
#include <cmath>
#include <string>
#include <system_error>

namespace
{
// What Fail ends an exchange with; it does not leave UpdateData.
struct ExchangeFailed
{
};

void ShowText(HWND control, const CString& text)
{
    CString former;
    CWnd::FromHandle(control)->GetWindowText(former);
    // Writing the same text again would move the caret.
    if (former != text)
    {
        ::SetWindowTextW(control, text);
    }
}

bool ParseFloat(const CString& text, float& value)
{
    std::string narrow;
    for (int i = 0; i < text.GetLength(); ++i)
    {
        const wchar_t unit = text[i];
        narrow += unit < 0x80 ? static_cast<char>(unit) : '?';
    }
    float parsed = 0.0f;
    const char* end = narrow.data() + narrow.size();
    const std::from_chars_result result = std::from_chars(narrow.data(), end, parsed);
    if (result.ec != std::errc() || result.ptr != end || !std::isfinite(parsed))
    {
        return false;
    }
    value = parsed;
    return true;
}
} // namespace

CDataExchange::CDataExchange(CWnd* dialog, BOOL saveAndValidate) : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(dialog) {}

HWND CDataExchange::PrepareCtrl(int id)
{
    const HWND control = ::GetDlgItem(m_pDlgWnd->m_hWnd, id);
    if (!control)
    {
        Fail();
    }
    lastControl_ = control;
    return control;
}

void CDataExchange::Fail()
{
    if (m_bSaveAndValidate && lastControl_)
    {
        ::SetFocus(lastControl_);
        ::SendMessageW(lastControl_, EM_SETSEL, 0, -1);
    }
    throw ExchangeFailed();
}

void CWnd::DoDataExchange(CDataExchange*) {}

BOOL CWnd::UpdateData(BOOL saveAndValidate)
{
    CDataExchange exchange(this, saveAndValidate);
    try
    {
        DoDataExchange(&exchange);
        return TRUE;
    }
    catch (const ExchangeFailed&)
    {
        return FALSE;
    }
}

void DDX_Control(CDataExchange* exchange, int id, CWnd& control)
{
    if (!control.m_hWnd && !control.SubclassWindow(exchange->PrepareCtrl(id)))
    {
        exchange->Fail();
    }
}

void DDX_Text(CDataExchange* exchange, int id, CString& value)
{
    const HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
    {
        CWnd::FromHandle(control)->GetWindowText(value);
    }
    else
    {
        ShowText(control, value);
    }
}

void DDX_Text(CDataExchange* exchange, int id, float& value)
{
    const HWND control = exchange->PrepareCtrl(id);
    if (!exchange->m_bSaveAndValidate)
    {
        CString text;
        text.Format(L"%g", static_cast<double>(value));
        ShowText(control, text);
        return;
    }
    CString text;
    CWnd::FromHandle(control)->GetWindowText(text);
    if (!ParseFloat(text, value))
    {
        exchange->Fail();
    }
}
