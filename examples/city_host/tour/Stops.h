// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <osg/Image>
#include <osg/ref_ptr>

#include <vector>

namespace host
{

class User;

/// A picture of the tour. The stops of a part follow each other in one run of the program, so each leaves the interface as the
/// next one wants to find it; the last leaves it as it was at the start.
struct TourStop
{
    const char* id;
    const char* caption;       ///< English, UTF-8
    void (*act)(User& user);   ///< brings up what the picture shows; null: nothing to do
    void (*leave)(User& user); ///< ends it, after the picture; null: nothing to do
    bool moving = false;       ///< the picture is taken in the middle of a motion
    /// The picture shows the screen: while the menu that `act` opens is there, or with the dialogs that `act` has opened.
    bool screen = false;
    /// Gives a picture of something else than the view or the screen behind it; null: one of these.
    osg::ref_ptr<osg::Image> (*picture)(User& user) = nullptr;
};

/// Into full scene and out again, at whatever size the window has.
std::vector<TourStop> FullSceneStops();

/// @param part "chrome", "bars", "objects", "documents" or "looks"; empty: all of them
/// @throws std::runtime_error for any other
std::vector<TourStop> TourStops(const CString& part);

/// The last thing that the user does: it ends the program, so there is no picture of it.
void CloseByButton(User& user);

} // namespace host
