// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

namespace host
{

/// A number with its thousands grouped: "12,345.60".
/// @param decimals 0 to 6
CString Figure(double value, int decimals = 0);
/// An amount of memory in the largest unit that it fills: "640 B", "12.5 KB", "3.2 MB".
CString Memory(double bytes);

} // namespace host
