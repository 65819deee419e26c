// SPDX-License-Identifier: MIT
#pragma once

#include "Contestant.h"

#include <string>
#include <vector>

namespace bench
{
/// CEGUI started by itself, with its own parts: the skin's scheme, the pictures that the interface loads, and a first frame with
/// a window of the skin for each rectangle of the interface.
/// CEGUI is one in a process, so the interface has to be closed; the OpenGL context has to be current.
class BareCegui
{
public:
    /// @param skinFolder a path of the machine's
    /// @param files relative to it
    /// @param pictures their pixels, for the kinds that CEGUI itself does not read
    /// @param frame what is drawn; without rectangles there is no window
    BareCegui(const std::string& skinFolder, const std::vector<std::string>& files, const std::vector<Picture>& pictures,
              const DrawList& frame);
    ~BareCegui();
    BareCegui(const BareCegui&) = delete;
    BareCegui& operator=(const BareCegui&) = delete;
};
} // namespace bench
