// SPDX-License-Identifier: MIT
// An application started on a machine without its font, and started there again.
#include "FontInstallTest.h"

#include <KernelCommonUse/StringConvert.h>

#include <gui_host/FontInstallation.h>
#include <panels/FontNames.h>
#include <widgets/Gdiplus.h>

namespace
{
const wchar_t* const TitleFile = L"youyuan.ttf";
const wchar_t* const TitleFace = L"YouYuan";
constexpr COLORREF TitleColor = 0xE1C8C5;

/// What a test that does not run by itself leaves behind when it has passed in a process of its own.
const wchar_t* const PassedFile = L"another-process.passed";
constexpr int PatienceSeconds = 30;

/// Runs one test of this program in another process.
bool PassesInAnotherProcess(const wchar_t* test)
{
    DeleteFileW(PassedFile);
    wchar_t program[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    CString command;
    command.Format(L"\"%s\" --gtest_brief=1 --gtest_also_run_disabled_tests --gtest_filter=%s", program, test);
    STARTUPINFOW start = {};
    start.cb = sizeof(start);
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(program, command.GetBuffer(command.GetLength()), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                        &process))
    {
        return false;
    }
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    // The process cannot be waited for: not every system gives its handle to the one that starts it.
    for (int i = 0; i < PatienceSeconds * 20; ++i)
    {
        if (GetFileAttributesW(PassedFile) != INVALID_FILE_ATTRIBUTES)
        {
            return true;
        }
        Sleep(50);
    }
    return false;
}
} // namespace

class FirstStartTest : public FontInstallTest
{
protected:
    void SetUp() override
    {
        FontInstallTest::SetUp();
        Uninstall(TitleFile);
        ASSERT_FALSE(IsFontInstalled(TitleFace));
        Host().Close();
        TakeFontChanges();
        Frame().ClearTitleSet();
        ASSERT_EQ(Utf8(Frame().GetSceneTitleFontStyle()), Utf8(TitleFace));
    }

    /// How many pixels of the title bar have the title's colour.
    static int TitlePixels()
    {
        Host().MoveMouse(400, 301);
        Host().MoveMouse(400, 300);
        const Screenshot shot = Host().Shoot();
        const Pixel color = {GetRValue(TitleColor), GetGValue(TitleColor), GetBValue(TitleColor)};
        int count = 0;
        for (int y = 0; y < 50; ++y)
        {
            for (int x = 50; x < 400; ++x)
            {
                count += Distance(shot.At(x, y), color) < 24;
            }
        }
        return count;
    }
};

TEST_F(FirstStartTest, installs_the_title_font_and_shows_the_default_title)
{
    const int valuesBefore = RegisteredCount();
    Restart(GUI_USER_FULL);
    EXPECT_TRUE(IsFontInstalled(TitleFace));
    EXPECT_EQ(ReadBytes(SystemFont(TitleFile)), ReadBytes(AppFont(TitleFile)));
    EXPECT_FALSE(HasUnfinishedFile(SystemFont(L"")));
    const std::optional<CString> value = Registered(L"youyuan");
    ASSERT_TRUE(value);
    EXPECT_EQ(value->GetLength(), 12) << "the terminating null counts";
    EXPECT_EQ(Utf8(value->GetString()), "youyuan.ttf");
    EXPECT_EQ(RegisteredCount(), valuesBefore + 1);
    EXPECT_EQ(TakeFontChanges(), 1);
    EXPECT_EQ(TakeLog(), Lines{});
    const int shown = TitlePixels();
    EXPECT_GT(shown, 150);
    Frame().ChangeTitleText(L"", TitleColor, TitleFace, 16.0f);
    EXPECT_LT(TitlePixels(), 10);
}

TEST_F(FirstStartTest, a_second_start_touches_nothing)
{
    Restart(GUI_USER_FULL);
    Host().Close();
    EXPECT_EQ(TakeFontChanges(), 1);
    const std::uint64_t fileWritten = FileWritten(SystemFont(TitleFile));
    const std::uint64_t listWritten = ListWritten();
    // Both clocks tell times a tenth of a second apart.
    Sleep(100);
    Restart(GUI_USER_FULL);
    EXPECT_EQ(FileWritten(SystemFont(TitleFile)), fileWritten);
    EXPECT_EQ(ListWritten(), listWritten);
    EXPECT_EQ(TakeFontChanges(), 0);
    EXPECT_GT(TitlePixels(), 150);
}

TEST_F(FirstStartTest, another_process_finds_the_font_and_touches_nothing)
{
    Restart(GUI_USER_FULL);
    EXPECT_EQ(TakeFontChanges(), 1);
    const std::uint64_t fileWritten = FileWritten(SystemFont(TitleFile));
    const std::uint64_t listWritten = ListWritten();
    Sleep(100);
    EXPECT_TRUE(PassesInAnotherProcess(L"AnotherProcess.DISABLED_finds_the_font"));
    EXPECT_EQ(FileWritten(SystemFont(TitleFile)), fileWritten);
    EXPECT_EQ(ListWritten(), listWritten);
    EXPECT_EQ(TakeFontChanges(), 0);
}

// Run by the test above, in a process of its own.
TEST(AnotherProcess, DISABLED_finds_the_font)
{
    EXPECT_TRUE(IsFontInstalled(TitleFace));
    EXPECT_TRUE(InstallSystemFont("YouYuan", "no such file.ttf"));
    EXPECT_TRUE(gp::NewFontFamily(TitleFace));
    if (!HasFailure())
    {
        WriteBytes(PassedFile, {1});
    }
}

TEST_F(FirstStartTest, the_shipped_font_has_every_character_of_the_chinese_code_page_and_latin_text)
{
    Restart(GUI_USER_FULL);
    const HDC dc = CreateCompatibleDC(nullptr);
    const HFONT font = CreateFontW(16, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                                   CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, TitleFace);
    const HGDIOBJ former = SelectObject(dc, font);
    wchar_t face[LF_FACESIZE] = {};
    GetTextFaceW(dc, LF_FACESIZE, face);
    EXPECT_EQ(Utf8(face), Utf8(TitleFace));
    // All of GB 2312: the punctuation of its first row, and the characters from row 16 to 87.
    std::string characters;
    for (int row = 0xA1; row <= 0xF7; row = row == 0xA1 ? 0xB0 : row + 1)
    {
        for (int cell = 0xA1; cell <= (row == 0xD7 ? 0xF9 : 0xFE); ++cell)
        {
            characters += static_cast<char>(row);
            characters += static_cast<char>(cell);
        }
    }
    CString text;
    const int count = MultiByteToWideChar(936, 0, characters.data(), static_cast<int>(characters.size()), nullptr, 0);
    MultiByteToWideChar(936, 0, characters.data(), static_cast<int>(characters.size()), text.GetBuffer(count), count);
    text.ReleaseBuffer(count);
    EXPECT_EQ(count, 6763 + 94);
    for (wchar_t unit = L' '; unit <= L'~'; ++unit)
    {
        text += unit;
    }
    std::vector<WORD> glyphs(static_cast<std::size_t>(text.GetLength()));
    GetGlyphIndicesW(dc, text, text.GetLength(), glyphs.data(), GGI_MARK_NONEXISTING_GLYPHS);
    std::string missing;
    for (int i = 0; i < text.GetLength(); ++i)
    {
        missing += glyphs[static_cast<std::size_t>(i)] == 0xFFFF ? Utf8(text.Mid(i, 1)) : "";
    }
    EXPECT_EQ(missing, "");
    SelectObject(dc, former);
    DeleteObject(font);
    DeleteDC(dc);
}
