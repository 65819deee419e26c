// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace host
{

class User;

/// A picture of the tour. The stops follow each other in one run of the program, so each leaves the interface as the next
/// one wants to find it.
struct TourStop
{
    const char* id;
    const char* caption;       ///< English, UTF-8
    void (*act)(User& user);   ///< brings up what the picture shows; null: nothing to do
    void (*leave)(User& user); ///< ends it, after the picture; null: nothing to do
    bool moving = false;       ///< the picture is taken in the middle of a motion
};

const std::vector<TourStop>& TourStops();

/// The last thing that the user does: it ends the program, so there is no picture of it.
void CloseByButton(User& user);

} // namespace host
