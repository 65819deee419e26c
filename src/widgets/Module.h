// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

/// The library's own module, whose resources hold its dialogs and menus; null until it is loaded as a module.
HINSTANCE ModuleInstance();
