// SPDX-License-Identifier: MIT
#pragma once

// Marks what NxMfc gives to other modules; it exists as a Winelib module only.
#if defined(__GNUC__)
#define NX_MFC_EXPORT __attribute__((visibility("default")))
#else
#define NX_MFC_EXPORT
#endif
