// SPDX-License-Identifier: MIT
#pragma once

/// A length in pixels without its fraction; 0 for NaN. Lengths far beyond any view, bitmap and texture become the same limit,
/// with which sums cannot overflow: converting them as they are is undefined.
constexpr int WholePixels(double length)
{
    constexpr int limit = 1 << 24;
    return length >= limit ? limit : length <= -limit ? -limit : length == length ? static_cast<int>(length) : 0;
}
