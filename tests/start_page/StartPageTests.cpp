// SPDX-License-Identifier: MIT
// The start page's parameters and its printed picture.
#include "support/GTest.h"
#include "support/Gui.h"

#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/SystemUtility.h>

#include <algorithm>
#include <cstring>

namespace
{
// "project", "unit" and "title" in the Chinese of the ini file are the program's own words.
const char* const Ini = "\xEF\xBB\xBF[发布独立程序文字]\n标题=Riverside 2.0\n项目名称=滨江新城\n单位名称=\n";

CString Resources()
{
    return AppDir() + SystemUtility::GetResourceRelPath();
}

CString Background()
{
    return Resources() + L"pics\\kwexeGuiImage.bmp";
}

CString Printed()
{
    return AppDir() + L"exeFiles\\pics\\exeGuiImage.bmp";
}

std::vector<std::uint8_t> Bytes(const char* text)
{
    return std::vector<std::uint8_t>(text, text + std::strlen(text));
}

bool Exists(const CString& path)
{
    return GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES;
}

/// The smallest rectangle of a region that holds every pixel in which two pictures differ.
RECT Difference(const PictureFile& a, const PictureFile& b, const RECT& region)
{
    RECT box = {a.width, a.height, 0, 0};
    for (LONG y = region.top; y < region.bottom; ++y)
    {
        for (LONG x = region.left; x < region.right; ++x)
        {
            if (a.Argb(x, y) != b.Argb(x, y))
            {
                box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1), std::max(box.bottom, y + 1)};
            }
        }
    }
    return box;
}

class StartPage : public testing::Test
{
protected:
    StartPage() : ini_(AppDir() + SystemUtility::GetSysMidPath() + L"tavmemory.ini", MakeFolder()) {}

    static std::vector<std::uint8_t> MakeFolder()
    {
        CreateDirectoryW(AppDir() + SystemUtility::GetSysMidPath(), nullptr);
        return Bytes(Ini);
    }

    CeGuiMainFrame& frame_ = *CeGuiMainFrame::GetInstance();
    FileReplaced ini_;
};

TEST_F(StartPage, defaults_come_from_the_ini_file_where_it_has_a_value)
{
    const STAPAGE page;
    EXPECT_EQ(CString(L"Riverside 2.0"), page.title);
    EXPECT_EQ(CString(L"滨江新城"), page.projectName);
    // Present but empty: the built-in text, through the ANSI code page on purpose.
    EXPECT_EQ(CString("某某设计集团有限公司"), page.unitName);
    EXPECT_EQ(0u, page.titleColor);
    EXPECT_EQ(0xFFFFFFu, page.projectColor);
    EXPECT_EQ(0xFFFFFFu, page.unitColor);
    EXPECT_EQ(CString(L"Noto Sans CJK SC"), page.titleFont);
    EXPECT_EQ(page.titleFont, page.projectFont);
    EXPECT_EQ(page.titleFont, page.unitFont);
    EXPECT_EQ(13, page.titleSize);
    EXPECT_EQ(30, page.projectSize);
    EXPECT_EQ(18, page.unitSize);
    EXPECT_FALSE(page.firstFlag);
    EXPECT_TRUE(page.secondFlag);
    EXPECT_TRUE(page.picture.IsEmpty());
}

TEST_F(StartPage, a_stored_record_comes_back_with_its_flags)
{
    STAPAGE page;
    page.title = L"t";
    page.projectColor = 0x123456;
    page.unitSize = 7;
    page.firstFlag = true;
    page.secondFlag = false;
    page.thirdFlag = true;
    frame_.SetStaPageParameter(page);
    const STAPAGE& stored = frame_.GetStaPageParameter();
    EXPECT_EQ(page.title, stored.title);
    EXPECT_EQ(page.projectColor, stored.projectColor);
    EXPECT_EQ(page.unitSize, stored.unitSize);
    EXPECT_TRUE(stored.firstFlag);
    EXPECT_FALSE(stored.secondFlag);
    EXPECT_TRUE(stored.thirdFlag);
}

TEST_F(StartPage, a_reset_prints_three_lines_at_their_places)
{
    frame_.ClearStaPageParameter();
    EXPECT_EQ(Resources() + L"pics/kwexeGuiImage.bmp", frame_.GetStaPageParameter().picture);
    const PictureFile before = ReadPictureFile(Background());
    const PictureFile after = ReadPictureFile(Printed());
    ASSERT_EQ(before.width, after.width);
    ASSERT_EQ(before.height, after.height);

    // The title: left and top at (41, 12), 13 pixels high.
    const RECT title = Difference(before, after, {0, 0, 500, 60});
    EXPECT_GE(title.left, 41);
    EXPECT_LE(title.left, 46);
    EXPECT_GE(title.top, 12);
    EXPECT_LE(title.bottom, 12 + 13 + 2);
    // The project name: centred on 250, its bottom edge on 158.
    const RECT project = Difference(before, after, {0, 100, 500, 170});
    EXPECT_NEAR(250, (project.left + project.right) / 2.0, 2);
    EXPECT_LE(project.bottom, 158);
    EXPECT_GE(project.top, 158 - 30);
    // The unit's name likewise on 246.
    const RECT unit = Difference(before, after, {0, 200, 500, 300});
    EXPECT_NEAR(250, (unit.left + unit.right) / 2.0, 2);
    EXPECT_LE(unit.bottom, 246);
    EXPECT_GE(unit.top, 246 - 18);
}

TEST_F(StartPage, a_wide_project_name_stays_centred_and_is_clipped)
{
    const FileReplaced ini(AppDir() + SystemUtility::GetSysMidPath() + L"tavmemory.ini",
                           Bytes("\xEF\xBB\xBF[发布独立程序文字]\n项目名称=滨江新城滨江新城滨江新城滨江新城滨江新城滨江新城滨江新城滨江新城\n"));
    frame_.ClearStaPageParameter();
    const RECT project = Difference(ReadPictureFile(Background()), ReadPictureFile(Printed()), {0, 100, 500, 170});
    EXPECT_LE(project.left, 4);
    EXPECT_GE(project.right, 496);
}

TEST_F(StartPage, a_reset_renews_the_working_picture_from_the_pristine_copy)
{
    const std::vector<std::uint8_t> pristine = ReadBytes(Resources() + L"exeGuiImage2.bmp");
    ASSERT_FALSE(pristine.empty());
    const FileReplaced working(Resources() + L"exeGuiImage.bmp", Bytes("scribbled over"));
    frame_.ClearStaPageParameter();
    EXPECT_EQ(pristine, ReadBytes(Resources() + L"exeGuiImage.bmp"));
}

TEST_F(StartPage, a_missing_pristine_copy_leaves_the_working_picture_and_prints)
{
    const FileReplaced working(Resources() + L"exeGuiImage.bmp", Bytes("as it was"));
    const FileTaken pristine(Resources() + L"exeGuiImage2.bmp");
    DeleteFileW(Printed());
    frame_.ClearStaPageParameter();
    EXPECT_EQ(Bytes("as it was"), ReadBytes(Resources() + L"exeGuiImage.bmp"));
    EXPECT_TRUE(Exists(Printed()));
}

TEST_F(StartPage, a_missing_or_corrupt_picture_resets_the_record_and_prints_nothing)
{
    const FileReplaced printed(Printed(), Bytes("printed before"));
    for (const bool corrupt : {false, true})
    {
        STAPAGE changed;
        changed.title = L"changed";
        frame_.SetStaPageParameter(changed);
        const FileTaken taken(corrupt ? CString(L"none") : Background());
        const FileReplaced replaced(corrupt ? Background() : AppDir() + L"unused.bmp", Bytes("BM no picture"));
        frame_.ClearStaPageParameter();
        EXPECT_EQ(CString(L"Riverside 2.0"), frame_.GetStaPageParameter().title) << corrupt;
        EXPECT_EQ(Bytes("printed before"), ReadBytes(Printed())) << corrupt;
    }
}

TEST_F(StartPage, a_target_that_cannot_be_written_stays_and_no_part_of_a_file_remains)
{
    const FileReplaced printed(Printed(), Bytes("printed before"));
    const HANDLE held = CreateFileW(Printed(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, held);
    frame_.ClearStaPageParameter();
    CloseHandle(held);
    EXPECT_EQ(Bytes("printed before"), ReadBytes(Printed()));
    EXPECT_FALSE(Exists(Printed() + L".part.bmp"));
}
} // namespace
