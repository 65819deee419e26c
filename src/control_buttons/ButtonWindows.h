// SPDX-License-Identifier: MIT
#pragma once

#include <NxOsgCeGui/BtnUnit.h>

namespace CEGUI
{
class EventArgs;
}

/// The window name of a record's entry: its name followed by "_V" for kind 1, by "_P" for every other kind.
CString EntryWindowName(const BTN_UNIT& record);

/// The click slot of every entry: makes the record current and reports it to the host. False when the click chose nothing.
bool OnControlButtonClicked(const CEGUI::EventArgs& args);
