// SPDX-License-Identifier: MIT
#pragma once

#include <NxOsgCeGui/CeGuiMainFrame.h>

/// The two pictures of the property panel, written into the CEGUI resource directory from slices of
/// "new_skin/DlgPropertyTemple.png". Every refresh overwrites the same two files.
namespace PropertyPictures
{
// Layout, pixels.
constexpr int PanelWidth = 260;
constexpr int HeaderHeight = 35;
constexpr int RowHeight = 23;
constexpr int FooterHeight = 10;

/// Header with the caption, transparent body, footer.
/// @return the file's name as an imageset; empty on failure (logged)
CString WriteFrame(int panelHeight);

/// The height of a list: its rows' or the minimum, whichever is more.
int ListHeight(const CeGuiMainFrame::PropertyRows& rows, int minHeight);

/// A whole list: rows of names and values, on row backgrounds down to the picture's end.
/// @param height of the picture
/// @return the file's name as an imageset; empty on failure (logged)
CString WriteList(const CeGuiMainFrame::PropertyRows& rows, int height);

/// A stretch of a list, from a row on, into a file of its own.
/// @param part number in the file's name
CString WriteListPart(const CeGuiMainFrame::PropertyRows& rows, int firstRow, int height, int part);
} // namespace PropertyPictures
