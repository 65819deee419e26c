// SPDX-License-Identifier: MIT
#pragma once

#include "support/Gui.h"

#include <string>
#include <vector>

/// What the program holds at one time.
struct Counts
{
    std::size_t memory = 0; ///< bytes
    std::size_t gdi = 0;
    std::size_t user = 0;
    std::size_t openFiles = 0;
    std::size_t handles = 0;
    std::size_t windows = 0; ///< of CEGUI
    std::size_t images = 0;  ///< of CEGUI
    std::size_t textures = 0;
    std::size_t diskFiles = 0; ///< below the application directory

    static std::string Head();
    std::string Line() const;
};

/// With the interface running.
Counts TakeCounts(GuiHost& host);

/// The counts that are higher at last than at any time of the first half, each as a line.
/// @param times after the warm-up, in order; at least two
/// @param memoryAllowed bytes by which memory may be higher
std::vector<std::string> Growth(const std::vector<Counts>& times, std::size_t memoryAllowed);
