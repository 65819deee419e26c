// SPDX-License-Identifier: MIT
#include "../NativePath.h"

#include <KernelCommonUse/StringConvert.h>

#include <windows.h>

std::string NativePath(const CString& path)
{
    // Wine's own translation, which finds names regardless of case as Win32 does. It keeps a trailing separator.
    using Translate = char*(CDECL*)(const WCHAR*);
    static const auto translate = reinterpret_cast<Translate>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name")));
    char* translated = translate ? translate(path) : nullptr;
    if (!translated)
    {
        return CString2string(path);
    }
    const std::string native = translated;
    HeapFree(GetProcessHeap(), 0, translated);
    return native;
}
