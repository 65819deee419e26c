// SPDX-License-Identifier: MIT
#include "Language.h"

#include <KernelCommonUse/MultiLanguage.h>
#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/ParamConfig.h>

namespace host
{
namespace
{

const char* const LanguageParameter = "Language";

} // namespace

bool IsChinese()
{
    const std::string language = CParamConfig::getInstance()->getStringParam(LanguageParameter);
    return language.empty() || language.compare(0, 2, "zh") == 0;
}

const wchar_t* Say(const Words& words)
{
    return IsChinese() ? words.zh : words.en;
}

void UseLanguage(const CString& language)
{
    CParamConfig::getInstance()->setStringParam(LanguageParameter, _w2a(language));
}

CString Translation(const char* key)
{
    return CMultiLanguageMgr::GetInstance()->translation(key, "", "Common");
}

} // namespace host
