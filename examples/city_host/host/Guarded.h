// SPDX-License-Identifier: MIT
#pragma once

namespace host
{

/// Called where an exception has been caught: one line in the interface's log.
/// @param what was not carried out
void LogCaught(const char* what);

/// For what the system calls: window procedures, timers, handlers of dialogs. Their callers are the system's functions, which an
/// exception must not pass through.
/// @param what is carried out, for the log
/// @return whether it came to its end
template <typename Act>
bool Guarded(const char* what, Act act)
{
    try
    {
        act();
        return true;
    }
    catch (...)
    {
        LogCaught(what);
        return false;
    }
}

} // namespace host
