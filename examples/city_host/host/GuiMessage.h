// SPDX-License-Identifier: MIT
#pragma once

#include <NxOsgCeGui/BtnUnit.h>

#include <optional>

namespace host
{

/// The interface's message as it came in, with a copy of what it pointed at: the interface may change its list before the
/// host acts.
struct GuiMessage
{
    UINT code = 0;
    std::optional<BTN_UNIT> button;
};

} // namespace host
