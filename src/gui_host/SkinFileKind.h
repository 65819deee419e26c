// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// The kinds of XML files that a skin is made of, told by their names' endings: schemes, imagesets, looks and fonts.
namespace SkinFileKind
{
bool IsXml(const std::string& file);

/// What keeps a file from being of the kind that its name says: another root element, which CEGUI's readers do not stand.
/// Empty for any other file, and for one that is no XML at all, which CEGUI tells with the line.
std::string Mismatch(const std::string& file, std::string_view bytes);
} // namespace SkinFileKind
