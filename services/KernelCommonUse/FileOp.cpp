// SPDX-License-Identifier: MIT
#include "FileOp.h"

#include "../NxConfig/SystemUtility.h"

CString FileOp::GetAppPath()
{
    return SystemUtility::GetAppPath();
}

bool FileOp::FileExist(const CString& path)
{
    const DWORD attributes = GetFileAttributesW(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}
