// SPDX-License-Identifier: MIT
#include "LookStops.h"

#include "../host/CityHost.h"
#include "Places.h"
#include "SkinMaker.h"

#include <memory>

namespace host
{
namespace
{

constexpr int EnvironmentTool = 3;
// Of the window buttons, in view pixels.
constexpr int CloseFromRight = 28;
constexpr int FullSceneFromRight = 116;
constexpr POINT Building = {640, 330}; ///< in the home view
constexpr UINT DenseDensity = 192;     ///< dots per inch
constexpr int DenseScale = 2;
constexpr DWORD FollowTime = 900; ///< in which a saved file shows

std::unique_ptr<SkinMaker> skinMaker;

void Key(User& user, UINT virtualKey)
{
    user.WaitForNotes();
    user.Key(virtualKey);
    user.WaitForNotes();
}

void ReleaseOutside(User& user)
{
    user.MoveTo(Centre(user));
    user.Release(Centre(user));
}

void TakeOtherSkin(User& user)
{
    Key(user, 'H');
    user.WaitForNotes();
    user.Key('K');
}

template <int FromRight>
void HoverWindowButton(User& user)
{
    user.WaitForNotes();
    user.MoveTo(Centre(user));
    user.MoveTo(CPoint(user.ViewSize().cx - FromRight, WindowButtonY));
}

void HoldWindowButton(User& user)
{
    HoverWindowButton<FullSceneFromRight>(user);
    user.Press(CPoint(user.ViewSize().cx - FullSceneFromRight, WindowButtonY));
}

void HoverEnvironment(User& user)
{
    HoverTool(user, EnvironmentTool);
}

void HoldEnvironment(User& user)
{
    HoverTool(user, EnvironmentTool);
    user.Press(Tool(user, EnvironmentTool));
}

void ChooseSecond(User& user)
{
    OpenList(user);
    user.Click(Entry(2));
    user.LetPass(Flight);
    user.WaitForNotes();
    OpenList(user);
}

void OpenPanelAndList(User& user)
{
    user.MoveTo(Centre(user));
    Key(user, 'H');
    user.Click(CPoint(Building));
    user.Wait();
    HoverTool(user, PropertyTool);
    user.Click(Tool(user, PropertyTool));
    user.WaitForNotes();
    OpenList(user);
}

void SwitchLookLanguage(User& user)
{
    user.WaitForNotes();
    user.MoveTo(Centre(user));
    user.Key('L');
    HoverTool(user, PropertyTool);
}

void TakeFirstSkinBack(User& user)
{
    user.MoveTo(Centre(user));
    Key(user, 'L');
    Key(user, 'K');
    HoverTool(user, PropertyTool);
    user.Click(Tool(user, PropertyTool));
    user.MoveTo(Centre(user));
    user.Click(CPoint(BareGround));
    user.WaitForNotes();
}

/// A picture of the skin, and the same picture of the skin that the key K takes next.
void SaveOtherPicture(User& user)
{
    static const wchar_t* const picture = L"new_skin\\topBG.png";
    const LiveSkin& skin = user.Host().Skin();
    skinMaker = std::make_unique<SkinMaker>(skin.Folder() + picture);
    skinMaker->SaveAs(skin.NextFolder() + picture);
    user.LetPass(FollowTime);
}

void RestorePicture(User& user)
{
    skinMaker.reset();
    user.LetPass(FollowTime);
    user.WaitForNotes();
}

void SaveBrokenPicture(User& user)
{
    skinMaker = std::make_unique<SkinMaker>(user.Host().Skin().Folder() + L"new_skin\\logo.png");
    skinMaker->SaveHalf();
    user.LetPass(FollowTime);
}

/// With the list and the panel open, and the mouse over a tool.
void MoveToDenseMonitor(User& user)
{
    user.WaitForNotes();
    user.MoveToMonitor(DenseDensity, CSize(2560, 1600));
    const CSize view = user.ViewSize();
    user.MoveTo(Centre(user));
    user.MoveTo(CPoint(8, view.cy / 2));
    user.MoveTo(CPoint(ListX * DenseScale, view.cy / 2));
}

void MoveBack(User& user)
{
    user.MoveTo(Centre(user));
    user.MoveToMonitor(PlainDensity, CSize(1280, 800));
    HoverTool(user, PropertyTool);
    user.Click(Tool(user, PropertyTool));
    user.MoveTo(Centre(user));
    user.WaitForNotes();
}

void OpenPanelAndMove(User& user)
{
    OpenPanelAndList(user);
    MoveToDenseMonitor(user);
}

} // namespace

std::vector<TourStop> LookStops()
{
    return {
        {"light-skin", "The light skin: the key K starts the interface again with the next of the skins.", TakeOtherSkin,
         nullptr},
        {"light-close", "The mouse over the close button of the light skin.", HoverWindowButton<CloseFromRight>, nullptr},
        {"light-full-scene", "The light skin's button for the full scene held down.", HoldWindowButton, ReleaseOutside},
        {"light-tools", "The light skin's tools, with a tooltip.", HoverEnvironment, nullptr},
        {"light-tools-pushed", "A tool of the light skin held down.", HoldEnvironment, ReleaseOutside},
        {"light-list", "The light skin's list, with the second entry chosen.", ChooseSecond, nullptr},
        {"light-panel", "The light skin's property panel, with the data of a building.", OpenPanelAndList, nullptr},
        {"light-english", "The key L: the same in English.", SwitchLookLanguage, TakeFirstSkinBack},
        {"skin-edited", "Somebody has saved another picture into the skin's folder: it shows within a second.", SaveOtherPicture,
         RestorePicture},
        {"skin-broken", "A picture of the skin was saved half: the one before stays, and the note says which file it is.",
         SaveBrokenPicture, RestorePicture},
        {"density-192",
         "The window on a monitor of 192 dots per inch, 2560 x 1600: the scene has every pixel, and each of the interface's is "
         "four.",
         OpenPanelAndMove, MoveBack},
    };
}

} // namespace host
