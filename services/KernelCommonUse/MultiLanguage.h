// SPDX-License-Identifier: MIT
#pragma once

#include "../NxServicesExport.h"

#include <afx.h>

#include <string>

// Texts of the interface in the language that the parameter "Language" of CParamConfig names ("zh-CN" when it is empty), from
// the table <application directory>languages\<Language>.ini. The table is read at the first question, and again whenever the
// language or the application directory has changed. A table that is missing or refused is logged once, and so is each key that
// a table lacks. For the interface's thread only.
class NX_SERVICES_EXPORT CMultiLanguageMgr
{
public:
    // Never null; lives as long as the process.
    static CMultiLanguageMgr* GetInstance();

    // Whether a language may be the name of a table: one that holds no folder.
    static bool IsTableName(const CString& language);

    // All arguments are UTF-8. Without the key in that section: the default text; when that is empty the built-in text, Chinese
    // for languages that begin with "zh" and English for all others; for a key without one the key itself.
    CString translation(const std::string& key, const std::string& defaultText, const std::string& section);

private:
    CMultiLanguageMgr() = default;
};
