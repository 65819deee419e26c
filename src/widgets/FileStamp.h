// SPDX-License-Identifier: MIT
#pragma once

#include <atlstr.h>

#include <cstdint>

/// By what a file is known to be unchanged.
struct FileStamp
{
    CString path;
    std::uint64_t size = 0;
    std::uint64_t written = 0; ///< FILETIME, 100 ns; 0 when there is no such file
};

FileStamp StampOf(const CString& path);
bool operator==(const FileStamp& a, const FileStamp& b);
