// SPDX-License-Identifier: MIT
#include "atlstr.h"

#include "atlstr_units.h"

#include <algorithm>

namespace
{
const wchar_t WhiteSpace[] = L" \t\r\n\v\f\x3000";

bool Holds(LPCWSTR units, wchar_t unit)
{
    const int count = UnitCount(units);
    return std::find(units, units + count, unit) != units + count;
}
} // namespace

int CStringW::Replace(wchar_t from, wchar_t to)
{
    if (from == to)
    {
        return 0;
    }
    int replaced = 0;
    for (int index = 0; index < GetLength(); ++index)
    {
        if (GetAt(index) == from)
        {
            SetAt(index, to);
            ++replaced;
        }
    }
    return replaced;
}

int CStringW::Replace(LPCWSTR from, LPCWSTR to)
{
    const int fromCount = UnitCount(from);
    if (fromCount == 0)
    {
        return 0;
    }
    CStringW made;
    int replaced = 0;
    int done = 0;
    for (int hit = Find(from); hit >= 0; hit = Find(from, done))
    {
        made.Append(GetString() + done, hit - done);
        made += to;
        done = hit + fromCount;
        ++replaced;
    }
    if (replaced > 0)
    {
        made.Append(GetString() + done, GetLength() - done);
        *this = std::move(made);
    }
    return replaced;
}

int CStringW::Remove(wchar_t unit)
{
    if (IsEmpty())
    {
        return 0;
    }
    const auto end = text_.end() - 1;
    const auto kept = std::remove(text_.begin(), end, unit);
    const int removed = static_cast<int>(end - kept);
    text_.erase(kept, end);
    return removed;
}

int CStringW::Insert(int index, wchar_t unit)
{
    const wchar_t text[] = {unit, 0};
    return Insert(index, text);
}

int CStringW::Insert(int index, LPCWSTR text)
{
    const int place = std::clamp(index, 0, GetLength());
    *this = Left(place) + text + Mid(place);
    return GetLength();
}

int CStringW::Delete(int index, int count)
{
    const int first = std::max(index, 0);
    const int removed = std::min(count, GetLength() - first);
    if (removed > 0)
    {
        text_.erase(text_.begin() + first, text_.begin() + first + removed);
    }
    return GetLength();
}

CStringW& CStringW::Trim()
{
    return Trim(WhiteSpace);
}

CStringW& CStringW::TrimLeft()
{
    return TrimLeft(WhiteSpace);
}

CStringW& CStringW::TrimRight()
{
    return TrimRight(WhiteSpace);
}

CStringW& CStringW::Trim(wchar_t unit)
{
    return TrimRight(unit).TrimLeft(unit);
}

CStringW& CStringW::TrimLeft(wchar_t unit)
{
    const wchar_t units[] = {unit, 0};
    return TrimLeft(units);
}

CStringW& CStringW::TrimRight(wchar_t unit)
{
    const wchar_t units[] = {unit, 0};
    return TrimRight(units);
}

CStringW& CStringW::Trim(LPCWSTR units)
{
    return TrimRight(units).TrimLeft(units);
}

CStringW& CStringW::TrimLeft(LPCWSTR units)
{
    int count = 0;
    while (count < GetLength() && Holds(units, GetAt(count)))
    {
        ++count;
    }
    Delete(0, count);
    return *this;
}

CStringW& CStringW::TrimRight(LPCWSTR units)
{
    int length = GetLength();
    while (length > 0 && Holds(units, GetAt(length - 1)))
    {
        --length;
    }
    Delete(length, GetLength() - length);
    return *this;
}

CStringW& CStringW::MakeLower()
{
    CharLowerBuffW(text_.data(), static_cast<DWORD>(GetLength()));
    return *this;
}

CStringW& CStringW::MakeUpper()
{
    CharUpperBuffW(text_.data(), static_cast<DWORD>(GetLength()));
    return *this;
}
