// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

// The C library's wide functions count 32-bit units in a Winelib program, so they must not be used on UTF-16.
inline int UnitCount(LPCWSTR text) noexcept
{
    int count = 0;
    while (text && text[count] != 0)
    {
        ++count;
    }
    return count;
}
