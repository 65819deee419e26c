// SPDX-License-Identifier: MIT
#include "Stops.h"

#include "BarStops.h"
#include "DocumentStops.h"
#include "LookStops.h"
#include "ObjectStops.h"
#include "Places.h"

#include <iterator>
#include <stdexcept>

namespace host
{
namespace
{

// Of the interface's title bar, in view pixels.
constexpr int CloseFromRight = 28;
constexpr int MinimiseFromRight = 72;
constexpr int FullSceneFromRight = 116;

CPoint WindowButton(const User& user, int fromRight)
{
    return CPoint(user.ViewSize().cx - fromRight, WindowButtonY);
}

template <int FromRight>
void Hover(User& user)
{
    user.MoveTo(Centre(user));
    user.MoveTo(WindowButton(user, FromRight));
}

template <int FromRight>
void HoldDown(User& user)
{
    Hover<FromRight>(user);
    user.Press(WindowButton(user, FromRight));
}

/// Lets a held button go somewhere else, so that nothing is clicked.
void ReleaseOutside(User& user)
{
    const CPoint bar(user.ViewSize().cx / 2, WindowButtonY);
    user.MoveTo(bar);
    user.Release(bar);
    user.MoveTo(Centre(user));
}

void MoveAway(User& user)
{
    user.MoveTo(Centre(user));
}

void Minimise(User& user)
{
    user.Click(WindowButton(user, MinimiseFromRight));
    user.MoveTo(Centre(user));
    user.Wait();
    user.RestoreWindow();
}

void EnterFullScene(User& user)
{
    user.WaitForNotes();
    user.DoubleClick(Centre(user));
    // The title bar waits for the mouse to have been away from it.
    user.MoveTo(CPoint(Centre(user).x, Centre(user).y + 20));
}

void SlideTitleIn(User& user)
{
    user.MoveTo(WindowButton(user, FullSceneFromRight));
}

void LeaveFullScene(User& user)
{
    user.Click(WindowButton(user, FullSceneFromRight));
    user.MoveTo(Centre(user));
}

void OrbitAndZoom(User& user)
{
    const CPoint centre = Centre(user);
    user.WaitForNotes();
    user.Drag(centre, CPoint(centre.x - 150, centre.y - 30));
    user.Wheel(centre, 4);
}

void WalkByKeys(User& user)
{
    user.Key(VK_UP);
    user.Key(VK_RIGHT);
}

void Circle(User& user)
{
    user.WaitForNotes();
    user.Key(VK_SPACE);
    for (int i = 0; i < 8; ++i)
    {
        user.MoveTo(CPoint(Centre(user).x + i, Centre(user).y));
    }
    user.Key(VK_SPACE);
}

void SwitchLanguage(User& user)
{
    user.WaitForNotes();
    user.Key('L');
}

void FlyHome(User& user)
{
    user.WaitForNotes();
    user.Key('H');
    user.WaitForNotes();
}

template <int Width, int Height>
void Resize(User& user)
{
    user.WaitForNotes();
    user.ResizeWindow(CSize(Width, Height));
    user.MoveTo(Centre(user));
}

void ResizeAndTurn(User& user)
{
    Resize<1280, 800>(user);
    user.Drag(Centre(user), CPoint(Centre(user).x + 240, Centre(user).y - 20));
    user.Drag(Centre(user), CPoint(Centre(user).x, Centre(user).y + 120), driver::Button::Right);
}

/// The title bar, the scene, and the window's sizes.
std::vector<TourStop> ChromeStops()
{
    std::vector<TourStop> stops = {
        {"city", "The city with the frame of a full user: title bar with logo, title and window buttons, and thin borders.",
         MoveAway, nullptr},
        {"close-hover", "The mouse over the close button.", Hover<CloseFromRight>, nullptr},
        {"close-pushed", "The close button held down. It is let go outside, so nothing is closed.", HoldDown<CloseFromRight>,
         ReleaseOutside},
        {"minimise-hover", "The mouse over the minimise button.", Hover<MinimiseFromRight>, nullptr},
        {"minimise-pushed", "The minimise button held down.", HoldDown<MinimiseFromRight>, ReleaseOutside},
        {"full-scene-hover", "The mouse over the button for the full scene.", Hover<FullSceneFromRight>, nullptr},
        {"full-scene-pushed", "The button for the full scene held down.", HoldDown<FullSceneFromRight>, ReleaseOutside},
        {"minimise-received",
         "The minimise button was clicked, and the window brought back from the task bar. The command "
         "came twice, to the main window and to the view.",
         Minimise, nullptr},
        {"orbit", "The scene dragged with the left button and brought nearer with the wheel.", OrbitAndZoom, nullptr},
        {"keys", "The Up and Right keys walk the camera; the notes say what the host received.", WalkByKeys, nullptr},
        {"circle", "The Space key lets the camera circle the city, and a second one stops it.", Circle, FlyHome},
        {"title-english", "The same frame in English: the key L starts the interface again in the other language.",
         SwitchLanguage, nullptr},
        {"title-chinese", "And in Chinese again.", SwitchLanguage, nullptr},
    };
    const std::vector<TourStop> fullScene = FullSceneStops();
    stops.insert(stops.end(), fullScene.begin(), fullScene.end());
    const TourStop sizes[] = {
        {"size-640x480", "The window resized to 640 x 480.", Resize<640, 480>, nullptr},
        {"size-1920x1080", "The window resized to 1920 x 1080.", Resize<1920, 1080>, nullptr},
        {"size-1280x800", "The window resized to 1280 x 800, and the scene turned and pushed along.", ResizeAndTurn, FlyHome},
    };
    stops.insert(stops.end(), std::begin(sizes), std::end(sizes));
    return stops;
}

} // namespace

std::vector<TourStop> FullSceneStops()
{
    return {
        {"full-scene", "Full scene, by a double click into the scene: nothing but the city.", EnterFullScene, nullptr},
        {"full-scene-title", "The title bar slides in at the upper edge of the full scene, with the button that leaves it.",
         SlideTitleIn, LeaveFullScene},
    };
}

std::vector<TourStop> TourStops(const CString& part)
{
    static const struct
    {
        const wchar_t* name;
        std::vector<TourStop> (*stops)();
    } parts[] = {{L"chrome", ChromeStops},
                 {L"bars", BarStops},
                 {L"objects", ObjectStops},
                 {L"documents", DocumentStops},
                 {L"looks", LookStops}};
    std::vector<TourStop> wanted;
    for (const auto& candidate : parts)
    {
        if (part.IsEmpty() || part == candidate.name)
        {
            const std::vector<TourStop> stops = candidate.stops();
            wanted.insert(wanted.end(), stops.begin(), stops.end());
        }
    }
    if (wanted.empty())
    {
        throw std::runtime_error("the tour has no such part");
    }
    return wanted;
}

void CloseByButton(User& user)
{
    user.Click(WindowButton(user, CloseFromRight));
}

} // namespace host
