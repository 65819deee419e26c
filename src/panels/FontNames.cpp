// SPDX-License-Identifier: MIT
#include "FontNames.h"

#include <NxConfig/SystemUtility.h>

#include <windows.h>

#include <algorithm>
#include <iterator>
#include <memory>

namespace
{
bool IsLeftOut(const CString& face)
{
    static const wchar_t* const exact[] = {L"Fixedsys", L"System", L"Terminal"};
    return face.GetAt(0) == L'@' ||
           std::any_of(std::begin(exact), std::end(exact), [&](const wchar_t* name) { return face == name; }) ||
           face.CompareNoCase(L"仿宋_GB2312") == 0;
}

int CALLBACK AddFace(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM names)
{
    const CString face = font->lfFaceName;
    if (!face.IsEmpty() && !IsLeftOut(face))
    {
        reinterpret_cast<std::vector<CString>*>(names)->push_back(face);
    }
    return TRUE;
}

std::vector<CString> SystemFaces()
{
    std::vector<CString> names;
    if (const HDC screen = GetDC(nullptr))
    {
        LOGFONTW wanted = {};
        wanted.lfCharSet = GB2312_CHARSET;
        EnumFontFamiliesExW(screen, &wanted, AddFace, reinterpret_cast<LPARAM>(&names), 0);
        ReleaseDC(nullptr, screen);
    }
    return names;
}

struct CloseFind
{
    using pointer = HANDLE;
    void operator()(HANDLE find) const { FindClose(find); }
};

std::vector<CString> ShxFiles()
{
    std::vector<CString> names;
    WIN32_FIND_DATAW found;
    const HANDLE first = FindFirstFileW(SystemUtility::GetAppPath() + L"Fonts\\*.shx", &found);
    if (first == INVALID_HANDLE_VALUE)
    {
        return names;
    }
    const std::unique_ptr<HANDLE, CloseFind> find(first);
    do
    {
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
        {
            names.push_back(found.cFileName);
        }
    } while (FindNextFileW(find.get(), &found));
    return names;
}
} // namespace

std::vector<CString> InstalledFontNames()
{
    std::vector<CString> names = SystemFaces();
    const std::vector<CString> files = ShxFiles();
    names.insert(names.end(), files.begin(), files.end());
    return names;
}

bool IsFontInstalled(const CString& faceName)
{
    const auto isAmong = [&](const std::vector<CString>& names)
    { return std::find(names.begin(), names.end(), faceName) != names.end(); };
    return isAmong(SystemFaces()) || isAmong(ShxFiles());
}
