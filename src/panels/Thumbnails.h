// SPDX-License-Identifier: MIT
#pragma once

#include <atlstr.h>

/// The two pictures of an entry of the left list, written into the CEGUI resource directory: "new_skin/TavGuiButtonImg%d"
/// with the entry's index, followed by "_N.bmp" (normal) and "_P.bmp" (pushed), 126 x 96 pixels.

/// The base name of an entry's pictures.
CString ThumbnailStem(UINT index);

/// Composes both pictures. Nothing is drawn and written again when caption, picture file, kind, skin files and font are what
/// they were and both files stand as they were written.
/// @param picture full path; a file that does not exist is replaced by the skin's placeholder
/// @param kind 1 gets the play mark
/// @return the base name; empty on failure (logged), when the file of the normal picture may have been written already
CString MakeThumbnail(const CString& caption, const CString& picture, UINT index, int kind);
