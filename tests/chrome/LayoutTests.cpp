// SPDX-License-Identifier: MIT
// Where the parts of the chrome stand, in view pixels, and what lies over what.
#include "support/HostedFrame.h"

#include <widgets/TextPicture.h>

#include <CEGUI/GUIContext.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>

namespace
{
using Chrome = HostedFrame;

struct Size
{
    int width;
    int height;
};
const Size sizes[] = {{640, 480}, {800, 600}, {1024, 768}, {1263, 701}};

void ExpectChrome(int width, int height, bool restricted)
{
    const LONG w = width;
    const LONG h = height;
    const LONG side = restricted ? 5 : 2;
    const struct
    {
        const char* name;
        RECT rect;
    } places[] = {
        {"rootSheet", {0, 0, w, h}},
        {"TavTitleBackground", {0, 0, w, 50}},
        {"TavTilteCloseButtom", {w - 40, 13, w - 16, 37}},
        {"TavTilteMinboxButtom", {w - 84, 13, w - 60, 37}},
        {"TavTilteMaxboxButtom", {w - 128, 13, w - 104, 37}},
        {"TavFullTilteEscBtn", {w - 128, 13, w - 104, 37}},
        {"TavTilteLogo", {15, 10, 45, 40}},
        {"TavLeftBorderBackground", {0, 50, side, h}},
        {"TavRightBorderBackground", {w - side, 50, w, h}},
        {"TavBottomBorderBackground", {0, h - 4, w, h}},
    };
    for (const auto& place : places)
    {
        EXPECT_EQ(Text(GuiHost::RectOf(place.name)), Text(place.rect))
            << place.name << " in " << width << " x " << height << (restricted ? ", restricted user" : ", full user");
    }
}
} // namespace

TEST_F(Chrome, stands_at_its_pixels_in_every_size_for_the_full_user)
{
    for (const Size& size : sizes)
    {
        Host().Resize(size.width, size.height);
        ExpectChrome(size.width, size.height, false);
    }
}

TEST_F(Chrome, of_a_restricted_user_has_side_borders_of_five_pixels_and_the_bottom_border_at_four)
{
    Restart(GUI_USER_RESTRICTED);
    for (const Size& size : sizes)
    {
        Host().Resize(size.width, size.height);
        ExpectChrome(size.width, size.height, true);
    }
}

TEST_F(Chrome, counts_every_user_type_but_zero_as_restricted)
{
    Restart(static_cast<GUIUserType>(7));
    EXPECT_EQ(Frame().GetUser(), static_cast<GUIUserType>(7));
    ExpectChrome(ViewWidth, ViewHeight, true);
    EXPECT_EQ(Host().Find("TavToolButtom_6"), nullptr) << "the publish tool";
    EXPECT_NE(Host().Find("TavToolButtom_5"), nullptr);
}

TEST_F(Chrome, has_the_publish_tool_for_the_full_user)
{
    EXPECT_NE(Host().Find("TavToolButtom_6"), nullptr);
}

TEST_F(Chrome, gives_cegui_relative_places_only)
{
    for (const char* name : {"rootSheet", "TavTitleBackground", "TavTilteCloseButtom", "TavTilteLogo", "TavTilteText",
                             "TavRightBorderBackground", "TavBottomBorderBackground"})
    {
        const CEGUI::Window& window = Window(name);
        EXPECT_EQ(window.getPosition().d_x.d_offset, 0.0f) << name;
        EXPECT_EQ(window.getPosition().d_y.d_offset, 0.0f) << name;
        EXPECT_EQ(window.getSize().d_width.d_offset, 0.0f) << name;
        EXPECT_EQ(window.getSize().d_height.d_offset, 0.0f) << name;
    }
    EXPECT_FLOAT_EQ(Window("TavTitleBackground").getSize().d_width.d_scale, 1.0f);
    EXPECT_FLOAT_EQ(Window("TavTitleBackground").getSize().d_height.d_scale, 50.0f / 600.0f);
    EXPECT_FLOAT_EQ(Window("TavTilteCloseButtom").getPosition().d_x.d_scale, 760.0f / 800.0f);
    EXPECT_FLOAT_EQ(Window("TavTilteCloseButtom").getPosition().d_y.d_scale, 13.0f / 50.0f);
}

TEST_F(Chrome, root_sheet_is_the_sheet_of_the_gui_and_covers_the_view)
{
    CEGUI::Window* sheet = CEGUI::System::getSingleton().getDefaultGUIContext().getRootWindow();
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->getName(), "rootSheet");
    EXPECT_EQ(sheet->getType(), "DefaultWindow");
    for (const char* name : {"TavTitleBackground", "TavLeftBorderBackground", "TavRightBorderBackground",
                             "TavBottomBorderBackground", "TavBotCtrlFrame", "TavLeftCtrlFrame"})
    {
        EXPECT_EQ(Window(name).getParent(), sheet) << name;
    }
    for (const char* name : {"TavTilteCloseButtom", "TavTilteMinboxButtom", "TavTilteMaxboxButtom", "TavFullTilteEscBtn",
                             "TavTilteLogo", "TavTilteText"})
    {
        EXPECT_EQ(Window(name).getParent(), &Window("TavTitleBackground")) << name;
    }
}

TEST_F(Chrome, title_bar_and_borders_are_always_on_top_and_the_bars_are_not)
{
    for (const char* name :
         {"TavTitleBackground", "TavLeftBorderBackground", "TavRightBorderBackground", "TavBottomBorderBackground"})
    {
        EXPECT_TRUE(Window(name).isAlwaysOnTop()) << name;
    }
    EXPECT_FALSE(Window("TavBotCtrlFrame").isAlwaysOnTop());
    EXPECT_FALSE(Window("TavLeftCtrlFrame").isAlwaysOnTop());
}

TEST_F(Chrome, bottom_border_lies_over_the_bottom_bar_on_the_screen)
{
    // Hidden at first, so that the tool bar may show.
    Window("TavLeftCtrlFrame").hide();
    Host().MoveMouse(300, 400);
    Host().MoveMouse(300, 570);
    ASSERT_TRUE(Window("TavBotCtrlFrame").isVisible());
    Window("TavBotCtrlFrame").moveToFront();
    // The tool bar ends at 598, the border starts at 596: at 597 both are.
    const CEGUI::Window* hit =
        CEGUI::System::getSingleton().getDefaultGUIContext().getRootWindow()->getTargetChildAtPosition(CEGUI::Vector2f(300, 597));
    ASSERT_NE(hit, nullptr);
    EXPECT_EQ(hit->getName(), "TavBottomBorderBackground");
}

TEST_F(Chrome, shows_the_enter_button_and_hides_the_leave_button_in_the_same_place)
{
    EXPECT_TRUE(Window("TavTilteMaxboxButtom").isVisible());
    EXPECT_FALSE(Window("TavFullTilteEscBtn").isVisible());
    EXPECT_EQ(Place("TavTilteMaxboxButtom"), Place("TavFullTilteEscBtn"));
}

TEST_F(Chrome, windows_carry_the_pictures_of_the_skin)
{
    const struct
    {
        const char* window;
        const char* property;
        const char* file;
    } pictures[] = {
        {"TavTitleBackground", "Image", "new_skin/topBG.png"},
        {"TavTilteLogo", "Image", "new_skin/logo.png"},
        {"TavTilteText", "Image", "TavTilteText.bmp"},
        {"TavLeftBorderBackground", "Image", "new_skin/leftborder.png"},
        {"TavRightBorderBackground", "Image", "new_skin/rightborder.png"},
        {"TavBottomBorderBackground", "Image", "new_skin/bottomborder.png"},
        {"TavTilteCloseButtom", "NormalImage", "new_skin/close.png"},
        {"TavTilteCloseButtom", "HoverImage", "new_skin/closeH.png"},
        {"TavTilteCloseButtom", "PushedImage", "new_skin/closeP.png"},
        {"TavTilteMinboxButtom", "NormalImage", "new_skin/minimize.png"},
        {"TavTilteMinboxButtom", "HoverImage", "new_skin/minimizeH.png"},
        {"TavTilteMinboxButtom", "PushedImage", "new_skin/minimizeP.png"},
        {"TavTilteMaxboxButtom", "NormalImage", "new_skin/full.png"},
        {"TavTilteMaxboxButtom", "HoverImage", "new_skin/fullH.png"},
        {"TavTilteMaxboxButtom", "PushedImage", "new_skin/fullP.png"},
        {"TavFullTilteEscBtn", "NormalImage", "new_skin/fullesc.png"},
        {"TavFullTilteEscBtn", "HoverImage", "new_skin/fullescH.png"},
        {"TavFullTilteEscBtn", "PushedImage", "new_skin/fullescP.png"},
    };
    for (const auto& picture : pictures)
    {
        EXPECT_EQ(ImageOf(picture.window, picture.property), std::string(picture.file) + "/full_image")
            << picture.window << " " << picture.property;
    }
}

TEST_F(Chrome, empty_title_has_a_rectangle_of_100_by_30)
{
    Frame().SetSceneTitle(L"");
    Rebuild();
    EXPECT_EQ(Place("TavTilteText"), "50,10 - 150,40");
}

TEST_F(Chrome, title_is_as_large_as_its_text_and_centred_in_the_bar)
{
    Frame().SetSceneTitle(L"Riverside 滨江");
    Frame().SetSceneTitleFontHeight(20.9f);
    Rebuild();
    const CSize size = MeasureTextExtent(TitleFont, 20, L"Riverside 滨江");
    ASSERT_GT(size.cx, 60);
    const RECT wanted = {50, (50 - size.cy) / 2, 50 + size.cx, (50 + size.cy) / 2};
    EXPECT_EQ(Place("TavTilteText"), Text(wanted));
}

TEST_F(Chrome, survives_views_smaller_than_its_parts)
{
    for (const Size& size : {Size{40, 30}, Size{1, 1}, Size{130, 51}})
    {
        Host().Resize(size.width, size.height);
        UINT width = 0;
        UINT height = 0;
        Frame().GetWindowSize(width, height);
        ASSERT_NE(Host().Find("TavTilteCloseButtom"), nullptr) << size.width << " x " << size.height;
        EXPECT_EQ(static_cast<int>(width), size.width);
        EXPECT_EQ(static_cast<int>(height), size.height);
    }
}
