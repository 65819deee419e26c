// SPDX-License-Identifier: MIT
#include "WholeFile.h"

#include "FileOp.h"

#include <algorithm>

namespace
{
const int MaxNames = 1000;
// An extension that is longer belongs to no kind of file that is known by it.
const int MaxExtension = 8;
// Another program reads the former file, or is just replacing it itself: waits of 1, 2, 4, 8, 16 and 32 ms.
const DWORD LongestWait = 32;

// Made with the call, so that no other process can take the same name, be it on another machine or under another kernel.
bool Reserve(const CString& file)
{
    const HANDLE made = CreateFileW(file, GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (made != INVALID_HANDLE_VALUE)
    {
        CloseHandle(made);
    }
    return made != INVALID_HANDLE_VALUE;
}

CString ReserveBeside(const CString& path)
{
    static LONG last = 0;
    const int folderEnd = std::max(path.ReverseFind(L'\\'), path.ReverseFind(L'/')) + 1;
    const int dot = path.ReverseFind(L'.');
    const bool known = dot >= folderEnd && path.GetLength() - dot <= MaxExtension;
    for (int i = 0; i < MaxNames; ++i)
    {
        CString file;
        file.Format(L"%s~%x-%x.part%s", path.Left(folderEnd).GetString(), static_cast<unsigned>(GetCurrentProcessId()),
                    static_cast<unsigned>(InterlockedIncrement(&last)), known ? path.Mid(dot).GetString() : L"");
        if (Reserve(file))
        {
            return file;
        }
        const DWORD error = GetLastError();
        // A folder of that name gives the second one.
        if (error != ERROR_FILE_EXISTS && error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION)
        {
            break;
        }
        if (GetFileAttributesW(file) == INVALID_FILE_ATTRIBUTES)
        {
            break;
        }
    }
    return CString();
}

// What the system itself does not refuse everywhere.
bool MayBeReplaced(const CString& path)
{
    const DWORD attributes = GetFileAttributesW(path);
    return attributes == INVALID_FILE_ATTRIBUTES || !(attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY));
}
} // namespace

WholeFile::WholeFile(const CString& path) : path_(path), unfinished_(path.IsEmpty() ? CString() : ReserveBeside(path)) {}

WholeFile::~WholeFile()
{
    if (!unfinished_.IsEmpty())
    {
        DeleteFileW(unfinished_);
    }
}

const CString& WholeFile::Unfinished() const
{
    return unfinished_;
}

bool WholeFile::Commit()
{
    return Commit(true);
}

bool WholeFile::CommitNew()
{
    return Commit(false) || FileOp::FileExist(path_);
}

bool WholeFile::Commit(bool replace)
{
    if (unfinished_.IsEmpty() || (replace && !MayBeReplaced(path_)))
    {
        return false;
    }
    for (DWORD wait = 1;; wait *= 2)
    {
        if (MoveFileExW(unfinished_, path_, replace ? MOVEFILE_REPLACE_EXISTING : 0))
        {
            unfinished_.Empty();
            return true;
        }
        const DWORD error = GetLastError();
        if ((error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION) || wait > LongestWait)
        {
            return false;
        }
        Sleep(wait);
    }
}

bool WholeFile::Write(const CString& path, const std::string& bytes)
{
    WholeFile whole(path);
    const HANDLE file = CreateFileW(whole.Unfinished(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
    {
        return false;
    }
    DWORD written = 0;
    const bool complete =
        WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) && written == bytes.size();
    CloseHandle(file);
    return complete && whole.Commit();
}

bool WholeFile::Copy(const CString& from, const CString& to)
{
    WholeFile whole(to);
    if (whole.Unfinished().IsEmpty() || !CopyFileW(from, whole.Unfinished(), FALSE))
    {
        return false;
    }
    SetFileAttributesW(whole.Unfinished(), FILE_ATTRIBUTE_NORMAL);
    return whole.Commit();
}
