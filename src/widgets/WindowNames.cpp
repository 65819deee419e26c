// SPDX-License-Identifier: MIT
#include "WindowNames.h"

#include <CEGUI/PropertyHelper.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>

namespace
{
const char* const GivenName = "GivenName";

/// A name that is no other window's, unless a record has just this one.
CEGUI::String FreeName()
{
    static unsigned int count = 0;
    return "renamed window " + CEGUI::PropertyHelper<CEGUI::uint>::toString(++count);
}

void Rename(CEGUI::Window& window)
{
    window.setUserString(GivenName, WindowNames::Of(window));
    window.setName(FreeName());
}
} // namespace

namespace WindowNames
{
CEGUI::Window* Create(const char* type, const CEGUI::String& name)
{
    const bool usable = !name.empty() && name.find('/') == CEGUI::String::npos;
    CEGUI::Window* window = CEGUI::WindowManager::getSingleton().createWindow(type, usable ? name : FreeName());
    if (!usable)
    {
        window->setUserString(GivenName, name);
    }
    // What a window leaves unhandled goes to its parent, up to the root: a double click on the bare title bar is one on the
    // scene. CEGUI 0.8 leaves this to each window, and off.
    window->setMouseInputPropagationEnabled(true);
    // CEGUI squeezes windows into the display unless they say otherwise: these are laid out in pixels, and cut. 0 is no limit.
    window->setMaxSize(CEGUI::USize(CEGUI::UDim(0, 0), CEGUI::UDim(0, 0)));
    return window;
}

void AddChild(CEGUI::Window& parent, CEGUI::Window& child)
{
    Siblings siblings = SiblingsIn(parent);
    AddChild(parent, child, siblings);
}

Siblings SiblingsIn(const CEGUI::Window& parent)
{
    Siblings names;
    for (std::size_t i = 0; i < parent.getChildCount(); ++i)
    {
        names.insert(parent.getChildAtIdx(i)->getName());
    }
    return names;
}

void AddChild(CEGUI::Window& parent, CEGUI::Window& child, Siblings& siblings)
{
    while (!siblings.insert(child.getName()).second)
    {
        Rename(child);
    }
    parent.addChild(&child);
}

const CEGUI::String& Of(const CEGUI::Window& window)
{
    return window.isUserStringDefined(GivenName) ? window.getUserString(GivenName) : window.getName();
}

CEGUI::Window* Find(const CEGUI::String& name)
{
    for (auto window = CEGUI::WindowManager::getSingleton().getIterator(); !window.isAtEnd(); ++window)
    {
        if (Of(**window) == name)
        {
            return *window;
        }
    }
    return nullptr;
}

void Destroy(CEGUI::Window& window)
{
    // Its subscriptions end with it, at the next frame: this may be running in one of its slots. Until then none is called.
    window.setMutedState(true);
    if (CEGUI::Window* parent = window.getParent())
    {
        parent->removeChild(&window);
    }
    CEGUI::WindowManager::getSingleton().destroyWindow(&window);
}
} // namespace WindowNames
