// SPDX-License-Identifier: MIT
#pragma once

#if defined(_MSC_VER) || defined(__MINGW32__)
#ifdef NX_SERVICES_BUILD
#define NX_SERVICES_EXPORT __declspec(dllexport)
#else
#define NX_SERVICES_EXPORT __declspec(dllimport)
#endif
#else
#define NX_SERVICES_EXPORT __attribute__((visibility("default")))
#endif
