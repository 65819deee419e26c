// SPDX-License-Identifier: MIT
#pragma once

#include <afx.h>

#include <string>
#include <vector>

// An application directory of a test's own. While it lives the services read from it and their log lines
// are collected; what is in it goes with it.
class TestFolder
{
public:
    explicit TestFolder(const CString& name = L"nx");
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    // False where the file system's own code page cannot hold the name.
    bool Exists() const;

    // With a trailing backslash.
    const CString& Path() const { return path_; }

    // The name is relative, with backslashes, and at most one folder deep.
    CString Write(const CString& name, const std::string& bytes);

    // What has been logged since the last call.
    static std::vector<std::string> TakeLog();

private:
    CString path_;
    std::vector<CString> files_;
    std::vector<CString> folders_;
};

std::string Utf8(const CString& text);

// The bytes of a literal, nulls in it included.
template <std::size_t Size>
std::string Bytes(const char (&literal)[Size])
{
    return std::string(literal, Size - 1);
}
