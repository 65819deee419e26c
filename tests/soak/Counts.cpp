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
};

const Column columns[] = {
    {"GDI", &Counts::gdi},
    {"user", &Counts::user},
    {"open files", &Counts::openFiles},
    {"handles", &Counts::handles},
    {"windows", &Counts::windows},
    {"images", &Counts::images},
    {"textures", &Counts::textures},
    {"disk files", &Counts::diskFiles},
};

/// The middle of the slopes between samples of one script, a round.
double Slope(const std::vector<Sample>& samples, std::size_t Counts::*value)
{
    std::vector<double> slopes;
    for (std::size_t later = 0; later < samples.size(); ++later)
    {
        for (std::size_t earlier = 0; earlier < later; ++earlier)
        {
            if (samples[earlier].script == samples[later].script)
            {
                const auto count = [&](std::size_t i) { return static_cast<double>(samples[i].counts.*value); };
                slopes.push_back((count(later) - count(earlier)) / static_cast<double>(later - earlier));
            }
        }
    }
    // Of two in the middle the smaller one: half of the slopes are no growth yet.
    const auto middle = slopes.begin() + static_cast<std::ptrdiff_t>((slopes.size() - 1) / 2);
    std::nth_element(slopes.begin(), middle, slopes.end());
    return *middle;
}

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

std::vector<std::string> Growth(const std::vector<Sample>& samples, double memoryAllowed)
{
    std::vector<std::string> growth;
    const auto look = [&](const char* name, std::size_t Counts::*value, double allowed)
    {
        const double slope = Slope(samples, value);
        if (slope > allowed)
        {
            char text[64];
            std::snprintf(text, sizeof(text), "%s: %g more a round", name, slope);
            growth.emplace_back(text);
        }
    };
    for (const Column& column : columns)
    {
        look(column.name, column.value, 0);
    }
    look("memory", &Counts::memory, memoryAllowed);
    return growth;
}

std::vector<std::vector<Sample>> WithLeaks(const std::vector<Sample>& samples, double objects, double memory)
{
    const auto leaking = [&](std::size_t Counts::*value, double left)
    {
        std::vector<Sample> leaky = samples;
        for (std::size_t i = 0; i < leaky.size(); ++i)
        {
            leaky[i].counts.*value += static_cast<std::size_t>(left * static_cast<double>(i));
        }
        return leaky;
    };
    std::vector<std::vector<Sample>> all;
    for (const Column& column : columns)
    {
        all.push_back(leaking(column.value, objects));
    }
    all.push_back(leaking(&Counts::memory, memory));
    return all;
}
