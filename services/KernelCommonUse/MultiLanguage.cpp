// SPDX-License-Identifier: MIT
#include "MultiLanguage.h"

#include "../NxConfig/AppPath.h"
#include "../NxConfig/ParamConfig.h"
#include "../NxConfig/SystemUtility.h"
#include "IniReader.h"
#include "ServiceLog.h"
#include "StringConvert.h"

namespace
{
struct Table
{
    CString path;
    unsigned int generation = 0;
    IniReader reader;
};

CString CurrentLanguage()
{
    const CString language = _a2w(CParamConfig::getInstance()->getStringParam("Language"));
    return language.IsEmpty() ? CString(L"zh-CN") : language;
}

const IniReader& CurrentTable()
{
    static Table table;
    const CString path = SystemUtility::GetAppPath() + L"languages\\" + CurrentLanguage() + L".ini";
    if (path != table.path || table.generation != AppPathGeneration())
    {
        table.path = path;
        table.generation = AppPathGeneration();
        if (table.reader.Read(path, IniReader::Encoding::Utf8) == IniReader::Result::Missing)
        {
            ServiceLog("The language table " + CString2string(path) + " is missing; the built-in texts are shown.");
        }
    }
    return table.reader;
}
} // namespace

CMultiLanguageMgr* CMultiLanguageMgr::GetInstance()
{
    static CMultiLanguageMgr instance;
    return &instance;
}

CString CMultiLanguageMgr::translation(const std::string& key, const std::string& defaultText, const std::string& section)
{
    if (const CString* text = CurrentTable().Find(Utf8ToCString(section), Utf8ToCString(key)))
    {
        return *text;
    }
    return Utf8ToCString(defaultText.empty() ? key : defaultText);
}
