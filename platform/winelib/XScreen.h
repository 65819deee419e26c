// SPDX-License-Identifier: MIT
#pragma once

/// Draws a picture into an X window.
/// @param xWindow 0: nothing happens
/// @param left, top where the picture's upper left corner goes, in pixels of the window
/// @param pixels blue, green, red and one byte more each, bottom row first
void PutOnXWindow(unsigned long xWindow, int left, int top, int width, int height, const unsigned char* pixels);
