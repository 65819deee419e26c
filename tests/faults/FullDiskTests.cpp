// SPDX-License-Identifier: MIT
// A disk that is full or may not be written, at each of the library's writes.
#include "FaultTest.h"
#include "SmallDisk.h"

#include <gui_host/FontInstallation.h>

#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/SystemUtility.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>
#include <vector>

namespace
{
/// What writes, with a picture of its own each time, so that nothing is left as it was.
struct Writing
{
    const char* name;
    void (*write)(CeGuiMainFrame& frame, const CString& text);
};

const Writing writings[] = {
    {"the frame's title and thumbnails",
     [](CeGuiMainFrame& frame, const CString& text)
     {
         for (BTN_UNIT& record : frame.GetCtrlBtnInfo())
         {
             record.target = text;
         }
         frame.SetSceneTitle(text);
         frame.ClearAllWindows();
         frame.CreateMainFrame();
     }},
    {"a changed title",
     [](CeGuiMainFrame& frame, const CString& text) { frame.ChangeTitleText(text, 0xFFFFFF, L"Noto Sans CJK SC", 20.0f); }},
    {"a tooltip", [](CeGuiMainFrame& frame, const CString& text) { frame.CreateTooltipWindow(10, 100, text); }},
    {"the property panel",
     [](CeGuiMainFrame& frame, const CString& text)
     {
         CeGuiMainFrame::PropertyRows rows(12, {text, text});
         frame.setPropertyData(rows);
         frame.OpenPropertyDlg(nullptr, true);
     }},
    {"the start page",
     [](CeGuiMainFrame& frame, const CString&)
     {
         frame.MakeContextCurrent();
         frame.ClearStaPageParameter();
     }},
};

using Files = std::map<CString, Bytes>;

/// The application's bitmap files, those among them that the interface writes.
std::vector<CString> ListBitmaps()
{
    std::vector<CString> files = FilesOf(AppDir());
    files.erase(std::remove_if(files.begin(), files.end(), [](const CString& file) { return file.Right(4) != L".bmp"; }),
                files.end());
    return files;
}

bool IsWholeBitmap(const Bytes& bytes)
{
    BITMAPFILEHEADER head = {};
    if (bytes.size() < sizeof(head))
    {
        return false;
    }
    std::memcpy(&head, bytes.data(), sizeof(head));
    return head.bfType == 0x4D42 && head.bfSize == bytes.size();
}

/// The application on a disk of its own.
class FullDisk : public FaultTest
{
protected:
    void SetUp() override
    {
        FaultTest::SetUp();
        home_ = AppDir();
        disk_ = std::make_unique<SmallDisk>(home_ + L"..\\small\\", 24);
        if (!disk_->Refusal().empty())
        {
            GTEST_SKIP() << disk_->Refusal();
        }
        const CString app = home_ + L"..\\small\\app\\";
        for (const CString& file : FilesOf(home_))
        {
            if (file.Find(L"art\\") < 0)
            {
                for (int end = file.Find(L'\\'); end >= 0; end = file.Find(L'\\', end + 1))
                {
                    CreateDirectoryW(app, nullptr);
                    CreateDirectoryW(app + file.Left(end), nullptr);
                }
                ASSERT_TRUE(CopyFileW(home_ + file, app + file, FALSE)) << Utf8(file);
            }
        }
        SystemUtility::SetAppPath(app);
        ASSERT_TRUE(Start());
        // Each file is there once, so that it may be left half written.
        WriteAll();
        EXPECT_EQ(NewLog(), Lines{});
        bitmaps_ = ListBitmaps();
        ASSERT_GT(bitmaps_.size(), 12u);
    }
    void TearDown() override
    {
        if (!bitmaps_.empty())
        {
            EXPECT_TRUE(ListBitmaps() == bitmaps_);
            EXPECT_EQ(UnfinishedFiles(AppDir()), Lines{});
        }
        SystemUtility::SetAppPath(home_);
        disk_.reset();
        Frame().ClearTitleSet();
        EXPECT_TRUE(Start());
        FaultTest::TearDown();
    }

    static void Write(const Writing& writing)
    {
        static int number = 0;
        CString text;
        text.Format(L"text %d", ++number);
        writing.write(Frame(), text);
        Host().Frames(1);
        Frame().DestroyTooltipWindow();
    }
    static void WriteAll()
    {
        for (const Writing& writing : writings)
        {
            Write(writing);
        }
    }

    /// Writes, and expects that what could not be written is told by its name and stays as it was.
    /// @return whether something could not be written
    bool ExpectNothingHalf(const Writing& writing)
    {
        Write(writing);
        const Lines log = NewLog();
        for (const CString& file : bitmaps_)
        {
            EXPECT_TRUE(IsWholeBitmap(ReadBytes(AppDir() + file))) << Utf8(file);
        }
        EXPECT_EQ(UnfinishedFiles(AppDir()), Lines{});
        EXPECT_EQ(Without(log, ".bmp"), Lines{});
        EXPECT_TRUE(Stands());
        return !log.empty();
    }
    void ExpectMended(const Writing& writing)
    {
        Write(writing);
        EXPECT_EQ(NewLog(), Lines{});
        Rebuild();
        EXPECT_TRUE(Stands());
        EXPECT_EQ(NewLog(), Lines{});
    }

    Files Bitmaps() const
    {
        Files files;
        for (const CString& file : bitmaps_)
        {
            files[file] = ReadBytes(AppDir() + file);
        }
        return files;
    }

    CString home_;
    std::unique_ptr<SmallDisk> disk_;
    std::vector<CString> bitmaps_;
};
} // namespace

TEST_F(FullDisk, leaves_no_half_written_picture_and_the_next_write_mends_it)
{
    for (const Writing& writing : writings)
    {
        int failed = 0;
        for (const int kilobytes : {0, 4, 60, 240})
        {
            Fault fault("a disk with " + std::to_string(kilobytes) + " KB left: " + writing.name);
            // There may be room for what is written.
            fault.MayMiss();
            disk_->Fill(kilobytes);
            const bool one = ExpectNothingHalf(writing);
            fault.Bites(one);
            failed += one;
            disk_->Clear();
            ExpectMended(writing);
        }
        EXPECT_GT(failed, 0) << writing.name;
    }
}

TEST_F(FullDisk, read_only_changes_nothing_and_the_next_write_mends_it)
{
    for (const Writing& writing : writings)
    {
        Fault fault(std::string("a disk that may not be written: ") + writing.name);
        const Files before = Bitmaps();
        disk_->SetReadOnly(true);
        fault.Bites(ExpectNothingHalf(writing));
        EXPECT_TRUE(Bitmaps() == before);
        disk_->SetReadOnly(false);
        ExpectMended(writing);
    }
}

TEST_F(FullDisk, under_the_log_takes_nothing_but_the_log)
{
    wchar_t former[MAX_PATH] = {};
    GetCurrentDirectoryW(MAX_PATH, former);
    for (const bool readOnly : {false, true})
    {
        Fault fault(readOnly ? "a disk under the log that may not be written" : "a full disk under the log");
        ASSERT_TRUE(SetCurrentDirectoryW(AppDir()));
        readOnly ? disk_->SetReadOnly(true) : disk_->Fill(4);
        EXPECT_TRUE(Start());
        fault.Bites(!WriteBytes(AppDir() + L"..\\more", Bytes(100000)));
        Rebuild();
        EXPECT_TRUE(Stands());
        ExpectAnswers();
        disk_->SetReadOnly(false);
        DeleteFileW(AppDir() + L"..\\more");
        disk_->Clear();
        ASSERT_TRUE(SetCurrentDirectoryW(former));
        EXPECT_TRUE(Start());
        DeleteFileW(AppDir() + L"CEGUI.log");
    }
}

TEST_F(FullDisk, under_the_systems_fonts_leaves_no_part_of_a_font)
{
    wchar_t windows[MAX_PATH] = {};
    GetWindowsDirectoryW(windows, MAX_PATH);
    const CString fonts = CString(windows) + L"\\Fonts\\";
    for (const int kilobytes : {0, 4, 64})
    {
        Fault fault("a full disk under the system's fonts, " + std::to_string(kilobytes) + " KB left");
        SmallDisk disk(fonts, 2);
        ASSERT_EQ(disk.Refusal(), "");
        disk.Fill(kilobytes);
        fault.Bites(!InstallSystemFont("Nx Nowhere", "youyuan.ttf"));
        disk.Clear();
        EXPECT_TRUE(FilesOf(fonts).empty());
        const Lines log = NewLog();
        EXPECT_EQ(log.size(), 1u);
        EXPECT_EQ(Without(log, Utf8(fonts + L"youyuan.ttf")), Lines{});
    }
}
