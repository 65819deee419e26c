// SPDX-License-Identifier: MIT
// The scene title as a picture of the host's.
#include "support/FrameTest.h"
#include "widgets/Pictures.h"

#include <panels/TitleEditDialog.h>

#include <CEGUI/Window.h>

namespace
{
const char* const PictureTitle = "TavTitleImgAndName";
constexpr Pixel Red = {255, 0, 0};
constexpr Pixel Blue = {0, 0, 255};

CString File()
{
    return SkinDir() + L"tavtitleimgefile.bmp";
}

std::vector<std::uint8_t> Filled(std::uint32_t argb)
{
    return Bmp32(Solid(600, 50, argb));
}
} // namespace

class PictureTitleTest : public FrameTest
{
};

TEST_F(PictureTitleTest, covers_the_left_of_the_title_bar)
{
    const FileReplaced picture(File(), Filled(0xFFFF0000));
    Frame().CreateTitle(L"Picture", 0x00123456);
    EXPECT_EQ(Place(PictureTitle), "0,0 - 600,50");
    EXPECT_EQ(ImageOf(PictureTitle), "tavtitleimgefile.bmp/full_image");
    EXPECT_EQ(GuiHost::Find(PictureTitle)->getType(), "TavLook/StaticImage");
    EXPECT_EQ(GuiHost::Find(PictureTitle)->getParent(), GuiHost::Find("TavTitleBackground"));
    const Screenshot shot = Host().Shoot();
    EXPECT_TRUE(LooksLike(shot.At(2, 2), Red));
    EXPECT_TRUE(LooksLike(shot.At(598, 48), Red));
    EXPECT_FALSE(shot.At(603, 25) == Red);
    EXPECT_EQ(Frame().GetSceneTitle(), L"Picture");
    EXPECT_EQ(Frame().GetSceneTitleColor(), COLORREF(0x00123456));
}

TEST_F(PictureTitleTest, is_600_pixels_wide_in_any_view)
{
    const FileReplaced picture(File(), Filled(0xFFFF0000));
    Host().Resize(1000, 700);
    Frame().CreateTitle(L"Picture", 0);
    EXPECT_EQ(Place(PictureTitle), "0,0 - 600,50");
}

TEST_F(PictureTitleTest, a_second_one_replaces_the_first)
{
    const FileReplaced picture(File(), Filled(0xFFFF0000));
    Frame().CreateTitle(L"First", 1);
    WriteBytes(File(), Filled(0xFF0000FF));
    EXPECT_TRUE(LooksLike(Seen(20, 20), Red)) << "a rewritten file alone changes nothing";
    Frame().CreateTitle(L"Second", 2);
    Host().Frames(2);
    EXPECT_EQ(CountOf(PictureTitle), 1);
    EXPECT_TRUE(LooksLike(Seen(20, 20), Blue));
    EXPECT_EQ(Frame().GetSceneTitle(), L"Second");
    EXPECT_EQ(Frame().GetSceneTitleColor(), COLORREF(2));
}

TEST_F(PictureTitleTest, without_its_file_the_title_stays_as_it_was)
{
    const FileTaken away(File());
    const Screenshot before = Host().Shoot();
    Frame().CreateTitle(L"Picture", 7);
    EXPECT_EQ(Place(PictureTitle), "no window");
    EXPECT_EQ(Frame().GetSceneTitle(), L"Title");
    EXPECT_EQ(Frame().GetSceneTitleColor(), COLORREF(0xE1C8C5));
    EXPECT_TRUE(Host().Shoot().pixels == before.pixels);
    EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: picture not loaded: tavtitleimgefile.bmp"});
}

TEST_F(PictureTitleTest, when_the_file_is_gone_the_former_picture_goes_and_the_stored_title_stays)
{
    FileReplaced picture(File(), Filled(0xFFFF0000));
    Frame().CreateTitle(L"First", 1);
    {
        const FileTaken away(File());
        Frame().CreateTitle(L"Second", 2);
    }
    Host().Frames(2);
    EXPECT_EQ(CountOf(PictureTitle), 0);
    EXPECT_EQ(Frame().GetSceneTitle(), L"First");
    EXPECT_FALSE(Seen(500, 25) == Red);
    EXPECT_EQ(TakeLog().size(), 1u);
    Frame().CreateTitle(L"Third", 3);
    EXPECT_EQ(CountOf(PictureTitle), 1) << "with the file back it is shown again";
    EXPECT_TRUE(LooksLike(Seen(500, 25), Red));
}

TEST_F(PictureTitleTest, a_file_that_is_no_picture_is_logged)
{
    for (const std::vector<std::uint8_t>& bytes :
         {std::vector<std::uint8_t>{}, std::vector<std::uint8_t>{'B', 'M', 1, 2, 3}, std::vector<std::uint8_t>(500, 0x55)})
    {
        const FileReplaced picture(File(), bytes);
        Frame().CreateTitle(L"Broken", 9);
        EXPECT_EQ(Place(PictureTitle), "no window") << bytes.size() << " bytes";
        EXPECT_EQ(Frame().GetSceneTitle(), L"Title");
        EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: picture not loaded: tavtitleimgefile.bmp"});
    }
}

TEST_F(PictureTitleTest, without_a_frame_or_an_interface_nothing_is_done)
{
    const FileReplaced picture(File(), Filled(0xFFFF0000));
    Frame().ClearAllWindows();
    Frame().CreateTitle(L"None", 9);
    EXPECT_EQ(WindowCount(), 0);
    EXPECT_EQ(Frame().GetSceneTitle(), L"Title");
    Host().Close();
    Frame().CreateTitle(L"None", 9);
    EXPECT_EQ(Frame().GetSceneTitle(), L"Title");
}

TEST_F(PictureTitleTest, is_gone_with_the_next_frame_which_shows_its_text)
{
    const FileReplaced picture(File(), Filled(0xFFFF0000));
    Frame().CreateTitle(L"Picture", 0x00FFFFFF);
    Rebuild();
    EXPECT_EQ(Place(PictureTitle), "no window");
    EXPECT_EQ(Frame().GetSceneTitle(), L"Picture");
    EXPECT_NE(Place("TavTilteText"), "no window");
    Frame().CreateTitle(L"Picture", 0x00FFFFFF);
    EXPECT_EQ(CountOf(PictureTitle), 1);
}

TEST_F(PictureTitleTest, tells_the_host_of_no_single_left_click)
{
    const FileReplaced picture(File(), Filled(0xFFFF0000));
    Frame().CreateTitle(L"Picture", 0);
    Host().Click(300, 10);
    EXPECT_TRUE(Host().TakeCodes().empty());
    EXPECT_FALSE(Frame().IsFullScene());
}

TEST_F(PictureTitleTest, asks_for_the_titles_edit_as_the_text_does)
{
    const FileReplaced picture(File(), Filled(0xFFFF0000));
    Frame().CreateTitle(L"Picture", 0);
    Host().DoubleClick(300, 10);
    EXPECT_EQ(Host().TakeCodes(), std::vector<WPARAM>{30});
    CloseTitleEditDialog();
    Host().MoveMouse(310, 10);
    Frame().EnablePopupMenu(false);
    Host().RightClick(310, 10);
    EXPECT_EQ(Host().TakeCodes(), std::vector<WPARAM>{30});
    CloseTitleEditDialog();
    EXPECT_FALSE(Frame().IsFullScene()) << "the double click is the title's own";
}

TEST_F(PictureTitleTest, hovering_it_shows_the_systems_cursor)
{
    const FileReplaced picture(File(), Filled(0xFFFF0000));
    Frame().CreateTitle(L"Picture", 0);
    Frame().SetDisplySystemMouse(false);
    Host().MoveMouse(300, 10);
    EXPECT_TRUE(Frame().IsDisplySystemMouse());
}
