// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Writes one line to CEGUI's log, whose file is the same while CEGUI is not running: what failed, and on which file or name, so
/// that a user can mend it.
/// @param what for instance "picture not loaded"
/// @param name file or name that it failed on, UTF-8
void LogFailure(const std::string& what, const std::string& name);

/// The same for a failure that goes on as an exception: `message` is the exception's, and the places that it passes on its way
/// out do not tell it again.
void LogRaised(const std::string& what, const std::string& name, const std::string& message);

/// For those places: one line with the exception's message, unless it has been told since the last `ForgetTold`, which
/// such a place calls before it begins.
/// @param details added to the message in the line
void ForgetTold();
void LogPassing(const std::string& what, const std::string& message, const std::string& details = std::string());

/// For a place where such an exception ends: one line with what was left undone, unless the exception was told where it was
/// raised, with the file to mend.
void LogDropped(const std::string& what, const std::string& name, const std::string& message);

/// Sends the lines of the application's services to the same place, from now on.
void TakeServiceLog();
