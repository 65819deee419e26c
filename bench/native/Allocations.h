// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <map>
#include <string>

namespace bench
{
/// Allocations of the calling thread, from construction to `Stop`.
class AllocationCount
{
public:
    /// @throws std::runtime_error where the counting library is not preloaded: no count would be no count of zero
    AllocationCount();
    ~AllocationCount();
    void Stop();
    /// By the file name of the module that asked, and its function.
    const std::map<std::string, int>& ByModule() const { return byModule_; }
    /// All but those of the OpenGL driver, which a caller of OpenGL cannot help.
    int BesidesDriver() const;
    int OfDriver() const;

private:
    bool counting_ = true;
    std::map<std::string, int> byModule_;
};

/// Bytes that the process has from its C library at this moment.
std::size_t BytesInUse();
/// Bytes of memory that the process has in the machine's.
std::size_t ResidentBytes();
} // namespace bench
