// SPDX-License-Identifier: MIT
#include "Guarded.h"

#include <KernelCommonUse/ServiceLog.h>

#include <exception>
#include <string>

namespace host
{

void LogCaught(const char* what)
{
    std::string reason = "an exception of no known kind";
    try
    {
        throw;
    }
    catch (const std::exception& failure)
    {
        reason = failure.what();
    }
    catch (...)
    {
    }
    ServiceLog("city host, not carried out: " + std::string(what) + ": " + reason);
}

} // namespace host
