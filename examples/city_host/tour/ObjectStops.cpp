// SPDX-License-Identifier: MIT
#include "ObjectStops.h"

#include "Places.h"

namespace host
{
namespace
{

constexpr int DataTool = 5;
// Buildings in the home view, in view pixels at 1280 x 800.
constexpr POINT FirstBuilding = {640, 330};
constexpr POINT SecondBuilding = {550, 690};
// In the view of the list's second entry.
constexpr POINT NearBuilding = {530, 620};
constexpr POINT SkyInNearView = {900, 90};
// Of the property panel.
constexpr int PanelX = 1070;
constexpr int FirstRowY = 96;
constexpr int RowHeight = 23;
// Entries of the menus.
constexpr int AddEntry = 1;
constexpr int PropertiesEntry = 1;
constexpr int DeleteEntry = 3;

CPoint Row(int number)
{
    return CPoint(PanelX, FirstRowY + (number - 1) * RowHeight);
}

void GoHome(User& user)
{
    user.WaitForNotes();
    user.Key('H');
    user.WaitForNotes();
}

void HoverTooltip(User& user)
{
    GoHome(user);
    user.Wheel(Centre(user), 3);
    HoverTool(user, DataTool);
}

void PickFirst(User& user)
{
    GoHome(user);
    user.Click(CPoint(FirstBuilding));
    // The note waits for a double click that does not come.
    user.Wait();
}

void OpenPanel(User& user)
{
    HoverTool(user, PropertyTool);
    user.Click(Tool(user, PropertyTool));
    user.MoveTo(Centre(user));
    user.WaitForNotes();
}

void HoverLongRow(User& user)
{
    user.MoveTo(Row(21));
    user.MoveTo(CPoint(Row(22).x, Row(22).y));
}

void PickSecond(User& user)
{
    user.Click(CPoint(SecondBuilding));
    user.WaitForNotes();
}

void ListLayers(User& user)
{
    HoverTool(user, DataTool);
    user.Click(Tool(user, DataTool));
    user.MoveTo(Centre(user));
    user.WaitForNotes();
}

void ScrollPanel(User& user)
{
    user.Wheel(CPoint(PanelX + 100, 400), -5);
}

void SwitchLanguage(User& user)
{
    user.WaitForNotes();
    user.Key('L');
    user.WaitForNotes();
}

void PickInEnglish(User& user)
{
    SwitchLanguage(user);
    user.Click(CPoint(FirstBuilding));
    user.Wait();
}

void ClosePanel(User& user)
{
    SwitchLanguage(user);
    HoverTool(user, PropertyTool);
    user.Click(Tool(user, PropertyTool));
    user.MoveTo(Centre(user));
    user.Click(CPoint(BareGround));
    user.WaitForNotes();
}

void PickNear(User& user)
{
    OpenList(user);
    user.Click(Entry(2));
    user.LetPass(Flight);
    user.WaitForNotes();
    user.Click(CPoint(NearBuilding));
    user.MoveTo(CPoint(NearBuilding.x, NearBuilding.y + 1));
    user.Wait();
}

void LeaveBuilding(User& user)
{
    user.WaitForNotes();
    user.Click(CPoint(SkyInNearView));
    GoHome(user);
}

void OpenSceneMenu(User& user)
{
    user.RightClickMenu(CPoint(760, 420), AddEntry, VK_ESCAPE);
}

void OpenButtonMenu(User& user)
{
    OpenList(user);
    user.RightClickMenu(Entry(2), PropertiesEntry, VK_ESCAPE);
}

void AddView(User& user)
{
    user.MoveTo(Centre(user));
    user.Drag(Centre(user), CPoint(Centre(user).x - 200, Centre(user).y - 20));
    user.WaitForNotes();
    user.RightClickMenu(CPoint(760, 420), AddEntry, VK_RETURN);
    OpenList(user);
}

void EditView(User& user)
{
    OpenList(user);
    // The picture is the dialog's.
    user.WhileMenuIsOpen(nullptr);
    user.RightClickMenu(Entry(7), PropertiesEntry, VK_RETURN);
    user.WaitForNotes();
    user.Type(L"滨江夜景");
    user.Wait();
}

void ConfirmEdit(User& user)
{
    user.KeyToFocus(VK_RETURN);
    OpenList(user);
}

void DeleteView(User& user)
{
    OpenList(user);
    user.RightClickMenu(Entry(7), DeleteEntry, VK_RETURN);
    OpenList(user);
}

void LeaveList(User& user)
{
    user.MoveTo(Centre(user));
    GoHome(user);
}

} // namespace

std::vector<TourStop> ObjectStops()
{
    return {
        {"tooltip-tool", "The tooltip of the data-management tool, nearer to the city.", HoverTooltip, nullptr},
        {"picked", "A building was clicked: it is marked in the scene, and a note says what it is.", PickFirst, nullptr},
        {"panel", "The display-properties tool opens the panel with the building's data.", OpenPanel, nullptr},
        {"panel-tooltip", "The mouse over a name that is longer than its column: the tooltip shows the whole of it.",
         HoverLongRow, nullptr},
        {"panel-other", "Another building was clicked, and the panel follows.", PickSecond, nullptr},
        {"layers", "The data-management tool lists the scene's layers, with their counts and memory.", ListLayers, nullptr},
        {"layers-scrolled", "The list scrolled with the wheel.", ScrollPanel, nullptr},
        {"panel-english", "The panel in English, with the first building picked again.", PickInEnglish, ClosePanel},
        {"picked-near", "A building picked from near by: its edges are drawn, and the ground around it glows.", PickNear,
         LeaveBuilding},
        {"scene-menu", "A right click on the bare scene opens its menu.", OpenSceneMenu, nullptr, false, true},
        {"button-menu", "A right click on an entry of the list opens the menu of control buttons.", OpenButtonMenu, nullptr,
         false, true},
        {"button-added", "The menu's first entry has added a view with a picture of what is seen now; the list shows it.",
         AddView, nullptr},
        {"button-edit", "The dialog that changes a control button, over the scene.", EditView, nullptr, false, true},
        {"button-edited", "The dialog was confirmed: the entry has its new caption.", ConfirmEdit, nullptr},
        {"button-deleted", "The view was deleted, and the list has closed up.", DeleteView, LeaveList},
    };
}

} // namespace host
