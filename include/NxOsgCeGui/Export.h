// SPDX-License-Identifier: MIT
#pragma once

/// What the library exports. A host that includes these headers imports it.
#if defined(_MSC_VER) || defined(__MINGW32__)
#ifdef NXOSGCEGUI_BUILD
#define NXOSGCEGUI_API __declspec(dllexport)
#else
#define NXOSGCEGUI_API __declspec(dllimport)
#endif
#else
#define NXOSGCEGUI_API __attribute__((visibility("default")))
#endif
