// SPDX-License-Identifier: MIT
// The frame with a skin for CEGUI 0.6 looks as it does with the same skin in the new formats.
#include "OldSkinTest.h"

#include <CEGUI/Window.h>

#include <functional>

namespace
{
class OldSkinFrame : public OldSkinTest
{
protected:
    /// What is seen of the frame, first with the application's skin and then with the old one.
    void ExpectSame(const char* what, const std::function<void()>& act)
    {
        Screenshot shots[2];
        for (Screenshot& shot : shots)
        {
            if (&shot != &shots[0])
            {
                PutOldSkin();
            }
            Restart();
            Host().MoveMouse(ViewWidth / 2, ViewHeight / 2);
            act();
            Host().Frames(2);
            shot = Host().Shoot();
        }
        ASSERT_EQ(shots[0].pixels.size(), static_cast<std::size_t>(ViewWidth * ViewHeight));
        int different = 0;
        for (std::size_t i = 0; i < shots[0].pixels.size(); ++i)
        {
            different += shots[0].pixels[i] == shots[1].pixels[i] ? 0 : 1;
        }
        EXPECT_EQ(different, 0) << what;
        EXPECT_FALSE(shots[1].At(400, 20) == Background()) << "the title bar is seen";
    }
};
} // namespace

TEST_F(OldSkinFrame, looks_the_same_at_rest)
{
    ExpectSame("at rest", [] {});
}

TEST_F(OldSkinFrame, looks_the_same_with_the_mouse_over_a_button)
{
    ExpectSame("over a button",
               []
               {
                   const CPoint close = GuiHost::CentreOf("TavTilteCloseButtom");
                   Host().MoveMouse(close.x, close.y);
               });
}

TEST_F(OldSkinFrame, looks_the_same_with_a_button_held_down)
{
    ExpectSame("held down",
               []
               {
                   const CPoint minimise = GuiHost::CentreOf("TavTilteMinboxButtom");
                   Host().MoveMouse(minimise.x, minimise.y);
                   Host().Press(minimise.x, minimise.y);
               });
    const CPoint minimise = GuiHost::CentreOf("TavTilteMinboxButtom");
    Host().MoveMouse(minimise.x, minimise.y + 200);
    Host().Release(minimise.x, minimise.y + 200);
}

TEST_F(OldSkinFrame, looks_the_same_with_a_button_disabled)
{
    ExpectSame("disabled", [] { Window("TavTilteCloseButtom").setEnabled(false); });
}

TEST_F(OldSkinFrame, looks_the_same_with_tool_bar_and_list_shown)
{
    ExpectSame("bars",
               []
               {
                   BTN_UNIT record;
                   record.name = L"record";
                   record.target = L"caption";
                   Frame().SetCtrlBtnInfo({record});
                   Rebuild();
                   for (const char* bar : {"TavBotCtrlFrame", "TavLeftCtrlFrame"})
                   {
                       Window(bar).show();
                       EXPECT_TRUE(Window(bar).isEffectiveVisible()) << bar;
                   }
               });
}

TEST_F(OldSkinFrame, pictures_that_its_looks_name_outlast_every_size)
{
    PutOldSkin();
    // With its frame, each picture of the interface lies over the dark block that the look names.
    const std::vector<std::uint8_t> bytes = SkinFile(L"old_format/TavLook.looknfeel");
    std::string look(bytes.begin(), bytes.end());
    const std::string frame = "<Property name=\"FrameEnabled\" value=\"";
    look.replace(look.find(frame) + frame.size(), 5, "True");
    Put(L"TavLook.looknfeel", look);
    Restart();
    const int widths[] = {ViewWidth, 700, 640, 900, ViewWidth};
    for (const int width : widths)
    {
        Host().Resize(width, 500);
        for (CEGUI::Window* button : {&Window("TavTilteCloseButtom"), &Window("TavTilteMinboxButtom")})
        {
            button->hide();
        }
        Window("TavTitleBackground").setProperty("Image", "");
        Host().Frames(2);
        EXPECT_TRUE(Host().Shoot().At(width / 2, 6) == (Pixel{32, 32, 32})) << width;
    }
    Host().Resize(ViewWidth, ViewHeight);
}

TEST_F(OldSkinFrame, is_rebuilt_with_every_size)
{
    PutOldSkin();
    Restart();
    Host().Resize(700, 500);
    EXPECT_EQ(Place("TavTitleBackground"), "0,0 - 700,50");
    EXPECT_FALSE(Host().Shoot().At(350, 20) == Background());
    Host().Resize(ViewWidth, ViewHeight);
    EXPECT_EQ(TakeLog(), Lines{});
}
