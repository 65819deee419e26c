// SPDX-License-Identifier: MIT
#pragma once

#include "Gdiplus.h"

#include <atlstr.h>

/// A picture file of the skin that others are composed of, decoded once until the file changes.
/// @return null when the file is missing or no picture; valid until the next call for the same file
gp::GpBitmap* DecodedPicture(const CString& path);
