// SPDX-License-Identifier: MIT
#include "../NativeFile.h"

#include <KernelCommonUse/StringConvert.h>

#include <windows.h>

NativeFile LookAtNativeFile(const std::string& path)
{
    NativeFile file;
    // The time of a change and the id are told by a handle only. One for the attributes reads nothing, and is in nobody's way.
    const HANDLE handle =
        CreateFileW(Utf8ToCString(path), FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    BY_HANDLE_FILE_INFORMATION data = {};
    FILE_BASIC_INFO times = {};
    if (handle != INVALID_HANDLE_VALUE && GetFileInformationByHandle(handle, &data) &&
        GetFileInformationByHandleEx(handle, FileBasicInfo, &times, sizeof(times)))
    {
        file.folder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        file.size = std::uint64_t(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
        file.written = times.LastWriteTime.QuadPart;
        file.changed = times.ChangeTime.QuadPart;
        file.id = std::uint64_t(data.nFileIndexHigh) << 32 | data.nFileIndexLow;
    }
    if (handle != INVALID_HANDLE_VALUE)
    {
        CloseHandle(handle);
    }
    return file;
}
