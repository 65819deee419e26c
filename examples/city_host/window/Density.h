// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

namespace host
{

/// Dots per inch at which a pixel of the interface is a pixel of the screen.
constexpr UINT PlainDensity = 96;

/// Has the system tell the process the monitors' true densities, instead of drawing its windows larger itself. Before the
/// process's first window.
void TakeTrueDensity();

/// Of the monitor that the window is on; where the system does not tell it, of the main one. @param window null: the main one
UINT DensityOf(HWND window);

} // namespace host
