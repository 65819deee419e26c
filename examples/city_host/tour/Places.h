// SPDX-License-Identifier: MIT
// Where the user finds the parts of the interface, in view pixels.
#pragma once

#include "User.h"

namespace host
{

inline CPoint Centre(const User& user)
{
    return CPoint(user.ViewSize().cx / 2, user.ViewSize().cy / 2);
}

/// @param number from 1
inline CPoint Tool(const User& user, int number)
{
    constexpr int firstX = 62;
    constexpr int distance = 92;
    constexpr int fromBottom = 45;
    return CPoint(firstX + (number - 1) * distance, user.ViewSize().cy - fromBottom);
}

constexpr int PropertyTool = 4;
/// Where nothing can be picked in the home view at 1280 x 800.
constexpr POINT BareGround = {980, 620};
constexpr int ListX = 74;
/// The window buttons' middle.
constexpr int WindowButtonY = 25;
/// Milliseconds in which the camera flies to a view and comes to rest.
constexpr DWORD Flight = 1200;

/// @param number from 1, of the entries in sight while the list is not scrolled
inline CPoint Entry(int number)
{
    constexpr int firstY = 111;
    constexpr int distance = 109;
    return CPoint(ListX, firstY + (number - 1) * distance);
}

/// Brings the mouse over a tool, with the bar slid in.
inline void HoverTool(User& user, int number)
{
    user.WaitForNotes();
    user.MoveTo(Centre(user));
    user.MoveTo(Tool(user, number));
}

/// Slides the left list in.
inline void OpenList(User& user)
{
    user.WaitForNotes();
    user.MoveTo(Centre(user));
    user.MoveTo(CPoint(4, Centre(user).y));
    user.MoveTo(CPoint(ListX, Centre(user).y));
}

} // namespace host
