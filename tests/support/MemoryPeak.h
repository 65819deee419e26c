// SPDX-License-Identifier: MIT
#pragma once

#include "GTest.h"

#include <fstream>
#include <string>

/// A row of the system's report on this process, in MB.
inline long ReportedMemory(const std::string& row)
{
    std::ifstream report("/proc/self/status");
    for (std::string word; report >> word;)
    {
        long kilobytes = 0;
        if (word == row && report >> kilobytes)
        {
            return kilobytes / 1024;
        }
    }
    ADD_FAILURE() << row;
    return 0;
}

/// How much memory was in use at most since this was made, in MB more than at the beginning.
class MemoryPeak
{
public:
    MemoryPeak() : inUse_(0)
    {
        // Begins the count of the peak anew.
        std::ofstream("/proc/self/clear_refs") << 5;
        inUse_ = ReportedMemory("VmRSS:");
    }
    long Growth() const { return ReportedMemory("VmHWM:") - inUse_; }

private:
    long inUse_;
};
