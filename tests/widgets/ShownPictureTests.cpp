// SPDX-License-Identifier: MIT
// What is seen on the screen of picture files.
#include "Pictures.h"
#include "Sheet.h"

#include <widgets/FileImageset.h>

#include <CEGUI/Image.h>
#include <CEGUI/Exceptions.h>
#include <CEGUI/Window.h>

namespace
{
class ShownPicture : public SheetTest
{
protected:
    /// A bar over (100, 100) to (200, 200) that shows a picture.
    CeGuiToolBar& Show(const wchar_t* file) { return NewBar({100, 100, 200, 200}, BAR_PANEL, file); }
    static Pixel Shown() { return Seen(150, 150); }
};
} // namespace

TEST_F(ShownPicture, rewritten_file_shows_its_new_pixels_after_a_reload)
{
    WriteSkinPicture(L"news.bmp", 0xFFFF0000);
    CeGuiToolBar& bar = Show(L"news.bmp");
    EXPECT_EQ(Shown(), (Pixel{255, 0, 0}));
    WriteSkinPicture(L"news.bmp", 0xFF0000FF, 9, 2);
    EXPECT_EQ(Shown(), (Pixel{255, 0, 0})) << "nothing reads the file by itself";
    FileImagesets::Destroy(L"news.bmp");
    const CEGUI::Image& again = FileImagesets::Create(L"news.bmp");
    FileImagesets::Apply(*bar.window, "Image", again);
    EXPECT_EQ(again.getRenderedSize(), CEGUI::Sizef(9, 2));
    EXPECT_EQ(Shown(), (Pixel{0, 0, 255}));
}

TEST_F(ShownPicture, window_that_shows_a_destroyed_imageset_is_blank)
{
    WriteSkinPicture(L"gone.bmp", 0xFFFF0000);
    CeGuiToolBar& bar = Show(L"gone.bmp");
    bar.AddImageButton(L"button", L"new_skin/close.png", L"", L"", L"");
    FileImagesets::DestroyFileImagesets();
    EXPECT_FALSE(FileImagesets::IsPresent(L"gone.bmp"));
    EXPECT_FALSE(FileImagesets::IsPresent(L"new_skin/close.png"));
    Host().MoveMouse(110, 110);
    const Screenshot shot = Host().Shoot();
    for (const int at : {101, 110, 150, 198})
    {
        EXPECT_EQ(shot.At(at, at), Background()) << at;
    }
    Host().Frames(3);
    FileImagesets::Create(L"gone.bmp");
    EXPECT_EQ(Shown(), (Pixel{255, 0, 0})) << "the window takes it up again";
}

TEST_F(ShownPicture, failed_name_can_be_made_once_the_file_is_there)
{
    EXPECT_THROW(FileImagesets::Create(L"later.bmp"), CEGUI::Exception);
    EXPECT_EQ(TakeLog().size(), 1u);
    WriteSkinPicture(L"later.bmp", 0xFF00FF00);
    Show(L"later.bmp");
    EXPECT_EQ(Shown(), (Pixel{0, 255, 0}));
    DeleteFileW(SkinDir() + L"later.bmp");
}

TEST_F(ShownPicture, reload_of_a_broken_file_leaves_its_windows_blank)
{
    WriteSkinPicture(L"broken.bmp", 0xFFFF0000);
    Show(L"broken.bmp");
    FileImagesets::Destroy(L"broken.bmp");
    ASSERT_TRUE(WriteBytes(SkinDir() + L"broken.bmp", {'B', 'M', 0}));
    EXPECT_THROW(FileImagesets::Create(L"broken.bmp"), CEGUI::Exception);
    EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: picture not loaded: broken.bmp"});
    EXPECT_EQ(Shown(), Background());
    Host().Frames(3);
}

TEST_F(ShownPicture, bitmap_with_alpha_is_blended_with_the_scene)
{
    const struct
    {
        std::uint32_t argb;
        osg::Vec4 scene;
        Pixel expected;
    } rows[] = {
        {0x80FF0000, {0.2f, 0.4f, 0.6f, 1}, {153, 51, 76}}, {0x400080FF, {1, 1, 1, 1}, {191, 223, 255}},
        {0xC0FFFFFF, {0, 0, 0, 1}, {192, 192, 192}},        {0x00FFFFFF, {0.2f, 0.4f, 0.6f, 1}, {51, 102, 153}},
        {0xFF112233, {1, 1, 1, 1}, {17, 34, 51}},
    };
    osg::Camera& camera = *Host().Viewer().getCamera();
    const osg::Vec4 former = camera.getClearColor();
    for (const auto& row : rows)
    {
        camera.setClearColor(row.scene);
        WriteSkinPicture(L"glass.bmp", row.argb);
        CeGuiToolBar& bar = Show(L"glass.bmp");
        const Pixel shown = Shown();
        EXPECT_LE(Distance(shown, row.expected), 2) << std::hex << row.argb << ": " << testing::PrintToString(shown);
        bar.DestroyToolBar();
        FileImagesets::Destroy(L"glass.bmp");
    }
    camera.setClearColor(former);
}

TEST_F(ShownPicture, every_kind_of_picture_file_shows_on_the_screen)
{
    const Argb blue = Solid(16, 16, 0xFF2040C0);
    WriteWithEncoder(blue, L"image/png", SkinDir() + L"kind.png");
    WriteWithEncoder(blue, L"image/jpeg", SkinDir() + L"kind.jpg");
    WriteWithEncoder(blue, L"image/jpeg", SkinDir() + L"kind.jpeg");
    WriteWithEncoder(blue, L"image/tiff", SkinDir() + L"kind.tiff");
    WriteWithEncoder(Solid(16, 16, 0xFF0000FF), L"image/gif", SkinDir() + L"kind.gif");
    WriteBytes(SkinDir() + L"kind24.bmp", Bmp24(blue));
    WriteBytes(SkinDir() + L"kind8.bmp", Bmp8(blue));
    for (const wchar_t* file : {L"kind.png", L"kind.jpg", L"kind.jpeg", L"kind.tiff", L"kind.gif", L"kind24.bmp", L"kind8.bmp"})
    {
        CeGuiToolBar& bar = Show(file);
        const Pixel shown = Shown();
        const Pixel expected = Utf8(file) == "kind.gif" ? Pixel{0, 0, 255} : Pixel{0x20, 0x40, 0xC0};
        EXPECT_LE(Distance(shown, expected), 4) << Utf8(file) << ": " << testing::PrintToString(shown);
        bar.DestroyToolBar();
    }
}
