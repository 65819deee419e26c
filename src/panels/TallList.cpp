// SPDX-License-Identifier: MIT
#include "TallList.h"

#include "../widgets/CeGuiToolBar.h"
#include "../widgets/FailureLog.h"
#include "../widgets/FileImageset.h"
#include "../widgets/Names.h"
#include "../widgets/WindowNames.h"
#include "PropertyPictures.h"

#include <CEGUI/Element.h>
#include <CEGUI/Exceptions.h>
#include <CEGUI/Renderer.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

namespace
{
using namespace PropertyPictures;

/// A stretch is never shorter than the list's place, so no more than two are in sight.
constexpr int SlotCount = 2;
constexpr int SpareRows = 2;

CEGUI::UDim Relative(float scale)
{
    return CEGUI::UDim(scale, 0);
}

class Stretches
{
public:
    Stretches(CeGuiToolBar& list, const CeGuiMainFrame::PropertyRows& rows, int height)
        : item_(list.items[0].window), rows_(rows), height_(height), place_(list.rect.bottom - list.rect.top),
          stretch_((place_ / RowHeight + SpareRows) * RowHeight)
    {
        shown_.fill(-1);
        windows_.fill(nullptr);
    }

    /// Shows the stretches that the item's present position brings into sight.
    void Update()
    {
        const int top = static_cast<int>(std::lround(-item_->getYPosition().d_scale * static_cast<float>(place_)));
        const int first = std::max(0, top) / stretch_;
        const int last = std::min(std::max(0, top + place_ - 1), height_ - 1) / stretch_;
        for (int number = first; number <= last; ++number)
        {
            Show(number);
        }
    }

private:
    void Show(int number)
    {
        const std::size_t slot = static_cast<std::size_t>(number % SlotCount);
        if (shown_[slot] == number)
        {
            return;
        }
        const int top = number * stretch_;
        const int height = std::min(stretch_, height_ - top);
        const CString file = WriteListPart(rows_, top / RowHeight, height, static_cast<int>(slot));
        if (file.IsEmpty())
        {
            return;
        }
        FileImagesets::Destroy(file);
        const CEGUI::Image& image = FileImagesets::Create(file);
        if (!windows_[slot])
        {
            windows_[slot] = WindowNames::Create("TavLook/StaticImage", GuiName(file));
            // The mouse is the item's business.
            windows_[slot]->setMousePassThroughEnabled(true);
            WindowNames::AddChild(*item_, *windows_[slot]);
        }
        const float whole = static_cast<float>(height_);
        windows_[slot]->setPosition(CEGUI::UVector2(Relative(0), Relative(static_cast<float>(top) / whole)));
        windows_[slot]->setSize(CEGUI::USize(Relative(1), Relative(static_cast<float>(height) / whole)));
        FileImagesets::Apply(*windows_[slot], "Image", image);
        windows_[slot]->invalidate();
        shown_[slot] = number;
    }

    CEGUI::Window* item_;
    const CeGuiMainFrame::PropertyRows& rows_;
    int height_;  // of the whole list, pixels
    int place_;   // height of what is in sight, pixels
    int stretch_; // height of a stretch, pixels
    std::array<int, SlotCount> shown_;
    std::array<CEGUI::Window*, SlotCount> windows_;
};

/// Lives as long as the item's event that holds it.
struct OnItemMoved
{
    std::shared_ptr<Stretches> stretches;

    bool operator()(const CEGUI::EventArgs&) const
    {
        if (!CeGuiMainFrame::GetInstance()->MakeContextCurrent())
        {
            return true;
        }
        try
        {
            stretches->Update();
        }
        catch (const CEGUI::Exception& dropped)
        {
            LogDropped("stretch not shown", "property list", NameBytes(dropped.getMessage()));
        }
        return true;
    }
};
} // namespace

bool IsTallList(int height)
{
    return height > static_cast<int>(CEGUI::System::getSingleton().getRenderer()->getMaxTextureSize());
}

void ShowTallList(CeGuiToolBar& list, const CeGuiMainFrame::PropertyRows& rows, int height)
{
    CEGUI::Window& item = *list.items[0].window;
    item.setProperty("Image", "");
    // A notch moves the thumb, and so most of such a list past its place: never more than leaves one row in sight.
    const float place = static_cast<float>(list.rect.bottom - list.rect.top);
    list.longestWheelStep = (place - RowHeight) / place;
    const OnItemMoved moved = {std::make_shared<Stretches>(list, rows, height)};
    item.subscribeEvent(CEGUI::Element::EventMoved, CEGUI::SubscriberSlot(moved));
    moved.stretches->Update();
}

void RemoveTallList(CeGuiToolBar& list)
{
    list.longestWheelStep = 0;
    CEGUI::Window* item = list.items.empty() ? nullptr : list.items[0].window;
    if (!item)
    {
        return;
    }
    item->removeEvent(CEGUI::Element::EventMoved);
    while (item->getChildCount() > 0)
    {
        WindowNames::Destroy(*item->getChildAtIdx(0));
    }
}
