// SPDX-License-Identifier: MIT
// A skin for CEGUI 0.6 with more than the interface itself needs: CEGUI takes all of it, and windows of its types work.
#include "OldSkinTest.h"

#include <CEGUI/Font.h>
#include <CEGUI/FontManager.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/Image.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/SchemeManager.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/Editbox.h>
#include <CEGUI/widgets/PushButton.h>
#include <CEGUI/widgets/ToggleButton.h>

namespace
{
class OldSkinConstructs : public OldSkinTest
{
protected:
    void SetUp() override
    {
        OldSkinTest::SetUp();
        for (const wchar_t* file : {L"Constructs.scheme", L"Constructs.imageset", L"Constructs.font", L"Constructs.looknfeel"})
        {
            Put(file, SkinFile(CString(L"old_constructs/") + file));
        }
        Put(L"NxTestText.ttf", ReadBytes(CString(NX_TEST_FONT)));
        // CEGUI begins with nothing of an earlier test's.
        Restart();
        MakeCurrent();
        CEGUI::SchemeManager::getSingleton().createFromFile("Constructs.scheme", "");
        log_ = TakeLog();
    }
    static CEGUI::Window& Make(const char* type)
    {
        CEGUI::Window* window = CEGUI::WindowManager::getSingleton().createWindow(type, "made");
        CEGUI::System::getSingleton().getDefaultGUIContext().getRootWindow()->addChild(window);
        window->setAlwaysOnTop(true);
        window->setPosition(CEGUI::UVector2(CEGUI::UDim(0, 200), CEGUI::UDim(0, 200)));
        window->setSize(CEGUI::USize(CEGUI::UDim(0, 100), CEGUI::UDim(0, 60)));
        return *window;
    }
    Lines log_;
};
} // namespace

TEST_F(OldSkinConstructs, have_a_line_for_each_that_is_left_out_and_no_other)
{
    EXPECT_EQ(
        log_,
        (Lines{"NxOsgCeGui: left out of a skin for CEGUI 0.6, WindowSet \"WidgetsOfOurOwn\": Constructs.scheme, line 7",
               ("NxOsgCeGui: left out of a skin for CEGUI 0.6, WindowRendererSet \"RenderersOfOurOwn\": "
                "Constructs.scheme, line 11"),
               ("NxOsgCeGui: left out of a skin for CEGUI 0.6, FalagardMapping \"Constructs/Gauge\" with Renderer "
                "\"OurOwn/Gauge\": Constructs.scheme, line 20"),
               "NxOsgCeGui: left out of a skin for CEGUI 0.6, Property \"UnifiedXPosition\": Constructs.looknfeel, line 106",
               "NxOsgCeGui: left out of a skin for CEGUI 0.6, PropertyDim \"UnifiedHeight\": Constructs.looknfeel, line 122"}));
}

TEST_F(OldSkinConstructs, images_of_the_imageset_are_there_and_scale_with_the_screen)
{
    CEGUI::ImageManager& images = CEGUI::ImageManager::getSingleton();
    ASSERT_TRUE(images.isDefined("Constructs/White"));
    ASSERT_TRUE(images.isDefined("Constructs/Cursor"));
    const CEGUI::Image& cursor = images.get("Constructs/Cursor");
    EXPECT_EQ(cursor.getRenderedSize(), CEGUI::Sizef(24 * ViewWidth / 400.0f, 28 * ViewHeight / 300.0f));
    EXPECT_EQ(cursor.getRenderedOffset(), CEGUI::Vector2f(-2 * ViewWidth / 400.0f, -2 * ViewHeight / 300.0f));
    ASSERT_TRUE(images.isDefined("Wallpaper")) << "the picture file that is an imageset";
}

TEST_F(OldSkinConstructs, font_is_there)
{
    ASSERT_TRUE(CEGUI::FontManager::getSingleton().isDefined("Constructs"));
    EXPECT_GT(CEGUI::FontManager::getSingleton().get("Constructs").getFontHeight(), 5);
}

TEST_F(OldSkinConstructs, window_types_are_made_of_the_new_ones)
{
    EXPECT_NE(dynamic_cast<CEGUI::ToggleButton*>(&Make("Constructs/Checkbox")), nullptr);
    CEGUI::WindowManager& windows = CEGUI::WindowManager::getSingleton();
    const struct
    {
        const char* type;
        const char* renderer;
    } types[] = {{"Constructs/Checkbox", "Core/ToggleButton"},
                 {"Constructs/Label", "Core/StaticText"},
                 {"Constructs/Close", "Core/Button"},
                 {"Constructs/Panel", "Core/Default"},
                 {"Constructs/Editbox", "Core/Editbox"}};
    for (const auto& type : types)
    {
        EXPECT_EQ(windows.createWindow(type.type)->getWindowRenderer()->getName(), type.renderer) << type.type;
    }
    EXPECT_EQ(windows.createWindow("Constructs/Sheet")->getType(), "DefaultWindow") << "by its alias";
}

TEST_F(OldSkinConstructs, properties_are_set_under_their_new_names)
{
    CEGUI::Window& panel = Make("Constructs/Panel");
    const std::vector<std::pair<const char*, const char*>> values = {
        {"MinSize", "{{0,20},{0,10}}"}, {"RiseOnClickEnabled", "false"},
        {"ZOrderingEnabled", "false"},  {"MouseCursorImage", "Constructs/Cursor"},
        {"Picture", "Wallpaper"},       {"CloseTooltip", "shut"}};
    for (const auto& [name, value] : values)
    {
        EXPECT_EQ(std::string(panel.getProperty(name).c_str()), value) << name;
    }
    EXPECT_EQ(panel.getChild("__auto_close__")->getTooltipText(), "shut") << "through the link";
    EXPECT_FALSE(panel.getChild("__auto_close__")->isRiseOnClickEnabled());
    CEGUI::Window& label = *CEGUI::WindowManager::getSingleton().createWindow("Constructs/Label");
    EXPECT_EQ(label.getProperty("HorzFormatting"), "WordWrapCentreAligned");
    EXPECT_EQ(label.getProperty("VertFormatting"), "CentreAligned");
}

TEST_F(OldSkinConstructs, areas_are_reckoned_as_before)
{
    CEGUI::Window& panel = Make("Constructs/Panel");
    panel.performChildWindowLayout();
    const CEGUI::URect& area = panel.getChild("__auto_close__")->getArea();
    // 100 - (20 - 5) from the left; 3 * 4 wide; the height came from a property that is gone.
    EXPECT_EQ(area, CEGUI::URect(CEGUI::UDim(0, 85), CEGUI::UDim(0, 4), CEGUI::UDim(0, 97), CEGUI::UDim(0, 4)));
}

TEST_F(OldSkinConstructs, font_outlasts_every_size)
{
    for (const int width : {700, ViewWidth})
    {
        Host().Resize(width, ViewHeight);
        CEGUI::Window& label = Make("Constructs/Label");
        label.setProperty("TextColours", "FFFF0000");
        label.setProperty("BackgroundEnabled", "false");
        label.setFont("Constructs");
        label.setText("MMMM");
        Host().Frames(2);
        const Screenshot shot = Host().Shoot();
        int red = 0;
        for (int y = 200; y < 260; ++y)
        {
            for (int x = 200; x < 300; ++x)
            {
                red += Distance(shot.At(x, y), {255, 0, 0}) < 10 ? 1 : 0;
            }
        }
        EXPECT_GT(red, 20) << width;
    }
}

TEST_F(OldSkinConstructs, are_drawn)
{
    CEGUI::Window& panel = Make("Constructs/Panel");
    Host().Frames(2);
    EXPECT_TRUE(Host().Shoot().At(250, 230) == (Pixel{0, 255, 0})) << "the frame's background in the section's colour";
    panel.destroy();
    CEGUI::Window& box = Make("Constructs/Checkbox");
    Host().Frames(2);
    EXPECT_TRUE(Host().Shoot().At(204, 204) == (Pixel{16, 32, 48})) << "the colour of the look's own property";
    box.destroy();
    Make("Constructs/Editbox").setText("caret");
    Host().Frames(2);
}
