// SPDX-License-Identifier: MIT
// The installed headers, services and modules in use without a window.
#include <NxOsgCeGui/BtnUnit.h>
#include <NxOsgCeGui/Version.h>

#include <KernelCommonUse/MultiLanguage.h>
#include <KernelCommonUse/StringConvert.h>

#include <cstdio>
#include <string>

int main()
{
    const std::string title = CString2string(CMultiLanguageMgr::GetInstance()->translation("LKEY0", "none", "Common"));
    const BTN_UNIT record;
    std::printf("version %s, package %s, title %s, value %g, module %s\n", NxOsgCeGuiVersion(), PACKAGE_VERSION, title.c_str(),
                static_cast<double>(record.value), GetModuleHandleW(L"NxOsgCeGui.dll") ? "loaded" : "missing");
    const bool right = std::string(NxOsgCeGuiVersion()) == WANTED_VERSION && std::string(PACKAGE_VERSION) == WANTED_VERSION &&
                       title != "none" && record.value == -1.0f && GetModuleHandleW(L"NxOsgCeGui.dll");
    return right ? 0 : 1;
}
