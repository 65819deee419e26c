// SPDX-License-Identifier: MIT
#include "atlstr.h"

#include "atlstr_units.h"

#include <algorithm>

namespace
{
const wchar_t NoUnits[1] = {};
}

CStringW::CStringW(CStringW&& other) noexcept : text_(std::move(other.text_))
{
    other.text_.clear();
}

CStringW::CStringW(LPCWSTR text) : CStringW(text, UnitCount(text)) {}

CStringW::CStringW(LPCWSTR text, int length)
{
    Assign(text, length);
}

CStringW::CStringW(LPCSTR ansiText)
{
    *this = ansiText;
}

CStringW::CStringW(wchar_t unit, int repeat)
{
    if (repeat > 0)
    {
        text_.assign(static_cast<std::size_t>(repeat) + 1, unit);
        text_.back() = 0;
    }
}

CStringW& CStringW::operator=(CStringW&& other) noexcept
{
    if (this != &other)
    {
        text_ = std::move(other.text_);
        other.text_.clear();
    }
    return *this;
}

CStringW& CStringW::operator=(LPCWSTR text)
{
    Assign(text, UnitCount(text));
    return *this;
}

CStringW& CStringW::operator=(LPCSTR ansiText)
{
    const int count = ansiText ? MultiByteToWideChar(CP_ACP, 0, ansiText, -1, nullptr, 0) : 0;
    text_.assign(static_cast<std::size_t>(std::max(count, 0)), 0);
    if (count > 0)
    {
        MultiByteToWideChar(CP_ACP, 0, ansiText, -1, text_.data(), count);
    }
    return *this;
}

CStringW& CStringW::operator=(wchar_t unit)
{
    Assign(&unit, 1);
    return *this;
}

int CStringW::GetLength() const noexcept
{
    return text_.empty() ? 0 : static_cast<int>(text_.size()) - 1;
}

bool CStringW::IsEmpty() const noexcept
{
    return GetLength() == 0;
}

void CStringW::Empty() noexcept
{
    text_.clear();
}

wchar_t CStringW::GetAt(int index) const noexcept
{
    return index >= 0 && index < GetLength() ? text_[static_cast<std::size_t>(index)] : L'\0';
}

wchar_t CStringW::operator[](int index) const noexcept
{
    return GetAt(index);
}

void CStringW::SetAt(int index, wchar_t unit)
{
    if (index >= 0 && index < GetLength())
    {
        text_[static_cast<std::size_t>(index)] = unit;
    }
}

LPCWSTR CStringW::GetString() const noexcept
{
    return text_.empty() ? NoUnits : text_.data();
}

CStringW::operator LPCWSTR() const noexcept
{
    return GetString();
}

CStringW& CStringW::operator+=(const CStringW& text)
{
    Append(text.GetString(), text.GetLength());
    return *this;
}

CStringW& CStringW::operator+=(LPCWSTR text)
{
    Append(text, UnitCount(text));
    return *this;
}

CStringW& CStringW::operator+=(wchar_t unit)
{
    Append(&unit, 1);
    return *this;
}

wchar_t* CStringW::GetBuffer(int minimumLength)
{
    text_.resize(static_cast<std::size_t>(std::max(minimumLength, GetLength())) + 1, 0);
    return text_.data();
}

void CStringW::ReleaseBuffer(int length)
{
    const auto end = length < 0 ? std::find(text_.begin(), text_.end(), L'\0') : text_.begin() + std::min(length, GetLength());
    text_.erase(end, text_.end());
    if (!text_.empty())
    {
        text_.push_back(0);
    }
}

void CStringW::Assign(LPCWSTR text, int length)
{
    // Made beside the old text, since the new one may be a part of it.
    std::vector<wchar_t> made;
    if (text && length > 0)
    {
        made.reserve(static_cast<std::size_t>(length) + 1);
        made.assign(text, text + length);
        made.push_back(0);
    }
    text_.swap(made);
}

void CStringW::Append(LPCWSTR text, int length)
{
    if (!text || length <= 0)
    {
        return;
    }
    const int formerLength = GetLength();
    if (text >= GetString() && text <= GetString() + formerLength)
    {
        Append(CStringW(text, length).GetString(), length);
        return;
    }
    text_.resize(static_cast<std::size_t>(formerLength) + static_cast<std::size_t>(length) + 1, 0);
    std::copy(text, text + length, text_.begin() + formerLength);
}
