// SPDX-License-Identifier: MIT
#include "SmallDisk.h"

#include "platform/NativePath.h"

#include <windows.h>

#include <fcntl.h>
#include <sys/mount.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

namespace
{
const char* const Filler = "/filler";
}

SmallDisk::SmallDisk(const CString& folder, int megabytes)
{
    CreateDirectoryW(folder, nullptr);
    folder_ = NativePath(folder);
    if (!std::getenv("NX_OWN_MOUNTS"))
    {
        refusal_ = "no mounts of its own: NX_OWN_MOUNTS is not set, or this user may make none";
        return;
    }
    const std::string options = "size=" + std::to_string(megabytes) + "m";
    if (mount("none", folder_.c_str(), "tmpfs", 0, options.c_str()) != 0)
    {
        refusal_ = std::string("a small disk cannot be mounted: ") + std::strerror(errno);
        return;
    }
    // Files are opened by another process, which may have been started where the mount does not show.
    const HANDLE probe =
        CreateFileW(folder + L"probe", GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (access((folder_ + "/probe").c_str(), F_OK) != 0)
    {
        umount2(folder_.c_str(), MNT_DETACH);
        refusal_ = "a mount of this process is not seen by the one that opens its files";
    }
    CloseHandle(probe);
}

SmallDisk::~SmallDisk()
{
    if (refusal_.empty())
    {
        umount2(folder_.c_str(), MNT_DETACH);
    }
}

void SmallDisk::Fill(int kilobytesLeft)
{
    Clear();
    struct statvfs room = {};
    statvfs(folder_.c_str(), &room);
    const long long bytes =
        static_cast<long long>(room.f_bavail) * static_cast<long long>(room.f_frsize) - kilobytesLeft * 1024LL;
    const int file = open((folder_ + Filler).c_str(), O_CREAT | O_WRONLY, 0600);
    if (bytes > 0 && file >= 0)
    {
        posix_fallocate(file, 0, bytes);
    }
    close(file);
}

void SmallDisk::Clear()
{
    unlink((folder_ + Filler).c_str());
}

void SmallDisk::SetReadOnly(bool readOnly)
{
    mount("none", folder_.c_str(), "tmpfs", MS_REMOUNT | (readOnly ? MS_RDONLY : 0), nullptr);
}
