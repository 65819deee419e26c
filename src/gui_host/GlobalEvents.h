// SPDX-License-Identifier: MIT
#pragma once

#include <CEGUI/Event.h>
#include <CEGUI/GlobalEventSet.h>

#include <deque>

/// CEGUI's events of all objects of a class, for as many windows as the interface has. CEGUI's own puts together a new text for
/// each event of any object, to look for those who ask for it, and every window asks for the changes of fonts: a window that
/// goes is looked for among all of them.
class GlobalEvents : public CEGUI::GlobalEventSet
{
public:
    GlobalEvents();

    void fireEvent(const CEGUI::String& name, CEGUI::EventArgs& args, const CEGUI::String& eventNamespace) override;

    using CEGUI::GlobalEventSet::subscribeEvent;
    CEGUI::Event::Connection subscribeEvent(const CEGUI::String& name, CEGUI::Event::Subscriber subscriber) override;

private:
    /// Those who ask for the sizes of fonts, in many short lists.
    std::deque<CEGUI::Event> fontSizes_;
    std::size_t next_ = 0;
    CEGUI::String name_; ///< keeps its memory from one event to the next
};
