// SPDX-License-Identifier: MIT
#pragma once

#include <atlstr.h>
#include <atltypes.h>

/// Where the tooltip's picture is written, in the CEGUI resource directory; also its name as an imageset.
constexpr const wchar_t* TooltipPictureFile = L"tavtooltipimgfile.bmp";

/// The size in pixels at which a text's tooltip is shown: 6 for each byte of the text in the ANSI code page and 12 more, by
/// 24. The picture is squeezed into it where it is larger (kept on purpose).
CSize TooltipSize(const CString& text);

/// Draws the tooltip of a text, of its first 100 characters if it has more, into its file.
/// @param maxWidth of the picture, pixels: the largest texture's; a wider one is stretched when it is shown
/// @return whether it was written; logged when not
bool WriteTooltipPicture(const CString& text, int maxWidth);
