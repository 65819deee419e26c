// SPDX-License-Identifier: MIT
#pragma once

#include <atlstr.h>

#include <vector>

/// The fonts that a title can be given: the screen's font families with Chinese glyphs (character set GB2312) without the
/// vertical variants and a few bitmap fonts, then the names of the application's "Fonts\*.shx" files. A family may be listed
/// more than once.
std::vector<CString> InstalledFontNames();

/// Whether a face is among them, letter by letter.
bool IsFontInstalled(const CString& faceName);
