// SPDX-License-Identifier: MIT
#pragma once

#include <NxOsgCeGui/CeGuiMainFrame.h>

namespace host
{

/// The interface: one in a process, which the library owns.
inline CeGuiMainFrame& Frame()
{
    return *CeGuiMainFrame::GetInstance();
}

} // namespace host
