// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

/// What a process holds of the system's: by it a test sees that nothing is left behind. The counts are for comparing with
/// earlier ones of the same process.
struct ProcessCounts
{
    std::size_t memory;    ///< bytes that are allocated
    std::size_t gdi;       ///< pens, brushes, bitmaps, fonts, regions and device contexts
    std::size_t user;      ///< windows, menus, icons and cursors
    std::size_t openFiles; ///< files, sockets and pipes
    std::size_t handles;   ///< of the system's kernel, files among them
};

ProcessCounts CountProcess();
