// SPDX-License-Identifier: MIT
// What goes wrong with the start page is one line in the log that names the file to mend.
#include "support/FrameTest.h"
#include "support/MemoryPeak.h"

#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/SystemUtility.h>

namespace
{
CString Resources()
{
    return AppDir() + SystemUtility::GetResourceRelPath();
}
} // namespace

class StartPageLogTest : public FrameTest
{
protected:
    void ExpectOneLine(const std::string& file)
    {
        Frame().ClearStaPageParameter();
        const Lines log = TakeLog();
        ASSERT_EQ(log.size(), 1u);
        EXPECT_NE(log[0].find(file), std::string::npos) << log[0];
    }
};

TEST_F(StartPageLogTest, a_reset_that_works_says_nothing)
{
    Frame().ClearStaPageParameter();
    EXPECT_EQ(TakeLog(), Lines{});
}

TEST_F(StartPageLogTest, a_missing_pristine_copy)
{
    const FileTaken pristine(Resources() + L"exeGuiImage2.bmp");
    ExpectOneLine("exeGuiImage2.bmp");
}

TEST_F(StartPageLogTest, a_missing_picture)
{
    const FileTaken picture(Resources() + L"pics\\kwexeGuiImage.bmp");
    ExpectOneLine("kwexeGuiImage.bmp");
}

TEST_F(StartPageLogTest, a_picture_that_is_none)
{
    const FileReplaced picture(Resources() + L"pics\\kwexeGuiImage.bmp", {1, 2, 3});
    ExpectOneLine("kwexeGuiImage.bmp");
}

TEST_F(StartPageLogTest, a_picture_that_unpacks_to_more_than_a_picture_may_have)
{
    const FileReplaced picture(Resources() + L"pics\\kwexeGuiImage.bmp",
                               ReadBytes(Utf8ToCString(NX_PICTURE_CORPUS "/larger_than_allowed.png")));
    const MemoryPeak memory;
    ExpectOneLine("kwexeGuiImage.bmp");
    EXPECT_LT(memory.Growth(), 64) << "537 MB";
}

TEST_F(StartPageLogTest, a_write_protected_page)
{
    const CString page = AppDir() + L"exeFiles\\pics\\exeGuiImage.bmp";
    const FileReplaced printed(page, {1, 2, 3});
    SetFileAttributesW(page, FILE_ATTRIBUTE_READONLY);
    ExpectOneLine("exeFiles\\pics\\exeGuiImage.bmp");
    SetFileAttributesW(page, FILE_ATTRIBUTE_NORMAL);
}
