// SPDX-License-Identifier: MIT
// What tests want of pixels, files and folders, without an interface.
#include "Gui.h"

#include <NxConfig/SystemUtility.h>

#include <widgets/GuiImageCodec.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>

bool operator==(Pixel a, Pixel b)
{
    return a.red == b.red && a.green == b.green && a.blue == b.blue;
}

int Distance(Pixel a, Pixel b)
{
    return std::max({std::abs(a.red - b.red), std::abs(a.green - b.green), std::abs(a.blue - b.blue)});
}

std::uint32_t PictureFile::Argb(int x, int y) const
{
    const std::uint8_t* p = rgba.data() + (static_cast<std::size_t>(y) * width + x) * 4;
    return std::uint32_t(p[3]) << 24 | std::uint32_t(p[0]) << 16 | std::uint32_t(p[1]) << 8 | p[2];
}

PictureFile ReadPictureFile(const CString& path)
{
    const std::vector<std::uint8_t> bytes = ReadBytes(path);
    RgbaPicture picture;
    PictureFile file;
    if (DecodePicture(bytes.data(), bytes.size(), picture))
    {
        file.width = picture.width;
        file.height = picture.height;
        file.rgba = std::move(picture.pixels);
    }
    return file;
}

CString AppDir()
{
    return SystemUtility::GetAppPath();
}

CString SkinDir()
{
    return AppDir() + SystemUtility::GetCeguiResRelPath();
}

std::vector<std::string> LogLines()
{
    // Starts append to the file, and most callers only want the last few lines of it.
    static std::streamoff seen = 0;
    static std::vector<std::string> lines;
    std::ifstream log("CEGUI.log", std::ios::binary | std::ios::ate);
    if (log.tellg() < seen)
    {
        // Begun anew.
        seen = 0;
        lines.clear();
    }
    log.seekg(seen);
    for (std::string line; std::getline(log, line);)
    {
        seen += static_cast<std::streamoff>(line.size()) + 1;
        const std::size_t own = line.find("NxOsgCeGui: ");
        if (own != std::string::npos)
        {
            lines.push_back(line.substr(own));
        }
        else if (line.find("NxOsgCeGui starts") != std::string::npos)
        {
            lines.clear();
        }
    }
    return lines;
}

int CountLogLines(const std::string& text)
{
    const std::vector<std::string> lines = LogLines();
    return static_cast<int>(
        std::count_if(lines.begin(), lines.end(), [&](const std::string& line) { return line.find(text) != std::string::npos; }));
}

bool HasUnfinishedFile(const CString& folder)
{
    WIN32_FIND_DATAW found;
    const HANDLE find = FindFirstFileW(folder + L"~*.part*", &found);
    if (find != INVALID_HANDLE_VALUE)
    {
        FindClose(find);
    }
    return find != INVALID_HANDLE_VALUE;
}

std::vector<std::uint8_t> ReadBytes(const CString& path)
{
    std::vector<std::uint8_t> bytes;
    const HANDLE file = CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
    {
        return bytes;
    }
    bytes.resize(GetFileSize(file, nullptr));
    DWORD read = 0;
    ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    CloseHandle(file);
    return bytes;
}

bool WriteBytes(const CString& path, const std::vector<std::uint8_t>& bytes)
{
    const HANDLE file = CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
    {
        return false;
    }
    DWORD written = 0;
    const bool complete =
        WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) && written == bytes.size();
    CloseHandle(file);
    return complete;
}

bool SetWrittenAt(const CString& path, std::uint64_t fileTime)
{
    const FILETIME time = {static_cast<DWORD>(fileTime), static_cast<DWORD>(fileTime >> 32)};
    const HANDLE file = CreateFileW(path, FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    const BOOL set = SetFileTime(file, nullptr, nullptr, &time);
    CloseHandle(file);
    return set != FALSE;
}

bool StartAgain(const wchar_t* filter)
{
    wchar_t program[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    CString command;
    command.Format(L"\"%s\" --gtest_brief=1 --gtest_output= --gtest_also_run_disabled_tests --gtest_filter=%s", program, filter);
    STARTUPINFOW start = {};
    start.cb = sizeof(start);
    PROCESS_INFORMATION process = {};
    const BOOL started = CreateProcessW(program, command.GetBuffer(command.GetLength()), nullptr, nullptr, FALSE, 0, nullptr,
                                        nullptr, &start, &process);
    if (started)
    {
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
    return started != FALSE;
}

bool WaitForFile(const CString& path)
{
    for (int tries = 0; tries < 1200 && GetFileAttributesW(path) == INVALID_FILE_ATTRIBUTES; ++tries)
    {
        Sleep(50);
    }
    return GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES;
}

FileTaken::FileTaken(const CString& path) : path_(path)
{
    taken_ = MoveFileExW(path_, path_ + L".taken", MOVEFILE_REPLACE_EXISTING) != FALSE;
}

FileTaken::~FileTaken()
{
    PutBack();
}

void FileTaken::PutBack()
{
    if (taken_)
    {
        MoveFileExW(path_ + L".taken", path_, MOVEFILE_REPLACE_EXISTING);
        taken_ = false;
    }
}

FileReplaced::FileReplaced(const CString& path, const std::vector<std::uint8_t>& bytes) : path_(path)
{
    existed_ = GetFileAttributesW(path_) != INVALID_FILE_ATTRIBUTES;
    former_ = ReadBytes(path_);
    WriteBytes(path_, bytes);
}

FileReplaced::~FileReplaced()
{
    existed_ ? static_cast<void>(WriteBytes(path_, former_)) : static_cast<void>(DeleteFileW(path_));
}
