// SPDX-License-Identifier: MIT
// The title's font on machines with and without the wanted one. The frame asks once in a process, so each is a process of its
// own, in which a font of that name is there for it alone.
#include "support/HostedFrame.h"
#include "support/RenamedFont.h"

#include <panels/FontNames.h>

namespace
{
const wchar_t* const Answer = L"title-face.txt";

/// The title's face in another process of this program, in which a font of a family was added before the frame was made.
std::string FaceWithFont(const std::string& family)
{
    const CString file = AppDir() + L"added.ttf";
    EXPECT_TRUE(WriteBytes(file, RenamedFont(ReadBytes(CString(NX_TEST_FONT)), CString(family.c_str()))));
    DeleteFileW(Answer);
    SetEnvironmentVariableW(L"NX_ADDED_FONT", file);
    EXPECT_TRUE(StartAgain(L"TitleFontProcess.*"));
    SetEnvironmentVariableW(L"NX_ADDED_FONT", nullptr);
    EXPECT_TRUE(WaitForFile(Answer));
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
