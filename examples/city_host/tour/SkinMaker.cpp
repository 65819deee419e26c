// SPDX-License-Identifier: MIT
#include "SkinMaker.h"

#include <KernelCommonUse/StringConvert.h>

#include <stdexcept>
#include <string>

namespace host
{
namespace
{

std::vector<char> ReadWhole(const CString& path)
{
    const HANDLE file = CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
    {
        throw std::runtime_error("the file cannot be read: " + CString2string(path));
    }
    std::vector<char> bytes(GetFileSize(file, nullptr));
    DWORD got = 0;
    const BOOL read = ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &got, nullptr);
    CloseHandle(file);
    if (!read || got != bytes.size())
    {
        throw std::runtime_error("the file cannot be read: " + CString2string(path));
    }
    return bytes;
}

} // namespace

SkinMaker::SkinMaker(const CString& file) : file_(file), former_(ReadWhole(file)) {}

SkinMaker::~SkinMaker()
{
    Save(former_);
}

void SkinMaker::SaveAs(const CString& other) const
{
    Save(ReadWhole(other));
}

void SkinMaker::SaveHalf() const
{
    Save(std::vector<char>(former_.begin(), former_.begin() + static_cast<std::ptrdiff_t>(former_.size() / 2)));
}

void SkinMaker::Save(const std::vector<char>& bytes) const
{
    const HANDLE file = CreateFileW(file_, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    if (file != INVALID_HANDLE_VALUE)
    {
        WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
        CloseHandle(file);
    }
}

} // namespace host
