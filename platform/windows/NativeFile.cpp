// SPDX-License-Identifier: MIT
#include "../NativeFile.h"

#include <KernelCommonUse/StringConvert.h>

#include <windows.h>

NativeFile LookAtNativeFile(const std::string& path)
{
    NativeFile file;
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (GetFileAttributesExW(Utf8ToCString(path), GetFileExInfoStandard, &data))
    {
        file.folder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        file.size = std::uint64_t(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
        file.written = std::int64_t(data.ftLastWriteTime.dwHighDateTime) << 32 | data.ftLastWriteTime.dwLowDateTime;
    }
    return file;
}
