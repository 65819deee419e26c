// SPDX-License-Identifier: MIT
#include "../NativePath.h"

#include <KernelCommonUse/StringConvert.h>

#include <windows.h>

#include <algorithm>

#include <unistd.h>

namespace
{
/// Wine's own translation, which finds names regardless of case as Win32 does. It keeps a trailing separator.
std::string Translated(const CString& path)
{
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

struct Folder
{
    CString path; ///< with its trailing separator, like the native one
    std::string native;
};
} // namespace

std::string NativePath(const CString& path)
{
    // Many files of one folder are asked for in a row, nearly all as they are spelt there.
    static Folder last;
    const CString folder = path.Left(std::max(path.ReverseFind(L'\\'), path.ReverseFind(L'/')) + 1);
    const std::string name = CString2string(path.Mid(folder.GetLength()));
    if (!folder.IsEmpty() && !name.empty() && folder == last.path && access((last.native + name).c_str(), F_OK) == 0)
    {
        return last.native + name;
    }
    const std::string native = Translated(path);
    if (native.size() > name.size() && native.compare(native.size() - name.size(), name.size(), name) == 0)
    {
        last = {folder, native.substr(0, native.size() - name.size())};
    }
    return native;
}
