// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

namespace host
{

/// A text of the host in both of its languages.
struct Words
{
    const wchar_t* zh;
    const wchar_t* en;
};

bool IsChinese();
/// The text in the interface's language.
const wchar_t* Say(const Words& words);

/// "zh-CN" or "en", for this process. What the interface shows already stays as it is.
void UseLanguage(const CString& language);

/// A text of the translation table, such as "LKEY0".
CString Translation(const char* key);

} // namespace host
