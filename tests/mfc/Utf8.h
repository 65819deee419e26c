// SPDX-License-Identifier: MIT
#pragma once

#include <atlstr.h>

#include <string>

// GoogleTest compares and prints narrow text; UTF-16 it does not know.
inline std::string Utf8(const CString& text)
{
    const int count = WideCharToMultiByte(CP_UTF8, 0, text, text.GetLength(), nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(count), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, text.GetLength(), utf8.data(), count, nullptr, nullptr);
    return utf8;
}
