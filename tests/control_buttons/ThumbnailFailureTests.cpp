// SPDX-License-Identifier: MIT
// Pictures and skin files that are missing or no pictures.
#include "Thumbnail.h"

#include "support/Spoiling.h"

class ThumbnailFailureTest : public ThumbnailTest
{
protected:
    /// Makes a thumbnail that fails, and expects the one line about it.
    void ExpectFailure(const CString& picture, int kind = 0)
    {
        EXPECT_EQ(MakeThumbnail(L"caption", picture, 7, kind), L"");
        const Lines log = TakeLog();
        ASSERT_EQ(log.size(), 1u);
        EXPECT_EQ(log[0].find("NxOsgCeGui: thumbnail not made of: "), 0u) << log[0];
    }

    static CString Skin(const wchar_t* file) { return SkinDir() + L"new_skin/" + file; }
};

TEST_F(ThumbnailFailureTest, a_file_that_is_no_picture_gives_no_thumbnail)
{
    ExpectFailure(Write(L"zero.png", Bytes{}));
    ExpectFailure(Write(L"text.jpg", Bytes{'n', 'o', 't', ' ', 'a', ' ', 'p', 'i', 'c', 't', 'u', 'r', 'e'}));
    ExpectFailure(Write(L"broken.bmp", Bytes(300, 0x42)));
    Bytes cut = ReadBytes(Placeholder());
    cut.resize(20);
    ExpectFailure(Write(L"cut.png", cut));
    EXPECT_TRUE(ReadBytes(NormalFile(7)).empty());
    EXPECT_TRUE(ReadBytes(PushedFile(7)).empty());
}

TEST_F(ThumbnailFailureTest, damaged_tiff_files_give_a_thumbnail_or_one_line)
{
    for (const wchar_t* file : damagedTiffFiles)
    {
        SCOPED_TRACE(Utf8(file));
        const Bytes bytes = ReadBytes(CString(NX_CORPUS) + file);
        ASSERT_FALSE(bytes.empty());
        const bool made = !MakeThumbnail(L"caption", Write(L"damaged.tiff", bytes), 7, 0).IsEmpty();
        EXPECT_EQ(TakeLog().size(), made ? 0u : 1u);
    }
}

TEST_F(ThumbnailFailureTest, after_a_failure_a_good_picture_is_composed)
{
    const CString picture = Write(L"photo.png", Bytes{});
    ExpectFailure(picture);
    Write(L"photo.png", Motley(40, 30));
    ExpectComposed(L"caption", picture, 0);
}

TEST_F(ThumbnailFailureTest, a_missing_border_gives_a_blank_canvas)
{
    const FileTaken normal(Skin(L"borderN.png"));
    const FileTaken pushed(Skin(L"borderP.png"));
    ExpectComposed(L"caption", Write(L"photo.png", Motley(40, 30)), 1);
    const PictureFile thumbnail = ReadPictureFile(NormalFile(7));
    ASSERT_EQ(thumbnail.width, 126);
    EXPECT_EQ(thumbnail.height, 96);
    EXPECT_EQ(thumbnail.Argb(0, 0), 0u);
    EXPECT_EQ(thumbnail.Argb(125, 50), 0u);
    EXPECT_EQ(thumbnail.Argb(20, 20) >> 24, 0xFFu);
}

TEST_F(ThumbnailFailureTest, a_border_that_is_no_picture_gives_a_blank_canvas)
{
    const FileReplaced broken(Skin(L"borderN.png"), Bytes(100, 1));
    ExpectComposed(L"caption", Write(L"photo.png", Motley(40, 30)), 0);
    EXPECT_EQ(ReadPictureFile(NormalFile(7)).Argb(0, 0), 0u);
}

TEST_F(ThumbnailFailureTest, a_border_of_another_size_makes_a_canvas_of_that_size)
{
    const FileReplaced large(Skin(L"borderN.png"), Bmp24(Solid(140, 110, 0xFF00FF00)));
    ExpectComposed(L"caption", Write(L"photo.png", Motley(40, 30)), 0);
    EXPECT_EQ(ReadPictureFile(NormalFile(7)).width, 140);
}

TEST_F(ThumbnailFailureTest, a_missing_plate_gives_no_thumbnail_also_without_a_caption)
{
    const CString picture = Write(L"photo.png", Motley(40, 30));
    const FileTaken plate(Skin(L"textBGN.png"));
    ExpectFailure(picture);
    EXPECT_EQ(MakeThumbnail(L"", picture, 7, 0), L"");
    EXPECT_EQ(TakeLog().size(), 1u);
    EXPECT_TRUE(ReadBytes(NormalFile(7)).empty());
}

TEST_F(ThumbnailFailureTest, the_normal_picture_stays_when_the_pushed_one_fails)
{
    const CString picture = Write(L"photo.png", Motley(40, 30));
    const FileTaken plate(Skin(L"textBGP.png"));
    ExpectFailure(picture);
    EXPECT_TRUE(ReadBytes(NormalFile(7)) == ComposedAfresh(L"caption", picture, 0, false));
    EXPECT_TRUE(ReadBytes(PushedFile(7)).empty());
}

TEST_F(ThumbnailFailureTest, a_missing_play_mark_fails_videos_alone)
{
    const CString picture = Write(L"photo.png", Motley(40, 30));
    const FileTaken mark(Skin(L"videoplay.png"));
    ExpectFailure(picture, 1);
    ExpectComposed(L"caption", picture, 0);
    ExpectComposed(L"caption", picture, 2);
}

TEST_F(ThumbnailFailureTest, a_missing_placeholder_fails_entries_without_a_picture_alone)
{
    const CString picture = Write(L"photo.png", Motley(40, 30));
    const FileTaken placeholder(Skin(L"empty.png"));
    ExpectFailure(PicturePath(L"missing.png"));
    ExpectComposed(L"caption", picture, 0);
}

TEST_F(ThumbnailFailureTest, a_folder_in_place_of_a_picture_or_of_the_output_gives_no_thumbnail)
{
    CreateDirectoryW(NormalFile(7), nullptr);
    ExpectFailure(Write(L"photo.png", Motley(40, 30)));
    RemoveDirectoryW(NormalFile(7));
    ExpectComposed(L"caption", PicturePath(L"photo.png"), 0);
}
