// SPDX-License-Identifier: MIT
#pragma once

#include "../NxServicesExport.h"

#include <afx.h>

#include <string>

// None of these fails: what the target code page cannot hold becomes its substitute character (a question mark), what is not
// valid UTF-8 becomes U+FFFD. Nulls inside the text are kept.

// UTF-8.
NX_SERVICES_EXPORT std::string CString2string(const CString& text);
NX_SERVICES_EXPORT CString Utf8ToCString(const std::string& utf8);

// UTF-8 to the ANSI code page.
NX_SERVICES_EXPORT std::string strUtf8ToAnsi(const std::string& utf8);

// The ANSI code page to UTF-16, and back.
NX_SERVICES_EXPORT CString _a2w(const std::string& ansi);
NX_SERVICES_EXPORT std::string _w2a(const CString& text);
