// SPDX-License-Identifier: MIT
#include <NxOsgCeGui/StaPage.h>

#include <KernelCommonUse/IniFile.h>
#include <KernelCommonUse/MultiLanguage.h>
#include <NxConfig/SystemUtility.h>

namespace
{
const wchar_t* const IniName = L"tavmemory.ini";
const wchar_t* const Section = L"发布独立程序文字";

/// The built-in texts go through the ANSI code page, as a narrow literal assigned to a CString does: they read well only
/// where that is UTF-8, or where the ini file supplies the texts. Kept on purpose.
CString BuiltIn(const char* utf8)
{
    return CString(utf8);
}

void Read(CIniFile& ini, const wchar_t* key, CString& field)
{
    if (!ini.GetKeyValue(Section, key).IsEmpty())
    {
        field = ini.GetKeyValue(Section, key);
    }
}

CString InterfaceFont()
{
    return CMultiLanguageMgr::GetInstance()->translation("LKEY11", "", "Common");
}
} // namespace

STAPAGE::STAPAGE()
    : title(BuiltIn("QendraQMV城市设计软件V2.0发布")), projectName(BuiltIn("某某项目仿真效果发布")),
      unitName(BuiltIn("某某设计集团有限公司")), titleColor(0), projectColor(0xFFFFFF), unitColor(0xFFFFFF),
      titleFont(InterfaceFont()), projectFont(InterfaceFont()), unitFont(InterfaceFont()), titleSize(13), projectSize(30),
      unitSize(18), firstFlag(false), secondFlag(true), thirdFlag(false)
{
    CIniFile ini;
    ini.SetPath(SystemUtility::GetAppPath() + SystemUtility::GetSysMidPath() + IniName);
    Read(ini, L"标题", title);
    Read(ini, L"项目名称", projectName);
    Read(ini, L"单位名称", unitName);
}

STAPAGE::STAPAGE(const STAPAGE&) = default;
STAPAGE& STAPAGE::operator=(const STAPAGE&) = default;
STAPAGE::~STAPAGE() = default;
