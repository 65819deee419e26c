// SPDX-License-Identifier: MIT
#include "FileStamp.h"

#include "../../platform/NativePath.h"

FileStamp StampOf(const CString& path)
{
    return StampOfNative(NativePath(path));
}

FileStamp StampOfNative(const std::string& path)
{
    return {path, LookAtNativeFile(path)};
}

bool operator==(const FileStamp& a, const FileStamp& b)
{
    return a.path == b.path && a.file.size == b.file.size && a.file.written == b.file.written;
}
