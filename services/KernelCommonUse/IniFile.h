// SPDX-License-Identifier: MIT
#pragma once

#include "../NxServicesExport.h"

#include <afx.h>

// Values of an ini file in the ANSI code page, UTF-8 (with or without byte order mark) or UTF-16 with a mark; see IniReader for
// what a file may hold and what is logged.
class NX_SERVICES_EXPORT CIniFile
{
public:
    CIniFile();
    ~CIniFile();
    CIniFile(const CIniFile&) = delete;
    CIniFile& operator=(const CIniFile&) = delete;

    // The file is read at the first question after this, and not again until the next SetPath.
    void SetPath(const CString& path);

    // Without blanks around it; empty when there is no such file, section or key.
    CString GetKeyValue(const CString& section, const CString& key);

private:
    struct State;
    // A bare pointer, since a smart one would not cross a module's border with its class.
    State* state_;
};
