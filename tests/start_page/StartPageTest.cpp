// SPDX-License-Identifier: MIT
#include "StartPageTest.h"

#include <NxConfig/SystemUtility.h>

namespace
{
// The section and the keys are the program's own words.
const char* const Ini = "\xEF\xBB\xBF[发布独立程序文字]\n标题=Riverside 2.0\n项目名称=滨江新城\n单位名称=\n";
} // namespace

StartPageTest::StartPageTest()
{
    CreateDirectoryW(AppDir() + SystemUtility::GetSysMidPath(), nullptr);
    ini_.emplace(IniFile(), Bytes(Ini));
}

StartPageTest::~StartPageTest() = default;

CString StartPageTest::Resources()
{
    return AppDir() + SystemUtility::GetResourceRelPath();
}

CString StartPageTest::IniFile()
{
    return AppDir() + SystemUtility::GetSysMidPath() + L"tavmemory.ini";
}

std::vector<std::uint8_t> StartPageTest::Bytes(const std::string& text)
{
    return std::vector<std::uint8_t>(text.begin(), text.end());
}

bool StartPageTest::Exists(const CString& path)
{
    return GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES;
}
