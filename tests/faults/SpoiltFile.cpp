// SPDX-License-Identifier: MIT
#include "SpoiltFile.h"

#include "platform/NativePath.h"
#include "support/Spoiling.h"

#include <widgets/Gdiplus.h>
#include <widgets/ImageEncoder.h>

#include <sys/inotify.h>
#include <unistd.h>

#include <cstring>

namespace
{
using Bytes = std::vector<std::uint8_t>;

std::shared_ptr<void> Replaced(const CString& path, const Bytes& bytes)
{
    return std::make_shared<FileReplaced>(path, bytes);
}

/// A bitmap file of one colour.
Bytes Bitmap(int width, int height)
{
    Bytes bytes(sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER) + static_cast<std::size_t>(width) * height * 4, 0x7F);
    BITMAPFILEHEADER file = {};
    file.bfType = 0x4D42;
    file.bfSize = static_cast<DWORD>(bytes.size());
    file.bfOffBits = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
    BITMAPINFOHEADER info = {};
    info.biSize = sizeof(info);
    info.biWidth = width;
    info.biHeight = height;
    info.biPlanes = 1;
    info.biBitCount = 32;
    std::memcpy(bytes.data(), &file, sizeof(file));
    std::memcpy(bytes.data() + sizeof(file), &info, sizeof(info));
    return bytes;
}

/// The picture's own content as a file of another kind.
Bytes Converted(const CString& path, const wchar_t* extension)
{
    const CString converted = path + extension;
    const gp::Bitmap picture = gp::LoadBitmapFile(path);
    CLSID encoder;
    if (!picture || !GetEncoderForPath(converted, encoder) || !SaveBitmap(picture.get(), converted, encoder))
    {
        return {};
    }
    const Bytes bytes = ReadBytes(converted);
    DeleteFileW(converted);
    return bytes;
}

Bytes Cut(const CString& path, std::size_t parts, std::size_t of)
{
    Bytes bytes = ReadBytes(path);
    bytes.resize(bytes.size() * parts / of);
    return bytes;
}
} // namespace

Openings::Openings(const CString& path) : watch_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    inotify_add_watch(watch_, NativePath(path).c_str(), IN_OPEN);
}

Openings::~Openings()
{
    close(watch_);
}

bool Openings::Any() const
{
    alignas(inotify_event) char events[4096];
    return read(watch_, events, sizeof(events)) > 0;
}

FolderInPlace::FolderInPlace(const CString& path) : path_(path), taken_(path)
{
    CreateDirectoryW(path_, nullptr);
}

FolderInPlace::~FolderInPlace()
{
    RemoveDirectoryW(path_);
}

const std::vector<Spoiling>& AnyFile()
{
    static const std::vector<Spoiling> all = {
        {"missing", true, [](const CString& path) { return std::make_shared<FileTaken>(path); }},
        {"empty", true, [](const CString& path) { return Replaced(path, {}); }},
        {"cut in the middle", true, [](const CString& path) { return Replaced(path, Cut(path, 1, 2)); }},
    };
    return all;
}

const std::vector<Spoiling>& AnyPicture()
{
    static const std::vector<Spoiling> all = {
        {"of another size", false, [](const CString& path) { return Replaced(path, Bitmap(700, 3)); }},
        {"a JPEG file", false, [](const CString& path) { return Replaced(path, Converted(path, L".jpg")); }},
    };
    return all;
}

const std::vector<Spoiling>& MoreForPictures()
{
    static const std::vector<Spoiling> all = {
        {"a folder", true, [](const CString& path) { return std::make_shared<FolderInPlace>(path); }},
        {"without its last tenth", true, [](const CString& path) { return Replaced(path, Cut(path, 9, 10)); }},
        {"1 x 1", false, [](const CString& path) { return Replaced(path, Bitmap(1, 1)); }},
        {"wider than any texture", true, [](const CString& path) { return Replaced(path, Bitmap(32000, 1)); }},
        {"a bitmap file", false, [](const CString& path) { return Replaced(path, Converted(path, L".bmp")); }},
        {"a GIF file", false, [](const CString& path) { return Replaced(path, Converted(path, L".gif")); }},
        {"a TIFF file", false, [](const CString& path) { return Replaced(path, Converted(path, L".tiff")); }},
        {"a damaged TIFF file", true,
         [](const CString& path) { return Replaced(path, ReadBytes(CString(NX_CORPUS) + damagedTiffFiles[1])); }},
        {"a picture that unpacks to more than one may have", true,
         [](const CString& path)
         { return Replaced(path, ReadBytes(CString(NX_CORPUS) + L"\\picture\\larger_than_allowed.png")); }},
        {"a text", true,
         [](const CString& path) {
             return Replaced(path, {'n', 'o', ' ', 'p', 'i', 'c', 't', 'u', 'r', 'e'});
         }},
    };
    return all;
}

const std::vector<Spoiling>& MoreForTexts()
{
    static const std::vector<Spoiling> all = {
        {"a folder", true, [](const CString& path) { return std::make_shared<FolderInPlace>(path); }},
        {"without its last tenth", true, [](const CString& path) { return Replaced(path, Cut(path, 9, 10)); }},
        {"other bytes", true, [](const CString& path) { return Replaced(path, Bytes(1000, 0xA5)); }},
        {"a picture", true, [](const CString& path) { return Replaced(path, Bitmap(8, 8)); }},
        {"another XML file", true,
         [](const CString& path) {
             return Replaced(path, Bytes{'<', 'F', 'o', 'n', 't', '/', '>'});
         }},
    };
    return all;
}
