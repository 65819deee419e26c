// SPDX-License-Identifier: MIT
#pragma once

#include <atlstr.h>

#include <cstdint>
#include <vector>

/// A TrueType font file under another family name.
std::vector<std::uint8_t> RenamedFont(std::vector<std::uint8_t> font, const CString& family);
