// SPDX-License-Identifier: MIT
#include "FontInstallation.h"

#include "../panels/FontNames.h"
#include "../widgets/FailureLog.h"
#include "../widgets/Gdiplus.h"

#include <KernelCommonUse/FileOp.h>
#include <KernelCommonUse/StringConvert.h>
#include <KernelCommonUse/WholeFile.h>

#include <windows.h>

namespace
{
// The registry's names do not tell lower case from upper.
const wchar_t* const FontListKey = L"SOFTWARE\\Microsoft\\windows NT\\CurrentVersion\\Fonts";

CString SystemFontFolder()
{
    wchar_t windows[MAX_PATH] = {};
    GetWindowsDirectoryW(windows, MAX_PATH);
    return CString(windows) + L"\\Fonts\\";
}

/// A file under the target's name is always a whole one: it would never be replaced. That nothing could be copied shows when
/// the system is asked to use the font.
void CopyWhole(const CString& source, const CString& target)
{
    WholeFile file(target);
    if (CopyFileW(source, file.Unfinished(), FALSE))
    {
        file.CommitNew();
    }
}

/// For all users, from the next start of the system on. Without the rights for it nothing is written, and the font is there
/// until then.
void Register(const CString& name, const CString& file)
{
    HKEY key = nullptr;
    wchar_t valueClass[] = L"REG_SZ";
    if (RegCreateKeyExW(HKEY_LOCAL_MACHINE, FontListKey, 0, valueClass, 0, KEY_WRITE, nullptr, &key, nullptr) != ERROR_SUCCESS)
    {
        return;
    }
    const DWORD bytes = static_cast<DWORD>((static_cast<std::size_t>(file.GetLength()) + 1) * sizeof(wchar_t));
    RegSetValueExW(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(file.GetString()), bytes);
    RegCloseKey(key);
}
} // namespace

bool InstallSystemFont(const std::string& faceName, const std::string& fileName)
{
    const CString face = _a2w(faceName);
    if (IsFontInstalled(face))
    {
        return true;
    }
    if (fileName.empty())
    {
        LogFailure("no font file given for a face that is not installed", CString2string(face));
        return false;
    }
    const CString source = FileOp::GetAppPath() + L"fonts\\" + _a2w(fileName);
    if (!FileOp::FileExist(source))
    {
        LogFailure("font file missing, face " + CString2string(face) + " not installed", CString2string(source));
        return false;
    }
    const CString file = source.Mid(source.ReverseFind(L'\\') + 1);
    const int dot = file.ReverseFind(L'.');
    const CString name = dot < 0 ? file : file.Left(dot);
    const CString target = SystemFontFolder() + file;
    if (!FileOp::FileExist(target))
    {
        CopyWhole(source, target);
    }
    if (AddFontResourceW(target) <= 0)
    {
        LogFailure("font file not taken by the system, face " + CString2string(face) + " not installed", CString2string(target));
        return false;
    }
    gp::AddFontFile(target);
    Register(name, file);
    PostMessageW(HWND_BROADCAST, WM_FONTCHANGE, 0, 0);
    if (!IsFontInstalled(face))
    {
        LogFailure("font file holds no face " + CString2string(face), CString2string(target));
        return false;
    }
    return true;
}
