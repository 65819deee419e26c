// SPDX-License-Identifier: MIT
#include "GTest.h"

#include <NxConfig/SystemUtility.h>

#include <afxwin.h>

#include <cstdio>
#include <iostream>

int main(int argc, char** argv)
{
    // Text of tests and library in one order with what is checked of it.
    std::cout << std::unitbuf;
    static CWinApp application;
    wchar_t folder[MAX_PATH];
    GetCurrentDirectoryW(MAX_PATH, folder);
    SystemUtility::SetAppPath(CString(folder) + L"\\app\\");
    testing::InitGoogleTest(&argc, argv);
    const int failed = RUN_ALL_TESTS();
    std::cout.flush();
    std::fflush(nullptr);
    // At once: OSG's windowing system unregisters its window classes when static objects go, and Wine, asked that late, ends
    // the process with 0, whatever has failed.
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(failed));
    return failed;
}
