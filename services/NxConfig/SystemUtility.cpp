// SPDX-License-Identifier: MIT
#include "SystemUtility.h"

#include "../KernelCommonUse/IniReader.h"
#include "../KernelCommonUse/StringConvert.h"
#include "AppPath.h"
#include "ParamConfig.h"

namespace
{
CString WithBackslash(const CString& path)
{
    CString normal = path;
    normal.Replace(L'/', L'\\');
    const bool ended = normal.IsEmpty() || normal[normal.GetLength() - 1] == L'\\';
    return ended ? normal : normal + L'\\';
}

CString ExecutableFolder()
{
    const CString path = ExecutablePath();
    return path.Left(path.ReverseFind(L'\\') + 1);
}

struct AppPath
{
    CString given;
    CString executableFolder;
    unsigned int generation = 1;
};

AppPath& TheAppPath()
{
    static AppPath path;
    return path;
}

struct Directories
{
    CString resource;
    CString ceguiResource;
    CString sysMid;
    unsigned int generation = 0;
};

CString DirectoryOf(const IniReader& reader, const wchar_t* key, const wchar_t* fallback)
{
    const CString* value = reader.Find(L"Directories", key);
    return WithBackslash(value && !value->IsEmpty() ? *value : CString(fallback));
}

const Directories& TheDirectories()
{
    static Directories directories;
    if (directories.generation != AppPathGeneration())
    {
        IniReader reader;
        reader.Read(SystemUtility::GetAppPath() + L"config\\directories.ini", IniReader::Encoding::Detect);
        directories.resource = DirectoryOf(reader, L"Resource", L"resource\\");
        directories.ceguiResource = DirectoryOf(reader, L"CeguiResource", L"");
        directories.sysMid = DirectoryOf(reader, L"SysMid", L"sysmid\\");
        directories.generation = AppPathGeneration();
    }
    return directories;
}
} // namespace

CString ExecutablePath()
{
    CString path;
    // The function cuts what does not fit and then fills the whole buffer.
    for (int size = MAX_PATH;; size *= 2)
    {
        const int length = static_cast<int>(GetModuleFileNameW(nullptr, path.GetBuffer(size), static_cast<DWORD>(size)));
        path.ReleaseBuffer(length);
        if (length < size)
        {
            return path;
        }
    }
}

unsigned int AppPathGeneration()
{
    return TheAppPath().generation;
}

CString SystemUtility::GetAppPath()
{
    AppPath& path = TheAppPath();
    if (!path.given.IsEmpty())
    {
        return path.given;
    }
    if (path.executableFolder.IsEmpty())
    {
        path.executableFolder = ExecutableFolder();
    }
    return path.executableFolder;
}

void SystemUtility::SetAppPath(const CString& path)
{
    const CString given = WithBackslash(path);
    if (given != TheAppPath().given)
    {
        TheAppPath().given = given;
        ++TheAppPath().generation;
    }
}

CString SystemUtility::GetResourceRelPath()
{
    return TheDirectories().resource;
}

CString SystemUtility::GetCeguiResRelPath()
{
    if (!TheDirectories().ceguiResource.IsEmpty())
    {
        return TheDirectories().ceguiResource;
    }
    // Text pictures are shown from the skin's folder, so where nothing else is said they are written there.
    const CString skin = _a2w(CParamConfig::getInstance()->getStringParam("CEGUI_SkinDir"));
    return GetResourceRelPath() + (skin.IsEmpty() ? CString(L"cegui\\TavLook\\") : WithBackslash(skin));
}

CString SystemUtility::GetSysMidPath()
{
    return TheDirectories().sysMid;
}

CString SystemUtility::GetSysMidPath(const wchar_t* appPath, const wchar_t* below)
{
    return (appPath ? WithBackslash(appPath) : GetAppPath()) + GetSysMidPath() + CString(below);
}

CString SystemUtility::GetBaseFileTitle(const CString& path)
{
    CString normal = path;
    normal.Replace(L'/', L'\\');
    const CString name = normal.Mid(normal.ReverseFind(L'\\') + 1);
    const int dot = name.ReverseFind(L'.');
    return dot < 0 ? name : name.Left(dot);
}
