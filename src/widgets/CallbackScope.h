// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/// Lives while functions of CEGUI, or of the viewer's traversals, are on the stack and may call code of the host: the slots of
/// CEGUI's events, and the message loops that such a slot runs.
///
/// The host may call every operation there. An operation that destroys what those functions still use (CEGUI itself, the windows
/// of the chrome, its bars) is put off until the outermost scope ends.
class CallbackScope
{
public:
    /// What is put off. Of consecutive requests of one kind only the last is carried out.
    enum class Request
    {
        Close,
        Start,
        Clear,
        Build,
        Resize
    };

    CallbackScope();
    /// The outermost scope carries out what was put off, in the order of the requests. A failure there is logged.
    ~CallbackScope();
    CallbackScope(const CallbackScope&) = delete;
    CallbackScope& operator=(const CallbackScope&) = delete;

    static bool IsActive();
    /// Whether a scope is active inside another one: a slot of the host runs a message loop or draws a frame.
    static bool IsNested();

    /// Does the work inside a scope of its own when none is active; what the work raises then reaches the caller. Else puts it
    /// off.
    /// @return whether the work is done
    static bool Run(Request request, std::function<void()> work);
};
