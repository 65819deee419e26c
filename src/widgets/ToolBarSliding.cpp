// SPDX-License-Identifier: MIT
// A bar that hides when the mouse leaves it, at once or sliding out, and comes back.
#include "CeGuiToolBar.h"

#include <CEGUI/Window.h>

#include <algorithm>
#include <cmath>

namespace
{
constexpr UINT_PTR HideTimer = 2022;
/// One tick of the animation's clock: the single-precision 0.1, so that clock and keyframes add up alike.
constexpr double Tick = 0.1f;
constexpr double Tolerance = 1e-6;

bool Same(double a, double b)
{
    return std::fabs(a - b) <= Tolerance;
}

bool Contains(const RECT& rect, CPoint point)
{
    return PtInRect(&rect, point) != FALSE;
}
} // namespace

void CeGuiToolBar::AutoHideByMouse(CPoint point)
{
    if (!autoHide || !window)
    {
        return;
    }
    if (window->isVisible())
    {
        const RECT hot = {std::min(rect.left, triggerRect.left), std::min(rect.top, triggerRect.top),
                          std::max(rect.right, triggerRect.right), std::max(rect.bottom, triggerRect.bottom)};
        if (!Contains(hot, point) && !dragging)
        {
            StartHideAnimation(slideOnHide);
        }
        return;
    }
    if (!Contains(triggerRect, point))
    {
        showArmed = true;
        return;
    }
    if (showArmed)
    {
        EndSlide();
        MoveWindow(rect.left, rect.top);
        if (window)
        {
            window->show();
        }
    }
}

void CeGuiToolBar::SetAutoHide(bool hide)
{
    if (autoHide != hide)
    {
        autoHide = hide;
        EndSlide();
    }
}

void CeGuiToolBar::SetSlideOnHide(bool slide)
{
    if (slideOnHide != slide)
    {
        slideOnHide = slide;
        EndSlide();
    }
}

void CeGuiToolBar::MoveWindow(int x, int y)
{
    if (window)
    {
        window->setPosition(CEGUI::UVector2(CEGUI::UDim(static_cast<float>(x) / static_cast<float>(screenWidth), 0),
                                            CEGUI::UDim(static_cast<float>(y) / static_cast<float>(screenHeight), 0)));
    }
}

void CeGuiToolBar::EndSlide()
{
    animating = false;
    animClock = 0.0;
    if (home_ && window)
    {
        window->setPosition(*home_);
    }
    home_.reset();
}

void CeGuiToolBar::StartHideAnimation(bool start)
{
    if (!start)
    {
        HideBar();
        return;
    }
    animating = true;
    if (window && !home_)
    {
        home_ = window->getPosition();
    }
    keyframes.clear();
    for (double t = Tick; t - 1.0 <= Tolerance; t += Tick)
    {
        keyframes.emplace_back(t, std::log10(t + 1) / std::log10(2.0));
    }
}

void CeGuiToolBar::OnHideTimer(UINT_PTR timerId)
{
    if (!autoHide || !slideOnHide || !animating || timerId != HideTimer || !window)
    {
        return;
    }
    animClock += Tick;
    for (const auto& [time, fraction] : keyframes)
    {
        if (!Same(time, animClock))
        {
            continue;
        }
        int x = rect.left;
        int y = rect.top;
        switch (barType)
        {
        case BAR_TITLE:
            y = static_cast<int>(rect.top - Height() * fraction);
            break;
        case BAR_TOOLS:
            y = static_cast<int>(rect.top + Height() * fraction);
            break;
        case BAR_LIST:
            x = static_cast<int>(rect.left - Width() * fraction);
            break;
        default:
            continue;
        }
        if (barType == BAR_LIST && std::abs(x) > Width())
        {
            break;
        }
        MoveWindow(x, y);
    }
    if (Same(animClock, 1.0))
    {
        // The window stays where it has gone: it is at home again before it is shown.
        animating = false;
        animClock = 0.0;
        HideWindow();
    }
}
