// SPDX-License-Identifier: MIT
#include "GTest.h"

#include <NxConfig/SystemUtility.h>

#include <afxwin.h>

#include <cstdlib>
#include <iostream>

namespace
{
/// Where a run is to fill memory that is allocated (NX_POISONED has the byte's complement), whether that happens.
bool IsPoisonedAsAsked()
{
    const char* const poison = std::getenv("NX_POISONED");
    if (!poison)
    {
        return true;
    }
    constexpr std::size_t size = 100;
    auto* const bytes = static_cast<unsigned char*>(std::malloc(size));
    // The compiler may not know that nobody has written there.
    const volatile unsigned char* const fresh = bytes;
    const int seen = fresh[size / 2];
    std::free(bytes);
    return seen == (~std::atoi(poison) & 255);
}
} // namespace

int main(int argc, char** argv)
{
    if (!IsPoisonedAsAsked())
    {
        std::cerr << "memory is not filled, though NX_POISONED is set" << std::endl;
        return 1;
    }
    // Text of tests and library in one order with what is checked of it.
    std::cout << std::unitbuf;
    static CWinApp application;
    wchar_t folder[MAX_PATH];
    GetCurrentDirectoryW(MAX_PATH, folder);
    SystemUtility::SetAppPath(CString(folder) + L"\\app\\");
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
