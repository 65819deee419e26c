// SPDX-License-Identifier: MIT
#include "MultiLanguage.h"

#include "../NxConfig/AppPath.h"
#include "../NxConfig/ParamConfig.h"
#include "../NxConfig/SystemUtility.h"
#include "BuiltInTexts.h"
#include "IniReader.h"
#include "ServiceLog.h"
#include "StringConvert.h"

#include <set>
#include <string>

namespace
{
// A file that names thousands of keys must not fill the log.
const std::size_t MaxKeysReported = 100;

struct Table
{
    CString language;
    CString path;
    unsigned int generation = 0;
    bool isThere = false;
    IniReader reader;
    std::set<std::string> missing; // keys that have been reported
};

CString CurrentLanguage()
{
    const CString language = _a2w(CParamConfig::getInstance()->getStringParam("Language"));
    return language.IsEmpty() ? CString(L"zh-CN") : language;
}

void Read(Table& table)
{
    table.reader = IniReader();
    table.missing.clear();
    table.isThere = false;
    if (!CMultiLanguageMgr::IsTableName(table.language))
    {
        ServiceLog("The language \"" + CString2string(table.language) +
                   "\" is not the name of a table; the built-in texts are shown.");
        return;
    }
    switch (table.reader.Read(table.path, IniReader::Encoding::Utf8))
    {
    case IniReader::Result::Read:
        table.isThere = true;
        break;
    case IniReader::Result::Missing:
        ServiceLog("The language table " + CString2string(table.path) + " is missing; the built-in texts are shown.");
        break;
    case IniReader::Result::Refused:
        break;
    }
}

Table& CurrentTable()
{
    static Table table;
    const CString language = CurrentLanguage();
    const CString path = SystemUtility::GetAppPath() + L"languages\\" + language + L".ini";
    if (path != table.path || table.generation != AppPathGeneration())
    {
        table.language = language;
        table.path = path;
        table.generation = AppPathGeneration();
        Read(table);
    }
    return table;
}

// A table that is missing as a whole has been reported, and its texts are the built-in ones.
void ReportMissing(Table& table, const std::string& key, bool hasBuiltIn)
{
    if (key.empty() || (hasBuiltIn && !table.isThere) || table.missing.size() >= MaxKeysReported ||
        !table.missing.insert(key).second)
    {
        return;
    }
    ServiceLog("The language table " + CString2string(table.path) + " has no text for " + key + "; the " +
               (hasBuiltIn ? "built-in text" : "key itself") + " is shown.");
}
} // namespace

CMultiLanguageMgr* CMultiLanguageMgr::GetInstance()
{
    static CMultiLanguageMgr instance;
    return &instance;
}

bool CMultiLanguageMgr::IsTableName(const CString& language)
{
    for (const wchar_t* unit = L"\\/:*?\"<>|"; *unit; ++unit)
    {
        if (language.Find(*unit) >= 0)
        {
            return false;
        }
    }
    return !language.IsEmpty();
}

CString CMultiLanguageMgr::translation(const std::string& key, const std::string& defaultText, const std::string& section)
{
    Table& table = CurrentTable();
    if (const CString* text = table.reader.Find(Utf8ToCString(section), Utf8ToCString(key)))
    {
        return *text;
    }
    if (!defaultText.empty())
    {
        return Utf8ToCString(defaultText);
    }
    const bool chinese = table.language.Left(2).CompareNoCase(L"zh") == 0;
    const char* const builtIn = section == "Common" ? BuiltInTexts::Find(key, chinese) : nullptr;
    ReportMissing(table, key, builtIn != nullptr);
    return Utf8ToCString(builtIn ? builtIn : key);
}
