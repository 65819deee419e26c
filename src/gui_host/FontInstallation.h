// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Sees to it that a face is installed: where it is not, a font file of the application's "fonts" folder is copied into the
/// system's, used at once, and registered for all users. A file that is there already is never replaced.
/// @param faceName, fileName in the ANSI code page
/// @return whether the face is installed at the end; what went wrong is one line in the log
bool InstallSystemFont(const std::string& faceName, const std::string& fileName);
