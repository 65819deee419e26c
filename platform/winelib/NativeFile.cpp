// SPDX-License-Identifier: MIT
#include "../NativeFile.h"

#include <sys/stat.h>

namespace
{
std::int64_t Nanoseconds(const timespec& time)
{
    return std::int64_t(time.tv_sec) * 1000000000 + time.tv_nsec;
}
} // namespace

NativeFile LookAtNativeFile(const std::string& path)
{
    NativeFile file;
    struct stat state = {};
    // One call of the system, where Win32's own question goes through all of Wine's search again.
    if (stat(path.c_str(), &state) == 0)
    {
        file.folder = S_ISDIR(state.st_mode);
        file.size = file.folder ? 0 : static_cast<std::uint64_t>(state.st_size);
        file.written = Nanoseconds(state.st_mtim);
        file.changed = Nanoseconds(state.st_ctim);
        file.id = state.st_ino;
    }
    return file;
}
