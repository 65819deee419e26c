// SPDX-License-Identifier: MIT
#pragma once

#include "../../platform/NativeFile.h"

#include <atlstr.h>

#include <string>

/// By what a file is known to be unchanged.
struct FileStamp
{
    std::string path; ///< a native one
    NativeFile file;
    unsigned int reading = 0; ///< how often `ReadAllAnew` had been called
};

/// From now on no file counts as unchanged that was looked at before.
void ReadAllAnew();

FileStamp StampOf(const CString& path);
/// @param path as `NativePath` makes it
FileStamp StampOfNative(const std::string& path);
bool operator==(const FileStamp& a, const FileStamp& b);
