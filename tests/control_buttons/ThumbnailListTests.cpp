// SPDX-License-Identifier: MIT
// Thumbnails as they are seen in the left list.
#include "Thumbnail.h"

class ThumbnailListTest : public ThumbnailTest
{
protected:
    /// How many pixels of an entry differ from those of a thumbnail's file, of those that are not transparent in it.
    static int Differing(int left, int top, const CString& file)
    {
        const PictureFile thumbnail = ReadPictureFile(file);
        const Screenshot shot = Host().Shoot();
        int opaque = 0;
        int differing = 0;
        for (int y = 0; y < thumbnail.height; ++y)
        {
            for (int x = 0; x < thumbnail.width; ++x)
            {
                const std::uint32_t color = thumbnail.Argb(x, y);
                if (color >> 24 == 0xFF)
                {
                    ++opaque;
                    const Pixel expected = {static_cast<int>(color >> 16 & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                                            static_cast<int>(color & 0xFF)};
                    differing += Distance(shot.At(left + x, top + y), expected) > 2;
                }
            }
        }
        EXPECT_GT(opaque, 120 * 60);
        return differing;
    }
};

TEST_F(ThumbnailListTest, entries_show_their_files_pixel_for_pixel)
{
    const CString picture = Write(L"photo.png", Motley(120, 90));
    Show({Record(L"a", 0, L"one", picture), Record(L"b", 1, L"two", picture), Record(L"c", 0, L"中央商务区")});
    SlideIn(145, 300);
    EXPECT_EQ(Differing(11, 63, NormalFile(0)), 0);
    EXPECT_EQ(Differing(11, 172, NormalFile(1)), 0);
    EXPECT_EQ(Differing(11, 281, NormalFile(2)), 0);
    Frame().SetBtnIndex(1);
    EXPECT_EQ(Differing(11, 172, PushedFile(1)), 0);
}

TEST_F(ThumbnailListTest, an_entry_whose_picture_is_broken_is_an_empty_place_between_the_others)
{
    const CString good = Write(L"photo.png", Motley(120, 90));
    Show({Record(L"a", 0, L"one", good), Record(L"b", 0, L"two", Write(L"zero.png", Bytes{})), Record(L"c", 0, L"three", good)});
    EXPECT_EQ(TakeLog().size(), 1u);
    EXPECT_EQ(Place("TavBotCtrlFrame"), "1,508 - 584,598") << "the frame stands";
    EXPECT_EQ(Place("b_P"), "11,172 - 137,268");
    EXPECT_EQ(ImageOf("b_P", "NormalImage"), "");
    EXPECT_EQ(ImageOf("b_P", "PushedImage"), "");
    SlideIn(145, 300);
    EXPECT_EQ(Differing(11, 63, NormalFile(0)), 0);
    EXPECT_EQ(Differing(11, 281, NormalFile(2)), 0);
    Host().Click(60, 210);
    const std::vector<HostMessage> messages = Host().TakeMessages();
    ASSERT_EQ(messages.size(), 1u) << "it can be chosen nevertheless";
    EXPECT_EQ(messages[0].value, reinterpret_cast<LPARAM>(Frame().GetBtnProperty(1)));
    EXPECT_EQ(Frame().GetBtnIndex(), 1);
    TakeLog();
}

TEST_F(ThumbnailListTest, without_the_plate_every_entry_is_empty_and_the_frame_stands)
{
    const FileTaken plate(SkinDir() + L"new_skin/textBGN.png");
    Show({Record(L"a"), Record(L"b", 1)});
    EXPECT_EQ(TakeLog().size(), 2u);
    EXPECT_EQ(Place("TavTitleBackground"), "0,0 - 800,50");
    EXPECT_EQ(Place("a_P"), "11,63 - 137,159");
    EXPECT_EQ(Place("b_V"), "11,172 - 137,268");
    EXPECT_EQ(ImageOf("a_P", "NormalImage"), "");
}

TEST_F(ThumbnailListTest, without_the_play_mark_videos_alone_are_empty)
{
    const FileTaken mark(SkinDir() + L"new_skin/videoplay.png");
    Show({Record(L"a"), Record(L"b", 1)});
    EXPECT_EQ(TakeLog().size(), 1u);
    EXPECT_EQ(ImageOf("a_P", "NormalImage"), "new_skin/TavGuiButtonImg0_N.bmp/full_image");
    EXPECT_EQ(ImageOf("b_V", "NormalImage"), "");
}

TEST_F(ThumbnailListTest, a_picture_that_changed_is_seen_after_the_next_build)
{
    const CString picture = Write(L"photo.png", Solid(120, 90, 0xFFFF0000));
    Show({Record(L"a", 0, L"", picture)});
    SlideIn(145, 300);
    EXPECT_TRUE(LooksLike(Seen(40, 90), {255, 0, 0}));
    Sleep(15);
    Write(L"photo.png", Solid(120, 90, 0xFF0000FF));
    Rebuild();
    SlideIn(145, 300);
    EXPECT_TRUE(LooksLike(Seen(40, 90), {0, 0, 255}));
}
