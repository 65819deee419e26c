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

/// What there was after a round.
struct Sample
{
    int script; ///< which of the rounds' scripts it was
    Counts counts;
};

/// The kinds of counts that grow from round to round, each as a line. What a round leaves behind is compared with what the same
/// script has left at other times, and the middle of all these slopes is taken: one round that is out of line, or what comes once
/// and stays, changes nothing. Of objects none may stay behind.
/// @param samples after the warm-up, one for each round, in order; every script at least twice
/// @param memoryAllowed bytes a round
std::vector<std::string> Growth(const std::vector<Sample>& samples, double memoryAllowed);

/// The samples as they would be if each round left so much more behind, for each kind of count by itself, memory last.
/// @param objects a round
/// @param memory bytes a round
std::vector<std::vector<Sample>> WithLeaks(const std::vector<Sample>& samples, double objects, double memory);
