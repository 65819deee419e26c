// SPDX-License-Identifier: MIT
#include "Counts.h"

#include "support/NativeGl.h"

#include <platform/ProcessCounts.h>

#include <CEGUI/ImageManager.h>
#include <CEGUI/WindowManager.h>

#include <algorithm>
#include <cstdio>

namespace
{
struct Column
{
    const char* name;
    std::size_t Counts::*value;
    std::size_t allowed; ///< by which it may be higher at last
};

/// Wine keeps fonts and brushes of its own menus and dialogs, and makes them when they are first drawn.
constexpr std::size_t SystemsOwnGdi = 12;

const Column columns[] = {
    {"GDI", &Counts::gdi, SystemsOwnGdi},  {"user", &Counts::user, 0},
    {"open files", &Counts::openFiles, 0}, {"handles", &Counts::handles, 0},
    {"windows", &Counts::windows, 0},      {"images", &Counts::images, 0},
    {"textures", &Counts::textures, 0},    {"disk files", &Counts::diskFiles, 0},
};

std::size_t FilesBelow(const CString& folder)
{
    std::size_t count = 0;
    WIN32_FIND_DATAW entry;
    const HANDLE search = FindFirstFileW(folder + L"*", &entry);
    for (BOOL more = search != INVALID_HANDLE_VALUE; more; more = FindNextFileW(search, &entry))
    {
        const CString name = entry.cFileName;
        if (!(entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
        {
            ++count;
        }
        else if (name != L"." && name != L"..")
        {
            count += FilesBelow(folder + name + L"\\");
        }
    }
    if (search != INVALID_HANDLE_VALUE)
    {
        FindClose(search);
    }
    return count;
}

std::size_t LiveWindows()
{
    std::size_t count = 0;
    for (auto window = CEGUI::WindowManager::getSingleton().getIterator(); !window.isAtEnd(); ++window)
    {
        ++count;
    }
    return count;
}
} // namespace

std::string Counts::Head()
{
    std::string line = " memory KiB";
    for (const Column& column : columns)
    {
        char text[16];
        std::snprintf(text, sizeof(text), " %10s", column.name);
        line += text;
    }
    return line;
}

std::string Counts::Line() const
{
    char text[32];
    std::snprintf(text, sizeof(text), " %10lu", static_cast<unsigned long>(memory / 1024));
    std::string line = text;
    for (const Column& column : columns)
    {
        std::snprintf(text, sizeof(text), " %10lu", static_cast<unsigned long>(this->*column.value));
        line += text;
    }
    return line;
}

Counts TakeCounts(GuiHost& host)
{
    Counts counts;
    host.Frame().MakeContextCurrent();
    counts.windows = LiveWindows();
    counts.images = CEGUI::ImageManager::getSingleton().getImageCount();
    counts.textures = static_cast<std::size_t>(NativeGl::LiveTextures());
    counts.diskFiles = FilesBelow(AppDir());
    const ProcessCounts process = CountProcess();
    counts.memory = process.memory;
    counts.gdi = process.gdi;
    counts.user = process.user;
    counts.openFiles = process.openFiles;
    counts.handles = process.handles;
    return counts;
}

std::vector<std::string> Growth(const std::vector<Counts>& times, std::size_t memoryAllowed)
{
    std::vector<std::string> growth;
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    const auto look = [&](const char* name, std::size_t Counts::*value, std::size_t allowed)
    {
        const auto less = [value](const Counts& a, const Counts& b) { return a.*value < b.*value; };
        const std::size_t before = (*std::max_element(times.begin(), middle, less)).*value;
        const std::size_t last = times.back().*value;
        if (last > before + allowed)
        {
            growth.push_back(std::string(name) + ": never over " + std::to_string(before) + " at first, " + std::to_string(last) +
                             " at last");
        }
    };
    for (const Column& column : columns)
    {
        look(column.name, column.value, column.allowed);
    }
    look("memory", &Counts::memory, memoryAllowed);
    return growth;
}
