// SPDX-License-Identifier: MIT
// Wine 8 answers 0 to GetGuiResources and GetProcessHandleCount. It does say of each handle whether it is one.
#include "../ProcessCounts.h"

#include <windows.h>

#include <dirent.h>
#include <malloc.h>

namespace
{

// Wine takes a GDI or user handle by its lower half alone, which is its place in a table. Tables are filled from the start: what
// leaks is seen long before they are full.
constexpr UINT_PTR TableEnd = 0x2000;
constexpr UINT_PTR FirstUserHandle = 0x20;
constexpr UINT_PTR LastKernelHandle = 0x2000;

bool IsOwnWindow(UINT_PTR place)
{
    const HWND window = reinterpret_cast<HWND>(place);
    DWORD process = 0;
    return IsWindow(window) && GetWindowThreadProcessId(window, &process) && process == GetCurrentProcessId();
}

bool IsIcon(UINT_PTR place)
{
    ICONINFO parts = {};
    if (!GetIconInfo(reinterpret_cast<HICON>(place), &parts))
    {
        return false;
    }
    // These are copies.
    DeleteObject(parts.hbmColor);
    DeleteObject(parts.hbmMask);
    return true;
}

std::size_t CountUser()
{
    std::size_t count = 0;
    for (UINT_PTR place = FirstUserHandle; place < TableEnd; place += 2)
    {
        count += IsOwnWindow(place) || IsMenu(reinterpret_cast<HMENU>(place)) || IsIcon(place);
    }
    return count;
}

std::size_t CountGdi()
{
    std::size_t count = 0;
    for (UINT_PTR place = 1; place < TableEnd; ++place)
    {
        count += GetObjectType(reinterpret_cast<HGDIOBJ>(place)) != 0;
    }
    return count;
}

std::size_t CountHandles()
{
    std::size_t count = 0;
    DWORD flags = 0;
    for (UINT_PTR place = 4; place <= LastKernelHandle; place += 4)
    {
        count += GetHandleInformation(reinterpret_cast<HANDLE>(place), &flags) != FALSE;
    }
    return count;
}

std::size_t CountOpenFiles()
{
    std::size_t count = 0;
    if (DIR* folder = opendir("/proc/self/fd"))
    {
        while (readdir(folder))
        {
            ++count;
        }
        closedir(folder);
    }
    return count;
}

} // namespace

ProcessCounts CountProcess()
{
    const struct mallinfo2 memory = mallinfo2();
    return {memory.uordblks + memory.hblkhd, CountGdi(), CountUser(), CountOpenFiles(), CountHandles()};
}
