// SPDX-License-Identifier: MIT
#pragma once

#include <string>

// The texts of the section "Common" that the interface and its hosts ask for, as the tables that are shipped have them: shown
// where a table or a key of it is missing.
namespace BuiltInTexts
{
// UTF-8; null when there is none for the key.
const char* Find(const std::string& key, bool chinese);
} // namespace BuiltInTexts
