// SPDX-License-Identifier: MIT
// The title's font on machines with and without the wanted one. The frame asks once in a process, so each is a process of its
// own, in which a font of that name is there for it alone.
#include "support/HostedFrame.h"

#include <panels/FontNames.h>

namespace
{
using Bytes = std::vector<std::uint8_t>;

std::size_t Number(const Bytes& bytes, std::size_t at, std::size_t size)
{
    std::size_t number = 0;
    for (std::size_t i = 0; i < size; ++i)
    {
        number = number << 8 | bytes.at(at + i);
    }
    return number;
}

void Put(Bytes& bytes, std::size_t at, std::size_t number, std::size_t size)
{
    for (std::size_t i = 0; i < size; ++i)
    {
        bytes.at(at + i) = static_cast<std::uint8_t>(number >> 8 * (size - 1 - i));
    }
}

/// A TrueType font under another family name: with a table of names of its own at its end.
Bytes Renamed(Bytes font, const std::string& family)
{
    std::size_t entry = 12;
    while (Number(font, entry, 4) != 0x6E616D65) // "name"
    {
        entry += 16;
    }
    const std::size_t start = Number(font, entry + 8, 4);
    const std::size_t count = Number(font, start + 2, 2);
    const std::size_t strings = start + Number(font, start + 4, 2);
    const std::size_t head = 6 + 12 * count;
    Bytes names(font.begin() + static_cast<std::ptrdiff_t>(start), font.begin() + static_cast<std::ptrdiff_t>(start + head));
    Put(names, 4, head, 2);
    for (std::size_t record = 6; record < head; record += 12)
    {
        const std::size_t platform = Number(names, record, 2);
        const std::size_t id = Number(names, record + 6, 2);
        Bytes text;
        if (id == 1 || id == 4 || id == 16)
        {
            for (const char letter : family)
            {
                if (platform != 1)
                {
                    text.push_back(0);
                }
                text.push_back(static_cast<std::uint8_t>(letter));
            }
        }
        else
        {
            const auto old = font.begin() + static_cast<std::ptrdiff_t>(strings + Number(names, record + 10, 2));
            text.assign(old, old + static_cast<std::ptrdiff_t>(Number(names, record + 8, 2)));
        }
        Put(names, record + 8, text.size(), 2);
        Put(names, record + 10, names.size() - head, 2);
        names.insert(names.end(), text.begin(), text.end());
    }
    font.resize((font.size() + 3) / 4 * 4);
    Put(font, entry + 8, font.size(), 4);
    Put(font, entry + 12, names.size(), 4);
    font.insert(font.end(), names.begin(), names.end());
    return font;
}

const wchar_t* const Answer = L"title-face.txt";

/// The title's face in another process of this program, in which a font of a family was added before the frame was made.
std::string FaceWithFont(const std::string& family)
{
    const CString file = AppDir() + L"added.ttf";
    EXPECT_TRUE(WriteBytes(file, Renamed(ReadBytes(CString(NX_TEST_FONT)), family)));
    DeleteFileW(Answer);
    SetEnvironmentVariableW(L"NX_ADDED_FONT", file);
    wchar_t program[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    CString command;
    command.Format(L"\"%s\" --gtest_brief=1 --gtest_also_run_disabled_tests --gtest_filter=TitleFontProcess.*", program);
    STARTUPINFOW start = {};
    start.cb = sizeof(start);
    PROCESS_INFORMATION process = {};
    EXPECT_TRUE(CreateProcessW(program, command.GetBuffer(command.GetLength()), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                               &start, &process));
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    SetEnvironmentVariableW(L"NX_ADDED_FONT", nullptr);
    // Asked for its answer, since not every system lets a process be waited for by the one that starts it.
    for (int tries = 0; tries < 600 && GetFileAttributesW(Answer) == INVALID_FILE_ATTRIBUTES; ++tries)
    {
        Sleep(50);
    }
    const std::vector<std::uint8_t> answer = ReadBytes(Answer);
    DeleteFileW(file);
    return std::string(answer.begin(), answer.end());
}
} // namespace

TEST(TitleFont, is_segoe_ui_semibold_where_that_is_installed)
{
    EXPECT_EQ(FaceWithFont("Segoe UI Semibold"), "Segoe UI Semibold");
}

TEST(TitleFont, is_you_yuan_where_only_a_font_of_almost_that_name_is)
{
    const bool installed = IsFontInstalled(L"Segoe UI Semibold");
    EXPECT_EQ(FaceWithFont("Segoe UI semibold"), installed ? "Segoe UI Semibold" : "YouYuan");
}

// Run by the tests above, in a process of its own.
TEST(TitleFontProcess, DISABLED_answers)
{
    const std::string face = Utf8(CeGuiMainFrame::GetInstance()->GetSceneTitleFontStyle());
    const CString unfinished = CString(Answer) + L".part";
    ASSERT_TRUE(WriteBytes(unfinished, std::vector<std::uint8_t>(face.begin(), face.end())));
    EXPECT_TRUE(MoveFileW(unfinished, Answer));
}
