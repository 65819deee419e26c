// SPDX-License-Identifier: MIT
// What the interface writes, where something stands in the way of each file.
#include "FaultTest.h"
#include "SpoiltFile.h"

#include <NxConfig/SystemUtility.h>

namespace
{
const wchar_t* const outputs[] = {L"TavTilteText.bmp",
                                  L"tavtooltipimgfile.bmp",
                                  L"PropertyFormbackImage_0.bmp",
                                  L"PropertyImage_0.bmp",
                                  L"new_skin\\TavGuiButtonImg0_N.bmp",
                                  L"new_skin\\TavGuiButtonImg0_P.bmp"};

/// Draws every output anew.
void WriteAll(CeGuiMainFrame& frame)
{
    static int number = 0;
    CString text;
    text.Format(L"written %d", ++number);
    for (BTN_UNIT& record : frame.GetCtrlBtnInfo())
    {
        record.target = text;
    }
    CeGuiMainFrame::PropertyRows rows(3, {text, text});
    frame.setPropertyData(rows);
    frame.OpenPropertyDlg(nullptr, true);
    frame.ClearAllWindows();
    frame.CreateMainFrame();
    frame.ChangeTitleText(text, 0xFFFFFF, L"Noto Sans CJK SC", 16.0f);
    frame.CreateTooltipWindow(10, 100, text);
}

class OutputFiles : public FaultTest
{
protected:
    void SetUp() override
    {
        FaultTest::SetUp();
        WriteAll(Frame());
        EXPECT_EQ(NewLog(), Lines{});
    }
    void TearDown() override
    {
        EXPECT_EQ(UnfinishedFiles(SkinDir()), Lines{});
        FaultTest::TearDown();
    }
    /// Every line names the file, and all else is written.
    void ExpectTold(const CString& file, Fault& fault)
    {
        WriteAll(Frame());
        Host().Frames(1);
        const Lines log = NewLog();
        fault.Bites(!log.empty());
        EXPECT_EQ(Without(log, Utf8(file.Mid(file.ReverseFind(L'\\') + 1))), Lines{});
        EXPECT_TRUE(Stands());
    }
    void ExpectMended(const CString& file)
    {
        ASSERT_TRUE(WriteBytes(SkinDir() + file, {'B', 'M'}));
        WriteAll(Frame());
        Host().Frames(1);
        EXPECT_EQ(NewLog(), Lines{});
        EXPECT_GT(ReadPictureFile(SkinDir() + file).width, 0);
    }
};
} // namespace

TEST_F(OutputFiles, a_folder_in_a_files_place_is_told_and_nothing_else_suffers)
{
    for (const wchar_t* output : outputs)
    {
        Fault fault("a folder in place of " + Utf8(output));
        {
            const FolderInPlace folder(SkinDir() + output);
            ExpectTold(output, fault);
            EXPECT_EQ(UnfinishedFiles(SkinDir()), Lines{});
        }
        ExpectMended(output);
    }
}

TEST_F(OutputFiles, the_unfinished_file_of_another_program_is_no_hindrance)
{
    for (const wchar_t* output : outputs)
    {
        SCOPED_TRACE(Utf8(output));
        const HANDLE held = CreateFileW(SkinDir() + output + L".part", GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                        FILE_FLAG_DELETE_ON_CLOSE, nullptr);
        ASSERT_NE(held, INVALID_HANDLE_VALUE);
        ExpectMended(output);
        CloseHandle(held);
    }
}

TEST_F(OutputFiles, a_write_protected_file_is_told_and_stays)
{
    for (const wchar_t* output : outputs)
    {
        Fault fault(Utf8(output) + " write-protected");
        const Bytes former = ReadBytes(SkinDir() + output);
        SetFileAttributesW(SkinDir() + output, FILE_ATTRIBUTE_READONLY);
        ExpectTold(output, fault);
        EXPECT_TRUE(ReadBytes(SkinDir() + output) == former);
        SetFileAttributesW(SkinDir() + output, FILE_ATTRIBUTE_NORMAL);
        ExpectMended(output);
    }
}

TEST_F(OutputFiles, a_file_that_another_program_holds_open_is_told_and_written_the_next_time)
{
    for (const wchar_t* output : outputs)
    {
        Fault fault(Utf8(output) + " held open");
        const Bytes former = ReadBytes(SkinDir() + output);
        const HANDLE held = CreateFileW(SkinDir() + output, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        ASSERT_NE(held, INVALID_HANDLE_VALUE);
        ExpectTold(output, fault);
        EXPECT_TRUE(ReadBytes(SkinDir() + output) == former);
        CloseHandle(held);
        ExpectMended(output);
    }
}

TEST_F(OutputFiles, a_file_cut_behind_the_interfaces_back_is_drawn_again_by_the_next_resize)
{
    for (const wchar_t* output : outputs)
    {
        Fault fault(Utf8(output) + " cut after it was written");
        ASSERT_TRUE(WriteBytes(SkinDir() + output, {'B', 'M'}));
        fault.Bites(ReadPictureFile(SkinDir() + output).width == 0);
        Rebuild();
        Frame().CreateTooltipWindow(10, 100, L"tooltip");
        EXPECT_GT(ReadPictureFile(SkinDir() + output).width, 0);
        EXPECT_EQ(NewLog(), Lines{});
        EXPECT_TRUE(Stands());
    }
}

TEST_F(OutputFiles, a_missing_folder_is_told_and_the_frame_comes_back_with_it)
{
    Fault fault("the resource directory missing");
    const CString folder = SkinDir().Left(SkinDir().GetLength() - 1);
    const auto good = SeenAfterRebuild();
    ASSERT_TRUE(MoveFileW(folder, folder + L".away"));
    Rebuild();
    UseEverything();
    EXPECT_FALSE(Stands());
    const Lines log = NewLog();
    ASSERT_FALSE(log.empty());
    fault.Bites(true);
    EXPECT_NE(log[0].find("TavLook.imageset"), std::string::npos) << log[0];
    EXPECT_FALSE(Start());
    EXPECT_EQ(NewLog().size(), 1u);
    ASSERT_TRUE(MoveFileW(folder + L".away", folder));
    EXPECT_TRUE(Start());
    Host().MoveMouse(Width / 2, Height / 2);
    EXPECT_TRUE(Stands());
    EXPECT_EQ(SeenAfterRebuild().size(), good.size());
    EXPECT_EQ(NewLog(), Lines{});
}
