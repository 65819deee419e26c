// SPDX-License-Identifier: MIT
#pragma once

#include "support/GTest.h"
#include "support/Gui.h"

/// How far a picture may lie from its reference, of 255 a component.
struct Tolerance
{
    int most;    ///< at any pixel
    double mean; ///< over all pixels
};

/// On failure the actual picture, the expected one and what differs lie in the current folder as NAME-actual.png,
/// NAME-expected.png and NAME-difference.png; an actual picture found to be right is the new reference.
testing::AssertionResult LooksLikeReference(const CString& actual, const CString& reference, Tolerance tolerance,
                                            const CString& name);
