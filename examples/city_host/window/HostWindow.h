// SPDX-License-Identifier: MIT
#pragma once

#include "Density.h"

#include <afxwin.h>

#include <chrono>

namespace host
{

/// What the window reports. All calls come on the window's thread, some of them from within the viewer's `frame`, which
/// dispatches the view's messages too: whoever is told notes it and acts between frames.
class HostWindowEvents
{
public:
    virtual ~HostWindowEvents() = default;

    /// The interface's message, received by the main window or by the view.
    virtual void OnGuiMessage(UINT code, LPARAM value) = 0;
    /// An entry of a menu, received by the main window.
    virtual void OnMenuCommand(UINT id) = 0;
    /// Mouse or keys have come, or the picture has to be shown again.
    virtual void OnInput() = 0;
    virtual void OnExpose() = 0;
    virtual void OnKey(UINT virtualKey) = 0;
    virtual void OnTimer(UINT_PTR id) = 0;
    virtual void OnMouseMove(UINT flags, CPoint point) = 0;
    /// The system runs a loop of its own while the user moves or resizes the window; this is called in it.
    virtual void OnModalTick() = 0;
    virtual void OnCloseRequest() = 0;
    /// The window is on a monitor of another density now, and has its new size. @param density dots per inch
    virtual void OnDensity(UINT density) = 0;
    /// Whether a point, in view pixels, is an empty part of the title bar: a handle to move the window by.
    virtual bool IsTitleHandle(CPoint point) const = 0;
    /// Whether the edges resize the window.
    virtual bool HasResizeEdges() const = 0;
};

/// A main window without a caption of its own, whose whole area is the view, a child window for the viewer to draw in. The
/// interface inside the view draws the title bar; the window makes it and the edges work as those of any window.
class HostWindow
{
public:
    /// Ticks for the sliding of the interface's bars.
    static constexpr UINT_PTR SlideTimer = 2022;
    static constexpr std::chrono::milliseconds SlideTick{30};

    /// @param size of the window, in pixels of a monitor of 96 dots per inch; on others it is as large to the eye
    /// @param events outlives the window
    HostWindow(CSize size, HostWindowEvents& events);
    ~HostWindow();
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

    CWnd& Main() { return main_; }
    HWND View() const { return view_; }
    CSize ViewSize() const;

    void Show();
    void Minimise();
    bool IsMinimised() const;
    void SetTitle(const CString& title);

private:
    static LRESULT CALLBACK MainProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK ViewProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static void RegisterClasses();
    LRESULT OnMain(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnView(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    /// What lies under a point of the screen: HTCLIENT, HTCAPTION, or an edge or corner.
    LRESULT HitTest(POINT screenPoint) const;
    void LimitSize(MINMAXINFO& limits) const;
    /// @param place where the system suggests that the window goes, on the screen
    void FollowDensity(UINT density, const RECT& place) const;
    /// A move over a part of the view that only the system sees, told to the view all the same.
    void PassMoveToView(POINT screenPoint) const;
    /// Moves the mouse a pixel aside and back, as far as the view is concerned.
    void PostTwitch(UINT flags, CPoint point) const;
    /// Asks to be told when the mouse leaves the view.
    void WatchForLeaving() const;

    HostWindowEvents& events_;
    CWnd main_;
    HWND view_ = nullptr;
    bool inModalLoop_ = false;
};

} // namespace host
