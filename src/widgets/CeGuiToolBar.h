// SPDX-License-Identifier: MIT
#pragma once

#include "WindowNames.h"

#include <CEGUI/EventArgs.h>
#include <CEGUI/String.h>
#include <CEGUI/SubscriberSlot.h>
#include <CEGUI/UDim.h>
#include <CEGUI/Vector.h>

#include <afxwin.h>

#include <map>
#include <optional>
#include <vector>

namespace CEGUI
{
class Image;
class Window;
} // namespace CEGUI

/// One child of a bar. Sizes and positions are fractions of the bar's width and height (bar fractions).
struct ToolBarItem
{
    CString name;
    float widthScale = 0;
    float heightScale = 0;
    float xScale = 0;
    float yScale = 0;
    CEGUI::Window* window = nullptr; ///< owned by CEGUI; null once it is destroyed
};

/// How a bar lays out its buttons and which way it slides out.
enum BarType : UINT
{
    BAR_TITLE = 1, ///< buttons from right to left; slides up
    BAR_TOOLS = 2, ///< buttons from left to right; slides down
    BAR_LIST = 4,  ///< buttons from top to bottom, scrolled; slides left
    BAR_PANEL = 6  ///< items at (0, 0), scrolled; does not slide
};

/// A bar: one CEGUI window over a rectangle of the view, and the buttons and pictures laid out in it. Every frame, tool bar,
/// list and panel is one.
///
/// The owner adds `window` to a parent and sets the layout fields; CEGUI owns the windows, and a bar forgets a window that is
/// destroyed elsewhere: a host may do that in a slot of an event that the bar itself raises by moving or hiding the window.
/// Deleting a bar leaves its windows alone: `DestroyToolBar` takes them away. Rectangles are view pixels (bar pixels for items).
/// CEGUI gets relative coordinates only.
class CeGuiToolBar
{
public:
    using EventHandler = bool (*)(const CEGUI::EventArgs&);

    /// @param imageFile background picture (a file imageset); empty for none
    /// @param screenWidth,screenHeight size in pixels of the sheet that the bar lies on
    /// @throws CEGUI::Exception when the picture is there already or cannot be loaded
    CeGuiToolBar(const RECT& rect, CString name, CString imageFile, UINT screenWidth, UINT screenHeight, UINT barType);
    ~CeGuiToolBar();
    CeGuiToolBar(const CeGuiToolBar&) = delete;
    CeGuiToolBar& operator=(const CeGuiToolBar&) = delete;

    /// Places the bar anew. The screen size is used, not stored.
    void MoveBar(const RECT& rect, UINT screenWidth, UINT screenHeight);

    /// Adds a button at the next place of the layout.
    /// @param hoverFile,pushedFile empty: the normal picture serves
    /// @return the item's index, or -1 when its window could not be made
    int AddImageButton(CString name, CString normalFile, CString hoverFile, CString pushedFile, CString tooltip);
    /// Between these two, buttons are added without events, and get them at the end: CEGUI tells every item with events of each
    /// further one.
    void BeginButtons();
    void EndButtons();
    /// Adds a picture at a rectangle in bar pixels. @return index or -1
    int AddStaticImage(const RECT& rect, CString name, CString imageFile);
    /// Adds a picture of a text, which is written to "NAME.bmp". @return index or -1
    int AddTextImage(const RECT& rect, CString name, CString text, UINT fontHeight, CString fontName, COLORREF color);

    /// Reads a picture file that was rewritten and gives the item this rectangle (bar pixels). Always true.
    bool ChangeItemImage(int index, CString imageFile, const RECT& rect);
    /// Gives an item this rectangle (bar pixels).
    void PlaceItem(int index, const RECT& rect);
    /// Gives a button other pictures, which have to be loaded but for the pushed one. Always true, also when nothing changed.
    /// @param down a toggle's down state: normal and pushed picture swap places
    static bool SetButtonImages(CEGUI::Window* button, CString normalFile, CString hoverFile, CString pushedFile, bool down);
    bool SetItemImages(int index, CString normalFile, CString hoverFile, CString pushedFile, bool down);

    void SubscribeBarEvent(const CEGUI::String& eventName, const CEGUI::SubscriberSlot& subscriber);
    void SubscribeItemEvent(int index, const CEGUI::String& eventName, const CEGUI::SubscriberSlot& subscriber);

    /// Always true.
    bool UpdateContentExtent();

    // Whatever shows, hides or moves the bar, or changes how it hides, ends a slide that is under way: at home, clock at 0.
    void ShowBar();
    void HideBar();
    /// Sets `autoHide`.
    void SetAutoHide(bool hide);
    /// Sets `slideOnHide`.
    void SetSlideOnHide(bool slide);
    /// Destroys the windows and empties items and events. The pictures stay: the bar's own by a name that never fits (kept on
    /// purpose), the items' because nothing asks for it.
    void DestroyToolBar();

    /// Makes the scroll thumb when the content is taller than the bar. @return whether it was made
    bool CreateScrollThumb(UINT rightMargin, CString name, CString normalFile, CString hoverFile, CString pushedFile);
    /// Hides the thumb, if there is one, and ends its drag.
    void HideThumb();
    /// Brings an item to the middle of the bar, as far as the content reaches. False when there is no thumb.
    bool ScrollToItem(int index);

    /// A mouse move, in view pixels.
    void AutoHideByMouse(CPoint point);
    void StartHideAnimation(bool start);
    /// A timer tick of the host; 2022 is the one that counts.
    void OnHideTimer(UINT_PTR timerId);

    bool OnThumbMouseDown(const CEGUI::EventArgs& args);
    bool OnThumbMouseUp(const CEGUI::EventArgs& args);
    bool OnThumbMouseMove(const CEGUI::EventArgs& args);
    bool OnMouseWheel(const CEGUI::EventArgs& args);

    /// Makes every bar forget a window that CEGUI has destroyed.
    static void ForgetWindow(const CEGUI::Window* gone);
    /// The same for all windows at once.
    static void ForgetAllWindows();

    CEGUI::Window* window = nullptr;
    std::vector<ToolBarItem> items;
    RECT rect;
    UINT barType;
    /// Subscribed on every new button, in the order of the names.
    std::map<CEGUI::String, EventHandler> itemEvents;
    UINT buttonWidth = 62;
    UINT buttonHeight = 62;
    UINT marginX = 0;
    UINT marginY = 0;
    UINT spacing = 0;
    bool autoHide = false;
    bool showArmed = false; ///< the mouse has been outside `triggerRect` since the bar was hidden
    RECT triggerRect;       ///< where the mouse makes a hidden bar reappear, view pixels
    CEGUI::Window* thumb = nullptr;
    CEGUI::Vector2f lastMousePos;
    bool dragging = false;
    float contentExtent = 1.0f; ///< height of the items' column in bar heights
    float longestWheelStep = 0; ///< the most that a notch moves the items, in bar heights; 0 for no limit
    bool slideOnHide = false;
    bool animating = false;
    UINT screenWidth;
    UINT screenHeight;
    double animClock = 0.0;
    CString name;
    std::vector<std::pair<double, double>> keyframes; ///< (time, fraction of the way out)

private:
    void PlaceWindow(const RECT& place, UINT parentWidth, UINT parentHeight);
    void MoveWindow(int x, int y);
    void HideWindow();
    void EndSlide();
    void EndDrag();
    void NextItemPosition(float& x, float& y) const;
    int AppendItem(const ToolBarItem& item);
    void SubscribeWheel(CEGUI::Window& item);
    void SubscribeButton(CEGUI::Window& button);
    void PlaceStaticItem(ToolBarItem& item, const RECT& place) const;
    bool ScrollBy(float step);
    void MoveItems(float y);
    void MoveItemsWithThumb();
    ToolBarItem* ItemAt(int index);

    struct ButtonsBegun
    {
        std::size_t first; ///< the index from which on items are without events
        WindowNames::Siblings siblings;
    };
    std::optional<ButtonsBegun> buttons_; ///< between `BeginButtons` and `EndButtons`
    std::optional<CEGUI::UVector2> home_; ///< where the window was when it began to slide, until it is there again
    int Width() const { return rect.right - rect.left; }
    int Height() const { return rect.bottom - rect.top; }
};
