// SPDX-License-Identifier: MIT
#include "../ProcessCounts.h"

#include <windows.h>

#include <psapi.h>

ProcessCounts CountProcess()
{
    const HANDLE process = GetCurrentProcess();
    PROCESS_MEMORY_COUNTERS_EX memory = {};
    K32GetProcessMemoryInfo(process, reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory), sizeof(memory));
    DWORD handles = 0;
    GetProcessHandleCount(process, &handles);
    // The system does not count files apart from its other handles.
    return {memory.PrivateUsage, GetGuiResources(process, GR_GDIOBJECTS), GetGuiResources(process, GR_USEROBJECTS), handles,
            handles};
}
