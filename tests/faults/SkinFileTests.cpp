// SPDX-License-Identifier: MIT
// Every file of the skin, spoilt in every way.
#include "FaultTest.h"
#include "SpoiltFile.h"

#include <widgets/ImageEncoder.h>

#include <algorithm>
#include <set>

namespace
{
/// What the interface starts with.
const wchar_t* const startFiles[] = {L"TavLookSkin.scheme", L"TavLook.looknfeel", L"TavLook.imageset", L"TavLook.png"};
/// One picture of each use: a bar, an item, a thumbnail's part, the panel, the thumb, the skin's own imageset.
const wchar_t* const thorough[] = {L"new_skin\\topBG.png",
                                   L"new_skin\\logo.png",
                                   L"new_skin\\empty.png",
                                   L"new_skin\\DlgPropertyTemple.png",
                                   L"new_skin\\verticalscrollbar.png",
                                   L"TavLook.png"};

bool IsPicture(const CString& file)
{
    return GetFileExtension(file) == L"png";
}

bool IsThorough(const CString& file)
{
    return std::find(std::begin(thorough), std::end(thorough), file) != std::end(thorough);
}

/// Without what the interface writes itself, and without what a skin's pictures are drawn from.
std::vector<CString> ListSkinFiles()
{
    std::vector<CString> files = FilesOf(SkinDir());
    files.erase(std::remove_if(files.begin(), files.end(),
                               [](const CString& file) { return GetFileExtension(file) == L"bmp" || file.Find(L"art\\") == 0; }),
                files.end());
    return files;
}

std::vector<Spoiling> WaysFor(const CString& file)
{
    std::vector<Spoiling> ways = AnyFile();
    const auto add = [&](const std::vector<Spoiling>& more) { ways.insert(ways.end(), more.begin(), more.end()); };
    if (!IsPicture(file))
    {
        add(MoreForTexts());
        return ways;
    }
    add(AnyPicture());
    if (IsThorough(file))
    {
        add(MoreForPictures());
    }
    return ways;
}

class SkinFiles : public FaultTest
{
protected:
    void SetUp() override
    {
        FaultTest::SetUp();
        good_ = Seen();
    }
    /// The bare name, as the log gives it behind any kind of separator.
    static std::string NameIn(const CString& file) { return Utf8(file.Mid(file.ReverseFind(L'\\') + 1)); }

    /// Builds the frame with the file spoilt, and uses it.
    /// @param readByFrame whether the building alone reads the file; set when that has missed it
    /// @return whether the file was missed
    bool Use(const CString& file, const Spoiling& way, bool& readByFrame, Fault& fault)
    {
        const auto spoilt = way.spoil(SkinDir() + file);
        const Openings openings(SkinDir() + file);
        const bool same = SeenAfterRebuild() == good_;
        Lines log = NewLog();
        // Each thumbnail that lacks the file is a line, and they are the same.
        EXPECT_LE(std::set<std::string>(log.begin(), log.end()).size(), 1u) << testing::PrintToString(log);
        EXPECT_TRUE(Stands() || !log.empty());
        EXPECT_TRUE(same || !way.broken || !log.empty()) << "the frame looks otherwise, and nothing says why";
        readByFrame = readByFrame || !log.empty();
        if (log.empty() && !readByFrame)
        {
            UseEverything();
            log = NewLog();
        }
        fault.Bites(!same || !log.empty() || openings.Any());
        EXPECT_EQ(Without(log, NameIn(file)), Lines{});
        EXPECT_TRUE(way.broken || log.empty()) << testing::PrintToString(log);
        return !log.empty();
    }
    void ExpectMended()
    {
        EXPECT_TRUE(SeenAfterRebuild() == good_);
        EXPECT_EQ(NewLog(), Lines{});
    }

    std::vector<std::uint8_t> good_;
};
} // namespace

TEST_F(SkinFiles, spoilt_while_the_frame_stands_are_told_and_the_next_resize_mends_it)
{
    const std::vector<CString> files = ListSkinFiles();
    ASSERT_GT(files.size(), 40u);
    int read = 0;
    for (const CString& file : files)
    {
        const std::vector<Spoiling> ways = WaysFor(file);
        bool readByFrame = false;
        for (const Spoiling& way : ways)
        {
            Fault fault(Utf8(file) + ": " + way.name);
            if (&way == &ways.front())
            {
                fault.MayMiss();
            }
            const bool missed = Use(file, way, readByFrame, fault);
            // The first way is that it is missing: a file that nobody misses need not be spoilt in other ways.
            const bool first = &way == &ways.front();
            const bool last = &way == &ways.back() || (first && !missed);
            if (first || last || IsThorough(file))
            {
                ExpectMended();
            }
            read += first && missed;
            if (last)
            {
                break;
            }
        }
    }
    EXPECT_GT(read, 40);
    EXPECT_EQ(UnfinishedFiles(SkinDir()), Lines{});
}

TEST_F(SkinFiles, spoilt_at_the_start_are_told_and_the_next_start_mends_it)
{
    for (const wchar_t* file : startFiles)
    {
        for (const Spoiling& way : WaysFor(file))
        {
            Fault fault(Utf8(file) + " at the start: " + way.name);
            {
                const auto spoilt = way.spoil(SkinDir() + file);
                const Openings openings(SkinDir() + file);
                const bool started = Start();
                const Lines log = NewLog();
                fault.Bites(!log.empty() || openings.Any());
                EXPECT_EQ(started, log.empty()) << testing::PrintToString(log);
                EXPECT_EQ(Without(log, NameIn(file)), Lines{});
                EXPECT_LE(log.size(), 1u) << testing::PrintToString(log);
                EXPECT_EQ(started, Frame().IsInit());
                EXPECT_TRUE(way.broken || started);
                Host().Frames(2);
            }
            ASSERT_TRUE(Start());
            Host().MoveMouse(Width / 2, Height / 2);
            EXPECT_TRUE(Seen() == good_);
            EXPECT_EQ(NewLog(), Lines{});
        }
    }
}
