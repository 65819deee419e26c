// SPDX-License-Identifier: MIT
#pragma once

#include <afx.h>

#include <string>

// A text file's bytes.
struct TextFile
{
    enum class Result
    {
        Read,
        Missing,
        TooLarge,
        Unreadable
    };

    static const unsigned int MaximumSize = 4 * 1024 * 1024;

    static Result Read(const CString& path, std::string& bytes);
};
