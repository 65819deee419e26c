// SPDX-License-Identifier: MIT
// The bottom tool bar: where it lies, when it is seen, and what its tools look like.
#include "Names.h"

#include "support/FrameTest.h"
#include "widgets/Pictures.h"

#include <KernelCommonUse/MultiLanguage.h>
#include <KernelCommonUse/StringConvert.h>

#include <widgets/FileImageset.h>

#include <CEGUI/Exceptions.h>
#include <CEGUI/Window.h>

namespace
{
const wchar_t* const ToolBarKey = L"TavBotCtrlFrame";
constexpr Pixel Red = {255, 0, 0};
constexpr Pixel Green = {0, 255, 0};

std::vector<std::uint8_t> Filled(std::uint32_t argb)
{
    return Bmp32(Solid(62, 62, argb));
}
} // namespace

class ToolBarTest : public FrameTest
{
};

TEST_F(ToolBarTest, lies_at_the_lower_left_with_six_tools_for_the_full_user)
{
    EXPECT_EQ(Place(ToolBar), "1,508 - 584,598");
    EXPECT_EQ(Place("TavToolButtom_1"), "31,524 - 93,586");
    EXPECT_EQ(Place("TavToolButtom_2"), "123,524 - 185,586");
    EXPECT_EQ(Place("TavToolButtom_3"), "215,524 - 277,586");
    EXPECT_EQ(Place("TavToolButtom_4"), "307,524 - 369,586");
    EXPECT_EQ(Place("TavToolButtom_5"), "399,524 - 461,586");
    EXPECT_EQ(Place("TavToolButtom_6"), "491,524 - 553,586");
    EXPECT_EQ(Place("TavToolButtom_7"), "no window");
}

TEST_F(ToolBarTest, has_five_tools_and_is_narrower_for_another_user)
{
    Restart(GUI_USER_RESTRICTED);
    EXPECT_EQ(Place(ToolBar), "1,508 - 492,598") << "the borders are wider for this user, the bar's place is the same";
    EXPECT_EQ(Place("TavToolButtom_1"), "31,524 - 93,586");
    EXPECT_EQ(Place("TavToolButtom_5"), "399,524 - 461,586");
    EXPECT_EQ(Place("TavToolButtom_6"), "no window");
    EXPECT_EQ(Text(Bar(ToolBarKey).triggerRect), "0,508 - 492,600");
}

TEST_F(ToolBarTest, any_user_type_but_0_counts_as_another_user)
{
    Restart(static_cast<GUIUserType>(7));
    EXPECT_EQ(Place(ToolBar), "1,508 - 492,598");
    EXPECT_EQ(Place("TavToolButtom_6"), "no window");
}

TEST_F(ToolBarTest, follows_the_size_of_the_view)
{
    Host().Resize(1024, 700);
    EXPECT_EQ(Place(ToolBar), "1,608 - 584,698");
    EXPECT_EQ(Place("TavToolButtom_6"), "491,624 - 553,686");
    EXPECT_EQ(Text(Bar(ToolBarKey).triggerRect), "0,608 - 584,700");
}

TEST_F(ToolBarTest, in_a_view_narrower_than_itself_it_is_cut_and_not_squeezed)
{
    for (const int width : {582, 400, 150})
    {
        SCOPED_TRACE(width);
        Host().Resize(width, ViewHeight);
        EXPECT_EQ(Place(ToolBar), "1,508 - 584,598");
        EXPECT_EQ(Place("TavToolButtom_1"), "31,524 - 93,586");
        EXPECT_EQ(Place("TavToolButtom_6"), "491,524 - 553,586");
        EXPECT_EQ(Place("TavLeftCtrlFrame"), "1,50 - 153,598");
        Frame().OnToolBarFullScene(true);
        EXPECT_EQ(Place(ToolBar), "0,510 - 583,600");
        EXPECT_EQ(Place("TavToolButtom_6"), "490,526 - 552,588");
        Frame().OnToolBarFullScene(false);
    }
    // What is seen of it works.
    Host().Resize(400, ViewHeight);
    Host().MoveMouse(300, 300);
    Host().MoveMouse(300, 560);
    ASSERT_TRUE(Visible(ToolBar));
    Host().Click(153, 556);
    EXPECT_EQ(Host().TakeCodes(), (std::vector<WPARAM>{GUI_CMD_ROAM}));
}

TEST_F(ToolBarTest, carries_its_background_and_hides_by_itself)
{
    EXPECT_EQ(ImageOf(ToolBar), "new_skin/bottomBG.png/full_image");
    EXPECT_TRUE(Bar(ToolBarKey).autoHide);
    EXPECT_FALSE(Bar(ToolBarKey).slideOnHide);
    EXPECT_FALSE(Bar(ToolBarKey).animating);
}

TEST_F(ToolBarTest, is_hidden_when_the_frame_is_built_and_shows_only_the_scene)
{
    EXPECT_FALSE(Visible(ToolBar));
    EXPECT_TRUE(LooksLike(Seen(154, 555), Background(), 0));
}

TEST_F(ToolBarTest, slides_in_where_the_mouse_reaches_the_strip_down_to_the_views_edge)
{
    const struct
    {
        const char* what;
        int x;
        int y;
        bool shown;
    } points[] = {
        {"left edge of the view", 0, 599, true},     {"top of the strip", 300, 508, true},
        {"above the strip", 300, 507, false},        {"right end of the strip", 583, 550, true},
        {"right of the strip", 584, 550, false},     {"last row of the view", 300, 599, true},
        {"between bar and view edge", 0, 530, true}, {"upper left of the strip", 0, 508, true},
    };
    for (const auto& point : points)
    {
        SlideIn(point.x, point.y);
        EXPECT_EQ(Visible(ToolBar), point.shown) << point.what;
        Host().MoveMouse(400, 300);
        EXPECT_FALSE(Visible(ToolBar)) << "after " << point.what;
    }
}

TEST_F(ToolBarTest, stays_hidden_while_the_mouse_has_not_been_outside_since_it_was_built)
{
    Host().MoveMouse(200, 550);
    Rebuild();
    Host().MoveMouse(210, 550);
    Host().MoveMouse(220, 550);
    EXPECT_FALSE(Visible(ToolBar));
    SlideIn(220, 550);
    EXPECT_TRUE(Visible(ToolBar));
}

TEST_F(ToolBarTest, stays_while_the_mouse_is_on_it_or_its_tools)
{
    SlideIn(110, 550);
    for (int x : {60, 110, 154, 200, 583})
    {
        Host().MoveMouse(x, 555);
        EXPECT_TRUE(Visible(ToolBar)) << x;
    }
    MoveTo(300, 507);
    EXPECT_FALSE(Visible(ToolBar));
}

TEST_F(ToolBarTest, the_first_tool_starts_with_its_pictures_swapped_on_purpose)
{
    EXPECT_EQ(ImageOf("TavToolButtom_1", "NormalImage"), "viewvideosetP.png/full_image");
    EXPECT_EQ(ImageOf("TavToolButtom_1", "HoverImage"), "viewvideosetP.png/full_image");
    EXPECT_EQ(ImageOf("TavToolButtom_1", "PushedImage"), "viewvideosetN.png/full_image");
}

TEST_F(ToolBarTest, each_other_tool_shows_its_normal_picture_also_under_the_mouse)
{
    const char* const names[] = {"roam", "environment", "property", "obliquepathmanage", "browser"};
    for (int i = 0; i < 5; ++i)
    {
        const std::string window = "TavToolButtom_" + std::to_string(i + 2);
        const std::string stem = names[i];
        EXPECT_EQ(ImageOf(window.c_str(), "NormalImage"), stem + "N.png/full_image");
        EXPECT_EQ(ImageOf(window.c_str(), "HoverImage"), stem + "N.png/full_image");
        EXPECT_EQ(ImageOf(window.c_str(), "PushedImage"), stem + "P.png/full_image");
    }
}

TEST_F(ToolBarTest, the_pictures_are_seen_as_the_tools_are_hovered_and_pressed)
{
    const FileReplaced firstNormal(SkinDir() + L"viewvideosetN.png", Filled(0xFFFF0000));
    const FileReplaced firstPushed(SkinDir() + L"viewvideosetP.png", Filled(0xFF00FF00));
    const FileReplaced normal(SkinDir() + L"roamN.png", Filled(0xFFFF0000));
    const FileReplaced pushed(SkinDir() + L"roamP.png", Filled(0xFF00FF00));
    Rebuild();
    SlideIn(110, 550);
    Screenshot shot = Host().Shoot();
    EXPECT_TRUE(LooksLike(shot.At(40, 530), Green)) << "the first tool at rest";
    EXPECT_TRUE(LooksLike(shot.At(130, 530), Red)) << "the second tool at rest";
    EXPECT_TRUE(LooksLike(shot.At(123, 524), Red)) << "up to its corners";
    EXPECT_TRUE(LooksLike(shot.At(184, 585), Red));

    Host().MoveMouse(154, 555);
    EXPECT_TRUE(LooksLike(Seen(130, 530), Red)) << "the second tool under the mouse";
    Host().Press(154, 555);
    EXPECT_TRUE(LooksLike(Seen(130, 530), Green)) << "the second tool pressed";
    Host().Release(154, 555);
    EXPECT_TRUE(LooksLike(Seen(130, 530), Red)) << "the second tool released";

    Host().MoveMouse(62, 555);
    EXPECT_TRUE(LooksLike(Seen(40, 530), Green)) << "the first tool under the mouse";
    Host().Press(62, 555);
    EXPECT_TRUE(LooksLike(Seen(40, 530), Red)) << "the first tool pressed";
}

TEST_F(ToolBarTest, the_tooltips_are_the_translations_of_their_keys)
{
    for (int i = 0; i < 6; ++i)
    {
        const std::string key = "LKEY" + std::to_string(5 + i);
        const CString text = CMultiLanguageMgr::GetInstance()->translation(key, "", "Common");
        ASSERT_NE(text, Utf8ToCString(key)) << "no translation";
        const CEGUI::Window* tool = GuiHost::Find(("TavToolButtom_" + std::to_string(i + 1)).c_str());
        ASSERT_TRUE(tool);
        std::string bytes;
        const CEGUI::String& shown = tool->getTooltipText();
        for (CEGUI::String::size_type c = 0; c < shown.length(); ++c)
        {
            bytes += static_cast<char>(shown[c]);
        }
        EXPECT_EQ(_a2w(bytes), text) << "in the system's code page, a character a byte";
    }
}

TEST_F(ToolBarTest, preparing_the_older_bar_only_loads_its_background_on_purpose)
{
    const int windows = WindowCount();
    const Screenshot before = Host().Shoot();
    ASSERT_FALSE(FileImagesets::IsPresent(L"bottomBG.png"));
    Frame().CreateToolBar();
    EXPECT_TRUE(FileImagesets::IsPresent(L"bottomBG.png"));
    EXPECT_EQ(WindowCount(), windows);
    EXPECT_TRUE(Host().Shoot().pixels == before.pixels);
    Frame().CreateToolBar();
    EXPECT_EQ(WindowCount(), windows) << "a second time is harmless";
    EXPECT_EQ(Host().TakeCodes(), std::vector<WPARAM>{});
}

TEST_F(ToolBarTest, preparing_the_older_bar_without_a_sheet_or_an_interface_does_nothing)
{
    Frame().ClearAllWindows();
    Frame().CreateToolBar();
    EXPECT_FALSE(FileImagesets::IsPresent(L"bottomBG.png"));
    Host().Close();
    Frame().CreateToolBar();
    EXPECT_FALSE(Frame().IsInit());
}

TEST_F(ToolBarTest, preparing_the_older_bar_without_its_picture_is_logged)
{
    const FileTaken away(SkinDir() + L"bottomBG.png");
    Frame().CreateToolBar();
    EXPECT_FALSE(FileImagesets::IsPresent(L"bottomBG.png"));
    for (int i = 0; i < 2; ++i)
    {
        EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: picture not loaded: bottomBG.png"}) << "one line each time";
        Frame().CreateToolBar();
    }
    TakeLog();
}

TEST_F(ToolBarTest, a_missing_tool_picture_ends_the_build_and_the_next_build_succeeds)
{
    {
        const FileTaken away(SkinDir() + L"environmentP.png");
        Frame().ClearAllWindows();
        EXPECT_THROW(Frame().CreateMainFrame(), CEGUI::Exception);
        EXPECT_EQ(Place(ToolBar), "no window");
        EXPECT_EQ(Place("TavTitleBackground"), "no window");
        EXPECT_EQ(CountLogLines("picture not loaded: environmentP.png"), 1);
        TakeLog();
    }
    Frame().ClearAllWindows();
    EXPECT_TRUE(Frame().CreateMainFrame());
    EXPECT_EQ(Place("TavToolButtom_3"), "215,524 - 277,586");
}
