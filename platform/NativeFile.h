// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

/// What the system knows of a file without opening it.
struct NativeFile
{
    std::uint64_t size = 0;   ///< bytes
    std::int64_t written = 0; ///< when its contents were changed last, in the system's own unit; 0 when there is no such file
    bool folder = false;
};

/// @param path as `NativePath` makes it
NativeFile LookAtNativeFile(const std::string& path);
