// SPDX-License-Identifier: MIT
#pragma once

#include <atlstr.h>

#include <string>

/// A path of the Win32 interfaces in the form in which libraries open files that know nothing of these: OSG and CEGUI. UTF-8.
/// The path itself where such libraries use Win32 too. For the interface's thread.
std::string NativePath(const CString& path);
