// SPDX-License-Identifier: MIT
// Two programs over one application directory, which draw the same text picture over and over.
#include "Fonts.h"
#include "support/GTest.h"
#include "support/Gui.h"

#include <widgets/TextPicture.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

namespace
{
const wchar_t* const Begun = L"two-programs-begun.txt";
const wchar_t* const Answer = L"two-programs-answer.txt";
const wchar_t* const Picture = L"shared by two";
constexpr int Rounds = 150;
constexpr UINT Height = 120;
constexpr UINT Widths[] = {260, 300}; ///< of this program's picture and of the other one's

bool Draw(UINT width)
{
    return !CreateTextImageFile(width, Height, Picture, L"text", 20, Latin, 0).IsEmpty();
}

/// The file's size, read as by a library that knows nothing of how Win32 shares files.
std::size_t SizeSeen()
{
    std::ifstream file("app/resource/cegui/TavLook/shared by two.bmp", std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {}).size();
}

std::size_t SizeOf(UINT width)
{
    return sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER) + std::size_t(width) * Height * 4;
}

bool Exists(const CString& path)
{
    return GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES;
}
} // namespace

TEST(TwoPrograms, write_one_picture_and_neither_fails_nor_reads_a_part_of_it)
{
    DeleteFileW(Begun);
    DeleteFileW(Answer);
    ASSERT_TRUE(StartAgain(L"TwoProgramsProcess.*"));
    ASSERT_TRUE(WaitForFile(Begun));
    int failed = 0;
    int parts = 0;
    int round = 0;
    for (; round < Rounds || (!Exists(Answer) && round < 100 * Rounds); ++round)
    {
        failed += !Draw(Widths[0]);
        const std::size_t size = SizeSeen();
        parts += size != SizeOf(Widths[0]) && size != SizeOf(Widths[1]);
    }
    EXPECT_EQ(failed, 0) << "of " << round;
    EXPECT_EQ(parts, 0) << "of " << round;
    ASSERT_TRUE(WaitForFile(Answer));
    const std::vector<std::uint8_t> answer = ReadBytes(Answer);
    EXPECT_EQ(std::string(answer.begin(), answer.end()), "0 failed");
    EXPECT_FALSE(HasUnfinishedFile(SkinDir()));
}

// Run by the test above, in a process of its own.
TEST(TwoProgramsProcess, DISABLED_draws)
{
    ASSERT_TRUE(Draw(Widths[1]));
    ASSERT_TRUE(WriteBytes(Begun, {'b'}));
    int failed = 0;
    for (int round = 0; round < Rounds; ++round)
    {
        failed += !Draw(Widths[1]);
    }
    const std::string answer = std::to_string(failed) + " failed";
    const CString unfinished = CString(Answer) + L".new";
    ASSERT_TRUE(WriteBytes(unfinished, std::vector<std::uint8_t>(answer.begin(), answer.end())));
    EXPECT_TRUE(MoveFileW(unfinished, Answer));
}
