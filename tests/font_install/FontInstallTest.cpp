// SPDX-License-Identifier: MIT
#include "FontInstallTest.h"

#include "support/RenamedFont.h"

#include <KernelCommonUse/StringConvert.h>

#include <memory>

namespace
{
const wchar_t* const FontList = L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Fonts";
int fontChanges = 0;
std::vector<CString> made;

struct CloseKey
{
    using pointer = HKEY;
    void operator()(HKEY key) const { RegCloseKey(key); }
};

std::unique_ptr<HKEY, CloseKey> OpenList(REGSAM access)
{
    HKEY key = nullptr;
    RegOpenKeyExW(HKEY_LOCAL_MACHINE, FontList, 0, access, &key);
    return std::unique_ptr<HKEY, CloseKey>(key);
}

std::uint64_t Whole(FILETIME time)
{
    return std::uint64_t(time.dwHighDateTime) << 32 | time.dwLowDateTime;
}
} // namespace

void FontInstallTest::SetUp()
{
    FrameTest::SetUp();
    Host().onMainWindowMessage = [](UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_FONTCHANGE)
        {
            ++fontChanges;
            // The message has no parameters.
            EXPECT_EQ(wParam, 0u);
            EXPECT_EQ(lParam, 0);
        }
    };
    Host().Frames(1);
    fontChanges = 0;
}

void FontInstallTest::TearDown()
{
    for (const CString& file : std::exchange(made, {}))
    {
        Uninstall(file);
        DeleteFileW(AppFont(file));
    }
    Host().onMainWindowMessage = nullptr;
    FrameTest::TearDown();
}

std::string FontInstallTest::Face(int number)
{
    return "Nx Face " + std::string(1, static_cast<char>('0' + number / 10)) + static_cast<char>('0' + number % 10);
}

CString FontInstallTest::FileOf(int number)
{
    CString file;
    file.Format(L"nxface%02d.ttf", number);
    return file;
}

CString FontInstallTest::AddAppFont(int number)
{
    AddAppFile(FileOf(number), RenamedFont(ReadBytes(CString(NX_TEST_FONT)), Utf8ToCString(Face(number))));
    return FileOf(number);
}

void FontInstallTest::AddAppFile(const CString& file, const std::vector<std::uint8_t>& bytes)
{
    CreateDirectoryW(AppDir() + L"fonts", nullptr);
    EXPECT_TRUE(WriteBytes(AppFont(file), bytes));
    made.push_back(file);
}

CString FontInstallTest::SystemFont(const CString& file)
{
    wchar_t windows[MAX_PATH] = {};
    GetWindowsDirectoryW(windows, MAX_PATH);
    return CString(windows) + L"\\Fonts\\" + file;
}

void FontInstallTest::Uninstall(const CString& file)
{
    while (RemoveFontResourceW(SystemFont(file)))
    {
    }
    DeleteFileW(SystemFont(file));
    if (const auto list = OpenList(KEY_SET_VALUE))
    {
        RegDeleteValueW(list.get(), file.Left(file.ReverseFind(L'.')));
    }
}

std::optional<CString> FontInstallTest::Registered(const CString& name)
{
    const auto list = OpenList(KEY_QUERY_VALUE);
    wchar_t data[MAX_PATH] = {};
    DWORD bytes = sizeof(data);
    DWORD type = 0;
    if (RegQueryValueExW(list.get(), name, nullptr, &type, reinterpret_cast<BYTE*>(data), &bytes) != ERROR_SUCCESS)
    {
        return std::nullopt;
    }
    EXPECT_EQ(type, DWORD(REG_SZ));
    return CString(data, static_cast<int>(bytes / sizeof(wchar_t)));
}

int FontInstallTest::RegisteredCount()
{
    DWORD values = 0;
    RegQueryInfoKeyW(OpenList(KEY_QUERY_VALUE).get(), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &values, nullptr,
                     nullptr, nullptr, nullptr);
    return static_cast<int>(values);
}

std::uint64_t FontInstallTest::ListWritten()
{
    FILETIME written = {};
    EXPECT_EQ(RegQueryInfoKeyW(OpenList(KEY_QUERY_VALUE).get(), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                               nullptr, nullptr, nullptr, &written),
              ERROR_SUCCESS);
    return Whole(written);
}

std::uint64_t FontInstallTest::FileWritten(const CString& path)
{
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    EXPECT_TRUE(GetFileAttributesExW(path, GetFileExInfoStandard, &data)) << Utf8(path);
    return Whole(data.ftLastWriteTime);
}

int FontInstallTest::TakeFontChanges()
{
    Host().Frames(1);
    return std::exchange(fontChanges, 0);
}
