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

/// Rows of names and values, on row backgrounds down to the picture's end.
/// @param minHeight of the picture
/// @param height the picture's height: the rows' or the minimum, whichever is more
/// @return the file's name as an imageset; empty on failure (logged)
CString WriteList(const CeGuiMainFrame::PropertyRows& rows, int minHeight, int& height);
} // namespace PropertyPictures
