// SPDX-License-Identifier: MIT
#include "BarStops.h"

#include "Places.h"

#include <deque>
#include <iterator>
#include <string>

namespace host
{
namespace
{

/// Milliseconds, of the ten ticks of 30 that a bar takes; drawing the frame of the picture takes its share.
constexpr DWORD PartOfASlide = 60;

void MoveAway(User& user)
{
    user.MoveTo(Centre(user));
}

template <int Number>
void Hover(User& user)
{
    HoverTool(user, Number);
}

template <int Number>
void HoldTool(User& user)
{
    HoverTool(user, Number);
    user.Press(Tool(user, Number));
}

/// Lets a held tool go between two tools, so that nothing is clicked.
void ReleaseBetween(User& user)
{
    const CPoint between((Tool(user, 1).x + Tool(user, 2).x) / 2, Tool(user, 1).y);
    user.MoveTo(between);
    user.Release(between);
    user.MoveTo(Centre(user));
}

void ClickEnvironment(User& user)
{
    HoverTool(user, 3);
    user.Click(Tool(user, 3));
    user.MoveTo(Centre(user));
}

void EndDay(User& user)
{
    // Evening, night and morning bring the noon back.
    for (int i = 0; i < 3; ++i)
    {
        HoverTool(user, 3);
        user.Click(Tool(user, 3));
    }
    user.MoveTo(Centre(user));
    user.WaitForNotes();
}

void ScrollList(User& user)
{
    OpenList(user);
    user.Wheel(CPoint(ListX, Centre(user).y), -12);
}

void ScrollBack(User& user)
{
    user.Wheel(CPoint(ListX, Centre(user).y), 40);
    user.MoveTo(Centre(user));
}

void ChooseFourth(User& user)
{
    OpenList(user);
    user.Click(Entry(4));
    user.LetPass(Flight);
}

void PageDown(User& user)
{
    user.WaitForNotes();
    user.MoveTo(Centre(user));
    user.Key(VK_NEXT);
    user.LetPass(Flight);
    OpenList(user);
}

void HideList(User& user)
{
    HoverTool(user, 1);
    user.Click(Tool(user, 1));
}

void SlideToolsOut(User& user)
{
    // With no bar in sight: one that has begun to slide out does so to the end, whatever the mouse does.
    user.MoveTo(Centre(user));
    user.Key('S');
    user.WaitForNotes();
    user.MoveTo(Tool(user, 2));
    user.Wait();
    user.MoveTo(Centre(user));
    user.LetPass(PartOfASlide);
}

void EndSliding(User& user)
{
    user.Wait();
    user.Key('S');
    user.WaitForNotes();
}

void Grow(User& user)
{
    user.WaitForNotes();
    user.ResizeWindow(CSize(1920, 1080));
    user.MoveTo(Centre(user));
}

void Shrink(User& user)
{
    user.ResizeWindow(CSize(1280, 800));
    user.MoveTo(Centre(user));
}

/// Each tool hovered and pushed, the list scrolled and an entry of it chosen.
std::vector<TourStop> ToolAndListStops()
{
    return {
        {"tools-list", "The tool bar has slid in at the lower edge. The list's tool is down, since the list is on.", Hover<1>,
         nullptr},
        {"tools-list-pushed", "The list's tool held down shows its other picture.", HoldTool<1>, ReleaseBetween},
        {"tools-roam", "The mouse over the roam tool, with its tooltip.", Hover<2>, nullptr},
        {"tools-roam-pushed", "The roam tool held down.", HoldTool<2>, ReleaseBetween},
        {"tools-environment", "The mouse over the effect-environment tool.", Hover<3>, nullptr},
        {"tools-environment-pushed", "The effect-environment tool held down.", HoldTool<3>, ReleaseBetween},
        {"tools-property", "The mouse over the display-properties tool.", Hover<4>, nullptr},
        {"tools-property-pushed", "The display-properties tool held down.", HoldTool<4>, ReleaseBetween},
        {"tools-data", "The mouse over the data-management tool.", Hover<5>, nullptr},
        {"tools-data-pushed", "The data-management tool held down.", HoldTool<5>, ReleaseBetween},
        {"tools-publish", "The mouse over the publish tool, which only the full user has.", Hover<6>, nullptr},
        {"tools-publish-pushed", "The publish tool held down.", HoldTool<6>, ReleaseBetween},
        {"list", "The left list: one thumbnail for each view and video of the city.", OpenList, nullptr},
        {"list-scrolled", "The list scrolled down with the wheel.", ScrollList, ScrollBack},
        {"list-chosen", "The fourth entry was clicked: it is marked, and the camera has flown there.", ChooseFourth, MoveAway},
    };
}

/// The same once more in the largest window, with full scene.
std::vector<TourStop> LargeStops()
{
    std::vector<TourStop> stops = ToolAndListStops();
    const std::vector<TourStop> fullScene = FullSceneStops();
    stops.insert(stops.end(), fullScene.begin(), fullScene.end());
    // The stops refer to their texts, which therefore last as long as the program.
    static std::deque<std::string> texts;
    for (TourStop& stop : stops)
    {
        stop.id = texts.emplace_back(std::string(stop.id) + "-1920x1080").c_str();
        stop.caption = texts.emplace_back(std::string(stop.caption) + " In a window of 1920 x 1080.").c_str();
    }
    stops.insert(stops.begin(), {"hidden-1920x1080", "No bar in sight in a window of 1920 x 1080.", Grow, nullptr});
    stops.push_back({"hidden-1280x800", "And back to 1280 x 800.", Shrink, nullptr});
    return stops;
}

} // namespace

std::vector<TourStop> BarStops()
{
    std::vector<TourStop> stops = ToolAndListStops();
    const TourStop more[] = {
        {"evening", "The effect-environment tool was clicked: the evening has come.", ClickEnvironment, EndDay},
        {"list-page-down", "Page Down takes the next view.", PageDown, MoveAway},
        {"list-off", "The list's tool was clicked: the list is off, and the tool shows it.", HideList, HideList},
        {"slide-out", "With the slide-out setting on, the tool bar leaves at the lower edge; here it is on its way.",
         SlideToolsOut, EndSliding, true},
    };
    stops.insert(stops.end(), std::begin(more), std::end(more));
    const std::vector<TourStop> large = LargeStops();
    stops.insert(stops.end(), large.begin(), large.end());
    return stops;
}

} // namespace host
