// SPDX-License-Identifier: MIT
#include "FileStamp.h"

#include "../../platform/NativePath.h"

namespace
{
unsigned int currentReading = 0;
} // namespace

void ReadAllAnew()
{
    ++currentReading;
}

FileStamp StampOf(const CString& path)
{
    return StampOfNative(NativePath(path));
}

FileStamp StampOfNative(const std::string& path)
{
    return {path, LookAtNativeFile(path), currentReading};
}

bool operator==(const FileStamp& a, const FileStamp& b)
{
    return a.path == b.path && a.reading == b.reading && a.file.size == b.file.size && a.file.written == b.file.written &&
           a.file.changed == b.file.changed && a.file.id == b.file.id;
}
