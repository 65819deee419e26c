// SPDX-License-Identifier: MIT
// The window buttons on the screen: at rest, under the mouse and pushed.
#include "support/HostedFrame.h"

#include <KernelCommonUse/StringConvert.h>

#include <CEGUI/Window.h>

namespace
{
struct Button
{
    const char* window;
    const wchar_t* stem;
    int x; ///< left edge, view pixels
};
constexpr int Top = 13;
constexpr int Side = 24;

class ChromeButtons : public HostedFrame
{
protected:
    static const std::vector<Button>& Buttons()
    {
        static const std::vector<Button> buttons = {{"TavTilteCloseButtom", L"new_skin\\close", 760},
                                                    {"TavTilteMinboxButtom", L"new_skin\\minimize", 716},
                                                    {"TavTilteMaxboxButtom", L"new_skin\\full", 672}};
        return buttons;
    }
    static PictureFile Picture(const Button& button, const wchar_t* state)
    {
        return ReadPictureFile(SkinDir() + button.stem + state + L".png");
    }
    /// The largest difference between a part of the screen and a picture laid over what is below it.
    static int Worst(const Screenshot& shot, const PictureFile& picture, const Screenshot& below, int left, int top)
    {
        int worst = 0;
        for (int y = 0; y < picture.height; ++y)
        {
            for (int x = 0; x < picture.width; ++x)
            {
                const Pixel wanted = Blend(picture.Argb(x, y), below.At(left + x, top + y));
                worst = std::max(worst, Distance(shot.At(left + x, top + y), wanted));
            }
        }
        return worst;
    }
    static int Changed(const Screenshot& one, const Screenshot& two, int left, int top)
    {
        int changed = 0;
        for (int y = top; y < top + Side; ++y)
        {
            for (int x = left; x < left + Side; ++x)
            {
                changed += Distance(one.At(x, y), two.At(x, y)) > 8;
            }
        }
        return changed;
    }
};
} // namespace

TEST_F(ChromeButtons, show_each_state_s_picture_pixel_by_pixel_over_the_title_bar)
{
    for (const Button& button : Buttons())
    {
        SCOPED_TRACE(button.window);
        for (const wchar_t* state : {L"", L"H", L"P"})
        {
            const PictureFile picture = Picture(button, state);
            ASSERT_EQ(picture.width, Side);
            ASSERT_EQ(picture.height, Side);
        }
        Window(button.window).hide();
        const Screenshot below = Host().Shoot();
        Window(button.window).show();
        EXPECT_LE(Worst(Host().Shoot(), Picture(button, L""), below, button.x, Top), 2) << "at rest";
        Host().MoveMouse(button.x + 12, Top + 12);
        EXPECT_LE(Worst(Host().Shoot(), Picture(button, L"H"), below, button.x, Top), 2) << "under the mouse";
        Host().Press(button.x + 12, Top + 12);
        EXPECT_LE(Worst(Host().Shoot(), Picture(button, L"P"), below, button.x, Top), 2) << "pushed";
        // Released elsewhere, the button does nothing.
        Host().MoveMouse(400, 300);
        Host().Release(400, 300);
        EXPECT_LE(Worst(Host().Shoot(), Picture(button, L""), below, button.x, Top), 2) << "left again";
    }
    EXPECT_TRUE(Host().TakeMessages().empty());
    EXPECT_FALSE(Frame().IsFullScene());
}

TEST_F(ChromeButtons, states_differ_visibly)
{
    for (const Button& button : Buttons())
    {
        Host().MoveMouse(400, 300);
        const Screenshot rest = Host().Shoot();
        Host().MoveMouse(button.x + 12, Top + 12);
        const Screenshot hover = Host().Shoot();
        Host().Press(button.x + 12, Top + 12);
        const Screenshot pushed = Host().Shoot();
        Host().MoveMouse(400, 300);
        Host().Release(400, 300);
        EXPECT_GT(Changed(rest, hover, button.x, Top), 20) << button.window;
        EXPECT_GT(Changed(hover, pushed, button.x, Top), 20) << button.window;
        EXPECT_GT(Changed(rest, pushed, button.x, Top), 20) << button.window;
    }
}

TEST_F(ChromeButtons, leave_button_shows_its_own_pictures_in_full_scene)
{
    const Button leave = {"TavFullTilteEscBtn", L"new_skin\\fullesc", 672};
    Frame().OnToolBarFullScene(true);
    Window("TavTitleBackground").show();
    EXPECT_TRUE(Window(leave.window).isVisible());
    EXPECT_FALSE(Window("TavTilteMaxboxButtom").isVisible());
    Host().MoveMouse(400, 20);
    Window(leave.window).hide();
    const Screenshot below = Host().Shoot();
    Window(leave.window).show();
    EXPECT_LE(Worst(Host().Shoot(), Picture(leave, L""), below, leave.x, Top), 2);
    Host().MoveMouse(leave.x + 12, Top + 12);
    EXPECT_LE(Worst(Host().Shoot(), Picture(leave, L"H"), below, leave.x, Top), 2);
}

TEST_F(ChromeButtons, logo_shows_at_its_rectangle)
{
    Window("TavTilteLogo").hide();
    const Screenshot below = Host().Shoot();
    Window("TavTilteLogo").show();
    const Screenshot shot = Host().Shoot();
    int changed = 0;
    for (int y = 0; y < 50; ++y)
    {
        for (int x = 0; x < ViewWidth; ++x)
        {
            const bool inside = x >= 15 && x < 45 && y >= 10 && y < 40;
            const bool differs = Distance(shot.At(x, y), below.At(x, y)) > 8;
            changed += differs && inside;
            ASSERT_FALSE(differs && !inside) << x << ", " << y;
        }
    }
    EXPECT_GT(changed, 50);
}

TEST_F(ChromeButtons, title_text_shows_in_its_colour_with_the_bar_around_its_letters)
{
    Frame().SetSceneTitle(L"HHHH");
    Frame().SetSceneTitleColor(RGB(255, 32, 16));
    Frame().SetSceneTitleFontHeight(30.0f);
    Rebuild();
    Host().MoveMouse(400, 300);
    const RECT rect = GuiHost::RectOf("TavTilteText");
    const Screenshot shot = Host().Shoot();
    Window("TavTilteText").hide();
    const Screenshot below = Host().Shoot();
    const PictureFile picture = ReadPictureFile(SkinDir() + L"TavTilteText.bmp");
    ASSERT_EQ(picture.width, rect.right - rect.left);
    ASSERT_EQ(picture.height, rect.bottom - rect.top);
    EXPECT_LE(Worst(shot, picture, below, rect.left, rect.top), 2);
    int opaque = 0;
    int clear = 0;
    for (int y = 0; y < picture.height; ++y)
    {
        for (int x = 0; x < picture.width; ++x)
        {
            const std::uint32_t argb = picture.Argb(x, y);
            opaque += argb >> 24 == 255;
            if (argb >> 24 == 0)
            {
                ++clear;
                ASSERT_EQ(shot.At(rect.left + x, rect.top + y), below.At(rect.left + x, rect.top + y)) << x << ", " << y;
            }
        }
    }
    EXPECT_GT(opaque, 20) << "the strokes of the letters";
    EXPECT_GT(clear, 20) << "the bar between them";
}

TEST_F(ChromeButtons, tooltips_are_the_translations)
{
    const struct
    {
        const char* window;
        const char* text;
    } rows[] = {
        {"TavTilteCloseButtom", "关闭"},
        {"TavTilteMinboxButtom", "最小化"},
        {"TavTilteMaxboxButtom", "进入全场景"},
        {"TavFullTilteEscBtn", "退出全场景"},
    };
    for (const auto& row : rows)
    {
        // As every text that CEGUI gets: in the system's code page, one code point a byte.
        EXPECT_EQ(Window(row.window).getTooltipText(), CEGUI::String(strUtf8ToAnsi(row.text))) << row.window;
    }
}
