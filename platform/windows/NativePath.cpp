// SPDX-License-Identifier: MIT
#include "../NativePath.h"

#include <KernelCommonUse/StringConvert.h>

std::string NativePath(const CString& path)
{
    return CString2string(path);
}
