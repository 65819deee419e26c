// SPDX-License-Identifier: MIT
#include "TestFolder.h"

#include <KernelCommonUse/ServiceLog.h>
#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/SystemUtility.h>

namespace
{
std::vector<std::string>& Log()
{
    static std::vector<std::string> log;
    return log;
}

void Collect(const std::string& line)
{
    Log().push_back(line);
}
} // namespace

TestFolder::TestFolder(const CString& name)
{
    static int number = 0;
    CString temporary;
    GetTempPathW(MAX_PATH, temporary.GetBuffer(MAX_PATH));
    temporary.ReleaseBuffer();
    // A fresh Wine prefix need not have it.
    CreateDirectoryW(temporary, nullptr);
    CString unique;
    unique.Format(L"%s%u_%d\\", name.GetString(), GetCurrentProcessId(), ++number);
    path_ = temporary + unique;
    CreateDirectoryW(path_, nullptr);
    SystemUtility::SetAppPath(path_);
    SetServiceLogSink(Collect);
    TakeLog();
}

TestFolder::~TestFolder()
{
    SetServiceLogSink(nullptr);
    SystemUtility::SetAppPath(L"");
    for (const CString& file : files_)
    {
        DeleteFileW(file);
    }
    for (const CString& folder : folders_)
    {
        RemoveDirectoryW(folder);
    }
    RemoveDirectoryW(path_);
}

bool TestFolder::Exists() const
{
    return GetFileAttributesW(path_) != INVALID_FILE_ATTRIBUTES;
}

CString TestFolder::Write(const CString& name, const std::string& bytes)
{
    const int backslash = name.Find(L'\\');
    if (backslash > 0)
    {
        folders_.push_back(path_ + name.Left(backslash));
        CreateDirectoryW(folders_.back(), nullptr);
    }
    files_.push_back(path_ + name);
    const HANDLE file = CreateFileW(files_.back(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(file);
    return files_.back();
}

std::vector<std::string> TestFolder::TakeLog()
{
    std::vector<std::string> taken;
    taken.swap(Log());
    return taken;
}

std::string Utf8(const CString& text)
{
    return CString2string(text);
}
