// SPDX-License-Identifier: MIT
// The scene title as a text.
#include "support/FrameTest.h"

#include <KernelCommonUse/MultiLanguage.h>

#include <panels/FontNames.h>
#include <widgets/Gdiplus.h>

#include <CEGUI/Renderer.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{
const char* const TitleText = "TavTilteText";
const wchar_t* const Font = L"Noto Sans CJK SC";
constexpr COLORREF Yellow = 0x0000FFFF;
constexpr Pixel YellowPixel = {255, 255, 0};

/// The text's box, measured here as a title is to be measured.
CSize Measured(const wchar_t* text, int pixels)
{
    const gp::FontFamily family = gp::NewFontFamily(Font);
    const gp::Font font = gp::NewFont(family.get(), static_cast<float>(pixels));
    const gp::StringFormat format = gp::NewStringFormat();
    const HDC dc = GetDC(GetDesktopWindow());
    gp::RectF box = {0, 0, 0, 0};
    {
        const gp::Graphics graphics = gp::Make<gp::Graphics>([&](gp::GpGraphics** g) { return gp::GdipCreateFromHDC(dc, g); });
        gp::GdipSetTextRenderingHint(graphics.get(), gp::TextRenderingHintAntiAliasGridFit);
        gp::GdipSetInterpolationMode(graphics.get(), gp::InterpolationModeHighQualityBicubic);
        gp::GdipSetSmoothingMode(graphics.get(), gp::SmoothingModeAntiAlias);
        const gp::RectF unbounded = {0, 0, 0, 0};
        gp::GdipMeasureString(graphics.get(), text, -1, font.get(), &unbounded, format.get(), &box, nullptr, nullptr);
    }
    ReleaseDC(GetDesktopWindow(), dc);
    return CSize(static_cast<int>(std::ceil(box.Width)), static_cast<int>(std::ceil(box.Height)));
}

std::string ExpectedPlace(const wchar_t* text, int pixels)
{
    const CSize size = Measured(text, pixels);
    const int top = (50 - size.cy) / 2;
    return Text({50, top, 50 + size.cx, top + size.cy});
}
} // namespace

class SceneTitleTest : public FrameTest
{
protected:
    static int CountPixels(const RECT& rect, Pixel color)
    {
        const Screenshot shot = Host().Shoot();
        int count = 0;
        for (int y = rect.top; y < rect.bottom; ++y)
        {
            for (int x = rect.left; x < rect.right; ++x)
            {
                count += Distance(shot.At(x, y), color) <= 20;
            }
        }
        return count;
    }

    static int YellowPixels() { return CountPixels({0, 0, 600, 50}, YellowPixel); }
};

TEST_F(SceneTitleTest, lies_beside_the_logo_as_large_as_its_text)
{
    Frame().ChangeTitleText(L"Riverside", Yellow, Font, 20.0f);
    EXPECT_EQ(Place(TitleText), ExpectedPlace(L"Riverside", 20));
    EXPECT_GT(YellowPixels(), 50);
    Frame().ChangeTitleText(L"滨江 Riverside Masterplan", Yellow, Font, 14.0f);
    EXPECT_EQ(Place(TitleText), ExpectedPlace(L"滨江 Riverside Masterplan", 14));
}

TEST_F(SceneTitleTest, a_change_stores_the_four_properties)
{
    Frame().ChangeTitleText(L"Harbour", 0x00102030, Font, 18.5f);
    EXPECT_EQ(Frame().GetSceneTitle(), L"Harbour");
    EXPECT_EQ(Frame().GetSceneTitleColor(), COLORREF(0x00102030));
    EXPECT_EQ(Frame().GetSceneTitleFontStyle(), Font);
    EXPECT_EQ(Frame().GetSceneTitleFontHeight(), 18.5f);
    EXPECT_TRUE(Host().TakeCodes().empty());
}

TEST_F(SceneTitleTest, a_change_is_seen_at_once_and_replaces_the_former_text)
{
    EXPECT_EQ(YellowPixels(), 0);
    Frame().ChangeTitleText(L"WWWWWWWW", Yellow, Font, 24.0f);
    const RECT wide = GuiHost::RectOf(TitleText);
    const int many = YellowPixels();
    EXPECT_GT(many, 100);
    Frame().ChangeTitleText(L"i", Yellow, Font, 24.0f);
    const RECT narrow = GuiHost::RectOf(TitleText);
    EXPECT_LT(narrow.right, wide.right);
    EXPECT_EQ(CountPixels({narrow.right, 0, wide.right, 50}, YellowPixel), 0) << "nothing of the former text is left";
    EXPECT_LT(YellowPixels(), many);
}

TEST_F(SceneTitleTest, the_colour_is_red_green_and_blue_from_its_low_byte_up)
{
    Frame().ChangeTitleText(L"WWWW", 0x000000FF, Font, 30.0f);
    EXPECT_GT(CountPixels({50, 0, 300, 50}, {255, 0, 0}), 20);
    Frame().ChangeTitleText(L"WWWW", 0x00FF0000, Font, 30.0f);
    EXPECT_GT(CountPixels({50, 0, 300, 50}, {0, 0, 255}), 20);
}

TEST_F(SceneTitleTest, a_height_with_a_fraction_is_cut)
{
    Frame().ChangeTitleText(L"Cut", Yellow, Font, 20.0f);
    const std::vector<std::uint8_t> whole = ReadBytes(SkinDir() + L"TavTilteText.bmp");
    const std::string place = Place(TitleText);
    Frame().ChangeTitleText(L"Cut", Yellow, Font, 20.9f);
    EXPECT_EQ(ReadBytes(SkinDir() + L"TavTilteText.bmp"), whole);
    EXPECT_EQ(Place(TitleText), place);
    EXPECT_EQ(Frame().GetSceneTitleFontHeight(), 20.9f);
}

TEST_F(SceneTitleTest, an_empty_title_keeps_a_slot)
{
    Frame().ChangeTitleText(L"Yellow", Yellow, Font, 20.0f);
    Frame().ChangeTitleText(L"", Yellow, Font, 20.0f);
    EXPECT_EQ(Place(TitleText), "50,10 - 150,40");
    EXPECT_EQ(YellowPixels(), 0);
    Rebuild();
    EXPECT_EQ(Place(TitleText), "50,10 - 150,40");
    Frame().ChangeTitleText(L"Back", Yellow, Font, 20.0f);
    EXPECT_EQ(Place(TitleText), ExpectedPlace(L"Back", 20));
    EXPECT_GT(YellowPixels(), 20);
}

TEST_F(SceneTitleTest, a_title_without_height_keeps_it_as_well)
{
    ASSERT_EQ(Measured(L"\n", 20).cy, 0);
    Frame().ChangeTitleText(L"Yellow", Yellow, Font, 20.0f);
    Frame().ChangeTitleText(L"\n", Yellow, Font, 20.0f);
    EXPECT_EQ(Place(TitleText), "50,10 - 150,40");
}

TEST_F(SceneTitleTest, a_text_higher_than_the_bar_reaches_over_both_edges)
{
    Frame().ChangeTitleText(L"High", Yellow, Font, 60.0f);
    const CSize size = Measured(L"High", 60);
    ASSERT_GT(size.cy, 50);
    EXPECT_EQ(Place(TitleText), ExpectedPlace(L"High", 60));
}

TEST_F(SceneTitleTest, the_setters_only_store)
{
    const Screenshot before = Host().Shoot();
    Frame().SetSceneTitle(L"Other");
    Frame().SetSceneTitleColor(Yellow);
    Frame().SetSceneTitleFontStyle(L"No Such Family");
    Frame().SetSceneTitleFontStyle(Font);
    Frame().SetSceneTitleFontHeight(30.0f);
    EXPECT_TRUE(Host().Shoot().pixels == before.pixels);
    Rebuild();
    EXPECT_EQ(Place(TitleText), ExpectedPlace(L"Other", 30)) << "the next frame takes them";
    EXPECT_GT(YellowPixels(), 50);
}

TEST_F(SceneTitleTest, a_changed_title_survives_a_resize)
{
    Frame().ChangeTitleText(L"Stays", Yellow, Font, 22.0f);
    Host().Resize(1000, 640);
    EXPECT_EQ(Place(TitleText), ExpectedPlace(L"Stays", 22));
    EXPECT_GT(YellowPixels(), 20);
}

TEST_F(SceneTitleTest, before_the_frame_is_built_a_change_only_stores)
{
    Restart(GUI_USER_FULL, false);
    DeleteFileW(SkinDir() + L"TavTilteText.bmp");
    Frame().ChangeTitleText(L"Early", Yellow, Font, 20.0f);
    EXPECT_EQ(Frame().GetSceneTitle(), L"Early");
    EXPECT_EQ(Frame().GetSceneTitleColor(), Yellow);
    EXPECT_EQ(Frame().GetSceneTitleFontStyle(), Font);
    EXPECT_EQ(Frame().GetSceneTitleFontHeight(), 20.0f);
    EXPECT_TRUE(ReadBytes(SkinDir() + L"TavTilteText.bmp").empty()) << "no picture is written";
    EXPECT_EQ(WindowCount(), 0);
    Rebuild();
    EXPECT_EQ(Place(TitleText), ExpectedPlace(L"Early", 20));
}

TEST_F(SceneTitleTest, without_an_interface_a_change_only_stores)
{
    Host().Close();
    Frame().ChangeTitleText(L"Closed", Yellow, Font, 21.0f);
    EXPECT_EQ(Frame().GetSceneTitle(), L"Closed");
    EXPECT_EQ(Frame().GetSceneTitleFontHeight(), 21.0f);
}

TEST_F(SceneTitleTest, the_defaults_come_back_without_being_drawn)
{
    Frame().ChangeTitleText(L"Old", Yellow, Font, 30.0f);
    const Screenshot before = Host().Shoot();
    Frame().ClearTitleSet();
    EXPECT_EQ(Frame().GetSceneTitle(), CMultiLanguageMgr::GetInstance()->translation("LKEY0", "", "Common"));
    EXPECT_EQ(Frame().GetSceneTitleColor(), COLORREF(14796997));
    EXPECT_EQ(Frame().GetSceneTitleFontHeight(), 16.0f);
    EXPECT_EQ(Frame().GetSceneTitleFontStyle(), IsFontInstalled(L"Segoe UI Semibold") ? L"Segoe UI Semibold" : L"YouYuan");
    EXPECT_TRUE(Host().Shoot().pixels == before.pixels) << "the old text still stands";
    Frame().ChangeTitleText(Frame().GetSceneTitle(), Frame().GetSceneTitleColor(), Font, Frame().GetSceneTitleFontHeight());
    EXPECT_EQ(Place(TitleText), ExpectedPlace(Frame().GetSceneTitle(), 16));
}

TEST_F(SceneTitleTest, a_font_that_is_not_installed_is_logged_and_the_title_stays)
{
    Frame().ChangeTitleText(L"Shown", Yellow, Font, 20.0f);
    Frame().ChangeTitleText(L"Unseen", Yellow, L"No Such Family", 20.0f);
    EXPECT_EQ(Frame().GetSceneTitleFontStyle(), L"No Such Family");
    const Lines log = TakeLog();
    ASSERT_FALSE(log.empty());
    EXPECT_NE(log[0].find("No Such Family"), std::string::npos) << log[0];
    EXPECT_NE(log[0].find("font family not installed"), std::string::npos) << log[0];
    EXPECT_NE(Place("TavTitleBackground"), "no window");
    Frame().ChangeTitleText(L"Again", Yellow, Font, 20.0f);
    EXPECT_EQ(Place(TitleText), ExpectedPlace(L"Again", 20));
}

TEST_F(SceneTitleTest, a_font_that_is_not_installed_does_not_keep_the_frame_from_being_built)
{
    Frame().SetSceneTitleFontStyle(L"No Such Family");
    Rebuild();
    EXPECT_EQ(Place("TavTitleBackground"), "0,0 - 800,50");
    EXPECT_EQ(Place("TavBotCtrlFrame"), "1,508 - 584,598");
    EXPECT_GE(CountLogLines("font family not installed"), 1);
    TakeLog();
}

TEST_F(SceneTitleTest, an_empty_font_family_leaves_the_title_and_a_good_one_changes_it)
{
    Frame().ChangeTitleText(L"Shown", Yellow, Font, 20.0f);
    const Screenshot before = Host().Shoot();
    Frame().ChangeTitleText(L"Unseen", Yellow, L"", 20.0f);
    EXPECT_EQ(Frame().GetSceneTitleFontStyle(), L"");
    EXPECT_EQ(TakeLog().size(), 1u) << "a picture without a font is not drawn";
    EXPECT_TRUE(Host().Shoot().pixels == before.pixels);
    // The next frame shows it in the default family.
    Rebuild();
    TakeLog();
    EXPECT_NE(Host().Find(TitleText), nullptr);
    EXPECT_FALSE(Host().Shoot().pixels == before.pixels);
    EXPECT_EQ(Frame().GetSceneTitleFontStyle(), L"") << "it stays as it was stored";
    Frame().ChangeTitleText(L"Again", Yellow, Font, 20.0f);
    EXPECT_EQ(Place(TitleText), ExpectedPlace(L"Again", 20));
}

TEST_F(SceneTitleTest, a_long_title_leaves_the_window_buttons_within_reach)
{
    Frame().ChangeTitleText(CString(L'W', 300), Yellow, Font, 20.0f);
    EXPECT_GT(GuiHost::RectOf(TitleText).right, 800);
    Host().Click(684, 25);
    EXPECT_TRUE(Frame().IsFullScene());
}

TEST_F(SceneTitleTest, a_title_wider_than_the_largest_texture_ends_where_the_texture_does)
{
    const CString dashes(L'\x2E3B', 100);
    const int widest = static_cast<int>(CEGUI::System::getSingleton().getRenderer()->getMaxTextureSize());
    ASSERT_GT(Measured(dashes, 100).cx, widest);
    Frame().ChangeTitleText(dashes, Yellow, Font, 100.0f);
    EXPECT_EQ(GuiHost::RectOf(TitleText).left, 50);
    EXPECT_EQ(GuiHost::RectOf(TitleText).right, 50 + widest);
    EXPECT_GT(YellowPixels(), 50);
    Rebuild();
    EXPECT_EQ(GuiHost::RectOf(TitleText).right, 50 + widest);
    EXPECT_GT(YellowPixels(), 50);
    EXPECT_TRUE(Visible("TavTilteCloseButtom"));
    EXPECT_EQ(TakeLog(), Lines{});
    Frame().ChangeTitleText(L"Short", Yellow, Font, 20.0f);
    EXPECT_EQ(Place(TitleText), ExpectedPlace(L"Short", 20));
}

TEST_F(SceneTitleTest, a_height_that_no_bitmap_has_leaves_the_former_picture)
{
    Frame().ChangeTitleText(L"Former", Yellow, Font, 20.0f);
    const std::vector<std::uint8_t> former = ReadBytes(SkinDir() + L"TavTilteText.bmp");
    const std::string place = Place(TitleText);
    for (const float height : {9000.0f, 20000.0f, 70000.0f, 1e9f, 3e9f, 1e30f, std::numeric_limits<float>::infinity()})
    {
        SCOPED_TRACE(height);
        Frame().ChangeTitleText(L"A title of some words", Yellow, Font, height);
        EXPECT_EQ(Frame().GetSceneTitleFontHeight(), height);
        EXPECT_EQ(Place(TitleText), place);
        EXPECT_EQ(ReadBytes(SkinDir() + L"TavTilteText.bmp"), former);
        const Lines log = TakeLog();
        ASSERT_EQ(log.size(), 1u);
        EXPECT_EQ(log[0].find("NxOsgCeGui: text picture not written, no bitmap of "), 0u) << log[0];
    }
}

TEST_F(SceneTitleTest, a_height_that_no_bitmap_has_does_not_keep_the_frame_from_being_built)
{
    for (const float height : {9000.0f, 1e9f, std::numeric_limits<float>::infinity()})
    {
        SCOPED_TRACE(height);
        Frame().SetSceneTitle(L"A title of some words");
        Frame().SetSceneTitleFontStyle(Font);
        Frame().SetSceneTitleFontHeight(height);
        Rebuild();
        EXPECT_EQ(Place("TavTitleBackground"), "0,0 - 800,50");
        EXPECT_EQ(Place("TavBotCtrlFrame"), "1,508 - 584,598");
        EXPECT_TRUE(Visible("TavTilteCloseButtom"));
        EXPECT_EQ(TakeLog().size(), 1u);
    }
    Frame().SetSceneTitleFontHeight(20.0f);
    Rebuild();
    EXPECT_EQ(Place(TitleText), ExpectedPlace(L"A title of some words", 20));
}

TEST_F(SceneTitleTest, a_height_of_nothing_keeps_a_slot_without_text)
{
    const float infinity = std::numeric_limits<float>::infinity();
    for (const float height : {0.0f, 0.9f, -1.0f, -1e9f, -1e30f, -infinity, std::numeric_limits<float>::quiet_NaN()})
    {
        SCOPED_TRACE(height);
        Frame().ChangeTitleText(L"Unseen", Yellow, Font, height);
        EXPECT_EQ(Place(TitleText), "50,10 - 150,40");
        EXPECT_EQ(YellowPixels(), 0);
        const Lines log = TakeLog();
        ASSERT_EQ(log.size(), 1u);
        EXPECT_EQ(log[0].find("NxOsgCeGui: no font of this height, text left out of "), 0u) << log[0];
        Rebuild();
        EXPECT_EQ(Place(TitleText), "50,10 - 150,40");
        EXPECT_EQ(TakeLog().size(), 1u);
        Frame().ChangeTitleText(L"Seen", Yellow, Font, 20.0f);
        EXPECT_EQ(Place(TitleText), ExpectedPlace(L"Seen", 20));
    }
}
