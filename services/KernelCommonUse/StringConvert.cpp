// SPDX-License-Identifier: MIT
#include "StringConvert.h"

namespace
{
CString Widen(UINT codePage, const std::string& text)
{
    const int size = static_cast<int>(text.size());
    const int count = MultiByteToWideChar(codePage, 0, text.data(), size, nullptr, 0);
    CString wide;
    if (count > 0)
    {
        MultiByteToWideChar(codePage, 0, text.data(), size, wide.GetBuffer(count), count);
        wide.ReleaseBuffer(count);
    }
    return wide;
}

std::string Narrow(UINT codePage, const CString& text)
{
    const int size = text.GetLength();
    const int count = WideCharToMultiByte(codePage, 0, text, size, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(count > 0 ? count : 0), '\0');
    if (count > 0)
    {
        WideCharToMultiByte(codePage, 0, text, size, &narrow[0], count, nullptr, nullptr);
    }
    return narrow;
}
} // namespace

std::string CString2string(const CString& text)
{
    return Narrow(CP_UTF8, text);
}

CString Utf8ToCString(const std::string& utf8)
{
    return Widen(CP_UTF8, utf8);
}

std::string strUtf8ToAnsi(const std::string& utf8)
{
    return Narrow(CP_ACP, Widen(CP_UTF8, utf8));
}

CString _a2w(const std::string& ansi)
{
    return Widen(CP_ACP, ansi);
}

std::string _w2a(const CString& text)
{
    return Narrow(CP_ACP, text);
}
