// SPDX-License-Identifier: MIT
// The start page's parameters and its printed picture.
#include "StartPageTest.h"

#include <algorithm>

namespace
{
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
} // namespace

TEST_F(StartPageTest, defaults_come_from_the_ini_file_where_it_has_a_value)
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

TEST_F(StartPageTest, a_stored_record_comes_back_with_its_flags)
{
    STAPAGE page;
    page.title = L"t";
    page.projectName = L"p";
    page.unitName = L"u";
    page.titleColor = 1;
    page.projectColor = 0x123456;
    page.unitColor = 3;
    page.titleFont = L"tf";
    page.projectFont = L"pf";
    page.unitFont = L"uf";
    page.titleSize = 5;
    page.projectSize = 6;
    page.unitSize = 7;
    page.firstFlag = true;
    page.secondFlag = false;
    page.thirdFlag = true;
    page.picture = L"x.bmp";
    frame_.SetStaPageParameter(page);
    // By both ways of copying.
    const STAPAGE stored(frame_.GetStaPageParameter());
    EXPECT_EQ(page.projectName, stored.projectName);
    EXPECT_EQ(page.unitName, stored.unitName);
    EXPECT_EQ(page.titleColor, stored.titleColor);
    EXPECT_EQ(page.unitColor, stored.unitColor);
    EXPECT_EQ(page.titleFont, stored.titleFont);
    EXPECT_EQ(page.projectFont, stored.projectFont);
    EXPECT_EQ(page.unitFont, stored.unitFont);
    EXPECT_EQ(page.titleSize, stored.titleSize);
    EXPECT_EQ(page.projectSize, stored.projectSize);
    EXPECT_EQ(page.picture, stored.picture);
    EXPECT_EQ(page.title, stored.title);
    EXPECT_EQ(page.projectColor, stored.projectColor);
    EXPECT_EQ(page.unitSize, stored.unitSize);
    EXPECT_TRUE(stored.firstFlag);
    EXPECT_FALSE(stored.secondFlag);
    EXPECT_TRUE(stored.thirdFlag);
}

TEST_F(StartPageTest, a_reset_prints_three_lines_at_their_places)
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

TEST_F(StartPageTest, a_wide_project_name_stays_centred_and_is_clipped)
{
    const FileReplaced ini(
        IniFile(),
        Bytes("\xEF\xBB\xBF[发布独立程序文字]\n项目名称=滨江新城滨江新城滨江新城滨江新城滨江新城滨江新城滨江新城滨江新城\n"));
    frame_.ClearStaPageParameter();
    const RECT project = Difference(ReadPictureFile(Background()), ReadPictureFile(Printed()), {0, 100, 500, 170});
    EXPECT_LE(project.left, 4);
    EXPECT_GE(project.right, 496);
}

TEST_F(StartPageTest, a_reset_renews_the_working_picture_from_the_pristine_copy)
{
    const std::vector<std::uint8_t> pristine = ReadBytes(Resources() + L"exeGuiImage2.bmp");
    ASSERT_FALSE(pristine.empty());
    const FileReplaced working(Resources() + L"exeGuiImage.bmp", Bytes("scribbled over"));
    frame_.ClearStaPageParameter();
    EXPECT_EQ(pristine, ReadBytes(Resources() + L"exeGuiImage.bmp"));
}

TEST_F(StartPageTest, a_missing_pristine_copy_leaves_the_working_picture_and_prints)
{
    const FileReplaced working(Resources() + L"exeGuiImage.bmp", Bytes("as it was"));
    const FileTaken pristine(Resources() + L"exeGuiImage2.bmp");
    DeleteFileW(Printed());
    frame_.ClearStaPageParameter();
    EXPECT_EQ(Bytes("as it was"), ReadBytes(Resources() + L"exeGuiImage.bmp"));
    EXPECT_TRUE(Exists(Printed()));
}

TEST_F(StartPageTest, a_missing_or_corrupt_picture_resets_the_record_and_prints_nothing)
{
    const FileReplaced printed(Printed(), Bytes("printed before"));
    const std::vector<std::uint8_t> whole = ReadBytes(Background());
    const std::vector<std::uint8_t> headerOnly(whole.begin(), whole.begin() + 54);
    for (const std::vector<std::uint8_t>& bytes : {std::vector<std::uint8_t>(), Bytes("BM no picture"), headerOnly})
    {
        STAPAGE changed;
        changed.title = L"changed";
        frame_.SetStaPageParameter(changed);
        const FileTaken taken(Background());
        if (!bytes.empty())
        {
            WriteBytes(Background(), bytes);
        }
        frame_.ClearStaPageParameter();
        EXPECT_EQ(CString(L"Riverside 2.0"), frame_.GetStaPageParameter().title) << bytes.size();
        EXPECT_EQ(Resources() + L"pics/kwexeGuiImage.bmp", frame_.GetStaPageParameter().picture) << bytes.size();
        EXPECT_EQ(Bytes("printed before"), ReadBytes(Printed())) << bytes.size();
        EXPECT_FALSE(HasUnfinishedFile(AppDir() + L"exeFiles\\pics\\"));
    }
}

TEST_F(StartPageTest, a_target_that_somebody_reads_stays_and_no_part_of_a_file_remains)
{
    const FileReplaced printed(Printed(), Bytes("printed before"));
    const HANDLE held = CreateFileW(Printed(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, held);
    frame_.ClearStaPageParameter();
    CloseHandle(held);
    EXPECT_EQ(Bytes("printed before"), ReadBytes(Printed()));
    EXPECT_FALSE(HasUnfinishedFile(AppDir() + L"exeFiles\\pics\\"));
}

TEST_F(StartPageTest, a_read_only_target_stays_and_no_part_of_a_file_remains)
{
    const FileReplaced printed(Printed(), Bytes("printed before"));
    const FileReplaced working(Resources() + L"exeGuiImage.bmp", Bytes("as it was"));
    for (const CString& target : {Printed(), Resources() + L"exeGuiImage.bmp"})
    {
        const std::vector<std::uint8_t> before = ReadBytes(target);
        SetFileAttributesW(target, FILE_ATTRIBUTE_READONLY);
        frame_.ClearStaPageParameter();
        SetFileAttributesW(target, FILE_ATTRIBUTE_NORMAL);
        EXPECT_EQ(before, ReadBytes(target));
        EXPECT_FALSE(HasUnfinishedFile(target.Left(target.ReverseFind(L'\\') + 1)));
    }
}

TEST_F(StartPageTest, without_the_folder_for_it_no_page_is_printed_and_the_record_is_reset)
{
    const CString folder = AppDir() + L"exeFiles\\pics";
    ASSERT_TRUE(MoveFileW(folder, folder + L".taken"));
    frame_.ClearStaPageParameter();
    EXPECT_FALSE(Exists(folder));
    EXPECT_TRUE(MoveFileW(folder + L".taken", folder));
    EXPECT_EQ(CString(L"Riverside 2.0"), frame_.GetStaPageParameter().title);
}

TEST_F(StartPageTest, the_title_of_the_start_page_is_stored_with_its_color)
{
    frame_.SetStartPageTitle(L"滨江");
    frame_.SetStartPageTitleColor(0x00123456);
    EXPECT_EQ(CString(L"滨江"), frame_.GetStartPageTitle());
    EXPECT_EQ(0x00123456u, frame_.GetStartPageTitleColor());
}

TEST_F(StartPageTest, the_held_record_follows_the_ini_file_at_a_reset_only)
{
    frame_.ClearStaPageParameter();
    const FileReplaced later(IniFile(), Bytes("[发布独立程序文字]\n标题=later\n"));
    EXPECT_EQ(CString(L"Riverside 2.0"), frame_.GetStaPageParameter().title);
    frame_.ClearStaPageParameter();
    EXPECT_EQ(CString(L"later"), frame_.GetStaPageParameter().title);
    EXPECT_EQ(Bytes("[发布独立程序文字]\n标题=later\n"), ReadBytes(IniFile())) << "nothing writes it";
}

TEST_F(StartPageTest, a_record_that_is_changed_in_place_is_the_one_held_and_nothing_is_printed)
{
    const FileReplaced printed(Printed(), Bytes("printed before"));
    frame_.GetStaPageParameter().title = L"in place";
    STAPAGE copy(frame_.GetStaPageParameter());
    EXPECT_EQ(CString(L"in place"), copy.title);
    copy.picture = L"other.bmp";
    frame_.SetStaPageParameter(copy);
    EXPECT_EQ(CString(L"other.bmp"), frame_.GetStaPageParameter().picture);
    EXPECT_EQ(Bytes("printed before"), ReadBytes(Printed()));
}
