// SPDX-License-Identifier: MIT
#pragma once

#include "../NxServicesExport.h"

#include <afx.h>

class NX_SERVICES_EXPORT FileOp
{
public:
    // The application directory with a trailing backslash, the same as SystemUtility::GetAppPath.
    static CString GetAppPath();

    // False for a folder, too.
    static bool FileExist(const CString& path);
};
