// SPDX-License-Identifier: MIT
// Picture files as imagesets: names, look-up and failures.
#include "Pictures.h"
#include "Sheet.h"

#include <widgets/FileImageset.h>

#include <CEGUI/BasicImage.h>
#include <CEGUI/Exceptions.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/Window.h>

namespace
{
class FileImageset : public SheetTest
{
protected:
    /// A bar over (100, 100) to (200, 200) that shows a picture.
    CeGuiToolBar& Show(const wchar_t* file) { return NewBar({100, 100, 200, 200}, BAR_PANEL, file); }
};
} // namespace

TEST_F(FileImageset, name_is_the_file_string_and_the_image_covers_the_picture)
{
    WriteSkinPicture(L"wide.bmp", 0xFF123456, 13, 7);
    const CEGUI::Image& image = FileImagesets::Create(L"wide.bmp");
    EXPECT_EQ(image.getName(), "wide.bmp/full_image");
    EXPECT_EQ(image.getRenderedSize(), CEGUI::Sizef(13, 7));
    EXPECT_TRUE(FileImagesets::IsPresent(L"wide.bmp"));
    EXPECT_EQ(&FileImagesets::Get(L"wide.bmp"), &image);
}

TEST_F(FileImageset, file_is_sought_in_the_skin_directory)
{
    EXPECT_EQ(FileImagesets::Create(L"new_skin/close.png").getRenderedSize(), CEGUI::Sizef(24, 24));
}

TEST_F(FileImageset, chinese_file_name_is_opened)
{
    WriteSkinPicture(L"图片.bmp", 0xFF00FF00, 5, 6);
    const CEGUI::Image& image = FileImagesets::Create(L"图片.bmp");
    EXPECT_EQ(image.getRenderedSize(), CEGUI::Sizef(5, 6));
    EXPECT_EQ(image.getName().length(), 6 + 4 + std::string("/full_image").length()) << "one code point a byte";
    EXPECT_EQ(&FileImagesets::Get(L"图片.bmp"), &image);
}

TEST_F(FileImageset, created_twice_raises_and_leaves_the_first)
{
    WriteSkinPicture(L"once.bmp", 0xFFFF0000);
    const CEGUI::Image& image = FileImagesets::Create(L"once.bmp");
    EXPECT_THROW(FileImagesets::Create(L"once.bmp"), CEGUI::AlreadyExistsException);
    EXPECT_EQ(&FileImagesets::Get(L"once.bmp"), &image);
}

TEST_F(FileImageset, asked_for_twice_it_is_loaded_once)
{
    WriteSkinPicture(L"once.bmp", 0xFFFF0000);
    const CEGUI::Image& image = FileImagesets::GetImagesetFromFile(L"once.bmp");
    DeleteFileW(SkinDir() + L"once.bmp");
    EXPECT_EQ(&FileImagesets::GetImagesetFromFile(L"once.bmp"), &image);
    EXPECT_TRUE(FileImagesets::IsPresent(L"once.bmp"));
}

TEST_F(FileImageset, one_that_create_made_is_found_by_the_look_ups)
{
    WriteSkinPicture(L"once.bmp", 0xFFFF0000);
    const CEGUI::Image& image = FileImagesets::Create(L"once.bmp");
    EXPECT_EQ(&FileImagesets::GetImagesetFromFile(L"once.bmp"), &image);
}

TEST_F(FileImageset, unknown_name_raises_on_look_up)
{
    EXPECT_FALSE(FileImagesets::IsPresent(L"new_skin/close.png"));
    EXPECT_THROW(FileImagesets::Get(L"new_skin/close.png"), CEGUI::UnknownObjectException);
    EXPECT_THROW(FileImagesets::Get(L""), CEGUI::UnknownObjectException);
}

TEST_F(FileImageset, two_spellings_of_a_file_are_two_imagesets)
{
    const CEGUI::Image& slash = FileImagesets::Create(L"new_skin/close.png");
    EXPECT_FALSE(FileImagesets::IsPresent(L"new_skin\\close.png"));
    EXPECT_FALSE(FileImagesets::IsPresent(L"new_skin/Close.png"));
    EXPECT_FALSE(FileImagesets::IsPresent(L"./new_skin/close.png"));
    const CEGUI::Image& backslash = FileImagesets::Create(L"new_skin\\close.png");
    EXPECT_NE(&slash, &backslash);
    EXPECT_EQ(backslash.getRenderedSize(), CEGUI::Sizef(24, 24));
    FileImagesets::Destroy(L"new_skin/close.png");
    EXPECT_TRUE(FileImagesets::IsPresent(L"new_skin\\close.png"));
}

TEST_F(FileImageset, destroying_is_harmless_for_any_name)
{
    for (const wchar_t* file : {L"nowhere.png", L"", L"new_skin/close.png"})
    {
        FileImagesets::Destroy(file);
        EXPECT_FALSE(FileImagesets::IsPresent(file));
    }
    FileImagesets::Create(L"new_skin/close.png");
    FileImagesets::Destroy(L"new_skin/close.png");
    FileImagesets::Destroy(L"new_skin/close.png");
    EXPECT_FALSE(FileImagesets::IsPresent(L"new_skin/close.png"));
    EXPECT_THROW(FileImagesets::Get(L"new_skin/close.png"), CEGUI::UnknownObjectException);
}

TEST_F(FileImageset, image_property_text_never_names_an_imageset_kept_on_purpose)
{
    CeGuiToolBar& bar = Show(L"new_skin/close.png");
    FileImagesets::DestroyNamed(bar.window->getProperty("Image"));
    EXPECT_TRUE(FileImagesets::IsPresent(L"new_skin/close.png"));
    FileImagesets::DestroyNamed("new_skin/close.png");
    EXPECT_FALSE(FileImagesets::IsPresent(L"new_skin/close.png"));
}

TEST_F(FileImageset, files_that_are_no_pictures_raise_and_are_logged_by_name)
{
    WriteWithEncoder(Solid(30, 30, 0xFF336699), L"image/png", SkinDir() + L"whole.png");
    std::vector<std::uint8_t> png = ReadBytes(SkinDir() + L"whole.png");
    ASSERT_GT(png.size(), 60u);
    const std::vector<std::uint8_t> bmp = Bmp32(Solid(8, 8, 0xFF00FF00));
    const struct
    {
        const wchar_t* file;
        std::vector<std::uint8_t> bytes;
    } rows[] = {
        {L"zero.bmp", {}},
        {L"zero.png", {}},
        {L"one.bmp", {'B'}},
        {L"words.png", {'n', 'o', ' ', 'p', 'i', 'c', 't', 'u', 'r', 'e'}},
        {L"header.png", std::vector<std::uint8_t>(png.begin(), png.begin() + 12)},
        {L"header.bmp", std::vector<std::uint8_t>(bmp.begin(), bmp.begin() + 30)},
        {L"noise.jpg", std::vector<std::uint8_t>(5000, 0x5A)},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(Utf8(row.file));
        ASSERT_TRUE(WriteBytes(SkinDir() + row.file, row.bytes));
        EXPECT_THROW(FileImagesets::Create(row.file), CEGUI::Exception);
        EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: picture not loaded: " + Utf8(row.file)});
        EXPECT_FALSE(FileImagesets::IsPresent(row.file));
        EXPECT_THROW(FileImagesets::GetImagesetFromFile(row.file), CEGUI::Exception);
        EXPECT_EQ(TakeLog().size(), 1u);
    }
    Host().Frames(2);
}

TEST_F(FileImageset, missing_file_raises_and_is_logged_by_its_name)
{
    for (const wchar_t* file : {L"nowhere.png", L"no/such/folder/a.bmp", L"没有.png"})
    {
        EXPECT_THROW(FileImagesets::Create(file), CEGUI::Exception);
        EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: picture not loaded: " + Utf8(file)});
        EXPECT_FALSE(FileImagesets::IsPresent(file));
    }
}

TEST_F(FileImageset, everything_is_gone_after_the_windows_are_cleared)
{
    Show(L"new_skin/close.png");
    EXPECT_TRUE(CEGUI::ImageManager::getSingleton().isDefined("new_skin/close.png/full_image"));
    Host().Frame().ClearAllWindows();
    EXPECT_FALSE(CEGUI::ImageManager::getSingleton().isDefined("new_skin/close.png/full_image"));
    EXPECT_FALSE(FileImagesets::IsPresent(L"new_skin/close.png"));
    EXPECT_TRUE(FileImagesets::IsSkinImagesetPresent("TavLook"));
    EXPECT_FALSE(FileImagesets::IsSkinImagesetPresent("AnotherLook"));
    FileImagesets::Create(L"new_skin/close.png");
    EXPECT_TRUE(FileImagesets::IsPresent(L"new_skin/close.png"));
}
