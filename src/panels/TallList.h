// SPDX-License-Identifier: MIT
#pragma once

#include <NxOsgCeGui/CeGuiMainFrame.h>

class CeGuiToolBar;

/// A list of properties that is too tall for one texture. Its item keeps the whole height, so that scrolling counts as ever,
/// and shows no picture of its own: two windows in it show the stretches that are in sight, drawn when they come there.

/// Whether a picture of this height (pixels) exceeds the renderer's largest texture.
bool IsTallList(int height);

/// Fills the list's item 0, which has its place already. The rows have to outlast the item or the next call.
void ShowTallList(CeGuiToolBar& list, const CeGuiMainFrame::PropertyRows& rows, int height);

/// Takes away what `ShowTallList` has put into item 0.
void RemoveTallList(CeGuiToolBar& list);
