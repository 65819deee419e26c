// SPDX-License-Identifier: MIT
#include "atlstr.h"

#include "atlstr_units.h"

#include <algorithm>

int CStringW::Compare(LPCWSTR text) const noexcept
{
    LPCWSTR left = GetString();
    LPCWSTR right = text ? text : L"";
    while (*left != 0 && *left == *right)
    {
        ++left;
        ++right;
    }
    return static_cast<int>(*left) - static_cast<int>(*right);
}

int CStringW::CompareNoCase(LPCWSTR text) const noexcept
{
    return CompareStringOrdinal(GetString(), -1, text ? text : L"", -1, TRUE) - CSTR_EQUAL;
}

CStringW CStringW::Left(int count) const
{
    return Mid(0, count);
}

CStringW CStringW::Right(int count) const
{
    return Mid(GetLength() - std::clamp(count, 0, GetLength()));
}

CStringW CStringW::Mid(int first) const
{
    return Mid(first, GetLength());
}

CStringW CStringW::Mid(int first, int count) const
{
    const int start = std::clamp(first, 0, GetLength());
    return CStringW(GetString() + start, std::clamp(count, 0, GetLength() - start));
}

int CStringW::Find(wchar_t unit, int start) const noexcept
{
    const wchar_t text[] = {unit, 0};
    return unit != 0 ? Find(text, start) : -1;
}

int CStringW::Find(LPCWSTR text, int start) const noexcept
{
    if (!text || start < 0 || start > GetLength())
    {
        return -1;
    }
    const LPCWSTR end = GetString() + GetLength();
    const int count = UnitCount(text);
    const LPCWSTR hit = std::search(GetString() + start, end, text, text + count);
    return hit != end || count == 0 ? static_cast<int>(hit - GetString()) : -1;
}

int CStringW::ReverseFind(wchar_t unit) const noexcept
{
    int index = GetLength() - 1;
    while (index >= 0 && GetAt(index) != unit)
    {
        --index;
    }
    return index;
}

CStringW operator+(const CStringW& left, const CStringW& right)
{
    return CStringW(left) += right;
}

CStringW operator+(const CStringW& left, LPCWSTR right)
{
    return CStringW(left) += right;
}

CStringW operator+(LPCWSTR left, const CStringW& right)
{
    return CStringW(left) += right;
}

CStringW operator+(const CStringW& left, wchar_t right)
{
    return CStringW(left) += right;
}

CStringW operator+(wchar_t left, const CStringW& right)
{
    return CStringW(left) += right;
}
