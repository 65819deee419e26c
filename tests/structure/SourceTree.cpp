// SPDX-License-Identifier: MIT
#include "SourceTree.h"

#include <windows.h>

#include <fstream>
#include <sstream>

namespace
{
std::string Full(const std::string& path)
{
    return std::string(NX_SOURCE_DIR) + "/" + path;
}

bool EndsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}
} // namespace

SourceFile ReadSource(const std::string& path)
{
    SourceFile file = {path, {}};
    std::ifstream stream(Full(path));
    for (std::string line; std::getline(stream, line);)
    {
        if (!line.empty() && line.back() == '\r')
        {
            line.pop_back();
        }
        file.lines.push_back(line);
    }
    return file;
}

std::vector<SourceFile> SourcesIn(const std::string& folder)
{
    std::vector<SourceFile> files;
    WIN32_FIND_DATAA entry;
    const HANDLE search = FindFirstFileA((Full(folder) + "/*").c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE)
    {
        return files;
    }
    do
    {
        const std::string name = entry.cFileName;
        const std::string path = folder + "/" + name;
        if (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
        {
            if (name != "." && name != "..")
            {
                const std::vector<SourceFile> below = SourcesIn(path);
                files.insert(files.end(), below.begin(), below.end());
            }
        }
        else if (EndsWith(name, ".cpp") || EndsWith(name, ".h"))
        {
            files.push_back(ReadSource(path));
        }
    } while (FindNextFileA(search, &entry));
    FindClose(search);
    return files;
}

std::vector<std::string> QuotedIncludes(const SourceFile& file)
{
    std::vector<std::string> includes;
    for (const std::string& line : file.lines)
    {
        std::istringstream words(line);
        std::string word;
        words >> word;
        if (word == "#")
        {
            words >> word;
            word = "#" + word;
        }
        if (word.rfind("#include", 0) != 0)
        {
            continue;
        }
        const std::size_t open = line.find('"');
        const std::size_t close = line.rfind('"');
        if (open != std::string::npos && close > open)
        {
            includes.push_back(line.substr(open + 1, close - open - 1));
        }
    }
    return includes;
}

std::string Resolve(const std::string& file, const std::string& include)
{
    std::vector<std::string> parts;
    std::istringstream path(file.substr(0, file.rfind('/')) + "/" + include);
    for (std::string part; std::getline(path, part, '/');)
    {
        if (part == ".." && !parts.empty())
        {
            parts.pop_back();
        }
        else if (part != ".")
        {
            parts.push_back(part);
        }
    }
    std::string resolved;
    for (const std::string& part : parts)
    {
        resolved += (resolved.empty() ? "" : "/") + part;
    }
    return resolved;
}

bool Exists(const std::string& path)
{
    return GetFileAttributesA(Full(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}
