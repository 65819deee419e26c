// SPDX-License-Identifier: MIT
#include "ServiceLog.h"

#include <mutex>
#include <vector>

namespace
{
struct Log
{
    static const std::size_t MaximumKept = 100;

    std::mutex mutex;
    ServiceLogSink sink = nullptr;
    std::vector<std::string> kept;
};

Log& TheLog()
{
    static Log log;
    return log;
}
} // namespace

// The sink is called outside of the lock, so that it may log itself.
void SetServiceLogSink(ServiceLogSink sink)
{
    std::vector<std::string> kept;
    {
        const std::lock_guard<std::mutex> lock(TheLog().mutex);
        TheLog().sink = sink;
        if (sink)
        {
            kept.swap(TheLog().kept);
        }
    }
    for (const std::string& line : kept)
    {
        sink(line);
    }
}

void ServiceLog(const std::string& utf8Line)
{
    ServiceLogSink sink = nullptr;
    {
        const std::lock_guard<std::mutex> lock(TheLog().mutex);
        sink = TheLog().sink;
        if (!sink && TheLog().kept.size() < Log::MaximumKept)
        {
            TheLog().kept.push_back(utf8Line);
        }
    }
    if (sink)
    {
        sink(utf8Line);
    }
}
