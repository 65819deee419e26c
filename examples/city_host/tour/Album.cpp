// SPDX-License-Identifier: MIT
#include "Album.h"

#include "Png.h"

#include <KernelCommonUse/StringConvert.h>

#include <cstdio>
#include <stdexcept>

namespace host
{
namespace
{

/// FNV-1a over size and pixels.
std::uint64_t Hash(const osg::Image& picture)
{
    std::uint64_t hash = 14695981039346656037ull;
    const auto add = [&hash](unsigned char byte) { hash = (hash ^ byte) * 1099511628211ull; };
    for (const int number : {picture.s(), picture.t()})
    {
        add(static_cast<unsigned char>(number));
        add(static_cast<unsigned char>(number >> 8));
    }
    for (unsigned int i = 0; i < picture.getTotalSizeInBytes(); ++i)
    {
        add(picture.data()[i]);
    }
    return hash;
}

/// Makes every folder of a path that is not there yet.
bool MakeFolders(const CString& path)
{
    const DWORD attributes = GetFileAttributesW(path);
    if (attributes != INVALID_FILE_ATTRIBUTES)
    {
        return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    }
    const int parentEnd = path.ReverseFind(L'\\');
    return (parentEnd <= 0 || MakeFolders(path.Left(parentEnd))) && CreateDirectoryW(path, nullptr);
}

std::string Escaped(const std::string& text, const std::map<char, std::string>& escapes)
{
    std::string result;
    for (const char unit : text)
    {
        const auto escape = escapes.find(unit);
        result += escape == escapes.end() ? std::string(1, unit) : escape->second;
    }
    return result;
}

std::string Json(const std::string& text)
{
    return "\"" + Escaped(text, {{'"', "\\\""}, {'\\', "\\\\"}, {'\n', "\\n"}}) + "\"";
}

std::string Html(const std::string& text)
{
    return Escaped(text, {{'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}});
}

const char* const PageHead =
    "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>Tour of the interface</title>\n<style>\n"
    "body { margin: 0; padding: 32px; background: #14181f; color: #c5c8e1; font: 15px/1.5 system-ui, sans-serif; }\n"
    "h1 { font-size: 22px; font-weight: 600; margin: 0 0 24px; }\n"
    "main { display: grid; grid-template-columns: repeat(auto-fill, minmax(480px, 1fr)); gap: 28px; align-items: start; }\n"
    "figure { margin: 0; background: #1b2028; border: 1px solid #2b313d; border-radius: 10px; overflow: hidden; }\n"
    "img { display: block; width: 100%; height: auto; }\n"
    "figcaption { padding: 12px 16px; }\n"
    "figcaption small { color: #8b93a8; }\n"
    "</style>\n</head>\n<body>\n<h1>Tour of the interface</h1>\n<main>\n";

} // namespace

Album::Album(const CString& folder) : folder_(folder)
{
    folder_.Replace(L'/', L'\\');
    folder_.TrimRight(L'\\');
    if (!MakeFolders(folder_))
    {
        throw std::runtime_error("the folder cannot be made: " + CString2string(folder));
    }
}

void Album::Add(const std::string& id, const std::string& caption, const osg::Image& picture)
{
    if (picture.s() <= 0 || picture.t() <= 0)
    {
        throw std::runtime_error("nothing was drawn for '" + id + "'");
    }
    const auto known = idsByHash_.emplace(Hash(picture), id);
    if (!known.second)
    {
        throw std::runtime_error("the picture of '" + id + "' is the same as that of '" + known.first->second + "'");
    }
    char number[16];
    std::snprintf(number, sizeof(number), "%02d-", static_cast<int>(entries_.size() + 1));
    const Entry entry = {id, number + id + ".png", caption, picture.s(), picture.t()};
    if (!WritePng(folder_ + L"\\" + Utf8ToCString(entry.file), picture))
    {
        throw std::runtime_error("cannot be written: " + entry.file);
    }
    entries_.push_back(entry);
}

void Album::WriteText(const std::string& file, const std::string& text) const
{
    const CString path = folder_ + L"\\" + Utf8ToCString(file);
    const HANDLE handle = CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    const bool complete = handle != INVALID_HANDLE_VALUE &&
                          WriteFile(handle, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) &&
                          written == text.size();
    if (handle != INVALID_HANDLE_VALUE)
    {
        CloseHandle(handle);
    }
    if (!complete)
    {
        throw std::runtime_error("cannot be written: " + file);
    }
}

void Album::Finish() const
{
    std::string json = "[\n";
    std::string page = PageHead;
    for (const Entry& entry : entries_)
    {
        const bool last = &entry == &entries_.back();
        json += "  {\"id\": " + Json(entry.id) + ", \"file\": " + Json(entry.file) + ", \"caption\": " + Json(entry.caption) +
                (last ? "}\n" : "},\n");
        const std::string size = std::to_string(entry.width) + " × " + std::to_string(entry.height);
        page += "<figure>\n<a href=\"" + Html(entry.file) + "\"><img src=\"" + Html(entry.file) + "\" alt=\"" +
                Html(entry.caption) + "\"></a>\n<figcaption>" + Html(entry.caption) + "<br><small>" + size +
                "</small></figcaption>\n</figure>\n";
    }
    WriteText("tour.json", json + "]\n");
    WriteText("index.html", page + "</main>\n</body>\n</html>\n");
}

} // namespace host
