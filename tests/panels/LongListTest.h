// SPDX-License-Identifier: MIT
#pragma once

#include "PanelTest.h"

/// Property lists around and above the height of the largest texture.
class LongListTest : public PanelTest
{
protected:
    /// An open list with its scroll bar.
    static void OpenScrolling(int rows);

    static int LargestTexture();

    /// The top of the list's content in its place, pixels: how far it is scrolled.
    static int Scrolled();

    /// Drags the thumb by pixels; it may be too small for the mouse to hit.
    static void Drag(float pixels);

    /// The rows that are wholly in sight look as they have to.
    static void ExpectRowsInSight(int count);
};
