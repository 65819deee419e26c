// SPDX-License-Identifier: MIT
#include "KWNumEdit.h"

#include <charconv>
#include <string>
#include <system_error>

namespace
{
constexpr UINT FirstPrintable = 0x20; // below are the keys that edit: backspace, copy, cut, paste, undo

// Digits and at most one point, as it may stand while a number is being typed.
bool IsPartOfNumber(const CString& text)
{
    int points = 0;
    for (int i = 0; i < text.GetLength(); ++i)
    {
        const bool point = text[i] == L'.';
        points += point;
        if (!point && (text[i] < L'0' || text[i] > L'9'))
        {
            return false;
        }
    }
    return points <= 1;
}

bool ParseNumber(const CString& text, double& value)
{
    if (!IsPartOfNumber(text))
    {
        return false;
    }
    std::string digits;
    for (int i = 0; i < text.GetLength(); ++i)
    {
        digits += static_cast<char>(text[i]);
    }
    const char* end = digits.data() + digits.size();
    const std::from_chars_result result = std::from_chars(digits.data(), end, value, std::chars_format::fixed);
    return result.ec == std::errc() && result.ptr == end;
}

CString ClipboardText(HWND owner)
{
    CString text;
    if (!OpenClipboard(owner))
    {
        return text;
    }
    if (const HANDLE data = GetClipboardData(CF_UNICODETEXT))
    {
        if (const auto* units = static_cast<const wchar_t*>(GlobalLock(data)))
        {
            text = units;
            GlobalUnlock(data);
        }
    }
    CloseClipboard();
    return text;
}
} // namespace

BEGIN_MESSAGE_MAP(CKWNumEdit, CEdit)
    ON_WM_CHAR()
    ON_WM_KILLFOCUS()
    ON_MESSAGE(WM_PASTE, &CKWNumEdit::OnPaste)
    ON_MESSAGE(WM_SETTEXT, &CKWNumEdit::OnSetText)
END_MESSAGE_MAP()

void CKWNumEdit::SetUpperLimit(double limit)
{
    limit_ = limit;
    ForgetForbidden();
}

void CKWNumEdit::UseUpperLimit(bool use)
{
    limited_ = use;
    ForgetForbidden();
}

void CKWNumEdit::ForgetForbidden()
{
    if (!IsAllowed(lastGood_))
    {
        lastGood_.Empty();
    }
}

bool CKWNumEdit::IsAllowed(const CString& text) const
{
    double value = 0.0;
    return ParseNumber(text, value) && (!limited_ || (value > 0.0 && value <= limit_));
}

bool CKWNumEdit::Settle()
{
    CString text;
    GetWindowText(text);
    const bool good = IsAllowed(text);
    if (good)
    {
        lastGood_ = text;
    }
    else
    {
        SetWindowText(lastGood_);
    }
    return good;
}

CString CKWNumEdit::With(const CString& units) const
{
    CString text;
    GetWindowText(text);
    int first = 0;
    int last = 0;
    GetSel(first, last);
    return text.Left(first) + units + text.Mid(last);
}

void CKWNumEdit::OnChar(UINT unit, UINT repeat, UINT flags)
{
    if (unit < FirstPrintable || IsPartOfNumber(With(CString(static_cast<wchar_t>(unit)))))
    {
        CEdit::OnChar(unit, repeat, flags);
    }
}

void CKWNumEdit::OnKillFocus(CWnd* next)
{
    CEdit::OnKillFocus(next);
    // The dialog that is being confirmed reads the number itself, and can stay open when it is none.
    if (!next || next->GetDlgCtrlID() != IDOK)
    {
        Settle();
    }
}

LRESULT CKWNumEdit::OnPaste(WPARAM, LPARAM)
{
    return IsPartOfNumber(With(ClipboardText(m_hWnd))) ? Default() : 0;
}

LRESULT CKWNumEdit::OnSetText(WPARAM, LPARAM lParam)
{
    const LRESULT result = Default();
    const CString text(reinterpret_cast<LPCWSTR>(lParam));
    if (IsAllowed(text))
    {
        lastGood_ = text;
    }
    return result;
}
