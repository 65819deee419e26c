// SPDX-License-Identifier: MIT
#include "FileStamp.h"

#include <windows.h>

FileStamp StampOf(const CString& path)
{
    FileStamp stamp;
    stamp.path = path;
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (GetFileAttributesExW(path, GetFileExInfoStandard, &data))
    {
        stamp.size = std::uint64_t(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
        stamp.written = std::uint64_t(data.ftLastWriteTime.dwHighDateTime) << 32 | data.ftLastWriteTime.dwLowDateTime;
    }
    return stamp;
}

bool operator==(const FileStamp& a, const FileStamp& b)
{
    return a.path == b.path && a.size == b.size && a.written == b.written;
}
