// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// The project's sources as text.
struct SourceFile
{
    std::string path; ///< from the project's directory, with slashes
    std::vector<std::string> lines;
};

/// Every .cpp and .h below a folder of the project.
std::vector<SourceFile> SourcesIn(const std::string& folder);

/// One file of the project; without lines when it is not there.
SourceFile ReadSource(const std::string& path);

/// What a file includes in quotes.
std::vector<std::string> QuotedIncludes(const SourceFile& file);

/// An include of a file as a path from the project's directory: "a/b/c.cpp" and "../d/e.h" give "a/d/e.h".
std::string Resolve(const std::string& file, const std::string& include);

bool Exists(const std::string& path);
