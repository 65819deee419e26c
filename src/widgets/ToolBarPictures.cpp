// SPDX-License-Identifier: MIT
// Changing the pictures of items and buttons that are there.
#include "CeGuiToolBar.h"

#include "FailureLog.h"
#include "FileImageset.h"
#include "Names.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/Window.h>

bool CeGuiToolBar::ChangeItemImage(int index, CString imageFile, const RECT& place)
{
    ToolBarItem* item = ItemAt(index);
    if (!item || !item->window || imageFile.IsEmpty())
    {
        return true;
    }
    try
    {
        FileImagesets::Destroy(imageFile);
        const CEGUI::Image& image = FileImagesets::Create(imageFile);
        PlaceStaticItem(*item, place);
        if (item->window)
        {
            FileImagesets::Apply(*item->window, "Image", image);
            item->window->invalidate();
        }
        UpdateContentExtent();
    }
    catch (const CEGUI::Exception& dropped)
    {
        LogDropped("picture of an item not changed", CString2string(imageFile), NameBytes(dropped.getMessage()));
    }
    return true;
}

bool CeGuiToolBar::SetButtonImages(CEGUI::Window* button, CString normalFile, CString hoverFile, CString pushedFile, bool down)
{
    try
    {
        if (!button || normalFile.IsEmpty() || pushedFile.IsEmpty())
        {
            return true;
        }
        const CEGUI::Image& normal = FileImagesets::Get(normalFile);
        const CEGUI::Image* hover = hoverFile.IsEmpty() ? nullptr : &FileImagesets::Get(hoverFile);
        const CEGUI::Image& pushed = FileImagesets::GetImagesetFromFile(pushedFile);
        const CEGUI::Image& atRest = down ? pushed : normal;
        FileImagesets::ApplyToButton(*button, atRest, hover ? *hover : atRest, down ? normal : pushed);
    }
    catch (const CEGUI::Exception& dropped)
    {
        LogDropped("pictures of a button not changed", CString2string(normalFile), NameBytes(dropped.getMessage()));
    }
    return true;
}

bool CeGuiToolBar::SetItemImages(int index, CString normalFile, CString hoverFile, CString pushedFile, bool down)
{
    const ToolBarItem* item = ItemAt(index);
    return !item || SetButtonImages(item->window, normalFile, hoverFile, pushedFile, down);
}
