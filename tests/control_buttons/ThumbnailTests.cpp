// SPDX-License-Identifier: MIT
// What a thumbnail is composed of, byte for byte.
#include "Thumbnail.h"

#include "widgets/PackedPictures.h"

namespace
{
constexpr std::uint32_t Red = 0xFFFF0000;
constexpr std::uint32_t Green = 0xFF00FF00;
constexpr std::uint32_t Blue = 0xFF0000FF;
constexpr std::uint32_t Yellow = 0xFFFFFF00;
} // namespace

TEST_F(ThumbnailTest, captions_and_kinds)
{
    const CString picture = Write(L"motley.png", Motley(300, 200));
    for (const wchar_t* caption :
         {L"", L"a", L"Harbour 12", L"中央商务区", L"A caption that is wider than the thumbnail", L" ", L"two\nlines", L"%d/\\&"})
    {
        for (const int kind : {0, 1, 2, -1})
        {
            SCOPED_TRACE(Utf8(caption) + " of kind " + std::to_string(kind));
            ExpectComposed(caption, picture, kind);
        }
    }
}

TEST_F(ThumbnailTest, the_kind_makes_a_difference_for_1_alone)
{
    const CString picture = Write(L"motley.png", Motley(120, 90));
    MakeThumbnail(L"x", picture, 0, 0);
    MakeThumbnail(L"x", picture, 1, 1);
    MakeThumbnail(L"x", picture, 2, 2);
    EXPECT_TRUE(ReadBytes(NormalFile(0)) == ReadBytes(NormalFile(2)));
    EXPECT_FALSE(ReadBytes(NormalFile(0)) == ReadBytes(NormalFile(1)));
    EXPECT_FALSE(ReadBytes(PushedFile(0)) == ReadBytes(PushedFile(1))) << "the mark is on both";
    EXPECT_FALSE(ReadBytes(NormalFile(0)) == ReadBytes(PushedFile(0)));
}

TEST_F(ThumbnailTest, the_files_are_named_by_the_index)
{
    const CString picture = Write(L"motley.png", Motley(30, 20));
    ExpectComposed(L"one", picture, 0, CString(), 0);
    ExpectComposed(L"two", picture, 0, CString(), 15);
    EXPECT_EQ(ThumbnailStem(0), L"new_skin/TavGuiButtonImg0");
    EXPECT_EQ(ThumbnailStem(1234), L"new_skin/TavGuiButtonImg1234");
    EXPECT_FALSE(ReadBytes(SkinDir() + L"new_skin/TavGuiButtonImg15_P.bmp").empty());
}

TEST_F(ThumbnailTest, pictures_of_every_format_and_shape)
{
    const struct
    {
        const wchar_t* file;
        const wchar_t* mimeType;
        int width;
        int height;
    } rows[] = {
        {L"photo.jpg", L"image/jpeg", 200, 150}, {L"drawing.gif", L"image/gif", 64, 64},   {L"bitmap.bmp", L"image/bmp", 99, 33},
        {L"scan.tiff", L"image/tiff", 50, 80},   {L"dot.png", L"image/png", 1, 1},         {L"wide.png", L"image/png", 500, 2},
        {L"tall.png", L"image/png", 2, 500},     {L"带空格 的.png", L"image/png", 30, 30}, {L"noextension", L"image/png", 30, 30},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(Utf8(row.file));
        ExpectComposed(L"caption", Write(row.file, Motley(row.width, row.height), row.mimeType), 1);
    }
}

TEST_F(ThumbnailTest, a_picture_of_8000_by_6000_pixels)
{
    // A bit a pixel keeps the file small; drawn it has all of its 48 million pixels.
    constexpr std::uint32_t Width = 8000;
    constexpr std::uint32_t Height = 6000;
    constexpr std::uint32_t Size = Width / 8 * Height;
    Bytes bytes = {'B', 'M'};
    for (const std::uint32_t value :
         {62 + Size, 0u, 62u, 40u, Width, Height, 0x00010001u, 0u, Size, 0u, 0u, 2u, 0u, Yellow & 0xFFFFFF, Red & 0xFFFFFF})
    {
        for (int i = 0; i < 4; ++i)
        {
            bytes.push_back(static_cast<std::uint8_t>(value >> 8 * i));
        }
    }
    bytes.resize(62 + Size);
    std::fill(bytes.begin() + 62, bytes.begin() + 62 + Size / 2, static_cast<std::uint8_t>(0xFF));
    EXPECT_EQ(MakeThumbnail(L"", Write(L"big.bmp", bytes), 7, 0), L"new_skin/TavGuiButtonImg7");
    for (const CString& file : {NormalFile(7), PushedFile(7)})
    {
        const PictureFile thumbnail = ReadPictureFile(file);
        ASSERT_EQ(thumbnail.width, 126);
        EXPECT_EQ(thumbnail.Argb(20, 20), Yellow);
        EXPECT_EQ(thumbnail.Argb(20, 70), Red) << "the file's first rows are the lowest";
    }
}

TEST_F(ThumbnailTest, a_missing_picture_is_replaced_by_the_placeholder)
{
    for (const CString& picture : {CString(), PicturePath(L"missing.png"), CString(L"Q:\\no\\such\\folder.jpg"), CString(L"::")})
    {
        SCOPED_TRACE(Utf8(picture));
        ExpectComposed(L"caption", picture, 1, Placeholder());
    }
}

TEST_F(ThumbnailTest, everything_lies_at_its_pixels)
{
    const FileReplaced border(SkinDir() + L"new_skin/borderN.png", Bmp24(Solid(126, 96, Red)));
    const FileReplaced plate(SkinDir() + L"new_skin/textBGN.png", Bmp24(Solid(64, 30, Blue)));
    const FileReplaced mark(SkinDir() + L"new_skin/videoplay.png", Bmp24(Solid(41, 41, Green)));
    ExpectComposed(L"", Write(L"yellow.bmp", Bmp24(Solid(120, 90, Yellow))), 1);
    const PictureFile thumbnail = ReadPictureFile(NormalFile(7));
    ASSERT_EQ(thumbnail.width, 126);
    ASSERT_EQ(thumbnail.height, 96);
    const struct
    {
        const char* what;
        int x;
        int y;
        std::uint32_t color;
    } rows[] = {
        {"frame at the upper left", 0, 0, Red},
        {"frame left of the picture", 2, 50, Red},
        {"frame above the picture", 50, 2, Red},
        {"frame right of the picture", 123, 50, Red},
        {"frame below the picture", 50, 93, Red},
        {"frame at the lower right", 125, 95, Red},
        {"picture left", 4, 50, Yellow},
        {"picture right", 121, 50, Yellow},
        {"picture above", 50, 4, Yellow},
        {"picture below", 50, 91, Yellow},
        {"left of the mark", 39, 40, Yellow},
        {"mark left", 41, 40, Green},
        {"mark right", 79, 40, Green},
        {"right of the mark", 81, 40, Yellow},
        {"above the mark", 60, 23, Yellow},
        {"mark above", 60, 25, Green},
        {"mark below", 60, 63, Green},
        {"below the mark", 60, 65, Yellow},
        {"plate of an empty caption", 119, 89, Blue},
        {"left of the plate", 115, 89, Yellow},
        {"above the plate", 119, 85, Yellow},
        {"plate at its lower right", 121, 91, Blue},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(thumbnail.Argb(row.x, row.y), row.color) << row.what;
    }
}

TEST_F(ThumbnailTest, the_plate_grows_with_the_caption_and_the_caption_is_white)
{
    const FileReplaced plate(SkinDir() + L"new_skin/textBGN.png", Bmp24(Solid(64, 30, 0xFF000080)));
    MakeThumbnail(L"WW", Write(L"yellow.bmp", Bmp24(Solid(120, 90, Yellow))), 7, 0);
    const PictureFile thumbnail = ReadPictureFile(NormalFile(7));
    int plateLeft = 126;
    int white = 0;
    for (int x = 3; x < 123; ++x)
    {
        if (thumbnail.Argb(x, 91) == 0xFF000080)
        {
            plateLeft = std::min(plateLeft, x);
        }
        for (int y = 60; y < 92; ++y)
        {
            white += thumbnail.Argb(x, y) == 0xFFFFFFFF;
        }
    }
    EXPECT_LT(plateLeft, 100);
    EXPECT_GT(plateLeft, 60);
    EXPECT_GT(white, 10);
    EXPECT_EQ(thumbnail.Argb(60, 50), Yellow);
}

TEST_F(ThumbnailTest, a_wide_caption_starts_at_the_left_and_runs_past_the_right_edge)
{
    const FileReplaced plate(SkinDir() + L"new_skin/textBGN.png", Bmp24(Solid(64, 30, 0xFF000080)));
    const FileReplaced border(SkinDir() + L"new_skin/borderN.png", Bmp24(Solid(126, 96, 0xFF000000)));
    MakeThumbnail(L"————————————————", Write(L"black.bmp", Bmp24(Solid(120, 90, 0xFF000000))), 7, 0);
    const PictureFile thumbnail = ReadPictureFile(NormalFile(7));
    EXPECT_EQ(thumbnail.Argb(0, 91), 0xFF000080) << "the plate begins left of the canvas";
    int firstWhite = 126;
    int lastWhite = 0;
    for (int x = 0; x < 126; ++x)
    {
        for (int y = 60; y < 93; ++y)
        {
            // The plate has no red.
            if ((thumbnail.Argb(x, y) >> 16 & 0xFF) > 128)
            {
                firstWhite = std::min(firstWhite, x);
                lastWhite = std::max(lastWhite, x);
            }
        }
    }
    EXPECT_GE(firstWhite, 5);
    EXPECT_LE(firstWhite, 13);
    EXPECT_GE(lastWhite, 123) << "over frame and edge";
}

TEST_F(ThumbnailTest, files_whose_first_picture_alone_counts_are_shown)
{
    const Bytes still = ReadBytes(Write(L"still.gif", Solid(800, 600, Red), L"image/gif"));
    const Bytes png = ReadBytes(Write(L"large_icon.png", Solid(256, 256, Red)));
    const struct
    {
        const wchar_t* file;
        Bytes bytes;
        std::uint32_t color;
    } rows[] = {
        {L"animated.gif", Animation(still, 150), Red},
        {L"panorama.jpg", GreyJpeg(9008, 7600), 0xFF808080},
        {L"bitmap.ico", Icon({IconBitmap(48, Green)}), Green},
        {L"png.ico", Icon({png}), Red},
        {L"page.tiff", WhiteFax(2480, 3508), 0xFFFFFFFF},
        {L"fine_page.tiff", WhiteFax(4960, 7016), 0xFFFFFFFF},
        {L"pages.tiff", GreyTiff({{40, 30, 0x77, 1200}, {60000, 60000, 0, 10}}), 0xFF777777},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(Utf8(row.file));
        EXPECT_EQ(MakeThumbnail(L"", Write(row.file, row.bytes), 7, 0), ThumbnailStem(7));
        EXPECT_EQ(ReadPictureFile(NormalFile(7)).Argb(60, 30), row.color);
        EXPECT_EQ(ReadPictureFile(PushedFile(7)).Argb(20, 60), row.color);
        EXPECT_EQ(TakeLog(), Lines{});
    }
}
