// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Writes one line to CEGUI's log, or to the debugger's output while CEGUI is not there: what failed, and on which file or
/// name, so that a user can mend it.
/// @param what for instance "picture not loaded"
/// @param name file or name that it failed on, UTF-8
void LogFailure(const std::string& what, const std::string& name);

/// Sends the lines of the application's services to the same place, from now on.
void TakeServiceLog();
