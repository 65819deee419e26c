// SPDX-License-Identifier: MIT
#include "Figures.h"

#include <cmath>

namespace host
{

CString Figure(double value, int decimals)
{
    CString text;
    text.Format(L"%.*f", decimals, std::abs(value));
    const int point = text.Find(L'.');
    for (int i = (point < 0 ? text.GetLength() : point) - 3; i > 0; i -= 3)
    {
        text.Insert(i, L",");
    }
    return value < 0.0 ? L"-" + text : text;
}

CString Memory(double bytes)
{
    static const wchar_t* const units[] = {L" B", L" KB", L" MB", L" GB"};
    int unit = 0;
    while (bytes >= 1024.0 && unit < 3)
    {
        bytes /= 1024.0;
        ++unit;
    }
    return Figure(bytes, unit == 0 ? 0 : 1) + units[unit];
}

} // namespace host
