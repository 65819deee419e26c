// SPDX-License-Identifier: MIT
#include "../widgets/Module.h"

namespace
{
HINSTANCE instance = nullptr;
}

HINSTANCE ModuleInstance()
{
    return instance;
}

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH)
    {
        instance = module;
        DisableThreadLibraryCalls(module);
    }
    return TRUE;
}
