// SPDX-License-Identifier: MIT
// Families that are there on every machine that runs the tests.
#pragma once

inline constexpr const wchar_t* Latin = L"DejaVu Sans";
inline constexpr const wchar_t* Chinese = L"Noto Sans CJK SC";
