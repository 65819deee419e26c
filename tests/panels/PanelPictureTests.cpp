// SPDX-License-Identifier: MIT
// The picture of the panel's frame, and what happens when its template is missing.
#include "PanelTest.h"

#include "support/MemoryPeak.h"
#include "widgets/Pictures.h"

#include <KernelCommonUse/StringConvert.h>

#include <CEGUI/WindowFactoryManager.h>

#include <algorithm>

using PanelPictureTest = PanelTest;

namespace
{
/// How many pixels of a stretch are as bright as text.
int BrightPixels(const PictureFile& picture, RECT area)
{
    int count = 0;
    for (LONG y = area.top; y < area.bottom; ++y)
    {
        for (LONG x = area.left; x < area.right; ++x)
        {
            count += (picture.Argb(static_cast<int>(x), static_cast<int>(y)) & 0xFF) > 150;
        }
    }
    return count;
}
} // namespace

TEST_F(PanelPictureTest, header_and_footer_are_the_templates_slices)
{
    Open({});
    const PictureFile panel = ReadPictureFile(PanelFile());
    const PictureFile source = ReadPictureFile(TemplateFile());
    ASSERT_EQ(panel.width, 260);
    ASSERT_EQ(panel.height, 548);
    EXPECT_TRUE(SamePixels(panel, 0, source, 0, 12)) << "above the caption";
    EXPECT_TRUE(SamePixels(panel, 538, source, 64, 10)) << "footer";
    // Beside the caption.
    for (const int x : {0, 1, 8, 15, 120, 200, 259})
    {
        for (const int y : {0, 12, 20, 34})
        {
            EXPECT_EQ(panel.Argb(x, y), source.Argb(x, y)) << x << "," << y;
        }
    }
}

TEST_F(PanelPictureTest, the_body_is_transparent)
{
    Open({});
    const PictureFile panel = ReadPictureFile(PanelFile());
    for (const int y : {35, 36, 300, 537})
    {
        for (const int x : {0, 35, 130, 259})
        {
            EXPECT_EQ(panel.Argb(x, y) >> 24, 0u) << x << "," << y;
        }
    }
}

TEST_F(PanelPictureTest, the_caption_is_drawn_in_white_at_its_place)
{
    Open({});
    const PictureFile panel = ReadPictureFile(PanelFile());
    EXPECT_GT(BrightPixels(panel, {16, 12, 80, 34}), 60);
    EXPECT_EQ(BrightPixels(panel, {3, 2, 16, 34}), 0) << "left of it";
    EXPECT_EQ(BrightPixels(panel, {80, 2, 257, 34}), 0) << "right of it";
}

TEST_F(PanelPictureTest, the_header_is_the_slice_with_the_caption_in_both_languages)
{
    Open({});
    EXPECT_TRUE(SamePixels(ReadPictureFile(PanelFile()), 0, DrawnHeader(L"显示属性"), 0, 35));
    Frame().OpenPropertyDlg(nullptr, false);
    const LanguageSpoken language("en");
    Rebuild();
    Frame().OpenPropertyDlg(nullptr, true);
    EXPECT_TRUE(SamePixels(ReadPictureFile(PanelFile()), 0, DrawnHeader(L"Display properties"), 0, 35));
    EXPECT_FALSE(SamePixels(ReadPictureFile(PanelFile()), 0, DrawnHeader(L"Display property"), 0, 35));
}

TEST_F(PanelPictureTest, the_caption_follows_the_language)
{
    Open({});
    const PictureFile chinese = ReadPictureFile(PanelFile());
    Frame().OpenPropertyDlg(nullptr, false);
    const LanguageSpoken language("en");
    Rebuild();
    Frame().OpenPropertyDlg(nullptr, true);
    const PictureFile english = ReadPictureFile(PanelFile());
    EXPECT_FALSE(SamePixels(english, 0, chinese, 0, 35));
    EXPECT_GT(BrightPixels(english, {16, 12, 120, 34}), 60);
    EXPECT_TRUE(SamePixels(english, 35, chinese, 35, 513)) << "all else is the same";
}

TEST_F(PanelPictureTest, what_is_seen_is_the_picture_over_the_scene)
{
    Open({});
    const PictureFile panel = ReadPictureFile(PanelFile());
    const Screenshot shot = Host().Shoot();
    for (const CPoint& point : {CPoint(3, 3), CPoint(130, 10), CPoint(250, 30), CPoint(130, 540), CPoint(20, 545)})
    {
        EXPECT_TRUE(LooksLike(shot.At(538 + point.x, 50 + point.y), Blend(panel.Argb(point.x, point.y), Background())))
            << point.x << "," << point.y;
    }
}

TEST_F(PanelPictureTest, drawn_anew_for_another_rectangle_only)
{
    Open({});
    MakeOld(PanelFile());
    Refresh(NumberedRows(3));
    EXPECT_TRUE(IsOld(PanelFile())) << "the same rectangle";
    Frame().OnToolBarFullScene(true);
    EXPECT_FALSE(IsOld(PanelFile()));
    EXPECT_EQ(ReadPictureFile(PanelFile()).height, 600);
    MakeOld(PanelFile());
    Frame().OnToolBarFullScene(false);
    EXPECT_FALSE(IsOld(PanelFile()));
    EXPECT_EQ(ReadPictureFile(PanelFile()).height, 548);
    // What is shown has followed.
    EXPECT_TRUE(LooksLike(Seen(668, 592), Blend(ReadPictureFile(TemplateFile()).Argb(130, 68), Background())));
}

TEST_F(PanelPictureTest, without_the_template_a_panel_is_not_made)
{
    FileTaken taken(TemplateFile());
    DeleteFileW(ListFile());
    Open(NumberedRows(3));
    EXPECT_EQ(GuiHost::Find(PanelFrame), nullptr);
    EXPECT_EQ(GuiHost::Find(ListFrame), nullptr);
    EXPECT_TRUE(ReadBytes(ListFile()).empty());
    EXPECT_TRUE(Frame().RefreshPropertyDlg()) << "open all the same";
    EXPECT_GE(TakeLog().size(), 2u);
    taken.PutBack();
    EXPECT_TRUE(Frame().RefreshPropertyDlg());
    EXPECT_TRUE(Visible(PanelFrame)) << "and made at the next refresh";
    EXPECT_TRUE(Visible(ListFrame));
}

TEST_F(PanelPictureTest, without_the_template_the_old_pictures_stay)
{
    Open(NumberedRows(3));
    const Pixel header = Seen(668, 60);
    const Pixel row = Seen(668, 95);
    {
        FileTaken taken(TemplateFile());
        MakeOld(ListFile());
        EXPECT_TRUE(Refresh(NumberedRows(40)));
        EXPECT_TRUE(IsOld(ListFile()));
        EXPECT_EQ(Place(ListPicture), "538,85 - 798,588") << "the place of the old picture, too";
        EXPECT_EQ(GuiHost::Find(Thumb), nullptr);
        EXPECT_EQ(Seen(668, 60), header);
        EXPECT_EQ(Seen(668, 95), row);
        EXPECT_EQ(TakeLog().size(), 1u);
    }
    EXPECT_TRUE(Refresh(NumberedRows(40)));
    EXPECT_EQ(Place(ListPicture), "538,85 - 798,1005");
}

TEST_F(PanelPictureTest, template_is_decoded_again_only_when_its_file_has_changed)
{
    Open(NumberedRows(3));
    {
        const FileHeld held(TemplateFile());
        EXPECT_TRUE(Refresh(NumberedRows(40)));
        EXPECT_EQ(Place(ListPicture), "538,85 - 798,1005");
        EXPECT_EQ(TakeLog(), Lines{});
    }
    const FileReplaced other(TemplateFile(), Bmp24(Solid(260, 74, 0xFF00FF00)));
    EXPECT_TRUE(Refresh(NumberedRows(0)));
    EXPECT_TRUE(LooksLike(Seen(668, 95), {0, 255, 0}));
}

TEST_F(PanelPictureTest, a_template_that_unpacks_to_more_than_a_picture_may_have_is_refused)
{
    Open(NumberedRows(3));
    const Pixel row = Seen(668, 95);
    const FileReplaced other(TemplateFile(), ReadBytes(Utf8ToCString(NX_PICTURE_CORPUS "/larger_than_allowed.png")));
    const MemoryPeak memory;
    EXPECT_TRUE(Refresh(NumberedRows(40)));
    EXPECT_LT(memory.Growth(), 64) << "537 MB";
    EXPECT_EQ(Seen(668, 95), row);
    const Lines log = TakeLog();
    ASSERT_EQ(log.size(), 1u);
    EXPECT_EQ(log[0], "NxOsgCeGui: property panel's template not loaded: " + Utf8(SkinDir()) + "new_skin/DlgPropertyTemple.png");
}

TEST_F(PanelPictureTest, a_view_higher_than_any_bitmap_leaves_the_old_pictures)
{
    Open(NumberedRows(3));
    const std::vector<std::uint8_t> former = ReadBytes(PanelFile());
    // 4 x 260 x 5000000 bytes do not fit in 32 bits.
    Frame().SetWindowSize(ViewWidth, 5000000);
    Frame().RefreshPropertyDlg();
    Frame().SetWindowSize(ViewWidth, ViewHeight);
    EXPECT_EQ(ReadBytes(PanelFile()), former);
    const Lines log = TakeLog();
    ASSERT_FALSE(log.empty());
    EXPECT_EQ(log[0], "NxOsgCeGui: property panel's picture not drawn: 260 x 4999948 pixels");
    Rebuild();
}

TEST_F(PanelPictureTest, without_a_font_family_nothing_is_made)
{
    const CString table = AppDir() + L"languages\\none.ini";
    const std::string text = "[Common]\nLKEY11=\n";
    const FileReplaced file(table, std::vector<std::uint8_t>(text.begin(), text.end()));
    {
        const LanguageSpoken none("none");
        Open(NumberedRows(3));
    }
    EXPECT_EQ(GuiHost::Find(PanelFrame), nullptr);
    EXPECT_EQ(GuiHost::Find(ListFrame), nullptr);
    TakeLog();
}

TEST_F(PanelPictureTest, the_last_strip_reaches_into_the_list_by_a_single_pixel)
{
    Host().Resize(ViewWidth, 604);
    Open(NumberedRows(3));
    const PictureFile list = ReadPictureFile(ListFile());
    ASSERT_EQ(list.height % RowHeight, 1);
    EXPECT_NE(list.Argb(130, 0), 0u);
    EXPECT_EQ(list.Argb(130, list.height - 1), list.Argb(130, 0));
}

TEST_F(PanelPictureTest, a_skin_without_a_type_of_window_leaves_a_line_and_no_panel)
{
    CEGUI::WindowFactoryManager& types = CEGUI::WindowFactoryManager::getSingleton();
    const auto mapping = types.getFalagardMappingForType("TavLook/StaticImage");
    types.removeFalagardWindowMapping(mapping.d_windowType);
    Open(NumberedRows(3));
    types.addFalagardWindowMapping(mapping.d_windowType, mapping.d_baseType, mapping.d_lookName, mapping.d_rendererType,
                                   mapping.d_effectName);
    EXPECT_EQ(GuiHost::Find(PanelFrame), nullptr);
    const Lines log = TakeLog();
    ASSERT_EQ(log.size(), 1u);
    EXPECT_EQ(log[0].find("NxOsgCeGui: property panel not shown ("), 0u) << log[0];
    EXPECT_TRUE(Refresh(NumberedRows(3)));
    EXPECT_TRUE(Visible(PanelFrame));
}

TEST_F(PanelPictureTest, a_file_that_cannot_be_written_keeps_the_old_picture)
{
    Open(NumberedRows(3));
    {
        const FileHeld held(ListFile());
        EXPECT_TRUE(Refresh(NumberedRows(40)));
        EXPECT_EQ(Place(ListPicture), "538,85 - 798,588");
    }
    EXPECT_EQ(TakeLog().size(), 1u);
    EXPECT_TRUE(Refresh(NumberedRows(40)));
    EXPECT_EQ(Place(ListPicture), "538,85 - 798,1005");
}

TEST_F(PanelPictureTest, a_size_event_writes_the_list_once_in_either_mode)
{
    for (const bool full : {false, true})
    {
        Frame().OnToolBarFullScene(full);
        Open(NumberedRows(3));
        TakeLog();
        // A file that is held takes no picture, and each one that is not taken is a line.
        const FileHeld held(ListFile());
        Rebuild();
        const Lines log = TakeLog();
        EXPECT_EQ(std::count_if(log.begin(), log.end(),
                                [](const std::string& line) { return line.find("PropertyImage_0.bmp") != std::string::npos; }),
                  1)
            << (full ? "full scene" : "windowed");
    }
    Rebuild();
    EXPECT_EQ(Place(ListPicture), "540,35 - 800,590");
}

TEST_F(PanelPictureTest, a_size_event_in_full_scene_makes_the_list_anew_and_refreshes_it_only_then)
{
    Frame().OnToolBarFullScene(true);
    Open(NumberedRows(40));
    Frame().RefreshPropertyDlg();
    ASSERT_TRUE(Visible(Thumb));
    Rebuild();
    EXPECT_EQ(Place(ListPicture), "540,35 - 800,955");
    EXPECT_EQ(GuiHost::Find(Thumb), nullptr) << "as in the windowed mode: from the second refresh on";
    Frame().RefreshPropertyDlg();
    EXPECT_TRUE(Visible(Thumb));
}
