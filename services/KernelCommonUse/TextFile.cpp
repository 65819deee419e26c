// SPDX-License-Identifier: MIT
#include "TextFile.h"

TextFile::Result TextFile::Read(const CString& path, std::string& bytes)
{
    bytes.clear();
    // A file that somebody else is just writing can still be read.
    const HANDLE file = CreateFileW(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
    {
        const DWORD error = GetLastError();
        const bool missing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND || error == ERROR_INVALID_NAME;
        return missing ? Result::Missing : Result::Unreadable;
    }
    LARGE_INTEGER size = {};
    Result result = GetFileSizeEx(file, &size) ? Result::Read : Result::Unreadable;
    if (result == Result::Read && size.QuadPart > MaximumSize)
    {
        result = Result::TooLarge;
    }
    if (result == Result::Read)
    {
        bytes.resize(static_cast<std::size_t>(size.QuadPart));
        DWORD read = 0;
        if (!ReadFile(file, &bytes[0], static_cast<DWORD>(bytes.size()), &read, nullptr))
        {
            result = Result::Unreadable;
        }
        bytes.resize(read);
    }
    CloseHandle(file);
    return result;
}
