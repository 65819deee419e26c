// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/// The one place where the library starts message loops of its own: popup menus and message boxes.
///
/// Such a loop hands on messages of the host, which may then end the interface, size the view, draw frames or destroy its viewer.
/// Functions of CEGUI or of the viewer must not be on the stack meanwhile.
namespace MessageLoops
{
/// Calls `loop`: at once when no `CallbackScope` is active, else when the host's message loop hands on the message that this
/// posts to the calling thread. A failure that it raises in the latter case is logged.
void Run(std::function<void()> loop);

/// Calls `call` when the host's message loop hands on its next messages.
void Post(std::function<void()> call);
} // namespace MessageLoops
