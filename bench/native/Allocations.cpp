// SPDX-License-Identifier: MIT
#include "Allocations.h"

#include <dlfcn.h>
#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <stdexcept>

extern "C"
{
    __attribute__((weak)) void BenchCountAllocations(bool on);
    __attribute__((weak)) int BenchAllocations(void*** where);
}

namespace bench
{
namespace
{
/// The module's file name, and the function's where it is known.
std::string ModuleOf(const void* place)
{
    Dl_info info = {};
    if (!dladdr(place, &info) || !info.dli_fname)
    {
        return "unknown";
    }
    const std::string path = info.dli_fname;
    return path.substr(path.rfind('/') + 1) + (info.dli_sname ? std::string(" ") + info.dli_sname : std::string());
}

bool IsDriver(const std::string& place)
{
    const std::string module = place.substr(0, place.find(' '));
    for (const char* part : {"_dri", "libGL", "libgallium", "libLLVM", "libglapi", "libX11", "libxcb", "libdrm"})
    {
        if (module.find(part) != std::string::npos)
        {
            return true;
        }
    }
    return false;
}
} // namespace

AllocationCount::AllocationCount()
{
    if (!BenchCountAllocations)
    {
        throw std::runtime_error("allocations cannot be counted: the counting library is not preloaded");
    }
    BenchCountAllocations(true);
}

AllocationCount::~AllocationCount()
{
    Stop();
}

void AllocationCount::Stop()
{
    if (!counting_)
    {
        return;
    }
    BenchCountAllocations(false);
    counting_ = false;
    void** places = nullptr;
    const int count = BenchAllocations(&places);
    constexpr int mostKnown = 4096;
    for (int i = 0; i < std::min(count, mostKnown); ++i)
    {
        ++byModule_[ModuleOf(places[i])];
    }
    if (count > mostKnown)
    {
        byModule_["unknown"] += count - mostKnown;
    }
}

int AllocationCount::BesidesDriver() const
{
    int count = 0;
    for (const auto& [module, number] : byModule_)
    {
        count += IsDriver(module) ? 0 : number;
    }
    return count;
}

int AllocationCount::OfDriver() const
{
    int count = 0;
    for (const auto& [module, number] : byModule_)
    {
        count += IsDriver(module) ? number : 0;
    }
    return count;
}

std::size_t BytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

std::size_t ResidentBytes()
{
    std::size_t size = 0;
    std::size_t resident = 0;
    std::ifstream("/proc/self/statm") >> size >> resident;
    return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}
} // namespace bench
