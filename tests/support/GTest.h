// SPDX-License-Identifier: MIT
#pragma once

// GoogleTest for Winelib programs, which run on the C library of the system although they say they are Windows: with these
// macros GoogleTest would take the compiler for Visual C++.
#ifdef __WINE__
#pragma push_macro("_WIN32")
#pragma push_macro("WIN32")
#pragma push_macro("__WIN32__")
#pragma push_macro("_WIN64")
#undef _WIN32
#undef WIN32
#undef __WIN32__
#undef _WIN64
#include <gtest/gtest.h>
#pragma pop_macro("_WIN64")
#pragma pop_macro("__WIN32__")
#pragma pop_macro("WIN32")
#pragma pop_macro("_WIN32")
#else
#include <gtest/gtest.h>
#endif
