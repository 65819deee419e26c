// SPDX-License-Identifier: MIT
#include "GTest.h"

#include <NxConfig/SystemUtility.h>

#include <afxwin.h>

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
    return RUN_ALL_TESTS();
}
