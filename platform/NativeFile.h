// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

/// What the system knows of a file without reading it.
struct NativeFile
{
    std::uint64_t size = 0;   ///< bytes
    std::int64_t written = 0; ///< when its contents were changed last, in the system's own unit; 0 when there is no such file
    /// When anything of it was changed last, its name or its times included. Programs that give a file the times of another one
    /// cannot set it.
    std::int64_t changed = 0;
    std::uint64_t id = 0; ///< of the file among those of its disk, whatever its name
    bool folder = false;
};

/// @param path as `NativePath` makes it
NativeFile LookAtNativeFile(const std::string& path);
