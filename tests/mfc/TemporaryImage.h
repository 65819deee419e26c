// SPDX-License-Identifier: MIT
#pragma once

#include <atlstr.h>

inline CString TemporaryFile(const wchar_t* extension)
{
    CString path;
    GetTempPathW(MAX_PATH, path.GetBuffer(MAX_PATH));
    path.ReleaseBuffer();
    // A fresh Wine prefix need not have it.
    CreateDirectoryW(path, nullptr);
    CString name;
    name.Format(L"nx%u.%s", GetCurrentProcessId(), extension);
    return path + name;
}

// The path of a picture file that goes with the object.
class TemporaryImage
{
public:
    explicit TemporaryImage(const wchar_t* extension) : path(TemporaryFile(extension)) {}
    ~TemporaryImage() { DeleteFileW(path); }
    const CString path;
};
