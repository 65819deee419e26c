// SPDX-License-Identifier: MIT
// Tooltips of the tools and of the window's buttons, by real mouse moves, in both languages.
#include "PanelTest.h"

#include <KernelCommonUse/MultiLanguage.h>

class ToolTooltipTest : public PanelTest
{
protected:
    /// The mouse goes to the middle of an item of a bar that has slid in.
    static void Hover(const char* item)
    {
        const CPoint centre = GuiHost::CentreOf(item);
        MoveTo(centre.x, centre.y);
    }
    static int WidthOf(const char* key, bool twoBytes)
    {
        return CMultiLanguageMgr::GetInstance()->translation(key, "", "Common").GetLength() * (twoBytes ? 12 : 6) + 12;
    }

    static void ExpectTools(bool twoBytes)
    {
        SlideIn(110, 550);
        for (int tool = 1; tool <= 6; ++tool)
        {
            SCOPED_TRACE(tool);
            const std::string item = "TavToolButtom_" + std::to_string(tool);
            Hover(item.c_str());
            ASSERT_EQ(CountOf(Tooltip), 1);
            const RECT rect = GuiHost::RectOf(Tooltip);
            const int width = WidthOf(("LKEY" + std::to_string(4 + tool)).c_str(), twoBytes);
            EXPECT_EQ(rect.right - rect.left, width);
            EXPECT_EQ(rect.left, std::max(4L, GuiHost::CentreOf(item.c_str()).x - width / 2L));
            EXPECT_EQ(rect.bottom, GuiHost::RectOf(item.c_str()).top - 8) << "above an item of the lower half";
        }
    }

    static void ExpectWindowButtons(bool twoBytes)
    {
        const std::pair<const char*, const char*> buttons[] = {
            {"TavTilteCloseButtom", "LKEY1"}, {"TavTilteMinboxButtom", "LKEY2"}, {"TavTilteMaxboxButtom", "LKEY3"}};
        for (const auto& [item, key] : buttons)
        {
            SCOPED_TRACE(item);
            Hover(item);
            ASSERT_EQ(CountOf(Tooltip), 1);
            const RECT rect = GuiHost::RectOf(Tooltip);
            const int width = WidthOf(key, twoBytes);
            EXPECT_EQ(rect.right - rect.left, width);
            EXPECT_EQ(rect.right, std::min(796L, GuiHost::CentreOf(item).x - width / 2L + width));
            EXPECT_EQ(rect.top, GuiHost::RectOf(item).bottom + 8) << "below an item of the upper half";
        }
    }
};

TEST_F(ToolTooltipTest, every_tool_and_window_button_in_chinese)
{
    ExpectTools(true);
    ExpectWindowButtons(true);
}

TEST_F(ToolTooltipTest, every_tool_and_window_button_in_english)
{
    const LanguageSpoken language("en");
    Rebuild();
    ExpectTools(false);
    ExpectWindowButtons(false);
}

TEST_F(ToolTooltipTest, the_button_that_leaves_full_scene)
{
    Frame().OnToolBarFullScene(true);
    SlideIn(400, 1);
    Hover("TavFullTilteEscBtn");
    ASSERT_EQ(CountOf(Tooltip), 1);
    const RECT rect = GuiHost::RectOf(Tooltip);
    EXPECT_EQ(rect.right - rect.left, WidthOf("LKEY4", true));
}

TEST_F(ToolTooltipTest, the_host_is_to_show_the_systems_mouse_from_its_showing_on)
{
    SlideIn(110, 550);
    for (const char* item : {"TavToolButtom_2", "TavTilteCloseButtom"})
    {
        bool told = false;
        // After the item's own slot, and before the move itself is an event.
        CEGUI::Event::ScopedConnection entering = GuiHost::Find(item)->subscribeEvent(CEGUI::Window::EventMouseEntersSurface,
                                                                                      [&](const CEGUI::EventArgs&)
                                                                                      {
                                                                                          told = Frame().IsDisplySystemMouse();
                                                                                          return true;
                                                                                      });
        Frame().SetDisplySystemMouse(false);
        Hover(item);
        EXPECT_TRUE(told) << item;
    }
}

TEST_F(ToolTooltipTest, gone_when_the_mouse_leaves)
{
    SlideIn(110, 550);
    Hover("TavToolButtom_2");
    EXPECT_EQ(CountOf(Tooltip), 1);
    MoveTo(200, 555);
    EXPECT_EQ(CountOf(Tooltip), 0) << "between two tools";
    Hover("TavToolButtom_3");
    EXPECT_EQ(CountOf(Tooltip), 1);
    MoveTo(400, 300);
    EXPECT_EQ(CountOf(Tooltip), 0) << "on the scene";
}

TEST_F(ToolTooltipTest, gone_with_a_press)
{
    SlideIn(110, 550);
    Hover("TavToolButtom_2");
    ASSERT_EQ(CountOf(Tooltip), 1);
    const CPoint tool = GuiHost::CentreOf("TavToolButtom_2");
    Host().Press(tool.x, tool.y);
    EXPECT_EQ(CountOf(Tooltip), 0);
    Host().Release(tool.x, tool.y);
    EXPECT_EQ(CountOf(Tooltip), 0);
}

TEST_F(ToolTooltipTest, from_tool_to_tool_it_is_the_new_ones)
{
    SlideIn(110, 550);
    Hover("TavToolButtom_2");
    const std::string second = Place(Tooltip);
    Hover("TavToolButtom_3");
    EXPECT_NE(Place(Tooltip), second);
    EXPECT_EQ(CountOf(Tooltip), 1);
}
