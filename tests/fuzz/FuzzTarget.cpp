// SPDX-License-Identifier: MIT
#include "FuzzTarget.h"

#include <KernelCommonUse/ServiceLog.h>
#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/SystemUtility.h>

#include <algorithm>
#include <fstream>

void FuzzIniFile(const std::string& bytes);
void FuzzLanguageTable(const std::string& bytes);
void FuzzParameters(const std::string& bytes);
void FuzzMenu(const std::string& bytes);
void FuzzPicture(const std::string& bytes);
void FuzzTiff(const std::string& bytes);
void FuzzOldSkin(const std::string& bytes);
void FuzzWindowNames(const std::string& bytes);

namespace
{
std::vector<std::string>& Lines()
{
    static std::vector<std::string> lines;
    return lines;
}

CString MakeScratchFolder()
{
    wchar_t folder[MAX_PATH];
    GetCurrentDirectoryW(MAX_PATH, folder);
    const CString scratch = CString(folder) + L"\\scratch\\";
    for (const wchar_t* below : {L"", L"config", L"languages"})
    {
        CreateDirectoryW(scratch + below, nullptr);
    }
    return scratch;
}
} // namespace

const std::vector<FuzzTarget>& FuzzTargets()
{
    static const std::vector<FuzzTarget> targets = {{"ini_file", FuzzIniFile},      {"language_table", FuzzLanguageTable},
                                                    {"parameters", FuzzParameters}, {"menu", FuzzMenu},
                                                    {"picture", FuzzPicture},       {"tiff", FuzzTiff},
                                                    {"old_skin", FuzzOldSkin},      {"window_names", FuzzWindowNames}};
    return targets;
}

const FuzzTarget* FindFuzzTarget(const std::string& name)
{
    for (const FuzzTarget& target : FuzzTargets())
    {
        if (name == target.name)
        {
            return &target;
        }
    }
    return nullptr;
}

void Require(bool holds, const std::string& what)
{
    if (!holds)
    {
        throw Finding(what);
    }
}

CString ScratchFolder()
{
    static const CString scratch = MakeScratchFolder();
    return scratch;
}

CString ScratchFile(const wchar_t* name, const std::string& bytes)
{
    // By the C library: each call to Win32 goes through another process.
    const CString path = ScratchFolder() + name;
    std::string relative = "scratch/" + CString2string(name);
    std::replace(relative.begin(), relative.end(), '\\', '/');
    std::ofstream file(relative, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!file.flush())
    {
        throw std::runtime_error("a file in the scratch folder cannot be written");
    }
    return path;
}

FuzzedServices::FuzzedServices(const CString& appPath) : former_(SystemUtility::GetAppPath())
{
    // Another directory first, so that files are read anew where the directory is the one of the last time.
    SystemUtility::SetAppPath(former_ + L"none\\");
    SystemUtility::SetAppPath(appPath);
    Lines().clear();
    SetServiceLogSink([](const std::string& line) { Lines().push_back(line); });
}

FuzzedServices::~FuzzedServices()
{
    SetServiceLogSink(nullptr);
    SystemUtility::SetAppPath(former_);
}

const std::vector<std::string>& FuzzedServices::Log()
{
    return Lines();
}
