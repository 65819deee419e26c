// SPDX-License-Identifier: MIT
#pragma once

#include <CEGUI/String.h>

#include <set>

namespace CEGUI
{
class Window;
}

/// Windows by name. Names come from hosts' records, so several windows may carry the same one, and it may hold the "/" that
/// parts CEGUI's look-up paths, or be empty. CEGUI wants names of its own choosing unique among siblings; a window whose name
/// cannot stand so is renamed there and goes on being known here by the name that it was given.
namespace WindowNames
{
/// A window of a type under a name, which may be larger than the display.
/// @throws CEGUI::Exception for an unknown type
CEGUI::Window* Create(const char* type, const CEGUI::String& name);

/// Adds a window that `Create` made to a parent, whatever names the parent's children have.
void AddChild(CEGUI::Window& parent, CEGUI::Window& child);

/// The names that a window's children have among them. Each child that is added looks through all of them; who adds many
/// looks here instead.
using Siblings = std::set<CEGUI::String, CEGUI::StringFastLessCompare>;
Siblings SiblingsIn(const CEGUI::Window& parent);
/// @param siblings `SiblingsIn(parent)`, with what has been added since; the child's name joins them
void AddChild(CEGUI::Window& parent, CEGUI::Window& child, Siblings& siblings);

/// The name that the window was made under.
const CEGUI::String& Of(const CEGUI::Window& window);

/// Any window of that name, wherever it is; the one made first if there are several. Null when there is none. Walks every
/// live window: for single actions, not for every frame or mouse move.
CEGUI::Window* Find(const CEGUI::String& name);

/// Takes the window out of its parent, with all that is subscribed to it, and destroys it. A slot may destroy its own window.
void Destroy(CEGUI::Window& window);
} // namespace WindowNames
