// SPDX-License-Identifier: MIT
// Work is not repeated whose inputs are unchanged, and nobody can tell by the files.
#include "Thumbnail.h"

#include <NxConfig/SystemUtility.h>

#include <functional>

namespace
{
/// When a file was written, 100 ns.
std::uint64_t WrittenAt(const CString& path)
{
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    GetFileAttributesExW(path, GetFileExInfoStandard, &data);
    return std::uint64_t(data.ftLastWriteTime.dwHighDateTime) << 32 | data.ftLastWriteTime.dwLowDateTime;
}

struct Times
{
    std::uint64_t normal;
    std::uint64_t pushed;
};

Times TimesOf(UINT index)
{
    return {WrittenAt(NormalFile(index)), WrittenAt(PushedFile(index))};
}

/// Long enough for a file system's clock to go on.
void Pause()
{
    Sleep(15);
}
} // namespace

class ThumbnailCacheTest : public ThumbnailTest
{
protected:
    void SetUp() override
    {
        ThumbnailTest::SetUp();
        picture_ = Write(L"photo.png", Motley(60, 40));
        ASSERT_EQ(MakeThumbnail(L"caption", picture_, 7, 1), ThumbnailStem(7));
        before_ = TimesOf(7);
        Pause();
    }

    /// Makes the thumbnail again and expects both files untouched.
    void ExpectKept(const CString& caption, const CString& picture, int kind)
    {
        EXPECT_EQ(MakeThumbnail(caption, picture, 7, kind), ThumbnailStem(7));
        const Times after = TimesOf(7);
        EXPECT_EQ(after.normal, before_.normal);
        EXPECT_EQ(after.pushed, before_.pushed);
    }

    /// Makes it again and expects both files rewritten, to what composing afresh gives, and then kept.
    void ExpectRewritten(const CString& caption, const CString& picture, int kind, const CString& shown = CString())
    {
        ExpectComposed(caption, picture, kind, shown);
        const Times after = TimesOf(7);
        EXPECT_NE(after.normal, before_.normal);
        EXPECT_NE(after.pushed, before_.pushed);
        before_ = after;
        Pause();
        ExpectKept(caption, picture, kind);
    }

    CString picture_;
    Times before_ = {};
};

TEST_F(ThumbnailCacheTest, unchanged_inputs_leave_the_files_alone)
{
    ExpectKept(L"caption", picture_, 1);
    ExpectKept(L"caption", picture_, 1);
    ExpectComposed(L"caption", picture_, 1);
}

TEST_F(ThumbnailCacheTest, another_caption)
{
    ExpectRewritten(L"Caption", picture_, 1);
    ExpectRewritten(L"", picture_, 1);
}

TEST_F(ThumbnailCacheTest, another_kind)
{
    ExpectRewritten(L"caption", picture_, 0);
}

TEST_F(ThumbnailCacheTest, another_picture_file)
{
    ExpectRewritten(L"caption", Write(L"other.png", Motley(61, 40)), 1);
}

TEST_F(ThumbnailCacheTest, the_picture_file_rewritten)
{
    Write(L"photo.png", Solid(60, 40, 0xFFFF0000));
    ExpectRewritten(L"caption", picture_, 1);
}

TEST_F(ThumbnailCacheTest, the_picture_file_replaced_by_one_of_equal_length_and_time)
{
    constexpr std::uint64_t someTime = 132'000'000'000'000'000;
    const CString other = Write(L"replacement.bmp", Bmp24(Solid(60, 40, 0xFF00FF00)));
    picture_ = Write(L"photo.bmp", Bmp24(Solid(60, 40, 0xFFFF0000)));
    for (const CString& file : {picture_, other})
    {
        ASSERT_TRUE(SetWrittenAt(file, someTime));
    }
    ExpectRewritten(L"caption", picture_, 1);
    ASSERT_TRUE(MoveFileExW(other, picture_, MOVEFILE_REPLACE_EXISTING));
    ExpectRewritten(L"caption", picture_, 1);
}

TEST_F(ThumbnailCacheTest, a_skin_file_replaced_by_one_of_equal_length_and_time)
{
    constexpr std::uint64_t someTime = 132'000'000'000'000'000;
    const CString mark = SkinDir() + L"new_skin/videoplay.png";
    const FileReplaced first(mark, Bmp24(Solid(41, 41, 0xFF336699)));
    ASSERT_TRUE(SetWrittenAt(mark, someTime));
    ExpectRewritten(L"caption", picture_, 1);
    ASSERT_TRUE(WriteBytes(mark, Bmp24(Solid(41, 41, 0xFF996633))));
    ASSERT_TRUE(SetWrittenAt(mark, someTime));
    ExpectRewritten(L"caption", picture_, 1);
}

TEST_F(ThumbnailCacheTest, clearing_all_windows_outside_of_a_size_event_composes_anew)
{
    Show({Record(L"a", 0, L"one", picture_)});
    const Times first = TimesOf(0);
    ASSERT_NE(first.normal, 0u);
    Pause();
    Frame().ClearAllWindows();
    Frame().CreateMainFrame();
    const Times second = TimesOf(0);
    EXPECT_NE(second.normal, first.normal);
    EXPECT_NE(second.pushed, first.pushed);
    Pause();
    Host().Resize(900, 650);
    EXPECT_EQ(TimesOf(0).normal, second.normal);
    EXPECT_EQ(TimesOf(0).pushed, second.pushed);
}

TEST_F(ThumbnailCacheTest, the_picture_file_gone_and_back)
{
    {
        const FileTaken away(picture_);
        ExpectRewritten(L"caption", picture_, 1, Placeholder());
    }
    Pause();
    ExpectRewritten(L"caption", picture_, 1);
}

TEST_F(ThumbnailCacheTest, each_skin_file_that_is_drawn)
{
    for (const wchar_t* file : {L"borderN.png", L"borderP.png", L"textBGN.png", L"textBGP.png", L"videoplay.png"})
    {
        SCOPED_TRACE(Utf8(file));
        Pause();
        {
            const FileReplaced changed(SkinDir() + L"new_skin/" + file, Bmp24(Solid(126, 96, 0xFF336699)));
            ExpectRewritten(L"caption", picture_, 1);
        }
        Pause();
        ExpectRewritten(L"caption", picture_, 1);
    }
}

TEST_F(ThumbnailCacheTest, the_placeholder_where_it_is_drawn)
{
    MakeThumbnail(L"caption", L"", 7, 1);
    before_ = TimesOf(7);
    Pause();
    {
        const FileReplaced changed(Placeholder(), Bmp24(Solid(12, 9, 0xFF336699)));
        ExpectRewritten(L"caption", L"", 1, Placeholder());
    }
}

TEST_F(ThumbnailCacheTest, outputs_that_somebody_removed_or_changed_are_made_again)
{
    DeleteFileW(NormalFile(7));
    ExpectRewritten(L"caption", picture_, 1);
    DeleteFileW(PushedFile(7));
    ExpectRewritten(L"caption", picture_, 1);
    WriteBytes(PushedFile(7), Bytes{1, 2, 3});
    ExpectRewritten(L"caption", picture_, 1);
}

TEST_F(ThumbnailCacheTest, another_interface_font)
{
    const CString table = AppDir() + L"languages\\zh-CN.ini";
    Bytes bytes = ReadBytes(table);
    const std::string key = "LKEY11=Noto Sans CJK SC";
    const auto found = std::search(bytes.begin(), bytes.end(), key.begin(), key.end());
    ASSERT_NE(found, bytes.end());
    const std::string other = "LKEY11=DejaVu Sans";
    bytes.erase(found, found + static_cast<std::ptrdiff_t>(key.size()));
    bytes.insert(found, other.begin(), other.end());
    const Bytes former = ReadBytes(NormalFile(7));
    const CString application = AppDir();
    {
        const FileReplaced changed(table, bytes);
        // The table is read again where the application directory has changed.
        SystemUtility::SetAppPath(application + L".\\");
        EXPECT_EQ(MakeThumbnail(L"caption", picture_, 7, 1), ThumbnailStem(7));
        EXPECT_FALSE(ReadBytes(NormalFile(7)) == former);
        EXPECT_NE(WrittenAt(NormalFile(7)), before_.normal);
    }
    SystemUtility::SetAppPath(application);
    EXPECT_EQ(MakeThumbnail(L"caption", picture_, 7, 1), ThumbnailStem(7));
    EXPECT_TRUE(ReadBytes(NormalFile(7)) == former);
}

TEST_F(ThumbnailCacheTest, entries_that_change_places_are_composed_anew)
{
    const CString other = Write(L"other.png", Motley(90, 40));
    MakeThumbnail(L"first", picture_, 1, 0);
    MakeThumbnail(L"second", other, 2, 1);
    ExpectComposed(L"second", other, 1, CString(), 1);
    ExpectComposed(L"first", picture_, 0, CString(), 2);
}

TEST_F(ThumbnailCacheTest, a_failure_is_tried_again_each_time)
{
    const CString broken = Write(L"broken.png", Bytes{});
    EXPECT_EQ(MakeThumbnail(L"caption", broken, 7, 1), L"");
    EXPECT_EQ(MakeThumbnail(L"caption", broken, 7, 1), L"");
    EXPECT_EQ(TakeLog().size(), 2u);
    ExpectComposed(L"caption", picture_, 1);
}

TEST_F(ThumbnailCacheTest, a_resize_of_the_view_composes_nothing_again)
{
    Show({Record(L"a", 0, L"one", picture_), Record(L"b", 1, L"two")});
    const Times first = TimesOf(0);
    const Times second = TimesOf(1);
    ASSERT_NE(first.normal, 0u);
    Pause();
    Host().Resize(900, 650);
    EXPECT_EQ(TimesOf(0).normal, first.normal);
    EXPECT_EQ(TimesOf(0).pushed, first.pushed);
    EXPECT_EQ(TimesOf(1).normal, second.normal);
    EXPECT_EQ(TimesOf(1).pushed, second.pushed);
    EXPECT_EQ(Place("b_V"), "11,172 - 137,268");
}
