// SPDX-License-Identifier: MIT
#include "atlstr.h"

#include "atlstr_conversion.h"

#include <algorithm>
#include <cstdio>
#include <string>

namespace
{
template <class Value>
CStringW Number(const Conversion& conversion, const char* kind, Value value)
{
    const std::string format = "%" + conversion.flags + "*.*" + kind;
    const int length = std::snprintf(nullptr, 0, format.c_str(), conversion.width, conversion.precision, value);
    std::string digits(static_cast<std::size_t>(std::max(length, 0)) + 1, '\0');
    std::snprintf(digits.data(), digits.size(), format.c_str(), conversion.width, conversion.precision, value);
    CStringW text;
    std::copy(digits.begin(), digits.end() - 1, text.GetBuffer(std::max(length, 0)));
    text.ReleaseBuffer();
    return text;
}

CStringW SignedNumber(const Conversion& conversion, Arguments& arguments)
{
    const long long value =
        conversion.size == ArgumentSize::Wide64 ? va_arg(arguments.list, long long) : va_arg(arguments.list, int);
    return Number(conversion, "lld", conversion.size == ArgumentSize::Short ? static_cast<short>(value) : value);
}

CStringW UnsignedNumber(const Conversion& conversion, Arguments& arguments)
{
    const unsigned long long value = conversion.size == ArgumentSize::Wide64 ? va_arg(arguments.list, unsigned long long)
                                                                             : va_arg(arguments.list, unsigned int);
    const std::string kind = std::string("ll") + static_cast<char>(conversion.kind);
    return Number(conversion, kind.c_str(), conversion.size == ArgumentSize::Short ? static_cast<unsigned short>(value) : value);
}

CStringW Padded(const Conversion& conversion, const CStringW& text)
{
    const CStringW blanks(L' ', conversion.width - text.GetLength());
    return conversion.flags.find('-') != std::string::npos ? text + blanks : blanks + text;
}

CStringW Text(const Conversion& conversion, LPCWSTR text)
{
    LPCWSTR shown = text ? text : L"(null)";
    int length = 0;
    // Text with a precision need not have a null behind it.
    while (length != conversion.precision && shown[length] != 0)
    {
        ++length;
    }
    return Padded(conversion, CStringW(shown, length));
}

CStringW Converted(const Conversion& conversion, Arguments& arguments, const CStringW& source)
{
    switch (conversion.kind)
    {
    case L'd':
    case L'i':
        return SignedNumber(conversion, arguments);
    case L'u':
    case L'x':
    case L'X':
    case L'o':
        return UnsignedNumber(conversion, arguments);
    case L'f':
    case L'F':
    case L'g':
    case L'G':
    case L'e':
    case L'E':
    {
        const char kind[] = {static_cast<char>(conversion.kind), 0};
        return Number(conversion, kind, va_arg(arguments.list, double));
    }
    case L'c':
        return Padded(conversion, CStringW(static_cast<wchar_t>(va_arg(arguments.list, int))));
    case L's':
        if (conversion.size != ArgumentSize::Short)
        {
            return Text(conversion, va_arg(arguments.list, LPCWSTR));
        }
        [[fallthrough]];
    case L'S':
        return Text(conversion, CStringW(va_arg(arguments.list, LPCSTR)).GetString());
    case L'%':
        return CStringW(L'%');
    default:
        return source;
    }
}
} // namespace

void CStringW::Format(LPCWSTR format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    FormatV(format, arguments);
    va_end(arguments);
}

void CStringW::FormatV(LPCWSTR format, va_list arguments)
{
    Arguments left;
    va_copy(left.list, arguments);
    CStringW made;
    LPCWSTR place = format ? format : L"";
    while (*place != 0)
    {
        const LPCWSTR start = place;
        if (*place++ != L'%')
        {
            while (*place != 0 && *place != L'%')
            {
                ++place;
            }
            made.Append(start, static_cast<int>(place - start));
            continue;
        }
        const Conversion conversion = TakeConversion(place, left);
        made += Converted(conversion, left, CStringW(start, static_cast<int>(place - start)));
    }
    va_end(left.list);
    *this = std::move(made);
}
