// SPDX-License-Identifier: MIT
#pragma once

#include "nxmfc_export.h"

#include <windows.h>

#include <cstdarg>
#include <utility>
#include <vector>

// UTF-16 text with value semantics. Lengths and indices count UTF-16 units, not characters. Comparisons are ordinal and, like
// those of the original, end at the first null. Pointers handed out hold until the string is next changed or destroyed.
// Objects of this class cannot go through the dots of Format: hand over GetString().
class NX_MFC_EXPORT CStringW
{
public:
    CStringW() noexcept = default;
    CStringW(const CStringW& other) = default;
    CStringW(CStringW&& other) noexcept;
    // A null pointer gives the empty string, here and wherever else text comes in.
    CStringW(LPCWSTR text);
    CStringW(LPCWSTR text, int length);
    // Narrow text is of the ANSI code page.
    explicit CStringW(LPCSTR ansiText);
    explicit CStringW(wchar_t unit, int repeat = 1);
    ~CStringW() = default;

    CStringW& operator=(const CStringW& other) = default;
    CStringW& operator=(CStringW&& other) noexcept;
    CStringW& operator=(LPCWSTR text);
    CStringW& operator=(LPCSTR ansiText);
    CStringW& operator=(wchar_t unit);

    int GetLength() const noexcept;
    bool IsEmpty() const noexcept;
    void Empty() noexcept;
    // The index may be the length, which gives the terminating null; outside of that 0 comes back.
    wchar_t GetAt(int index) const noexcept;
    wchar_t operator[](int index) const noexcept;
    // Does nothing when the index is outside.
    void SetAt(int index, wchar_t unit);
    LPCWSTR GetString() const noexcept;
    operator LPCWSTR() const noexcept;

    CStringW& operator+=(const CStringW& text);
    CStringW& operator+=(LPCWSTR text);
    CStringW& operator+=(wchar_t unit);

    // Negative, zero or positive.
    int Compare(LPCWSTR text) const noexcept;
    int CompareNoCase(LPCWSTR text) const noexcept;

    // Counts and starts that reach beyond the text are cut to it.
    CStringW Left(int count) const;
    CStringW Right(int count) const;
    CStringW Mid(int first) const;
    CStringW Mid(int first, int count) const;

    // Index of the first hit at or after start, or -1.
    int Find(wchar_t unit, int start = 0) const noexcept;
    int Find(LPCWSTR text, int start = 0) const noexcept;
    int ReverseFind(wchar_t unit) const noexcept;

    // Each gives the number of replacements or removed units; Insert and Delete give the new length.
    int Replace(wchar_t from, wchar_t to);
    int Replace(LPCWSTR from, LPCWSTR to);
    int Remove(wchar_t unit);
    int Insert(int index, wchar_t unit);
    int Insert(int index, LPCWSTR text);
    int Delete(int index, int count = 1);

    // Without an argument white space goes: blank, tabulators, line ends, form feed and the ideographic blank U+3000.
    CStringW& Trim();
    CStringW& TrimLeft();
    CStringW& TrimRight();
    CStringW& Trim(wchar_t unit);
    CStringW& TrimLeft(wchar_t unit);
    CStringW& TrimRight(wchar_t unit);
    // Any of the units in the set.
    CStringW& Trim(LPCWSTR units);
    CStringW& TrimLeft(LPCWSTR units);
    CStringW& TrimRight(LPCWSTR units);

    CStringW& MakeLower();
    CStringW& MakeUpper();

    // Conversions: d i u x X o c s f F g G e E and %%; flags "-+ #0", width and precision (each may be *); sizes h, l (32 bits),
    // ll and I64 (64 bits). %s takes an LPCWSTR (null is written as "(null)"), %S and %hs text of the ANSI code page, %c a
    // UTF-16 unit. What is not known is copied as it stands. The arguments may point into this string itself.
    void Format(LPCWSTR format, ...);
    void FormatV(LPCWSTR format, va_list arguments);

    // Room for that many units and the null behind them, filled with the text as it is; ReleaseBuffer with the length written,
    // or -1 to look for the null, must follow before anything else is asked of the string.
    wchar_t* GetBuffer(int minimumLength);
    void ReleaseBuffer(int length = -1);

private:
    void Assign(LPCWSTR text, int length);
    void Append(LPCWSTR text, int length);

    // The terminating null is part of it; the empty string has none and no memory.
    std::vector<wchar_t> text_;
};

using CString = CStringW;
using CSimpleStringW = CStringW;
using CSimpleString = CStringW;

NX_MFC_EXPORT CStringW operator+(const CStringW& left, const CStringW& right);
NX_MFC_EXPORT CStringW operator+(const CStringW& left, LPCWSTR right);
NX_MFC_EXPORT CStringW operator+(LPCWSTR left, const CStringW& right);
NX_MFC_EXPORT CStringW operator+(const CStringW& left, wchar_t right);
NX_MFC_EXPORT CStringW operator+(wchar_t left, const CStringW& right);

#define NX_CSTRING_COMPARISON(op)                                                                                                \
    inline bool operator op(const CStringW& left, const CStringW& right) noexcept                                                \
    {                                                                                                                            \
        return left.Compare(right.GetString()) op 0;                                                                             \
    }                                                                                                                            \
    inline bool operator op(const CStringW& left, LPCWSTR right) noexcept                                                        \
    {                                                                                                                            \
        return left.Compare(right) op 0;                                                                                         \
    }                                                                                                                            \
    inline bool operator op(LPCWSTR left, const CStringW& right) noexcept                                                        \
    {                                                                                                                            \
        return 0 op right.Compare(left);                                                                                         \
    }
NX_CSTRING_COMPARISON(==)
NX_CSTRING_COMPARISON(!=)
NX_CSTRING_COMPARISON(<)
NX_CSTRING_COMPARISON(<=)
NX_CSTRING_COMPARISON(>)
NX_CSTRING_COMPARISON(>=)
#undef NX_CSTRING_COMPARISON
