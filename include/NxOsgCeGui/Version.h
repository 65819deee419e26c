// SPDX-License-Identifier: MIT
#pragma once

#include <NxOsgCeGui/Export.h>

#include <windef.h>

/// The version of the library that is loaded, as "0.1.0": the CMake project's. The text lives as long as the library is loaded.
extern "C" NXOSGCEGUI_API const char* CDECL NxOsgCeGuiVersion();
