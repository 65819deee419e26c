// SPDX-License-Identifier: MIT
#include "atlstr_conversion.h"

#include <algorithm>

namespace
{
int TakeCount(LPCWSTR& place, Arguments& arguments)
{
    if (*place == L'*')
    {
        ++place;
        return va_arg(arguments.list, int);
    }
    int count = 0;
    for (; *place >= L'0' && *place <= L'9'; ++place)
    {
        count = std::min(count * 10 + (*place - L'0'), 1000000);
    }
    return count;
}

ArgumentSize TakeSize(LPCWSTR& place)
{
    if (place[0] == L'I' && place[1] == L'6' && place[2] == L'4')
    {
        place += 3;
        return ArgumentSize::Wide64;
    }
    if (place[0] == L'l' && place[1] == L'l')
    {
        place += 2;
        return ArgumentSize::Wide64;
    }
    if (*place == L'l' || *place == L'h')
    {
        return *place++ == L'l' ? ArgumentSize::Long : ArgumentSize::Short;
    }
    return ArgumentSize::Plain;
}
} // namespace

Conversion TakeConversion(LPCWSTR& place, Arguments& arguments)
{
    Conversion conversion;
    for (; *place == L'-' || *place == L'+' || *place == L' ' || *place == L'#' || *place == L'0'; ++place)
    {
        conversion.flags += static_cast<char>(*place);
    }
    conversion.width = TakeCount(place, arguments);
    if (conversion.width < 0)
    {
        conversion.flags += '-';
        conversion.width = -conversion.width;
    }
    if (*place == L'.')
    {
        ++place;
        conversion.precision = TakeCount(place, arguments);
    }
    conversion.size = TakeSize(place);
    conversion.kind = *place;
    place += *place != 0;
    return conversion;
}
