// SPDX-License-Identifier: MIT
#include "CeGuiToolBar.h"

#include "FileImageset.h"
#include "Names.h"
#include "TextPicture.h"
#include "WindowNames.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/Window.h>

#include <algorithm>

namespace
{
const char* const StaticImageType = "TavLook/StaticImage";
const char* const ImageButtonType = "TavLook/ImageButton";
// The skin and hosts look these windows up by their exact, misspelt names.
const wchar_t* const MaximiseButton = L"TavTilteMaxboxButtom";
const wchar_t* const LeaveFullSceneButton = L"TavFullTilteEscBtn";

std::vector<CeGuiToolBar*>& LiveBars()
{
    // Never destroyed: the bars of an interface that nobody closes end after the static objects of this file.
    static auto& bars = *new std::vector<CeGuiToolBar*>;
    return bars;
}

CEGUI::UDim Relative(float scale)
{
    return CEGUI::UDim(scale, 0.0f);
}

/// An imageset made anew, or null for an empty file name.
CEGUI::Image* CreateImageset(const CString& file)
{
    return file.IsEmpty() ? nullptr : &FileImagesets::Create(file);
}
} // namespace

CeGuiToolBar::CeGuiToolBar(const RECT& place, CString barName, CString imageFile, UINT parentWidth, UINT parentHeight, UINT type)
    : rect(place), barType(type), triggerRect(place), screenWidth(parentWidth), screenHeight(parentHeight),
      name(std::move(barName))
{
    window = WindowNames::Create(StaticImageType, GuiName(name));
    LiveBars().push_back(this);
    try
    {
        if (CEGUI::Image* image = CreateImageset(imageFile))
        {
            FileImagesets::Apply(*window, "Image", *image);
        }
    }
    catch (...)
    {
        // The destructor does not run for a constructor that throws.
        WindowNames::Destroy(*window);
        LiveBars().pop_back();
        throw;
    }
    PlaceWindow(rect, screenWidth, screenHeight);
    window->subscribeEvent(CEGUI::Window::EventMouseWheel, CEGUI::SubscriberSlot(&CeGuiToolBar::OnMouseWheel, this));
}

CeGuiToolBar::~CeGuiToolBar()
{
    auto& bars = LiveBars();
    bars.erase(std::remove(bars.begin(), bars.end(), this), bars.end());
}

void CeGuiToolBar::PlaceWindow(const RECT& place, UINT parentWidth, UINT parentHeight)
{
    const float width = static_cast<float>(parentWidth);
    const float height = static_cast<float>(parentHeight);
    window->setArea(CEGUI::UVector2(Relative(place.left / width), Relative(place.top / height)),
                    CEGUI::USize(Relative((place.right - place.left) / width), Relative((place.bottom - place.top) / height)));
}

void CeGuiToolBar::MoveBar(const RECT& place, UINT parentWidth, UINT parentHeight)
{
    rect = place;
    triggerRect = place;
    EndSlide();
    if (window)
    {
        PlaceWindow(rect, parentWidth, parentHeight);
    }
}

void CeGuiToolBar::NextItemPosition(float& x, float& y) const
{
    const float width = static_cast<float>(Width());
    const float height = static_cast<float>(Height());
    const ToolBarItem* last = items.empty() ? nullptr : &items.back();
    x = 0;
    y = marginY / height;
    switch (barType)
    {
    case BAR_TITLE:
        if (!last)
        {
            x = (static_cast<UINT>(Width()) - marginX - buttonWidth) / width;
        }
        else
        {
            // The button that leaves full scene takes the place of the one that enters it.
            x = last->name == MaximiseButton ? last->xScale : last->xScale - (spacing + buttonWidth) / width;
        }
        break;
    case BAR_TOOLS:
        x = last ? static_cast<float>(double(spacing) / Width() + (double(last->xScale) + last->widthScale)) : marginX / width;
        break;
    case BAR_LIST:
        x = marginX / width;
        if (last)
        {
            y = (spacing + buttonHeight) / height + last->yScale;
        }
        break;
    default:
        y = 0;
        break;
    }
}

int CeGuiToolBar::AppendItem(const ToolBarItem& item)
{
    items.push_back(item);
    if (buttons_)
    {
        WindowNames::AddChild(*window, *item.window, buttons_->siblings);
    }
    else
    {
        WindowNames::AddChild(*window, *item.window);
    }
    return static_cast<int>(items.size()) - 1;
}

void CeGuiToolBar::SubscribeWheel(CEGUI::Window& item)
{
    // CEGUI does not hand the wheel on to the window below.
    item.subscribeEvent(CEGUI::Window::EventMouseWheel, CEGUI::SubscriberSlot(&CeGuiToolBar::OnMouseWheel, this));
}

void CeGuiToolBar::SubscribeButton(CEGUI::Window& button)
{
    SubscribeWheel(button);
    for (const auto& [eventName, handler] : itemEvents)
    {
        button.subscribeEvent(eventName, CEGUI::SubscriberSlot(handler));
    }
}

void CeGuiToolBar::BeginButtons()
{
    buttons_ = {items.size(), window ? WindowNames::SiblingsIn(*window) : WindowNames::Siblings()};
}

void CeGuiToolBar::EndButtons()
{
    for (std::size_t i = buttons_->first; i < items.size(); ++i)
    {
        SubscribeButton(*items[i].window);
    }
    buttons_.reset();
}

int CeGuiToolBar::AddImageButton(CString itemName, CString normalFile, CString hoverFile, CString pushedFile, CString tooltip)
{
    if (!window)
    {
        return -1;
    }
    ToolBarItem item;
    item.name = itemName;
    item.window = WindowNames::Create(ImageButtonType, GuiName(itemName));
    try
    {
        const CEGUI::Image* normal = CreateImageset(normalFile);
        const CEGUI::Image* hover = CreateImageset(hoverFile);
        const CEGUI::Image* pushed = CreateImageset(pushedFile);
        NextItemPosition(item.xScale, item.yScale);
        item.widthScale = buttonWidth / static_cast<float>(Width());
        item.heightScale = buttonHeight / static_cast<float>(Height());
        item.window->setPosition(CEGUI::UVector2(Relative(item.xScale), Relative(item.yScale)));
        item.window->setSize(CEGUI::USize(Relative(item.widthScale), Relative(item.heightScale)));
        const struct
        {
            const char* property;
            const CEGUI::Image* image;
        } pictures[] = {
            {"NormalImage", normal}, {"HoverImage", hover ? hover : normal}, {"PushedImage", pushed ? pushed : normal}};
        for (const auto& picture : pictures)
        {
            if (picture.image)
            {
                FileImagesets::Apply(*item.window, picture.property, *picture.image);
            }
        }
    }
    catch (...)
    {
        WindowNames::Destroy(*item.window);
        throw;
    }
    if (!tooltip.IsEmpty())
    {
        item.window->setTooltipText(CEGUI::String(strUtf8ToAnsi(CString2string(tooltip))));
    }
    const int index = AppendItem(item);
    if (itemName == LeaveFullSceneButton)
    {
        item.window->hide();
    }
    if (!buttons_)
    {
        SubscribeButton(*item.window);
    }
    UpdateContentExtent();
    return index;
}

void CeGuiToolBar::PlaceStaticItem(ToolBarItem& item, const RECT& place) const
{
    const float width = static_cast<float>(Width());
    const float height = static_cast<float>(Height());
    item.widthScale = (place.right - place.left) / width;
    item.heightScale = (place.bottom - place.top) / height;
    item.xScale = place.left / width;
    item.yScale = place.top / height;
    // The limit is a share of the display, not of the bar: in a bar larger than that it would squeeze the item. 0 is no limit.
    item.window->setMaxSize(CEGUI::USize(Relative(width > static_cast<float>(screenWidth) ? 0 : item.widthScale),
                                         Relative(height > 2.0f * static_cast<float>(screenHeight) ? 0 : 2 * item.heightScale)));
    if (item.window)
    {
        item.window->setArea(CEGUI::UVector2(Relative(item.xScale), Relative(item.yScale)),
                             CEGUI::USize(Relative(item.widthScale), Relative(item.heightScale)));
    }
}

int CeGuiToolBar::AddStaticImage(const RECT& place, CString itemName, CString imageFile)
{
    if (!window)
    {
        return -1;
    }
    ToolBarItem item;
    item.name = itemName;
    item.window = WindowNames::Create(StaticImageType, GuiName(itemName));
    try
    {
        if (const CEGUI::Image* image = CreateImageset(imageFile))
        {
            FileImagesets::Apply(*item.window, "Image", *image);
        }
    }
    catch (...)
    {
        WindowNames::Destroy(*item.window);
        throw;
    }
    PlaceStaticItem(item, place);
    const int index = AppendItem(item);
    SubscribeWheel(*item.window);
    UpdateContentExtent();
    return index;
}

int CeGuiToolBar::AddTextImage(const RECT& place, CString itemName, CString text, UINT fontHeight, CString fontName,
                               COLORREF color)
{
    const CString file =
        CreateTextImageFile(static_cast<UINT>(place.right - place.left), static_cast<UINT>(place.bottom - place.top), itemName,
                            text, fontHeight, fontName, color);
    return file.IsEmpty() ? -1 : AddStaticImage(place, itemName, file);
}

void CeGuiToolBar::PlaceItem(int index, const RECT& place)
{
    ToolBarItem* item = ItemAt(index);
    if (item && item->window)
    {
        PlaceStaticItem(*item, place);
        UpdateContentExtent();
    }
}

void CeGuiToolBar::SubscribeBarEvent(const CEGUI::String& eventName, const CEGUI::SubscriberSlot& subscriber)
{
    if (window)
    {
        window->subscribeEvent(eventName, subscriber);
    }
}

void CeGuiToolBar::SubscribeItemEvent(int index, const CEGUI::String& eventName, const CEGUI::SubscriberSlot& subscriber)
{
    const ToolBarItem* item = ItemAt(index);
    if (item && item->window)
    {
        item->window->subscribeEvent(eventName, subscriber);
    }
}

ToolBarItem* CeGuiToolBar::ItemAt(int index)
{
    return index >= 0 && index < static_cast<int>(items.size()) ? &items[static_cast<std::size_t>(index)] : nullptr;
}

void CeGuiToolBar::ShowBar()
{
    EndSlide();
    if (window && !window->isVisible())
    {
        window->show();
    }
}

void CeGuiToolBar::HideBar()
{
    EndSlide();
    HideWindow();
}

void CeGuiToolBar::HideWindow()
{
    EndDrag();
    if (window && window->isVisible())
    {
        window->hide();
    }
}

void CeGuiToolBar::DestroyToolBar()
{
    if (window)
    {
        const CEGUI::String image = window->getProperty("Image");
        if (!image.empty())
        {
            FileImagesets::DestroyNamed(image);
        }
        WindowNames::Destroy(*window);
        window = nullptr;
    }
    // CEGUI destroys a window's children with it; what is left are items of a bar that lost its own window.
    for (ToolBarItem& item : items)
    {
        if (item.window)
        {
            WindowNames::Destroy(*item.window);
        }
    }
    if (thumb)
    {
        WindowNames::Destroy(*thumb);
        thumb = nullptr;
    }
    items.clear();
    itemEvents.clear();
    EndDrag();
    EndSlide();
}

void CeGuiToolBar::ForgetWindow(const CEGUI::Window* gone)
{
    for (CeGuiToolBar* bar : LiveBars())
    {
        if (bar->window == gone)
        {
            bar->window = nullptr;
            bar->EndSlide();
        }
        if (bar->thumb == gone)
        {
            bar->thumb = nullptr;
            bar->EndDrag();
        }
        for (ToolBarItem& item : bar->items)
        {
            if (item.window == gone)
            {
                item.window = nullptr;
            }
        }
    }
}

void CeGuiToolBar::ForgetAllWindows()
{
    for (CeGuiToolBar* bar : LiveBars())
    {
        bar->window = nullptr;
        bar->thumb = nullptr;
        bar->EndDrag();
        bar->EndSlide();
        bar->items.clear();
    }
}
