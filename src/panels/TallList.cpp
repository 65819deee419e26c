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
#include <CEGUI/WindowManager.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <utility>

namespace
{
using namespace PropertyPictures;

/// A stretch is longer than the list's place, so no more than two are in sight, and one at the top.
constexpr int SlotCount = 2;
constexpr int SpareRows = 2;

CEGUI::UDim Relative(float scale)
{
    return CEGUI::UDim(scale, 0);
}

/// A stretch's height, pixels: more than what is in sight at a time, in whole rows.
int StretchHeight(int place)
{
    return (place / RowHeight + SpareRows) * RowHeight;
}

CString WriteStretch(const CeGuiMainFrame::PropertyRows& rows, int height, int stretch, int number)
{
    const int top = number * stretch;
    return WriteListPart(rows, top / RowHeight, std::min(stretch, height - top), number % SlotCount);
}

/// The item's window when it is there, else null.
CEGUI::Window* ItemOf(const CeGuiToolBar& list)
{
    return list.items.empty() ? nullptr : list.items[0].window;
}

class Stretches
{
public:
    Stretches(CEGUI::Window& item, std::shared_ptr<const CeGuiMainFrame::PropertyRows> rows, int height, int place)
        : item_(item), rows_(std::move(rows)), height_(height), place_(place), stretch_(StretchHeight(place))
    {
    }

    /// Shows the stretches that the item's present position brings into sight.
    void Update()
    {
        if (!CEGUI::WindowManager::getSingleton().isAlive(&item_))
        {
            // A slot before this one has destroyed it.
            return;
        }
        const int top = static_cast<int>(std::lround(-item_.getYPosition().d_scale * static_cast<float>(place_)));
        const int first = std::max(0, top) / stretch_;
        const int last = std::min(std::max(0, top + place_ - 1), height_ - 1) / stretch_;
        for (int number = first; number <= last; ++number)
        {
            if (SlotOf(number).shown == number)
            {
                continue;
            }
            const CString file = WriteStretch(*rows_, height_, stretch_, number);
            if (!file.IsEmpty())
            {
                Show(number, file);
            }
        }
    }

    /// Shows a stretch whose picture has been written.
    void Show(int number, const CString& file)
    {
        Slot& slot = SlotOf(number);
        slot.shown = -1;
        FileImagesets::Destroy(file);
        const CEGUI::Image& image = FileImagesets::Create(file);
        if (!slot.window)
        {
            slot.window = WindowNames::Create("TavLook/StaticImage", GuiName(file));
            // The mouse is the item's business.
            slot.window->setMousePassThroughEnabled(true);
            WindowNames::AddChild(item_, *slot.window);
        }
        const int top = number * stretch_;
        const float whole = static_cast<float>(height_);
        slot.window->setArea(CEGUI::UVector2(Relative(0), Relative(static_cast<float>(top) / whole)),
                             CEGUI::USize(Relative(1), Relative(static_cast<float>(std::min(stretch_, height_ - top)) / whole)));
        if (!slot.window)
        {
            return;
        }
        FileImagesets::Apply(*slot.window, "Image", image);
        slot.window->invalidate();
        slot.shown = number;
    }

    /// A host may delete any window by its name.
    void Forget(const CEGUI::Element* gone)
    {
        for (Slot& slot : slots_)
        {
            if (slot.window == gone)
            {
                slot = Slot();
            }
        }
    }

private:
    struct Slot
    {
        CEGUI::Window* window = nullptr;
        int shown = -1; ///< number of the stretch
    };
    Slot& SlotOf(int number) { return slots_[static_cast<std::size_t>(number % SlotCount)]; }

    CEGUI::Window& item_;
    std::shared_ptr<const CeGuiMainFrame::PropertyRows> rows_;
    int height_;  // of the whole list, pixels
    int place_;   // height of what is in sight, pixels
    int stretch_; // height of a stretch, pixels
    std::array<Slot, SlotCount> slots_;
};

// Both live as long as the item's events that hold them.
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

struct OnStretchGone
{
    std::shared_ptr<Stretches> stretches;

    bool operator()(const CEGUI::EventArgs& args) const
    {
        stretches->Forget(static_cast<const CEGUI::ElementEventArgs&>(args).element);
        return true;
    }
};
} // namespace

bool IsTallList(int height)
{
    return height > static_cast<int>(CEGUI::System::getSingleton().getRenderer()->getMaxTextureSize());
}

CString WriteTallListTop(const CeGuiMainFrame::PropertyRows& rows, int height, int place)
{
    return WriteStretch(rows, height, StretchHeight(place), 0);
}

void ShowTallList(CeGuiToolBar& list, const CString& top, std::shared_ptr<const CeGuiMainFrame::PropertyRows> rows, int height)
{
    CEGUI::Window* item = ItemOf(list);
    if (!item)
    {
        return;
    }
    item->setProperty("Image", "");
    // A notch moves the thumb, and so most of such a list past its place: never more than leaves one row in sight.
    const int place = list.rect.bottom - list.rect.top;
    list.longestWheelStep = static_cast<float>(place - RowHeight) / static_cast<float>(place);
    const auto stretches = std::make_shared<Stretches>(*item, std::move(rows), height, place);
    item->subscribeEvent(CEGUI::Element::EventMoved, CEGUI::SubscriberSlot(OnItemMoved{stretches}));
    item->subscribeEvent(CEGUI::Element::EventChildRemoved, CEGUI::SubscriberSlot(OnStretchGone{stretches}));
    stretches->Show(0, top);
}

void RemoveTallList(CeGuiToolBar& list)
{
    list.longestWheelStep = 0;
    CEGUI::Window* item = ItemOf(list);
    if (!item)
    {
        return;
    }
    item->removeEvent(CEGUI::Element::EventMoved);
    item->removeEvent(CEGUI::Element::EventChildRemoved);
    while (item->getChildCount() > 0)
    {
        WindowNames::Destroy(*item->getChildAtIdx(0));
    }
}
