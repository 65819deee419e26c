// SPDX-License-Identifier: MIT
#pragma once

#include <CEGUI/String.h>

#include <KernelCommonUse/StringConvert.h>

#include <string>

/// A name as CEGUI gets it: the narrow form (UTF-8), one code point a byte.
inline CEGUI::String GuiName(const CString& name)
{
    return CEGUI::String(CString2string(name));
}

/// The bytes that such a name was made of.
inline std::string NameBytes(const CEGUI::String& name)
{
    std::string bytes;
    bytes.reserve(name.length());
    for (CEGUI::String::size_type i = 0; i < name.length(); ++i)
    {
        bytes += static_cast<char>(name[i]);
    }
    return bytes;
}

/// The text that such a name was made of.
inline CString TextOfName(const CEGUI::String& name)
{
    return Utf8ToCString(NameBytes(name));
}
