// SPDX-License-Identifier: MIT
// The first tool, which switches the left list on and off.
#include "Names.h"

#include "support/FrameTest.h"
#include "widgets/Pictures.h"

#include <CEGUI/Window.h>

namespace
{
const char* const Tool = "TavToolButtom_1";
} // namespace

class ListToggleTest : public FrameTest
{
protected:
    static void ClickTool()
    {
        SlideIn(62, 555);
        Host().Click(63, 555);
    }

    static void ExpectDown()
    {
        EXPECT_EQ(ImageOf(Tool, "NormalImage"), "viewvideosetP.png/full_image");
        EXPECT_EQ(ImageOf(Tool, "HoverImage"), "viewvideosetP.png/full_image");
        EXPECT_EQ(ImageOf(Tool, "PushedImage"), "viewvideosetN.png/full_image");
    }

    static void ExpectUp()
    {
        EXPECT_EQ(ImageOf(Tool, "NormalImage"), "viewvideosetN.png/full_image");
        EXPECT_EQ(ImageOf(Tool, "HoverImage"), "viewvideosetN.png/full_image");
        EXPECT_EQ(ImageOf(Tool, "PushedImage"), "viewvideosetP.png/full_image");
    }
};

TEST_F(ListToggleTest, is_on_at_first)
{
    EXPECT_TRUE(Frame().IsShowLeftToolBar());
    ExpectDown();
}

TEST_F(ListToggleTest, a_click_switches_the_list_off)
{
    ClickTool();
    EXPECT_FALSE(Frame().IsShowLeftToolBar());
    EXPECT_FALSE(Bar(ListKey).autoHide);
    EXPECT_FALSE(Visible(List));
    EXPECT_TRUE(Visible(ToolBar)) << "the mouse is still on it";
    ExpectUp();
    SlideIn(50, 300);
    EXPECT_FALSE(Visible(List)) << "it no longer slides in";
    EXPECT_TRUE(Host().TakeCodes().empty());
}

TEST_F(ListToggleTest, a_second_click_switches_it_on_shows_it_and_hides_the_tool_bar)
{
    ClickTool();
    Host().Click(64, 555);
    EXPECT_TRUE(Frame().IsShowLeftToolBar());
    EXPECT_TRUE(Bar(ListKey).autoHide);
    EXPECT_TRUE(Visible(List)) << "at once, away from the mouse";
    EXPECT_FALSE(Visible(ToolBar));
    ExpectDown();
    Host().MoveMouse(400, 300);
    EXPECT_FALSE(Visible(List)) << "it hides by itself again";
    SlideIn(50, 300);
    EXPECT_TRUE(Visible(List));
    SlideIn(110, 555);
    EXPECT_TRUE(Visible(ToolBar)) << "the tool bar slides in again by itself";
}

TEST_F(ListToggleTest, a_shown_list_goes_at_once_when_it_is_switched_off)
{
    SlideIn(50, 300);
    ASSERT_TRUE(Visible(List));
    Frame().OnToolBarRCList(GuiHost::Find(Tool));
    EXPECT_FALSE(Visible(List));
    ExpectUp();
}

TEST_F(ListToggleTest, without_a_button_the_list_alone_changes)
{
    Frame().OnToolBarRCList(nullptr);
    EXPECT_FALSE(Frame().IsShowLeftToolBar());
    EXPECT_FALSE(Bar(ListKey).autoHide);
    ExpectDown();
    Frame().OnToolBarRCList(nullptr);
    EXPECT_TRUE(Frame().IsShowLeftToolBar());
    EXPECT_TRUE(Visible(List));
    ExpectDown();
}

TEST_F(ListToggleTest, twice_restores_flag_and_look)
{
    CEGUI::Window* tool = GuiHost::Find(Tool);
    for (int i = 0; i < 3; ++i)
    {
        Frame().OnToolBarRCList(tool);
        EXPECT_FALSE(Frame().IsShowLeftToolBar());
        ExpectUp();
        Frame().OnToolBarRCList(tool);
        EXPECT_TRUE(Frame().IsShowLeftToolBar());
        ExpectDown();
    }
}

TEST_F(ListToggleTest, without_the_bars_nothing_changes)
{
    Frame().DestoryAllToolBar();
    Frame().OnToolBarRCList(nullptr);
    EXPECT_TRUE(Frame().IsShowLeftToolBar());
    Host().Close();
    Frame().OnToolBarRCList(nullptr);
    EXPECT_TRUE(Frame().IsShowLeftToolBar());
}

TEST_F(ListToggleTest, survives_a_resize)
{
    ClickTool();
    Host().Resize(900, 650);
    EXPECT_FALSE(Frame().IsShowLeftToolBar());
    EXPECT_FALSE(Bar(ListKey).autoHide);
    EXPECT_FALSE(Visible(List));
    ExpectUp();
    SlideIn(50, 300);
    EXPECT_FALSE(Visible(List));
    Frame().OnToolBarRCList(GuiHost::Find(Tool));
    EXPECT_TRUE(Visible(List));
    ExpectDown();
}

TEST_F(ListToggleTest, a_hidden_list_and_an_open_panel_survive_size_events_with_and_without_full_scene)
{
    CeGuiMainFrame::PropertyRows rows = {{L"name", L"value"}};
    Frame().setPropertyData(rows);
    ClickTool();
    Frame().OpenPropertyDlg(GuiHost::Find("TavToolButtom_4"), true);
    for (const CSize& size : {CSize(900, 650), CSize(700, 500), CSize(ViewWidth, ViewHeight)})
    {
        SCOPED_TRACE(size.cx);
        Host().Resize(size.cx, size.cy);
        EXPECT_TRUE(Frame().IsOpenPropertyDlg());
        EXPECT_TRUE(Visible("TavPropertyImage"));
        EXPECT_EQ(GuiHost::RectOf("TavBackCtrlFrame").right, size.cx - 2);
        EXPECT_EQ(ImageOf("TavToolButtom_4", "NormalImage"), "new_skin/propertyP.png/full_image");
        EXPECT_FALSE(Frame().IsShowLeftToolBar());
        EXPECT_FALSE(Visible(List));
        ExpectUp();
        Frame().OnToolBarFullScene(!Frame().IsFullScene());
        Host().Resize(size.cx + 10, size.cy);
        EXPECT_TRUE(Visible("TavPropertyImage"));
        EXPECT_FALSE(Visible(List));
        SlideIn(10, 200);
        EXPECT_FALSE(Visible(List)) << "the mouse does not bring it back";
        Frame().OnToolBarFullScene(false);
    }
    Frame().OpenPropertyDlg(nullptr, false);
    Host().Resize(900, 650);
    EXPECT_FALSE(Visible("TavPropertyImage")) << "a closed one stays closed";
    EXPECT_NE(ImageOf("TavToolButtom_4", "NormalImage"), "new_skin/propertyP.png/full_image");
    Frame().setPropertyData(rows = {});
}

TEST_F(ListToggleTest, works_in_full_scene)
{
    Frame().OnToolBarFullScene(true);
    Frame().OnToolBarRCList(GuiHost::Find(Tool));
    SlideIn(10, 100);
    EXPECT_FALSE(Visible(List));
    Frame().OnToolBarRCList(GuiHost::Find(Tool));
    EXPECT_TRUE(Visible(List));
    EXPECT_EQ(Place(List), "0,0 - 152,600");
}

TEST_F(ListToggleTest, the_tools_look_is_seen)
{
    const FileReplaced normal(SkinDir() + L"viewvideosetN.png", Bmp32(Solid(62, 62, 0xFFFF0000)));
    const FileReplaced pushed(SkinDir() + L"viewvideosetP.png", Bmp32(Solid(62, 62, 0xFF00FF00)));
    Rebuild();
    SlideIn(110, 555);
    EXPECT_TRUE(LooksLike(Seen(40, 530), {0, 255, 0}));
    Frame().OnToolBarRCList(GuiHost::Find(Tool));
    EXPECT_TRUE(LooksLike(Seen(40, 530), {255, 0, 0}));
}
