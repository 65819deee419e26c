// SPDX-License-Identifier: MIT
#pragma once

#include <NxOsgCeGui/CeGuiMainFrame.h>

#include <memory>

class CeGuiToolBar;

/// A list of properties that is too tall for one texture. Its item keeps the whole height, so that scrolling counts as ever,
/// and shows no picture of its own: two windows in it show the stretches that are in sight, drawn when they come there.

/// Whether a picture of this height (pixels) exceeds the renderer's largest texture.
bool IsTallList(int height);

/// Writes what is in sight of a list at its top.
/// @param height of the whole list, pixels
/// @param place height of what is in sight, pixels
/// @return the file's name as an imageset; empty on failure (logged)
CString WriteTallListTop(const CeGuiMainFrame::PropertyRows& rows, int height, int place);

/// Shows the list in item 0, which has its place already: the top, and other stretches of these rows as they are scrolled to.
/// Nothing when the item's window is gone.
/// @param top what `WriteTallListTop` has written
void ShowTallList(CeGuiToolBar& list, const CString& top, std::shared_ptr<const CeGuiMainFrame::PropertyRows> rows, int height);

/// Takes away what `ShowTallList` has put into item 0.
void RemoveTallList(CeGuiToolBar& list);
