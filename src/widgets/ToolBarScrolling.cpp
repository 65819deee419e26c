// SPDX-License-Identifier: MIT
// A bar's column of items and the thumb that scrolls it.
#include "CeGuiToolBar.h"

#include "FileImageset.h"
#include "Names.h"
#include "WindowNames.h"

#include <NxOsgCeGui/CeGuiMainFrame.h>

#include <CEGUI/InputEvent.h>
#include <CEGUI/Window.h>

#include <algorithm>
#include <cmath>

namespace
{
const char* const ImageButtonType = "TavLook/ImageButton";
constexpr int ThumbWidth = 6;      // bar pixels
constexpr float WheelStep = 30.0f; // bar pixels a notch
/// What the fractions of a column's parts, in floats, may add up to beside a whole pixel.
constexpr double RoundedPixels = 1.0 / 16;

void MarkInputTaken()
{
    CeGuiMainFrame::GetInstance()->SetDisplySystemMouse(true);
}

void SetY(CEGUI::Window& window, float y)
{
    window.setPosition(CEGUI::UVector2(window.getXPosition(), CEGUI::UDim(y, 0.0f)));
}
} // namespace

bool CeGuiToolBar::UpdateContentExtent()
{
    if (barType != BAR_LIST && barType != BAR_PANEL)
    {
        return true;
    }
    // In pixels, which are whole for all that the owners lay out: a column that ends exactly at the bar's bottom is 1 exactly.
    const double content =
        items.empty() ? 2.0 * marginY : (double(items.back().heightScale) + items.back().yScale) * Height() + marginY;
    const double whole = std::round(content);
    contentExtent = static_cast<float>((std::fabs(content - whole) < RoundedPixels ? whole : content) / Height());
    return true;
}

bool CeGuiToolBar::CreateScrollThumb(UINT rightMargin, CString thumbName, CString normalFile, CString hoverFile,
                                     CString pushedFile)
{
    if (!window || thumb || !(contentExtent > 1.0f))
    {
        return false;
    }
    const auto imageset = [](const CString& file)
    { return file.IsEmpty() ? nullptr : &FileImagesets::GetImagesetFromFile(file); };
    const CEGUI::Image* normal = imageset(normalFile);
    const CEGUI::Image* hover = imageset(hoverFile);
    const CEGUI::Image* pushed = imageset(pushedFile);

    thumb = WindowNames::Create(ImageButtonType, GuiName(thumbName));
    thumb->setAlwaysOnTop(true);
    const float width = static_cast<float>(Width());
    thumb->setSize(CEGUI::USize(CEGUI::UDim(ThumbWidth / width, 0), CEGUI::UDim(1 / contentExtent, 0)));
    const float x = (Width() - static_cast<int>(rightMargin) - ThumbWidth) / width;
    thumb->setPosition(CEGUI::UVector2(CEGUI::UDim(x, 0), CEGUI::UDim(0, 0)));

    const CEGUI::Image* whenPushed = pushed ? pushed : hover ? hover : normal;
    const CEGUI::Image* whenHovered = hover ? hover : pushed ? pushed : normal;
    if (normal)
    {
        FileImagesets::Apply(*thumb, "NormalImage", *normal);
    }
    if (whenPushed)
    {
        FileImagesets::Apply(*thumb, "PushedImage", *whenPushed);
        FileImagesets::Apply(*thumb, "HoverImage", *whenHovered);
    }
    using CEGUI::SubscriberSlot;
    thumb->subscribeEvent(CEGUI::Window::EventMouseButtonDown, SubscriberSlot(&CeGuiToolBar::OnThumbMouseDown, this));
    thumb->subscribeEvent(CEGUI::Window::EventMouseButtonUp, SubscriberSlot(&CeGuiToolBar::OnThumbMouseUp, this));
    thumb->subscribeEvent(CEGUI::Window::EventMouseMove, SubscriberSlot(&CeGuiToolBar::OnThumbMouseMove, this));
    thumb->subscribeEvent(CEGUI::Window::EventMouseWheel, SubscriberSlot(&CeGuiToolBar::OnMouseWheel, this));
    WindowNames::AddChild(*window, *thumb);
    return true;
}

void CeGuiToolBar::MoveItems(float y)
{
    for (const ToolBarItem& item : items)
    {
        if (item.window)
        {
            SetY(*item.window, item.window->getYPosition().d_scale + y);
        }
    }
}

void CeGuiToolBar::MoveItemsWithThumb()
{
    // From the thumb each time: what single steps round off would add up over a long list.
    const float y = thumb->getYPosition().d_scale * contentExtent;
    for (const ToolBarItem& item : items)
    {
        if (item.window)
        {
            SetY(*item.window, item.yScale - y);
        }
    }
}

bool CeGuiToolBar::ScrollBy(float step)
{
    const float y = thumb->getYPosition().d_scale;
    const float end = 1 - thumb->getHeight().d_scale;
    SetY(*thumb, std::min(end, std::max(0.0f, y + step)));
    if (thumb)
    {
        MoveItemsWithThumb();
    }
    return true;
}

bool CeGuiToolBar::ScrollToItem(int index)
{
    if (!thumb)
    {
        return false;
    }
    const ToolBarItem* item = ItemAt(index);
    if (!item || !item->window)
    {
        return true;
    }
    const float y = thumb->getYPosition().d_scale;
    const float h = thumb->getHeight().d_scale;
    float content = 0.5f - item->window->getYPosition().d_scale;
    if (y - content / contentExtent < 0)
    {
        content = contentExtent * y;
    }
    if (y - content / contentExtent > 1 - h)
    {
        content = (h + y - 1) * contentExtent;
    }
    SetY(*thumb, y - content / contentExtent);
    MoveItems(content);
    return true;
}

bool CeGuiToolBar::OnThumbMouseDown(const CEGUI::EventArgs& args)
{
    dragging = true;
    lastMousePos = static_cast<const CEGUI::MouseEventArgs&>(args).position;
    return true;
}

void CeGuiToolBar::EndDrag()
{
    dragging = false;
    // A pressed button gets the mouse wherever that is, hidden as well, until it is released.
    if (thumb && thumb->isCapturedByThis())
    {
        thumb->releaseInput();
    }
}

void CeGuiToolBar::HideThumb()
{
    EndDrag();
    if (thumb && thumb->isVisible())
    {
        thumb->hide();
    }
}

bool CeGuiToolBar::OnThumbMouseUp(const CEGUI::EventArgs&)
{
    dragging = false;
    return true;
}

bool CeGuiToolBar::OnThumbMouseMove(const CEGUI::EventArgs& args)
{
    MarkInputTaken();
    if (!thumb || !dragging)
    {
        return false;
    }
    const CEGUI::Vector2f position = static_cast<const CEGUI::MouseEventArgs&>(args).position;
    const float step = (position.d_y - lastMousePos.d_y) / static_cast<float>(Height());
    if (step == 0)
    {
        return false;
    }
    lastMousePos = position;
    return ScrollBy(step);
}

bool CeGuiToolBar::OnMouseWheel(const CEGUI::EventArgs& args)
{
    MarkInputTaken();
    if (!thumb || !thumb->isVisible())
    {
        return false;
    }
    float step = static_cast<const CEGUI::MouseEventArgs&>(args).wheelChange * WheelStep / static_cast<float>(Height());
    if (longestWheelStep > 0)
    {
        const float longest = longestWheelStep / contentExtent;
        step = std::max(-longest, std::min(step, longest));
    }
    return step != 0 && ScrollBy(step);
}
