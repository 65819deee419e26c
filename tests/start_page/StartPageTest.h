// SPDX-License-Identifier: MIT
#pragma once

#include "support/GTest.h"
#include "support/Gui.h"

#include <optional>
#include <string>

/// The start page's parameters and files, with an ini file of the test's for as long as it runs.
class StartPageTest : public testing::Test
{
protected:
    StartPageTest();
    ~StartPageTest() override;

    static CString Resources();
    static CString Background() { return Resources() + L"pics\\kwexeGuiImage.bmp"; }
    static CString Printed() { return AppDir() + L"exeFiles\\pics\\exeGuiImage.bmp"; }
    static CString IniFile();
    static std::vector<std::uint8_t> Bytes(const std::string& text);
    static bool Exists(const CString& path);

    CeGuiMainFrame& frame_ = *CeGuiMainFrame::GetInstance();
    std::optional<FileReplaced> ini_;
};
