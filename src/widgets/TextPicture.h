// SPDX-License-Identifier: MIT
#pragma once

#include <atlstr.h>
#include <atltypes.h>

/// Texts are drawn with GDI+ into picture files, which are then shown as file imagesets. Font names are GDI+ family names,
/// heights are em heights in pixels, colours are COLORREF (0x00BBGGRR).

/// Draws text into a new picture file of width x height pixels, on full transparency. The kind of file follows the path's
/// extension. A family that is not installed, and a height of 0 or of more than `ImageSizeGuard::LongestSide`, yields a picture
/// without text, which is not a failure but logged.
/// @return whether the file was saved; on failure (logged), as for a size that `ImageSizeGuard` refuses, a file that was there
/// stays as it was
bool DrawTextToImageFile(const CString& path, UINT width, UINT height, const CString& fontName, UINT fontHeight, COLORREF color,
                         const CString& text);

/// The same into "NAME.bmp" in the application's CEGUI resource directory.
/// @return the file's bare name, which is its name as an imageset; empty on failure
CString CreateTextImageFile(UINT width, UINT height, const CString& name, const CString& text, UINT fontHeight,
                            const CString& fontName, COLORREF color);

/// The text's box at 16 pixels as (0, 0, width, height), whatever height it is drawn at later (kept on purpose). Empty when
/// family or text is empty.
void MeasureTextSize(RECT& rect, const CString& fontName, const CString& text);

/// The text's box at fontHeight pixels, as titles are measured. 0 x 0 when family or text is empty.
CSize MeasureTextExtent(const CString& fontName, int fontHeight, const CString& text);
