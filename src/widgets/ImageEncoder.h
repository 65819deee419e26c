// SPDX-License-Identifier: MIT
#pragma once

#include "Gdiplus.h"

#include <atlstr.h>

/// What follows the last "." of path, in lower case; empty when path is shorter than 3 characters or holds no ".".
CString GetFileExtension(const CString& path);

/// @param extension in lower case: "bmp", "jpeg", "jpg", "gif", "tiff" or "png"
/// @param mimeType set when the extension is one of these, untouched otherwise
bool GetMimeTypeByExtension(const CString& extension, CString& mimeType);

/// The installed GDI+ encoder of a MIME type.
/// @return its index among the encoders, or -1 (clsid is untouched then)
int GetEncoderClsid(const CString& mimeType, CLSID& clsid);

/// The encoder for a path's extension; false when there is none.
bool GetEncoderForPath(const CString& path, CLSID& clsid);

/// Saves a 32-bit ARGB bitmap with an encoder that `GetEncoderForPath` gave for this path. A bitmap file keeps its alpha:
/// not every GDI+ writes it, so these are written here. The file appears whole or, on failure, stays as it was; a write-protected
/// one is a failure.
bool SaveBitmap(gp::GpBitmap* bitmap, const CString& path, const CLSID& clsid);
