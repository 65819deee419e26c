// SPDX-License-Identifier: MIT
// A skin that is edited while the interface shows it, as the example host follows it.
#include "support/HostedFrame.h"
#include "support/MemoryPeak.h"
#include "support/Spoiling.h"

#include "skin/LiveSkin.h"

#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/ParamConfig.h>
#include <NxConfig/SystemUtility.h>

#include <CEGUI/Exceptions.h>

#include <algorithm>
#include <memory>

namespace
{
using host::LiveSkin;
using Clock = std::chrono::steady_clock;

const wchar_t* const TitlePicture = L"new_skin\\topBG.png";
const wchar_t* const Logo = L"new_skin\\logo.png";
const wchar_t* const Scheme = L"TavLookSkin.scheme";

Lines Names(const std::vector<CString>& files)
{
    Lines names;
    std::transform(files.begin(), files.end(), std::back_inserter(names), Utf8);
    return names;
}

class LiveSkinTest : public HostedFrame
{
protected:
    void SetUp() override
    {
        HostedFrame::SetUp();
        host::MakeFolders(Edited() + L"new_skin\\");
        for (const auto& [file, stamp] : host::ListSkin(Skins() + L"TavLook\\"))
        {
            ASSERT_TRUE(CopyFileW(Skins() + L"TavLook\\" + file, Edited() + file, FALSE));
        }
        live_ = std::make_unique<LiveSkin>(Edited());
        Restart();
    }
    void TearDown() override
    {
        for (const auto& [file, stamp] : host::ListSkin(Edited()))
        {
            DeleteFileW(Edited() + file);
        }
        RemoveDirectoryW(Edited() + L"new_skin");
        RemoveDirectoryW(Edited());
        CParamConfig::getInstance()->reload();
        HostedFrame::TearDown();
        Restart();
    }
    static CString Skins() { return AppDir() + SystemUtility::GetResourceRelPath() + L"cegui\\"; }
    static CString Edited() { return Skins() + L"Edited\\"; }
    /// A file of the light skin, which any edited file may hold.
    static std::vector<std::uint8_t> Light(const wchar_t* file) { return ReadBytes(Skins() + L"TavLookLight\\" + file); }
    static std::vector<std::uint8_t> Half(const wchar_t* file)
    {
        std::vector<std::uint8_t> bytes = ReadBytes(Skins() + L"TavLook\\" + file);
        bytes.resize(bytes.size() / 2);
        return bytes;
    }
    /// What comes of three looks, each of its own time: a change settles in two.
    LiveSkin::Change Look()
    {
        LiveSkin::Change all;
        for (int i = 0; i < 3; ++i)
        {
            now_ += std::chrono::milliseconds(300);
            const LiveSkin::Change change = live_->Look(now_);
            all.taken.insert(all.taken.end(), change.taken.begin(), change.taken.end());
            all.broken.insert(all.broken.end(), change.broken.begin(), change.broken.end());
        }
        return all;
    }
    static Pixel Title() { return Host().Shoot().At(400, 20); }

    std::unique_ptr<LiveSkin> live_;
    Clock::time_point now_ = Clock::now();
};

TEST_F(LiveSkinTest, nothing_is_said_of_a_skin_that_nobody_edits)
{
    EXPECT_TRUE(Look().IsEmpty());
    EXPECT_EQ(Utf8(live_->Name()), "Edited");
}

TEST_F(LiveSkinTest, a_saved_picture_shows_once_the_frame_is_built_anew)
{
    const Pixel before = Title();
    ASSERT_TRUE(WriteBytes(Edited() + TitlePicture, Light(TitlePicture)));
    const LiveSkin::Change change = Look();
    EXPECT_EQ(Names(change.taken), Lines{"new_skin\\topBG.png"});
    EXPECT_EQ(Names(change.broken), Lines{});
    EXPECT_FALSE(change.NeedsStart());
    Rebuild();
    EXPECT_GT(Distance(Title(), before), 50);
    EXPECT_TRUE(Look().IsEmpty()) << "it is told once";
}

TEST_F(LiveSkinTest, a_change_waits_until_the_file_stands_still)
{
    ASSERT_TRUE(WriteBytes(Edited() + TitlePicture, Light(TitlePicture)));
    now_ += std::chrono::milliseconds(300);
    EXPECT_TRUE(live_->Look(now_).IsEmpty()) << "it may be half written";
    EXPECT_TRUE(live_->Look(now_ + std::chrono::milliseconds(100)).IsEmpty()) << "no time for a look";
    EXPECT_EQ(live_->Look(now_ + std::chrono::milliseconds(200)).taken.size(), 1u);
}

TEST_F(LiveSkinTest, a_change_shows_within_a_second_on_the_clock)
{
    ASSERT_TRUE(WriteBytes(Edited() + TitlePicture, Light(TitlePicture)));
    const Clock::time_point saved = Clock::now();
    const Pixel before = Title();
    while (live_->Look(Clock::now()).IsEmpty() && Clock::now() - saved < std::chrono::seconds(5))
    {
        Host().Frames(1);
    }
    Rebuild();
    EXPECT_GT(Distance(Title(), before), 50);
    EXPECT_LT(std::chrono::duration<double>(Clock::now() - saved).count(), 1.0);
}

TEST_F(LiveSkinTest, damaged_tiff_files_and_pictures_that_unpack_to_too_much_are_broken_ones)
{
    for (const wchar_t* file : damagedTiffFiles)
    {
        CString name(file);
        name = L"new_skin\\" + name.Mid(name.ReverseFind(L'\\') + 1);
        ASSERT_TRUE(WriteBytes(Edited() + name, ReadBytes(CString(NX_CORPUS) + file)));
    }
    ASSERT_TRUE(WriteBytes(Edited() + Logo, ReadBytes(CString(NX_CORPUS) + L"\\picture\\larger_than_allowed.png")));
    const MemoryPeak memory;
    const LiveSkin::Change change = Look();
    EXPECT_LT(memory.Growth(), 64) << "537 MB";
    EXPECT_EQ(change.broken.size() + change.taken.size(), std::size(damagedTiffFiles) + 1);
    const Lines broken = Names(change.broken);
    EXPECT_TRUE(std::count(broken.begin(), broken.end(), "new_skin\\logo.png"));
}

TEST_F(LiveSkinTest, a_broken_picture_leaves_the_old_one_and_the_log_names_it)
{
    const Screenshot before = Host().Shoot();
    ASSERT_TRUE(WriteBytes(Edited() + Logo, Half(Logo)));
    ASSERT_TRUE(WriteBytes(Edited() + TitlePicture, {'n', 'o'}));
    const LiveSkin::Change change = Look();
    EXPECT_EQ(Names(change.broken), (Lines{"new_skin\\logo.png", "new_skin\\topBG.png"}));
    EXPECT_EQ(Names(change.taken), Lines{});
    Rebuild();
    EXPECT_TRUE(Host().Shoot().pixels == before.pixels);
    live_->LogBroken(change);
    const Lines told = TakeLog();
    ASSERT_EQ(told.size(), 2u);
    EXPECT_NE(told[0].find("former one stays"), std::string::npos) << told[0];
    EXPECT_NE(told[0].find("Edited\\new_skin\\logo.png"), std::string::npos) << told[0];
    EXPECT_NE(told[1].find("topBG.png"), std::string::npos) << told[1];
    EXPECT_TRUE(Look().IsEmpty()) << "it is told once";
    ASSERT_TRUE(WriteBytes(Edited() + Logo, Light(Logo)));
    EXPECT_EQ(Names(Look().taken), Lines{"new_skin\\logo.png"}) << "a mended one is taken";
}

TEST_F(LiveSkinTest, a_picture_that_is_gone_leaves_the_old_one)
{
    const Screenshot before = Host().Shoot();
    ASSERT_TRUE(DeleteFileW(Edited() + Logo));
    EXPECT_TRUE(Look().IsEmpty());
    Rebuild();
    EXPECT_TRUE(Host().Shoot().pixels == before.pixels);
}

TEST_F(LiveSkinTest, a_broken_scheme_is_taken_back_when_the_interface_does_not_start_with_it)
{
    const Screenshot before = Host().Shoot();
    ASSERT_TRUE(WriteBytes(Edited() + Scheme, Half(Scheme)));
    LiveSkin::Change change = Look();
    EXPECT_EQ(Names(change.taken), Lines{"TavLookSkin.scheme"});
    EXPECT_TRUE(change.NeedsStart());
    Host().Close();
    EXPECT_THROW(Host().Start(), CEGUI::Exception);
    TakeLog();
    live_->TakeBack(change);
    EXPECT_EQ(Names(change.broken), Lines{"TavLookSkin.scheme"});
    EXPECT_TRUE(change.taken.empty());
    Restart();
    live_->LogBroken(change);
    const Lines told = TakeLog();
    ASSERT_EQ(told.size(), 1u);
    EXPECT_NE(told[0].find("Edited\\TavLookSkin.scheme"), std::string::npos) << told[0];
    Host().MoveMouse(ViewWidth / 2, ViewHeight / 2);
    EXPECT_TRUE(Host().Shoot().pixels == before.pixels);
}

TEST_F(LiveSkinTest, what_the_interface_writes_is_no_change_and_stays_out_of_the_edited_folder)
{
    Frame().ChangeTitleText(L"another title", 0xFFFFFF, TitleFont, 16.0f);
    Host().Frames(1);
    EXPECT_TRUE(Look().IsEmpty());
    EXPECT_EQ(GetFileAttributesW(Edited() + L"TavTilteText.bmp"), INVALID_FILE_ATTRIBUTES);
    EXPECT_NE(GetFileAttributesW(SkinDir() + L"TavTilteText.bmp"), INVALID_FILE_ATTRIBUTES);
}

TEST_F(LiveSkinTest, the_skins_beside_it_follow_each_other_and_begin_again)
{
    EXPECT_EQ(Utf8(live_->NextFolder()), Utf8(Skins() + L"TavLook\\"));
    EXPECT_EQ(Utf8(LiveSkin(Skins() + L"TavLook\\").NextFolder()), Utf8(Skins() + L"TavLookLight\\"));
    EXPECT_EQ(Utf8(LiveSkin(Skins() + L"TavLookLight\\").NextFolder()), Utf8(Edited()));
}

TEST_F(LiveSkinTest, a_path_that_leads_up_pours_nothing_into_the_resource_folder)
{
    const CString resources = host::ResourceFolder();
    const FileReplaced picture(resources + L"a picture.png", {'p'});
    for (const CString& folder : {Edited() + L"..\\", Edited() + L"new_skin\\..\\..\\", Edited() + L"new_skin\\..\\", resources})
    {
        SCOPED_TRACE(Utf8(folder));
        LiveSkin skin(folder);
        EXPECT_NE(GetFileAttributesW(resources + L"a picture.png"), INVALID_FILE_ATTRIBUTES);
        EXPECT_EQ(GetFileAttributesW(resources + Scheme), INVALID_FILE_ATTRIBUTES);
    }
    EXPECT_EQ(Utf8(LiveSkin(Edited() + L"new_skin\\..\\").Name()), "Edited");
}

TEST_F(LiveSkinTest, a_missing_skin_leaves_the_copy_of_one_of_its_name)
{
    const CString copy = host::ResourceFolder() + L"skins_in_use\\Edited\\";
    ASSERT_NE(GetFileAttributesW(copy + Scheme), INVALID_FILE_ATTRIBUTES);
    LiveSkin missing(host::ResourceFolder() + L"nowhere\\Edited\\");
    EXPECT_NE(GetFileAttributesW(copy + Scheme), INVALID_FILE_ATTRIBUTES);
    EXPECT_NE(GetFileAttributesW(copy + Logo), INVALID_FILE_ATTRIBUTES);
}

TEST_F(LiveSkinTest, a_skin_that_cannot_be_copied_is_used_where_it_is)
{
    CParamConfig::getInstance()->reload();
    LiveSkin missing(Skins() + L"Nowhere\\");
    EXPECT_EQ(CParamConfig::getInstance()->getStringParam("CEGUI_SkinDir"), "cegui\\Nowhere\\");
    EXPECT_TRUE(missing.Look(Clock::now() + std::chrono::seconds(9)).IsEmpty());
    EXPECT_EQ(Utf8(missing.NextFolder()), Utf8(Skins() + L"Nowhere\\"));
}
} // namespace
