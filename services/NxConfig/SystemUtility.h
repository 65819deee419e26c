// SPDX-License-Identifier: MIT
#pragma once

#include "../NxServicesExport.h"

#include <afx.h>

// The application's directories. Every one has backslashes and ends in one, so that they are joined by plain concatenation.
// The relative ones are read from <application directory>config\directories.ini, section "Directories", keys Resource,
// CeguiResource and SysMid, at first use and again when the application directory has changed; a missing or empty key gives
// the default.
class NX_SERVICES_EXPORT SystemUtility
{
public:
    // The folder of the process's executable, or what SetAppPath named.
    static CString GetAppPath();

    // For hosts and tests whose data lie elsewhere; empty goes back to the executable's folder. All services read their files
    // anew from there at their next use.
    static void SetAppPath(const CString& path);

    // Relative to the application directory; by default "resource\", the skin's folder (the resource directory and the
    // parameter CEGUI_SkinDir, or "resource\cegui\TavLook\" without one) and "sysmid\".
    static CString GetResourceRelPath();
    static CString GetCeguiResRelPath();
    static CString GetSysMidPath();

    // The full path: another application directory may be named in place of the current one (null), and a path below the
    // directory for intermediate files, which is appended as it stands (null: none).
    static CString GetSysMidPath(const wchar_t* appPath, const wchar_t* below);

    // The name without folders and without its last extension: "c:\a\b.tar.gz" gives "b.tar". Slashes separate folders, too.
    static CString GetBaseFileTitle(const CString& path);
};
