// SPDX-License-Identifier: MIT
#pragma once

#include "GuiMessage.h"
#include "Language.h"

namespace host
{

class Actions;

/// What the host does on one code of the interface's message.
struct Command
{
    UINT code;
    Words name;
    /// What came of it, to be shown; empty: nothing worth a word. Null: the host only shows that it was received.
    CString (Actions::*act)(const GuiMessage& message);
};

/// Null for a code that the interface is not known to send.
const Command* FindCommand(UINT code);

/// A key that is the host's own, not the interface's.
struct HostKey
{
    UINT virtualKey;
    Words name;
    CString (Actions::*act)(const GuiMessage& message);
};

const HostKey* FindHostKey(UINT virtualKey);

} // namespace host
