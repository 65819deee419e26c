// SPDX-License-Identifier: MIT
#include "GlobalEvents.h"

#include <CEGUI/EventArgs.h>
#include <CEGUI/Font.h>

namespace
{
constexpr int Lists = 256;

const CEGUI::String& FontSizes()
{
    static const CEGUI::String name = CEGUI::Font::EventNamespace + "/" + CEGUI::Font::EventRenderSizeChanged;
    return name;
}
} // namespace

GlobalEvents::GlobalEvents()
{
    for (int i = 0; i < Lists; ++i)
    {
        fontSizes_.emplace_back(FontSizes());
    }
}

void GlobalEvents::fireEvent(const CEGUI::String& name, CEGUI::EventArgs& args, const CEGUI::String& eventNamespace)
{
    // Every window tells of every window that is added beside it.
    const bool ofFonts = eventNamespace == CEGUI::Font::EventNamespace && name == CEGUI::Font::EventRenderSizeChanged;
    if (isMuted() || (d_events.empty() && !ofFonts))
    {
        return;
    }
    if (ofFonts)
    {
        for (CEGUI::Event& list : fontSizes_)
        {
            list(args);
        }
        return;
    }
    name_.assign(eventNamespace).append("/").append(name);
    if (getEventObject(name_))
    {
        GlobalEventSet::fireEvent(name, args, eventNamespace);
    }
}

CEGUI::Event::Connection GlobalEvents::subscribeEvent(const CEGUI::String& name, CEGUI::Event::Subscriber subscriber)
{
    if (name != FontSizes())
    {
        return GlobalEventSet::subscribeEvent(name, subscriber);
    }
    next_ = (next_ + 1) % fontSizes_.size();
    return fontSizes_[next_].subscribe(subscriber);
}
