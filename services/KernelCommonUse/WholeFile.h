// SPDX-License-Identifier: MIT
#pragma once

#include "../NxServicesExport.h"

#include <afx.h>

#include <string>

// A file that is written under a name of its own and gets its real name when it is complete: whoever reads it finds the former
// file or the new one, never a part. The name is the process's own, so that programs which share a directory do not write into
// each other's files, and it is short, so that any name which a file may have can be written. Without `Commit` the unfinished
// file is deleted with the object.
class NX_SERVICES_EXPORT WholeFile
{
public:
    explicit WholeFile(const CString& path);
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    // Full path to write to; it has the extension of the real name, by which an encoder may be chosen. Empty when no file can be
    // made in that folder.
    const CString& Unfinished() const;

    // False when the real name is a folder's, a write-protected file's or one that another program holds open for longer than
    // some 60 ms. The former file then stays.
    bool Commit();
    // The same, but a file that has got the real name in the meantime stays, which is a success.
    bool CommitNew();

    static bool Write(const CString& path, const std::string& bytes);
    // The copy can be written to, also where the source is write-protected.
    static bool Copy(const CString& from, const CString& to);

private:
    bool Commit(bool replace);

    CString path_;
    CString unfinished_;
};
