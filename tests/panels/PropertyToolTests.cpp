// SPDX-License-Identifier: MIT
// The tool of the bottom bar that opens and closes the panel.
#include "PanelTest.h"

class PropertyToolTest : public PanelTest
{
protected:
    static constexpr const char* Tool = "TavToolButtom_4";

    static void ExpectPictures(const std::string& normal, const std::string& pushed)
    {
        EXPECT_EQ(ImageOf(Tool, "NormalImage"), normal);
        EXPECT_EQ(ImageOf(Tool, "HoverImage"), normal);
        EXPECT_EQ(ImageOf(Tool, "PushedImage"), pushed);
    }
};

namespace
{
const std::string Up = "new_skin/propertyN.png/full_image";
const std::string Down = "new_skin/propertyP.png/full_image";
} // namespace

TEST_F(PropertyToolTest, its_pictures_swap_while_the_panel_is_open)
{
    Frame().OpenPropertyDlg(GuiHost::Find(Tool), true);
    ExpectPictures(Down, Up);
    Frame().OpenPropertyDlg(GuiHost::Find(Tool), false);
    ExpectPictures(Up, Down);
    Frame().OpenPropertyDlg(GuiHost::Find(Tool), true);
    ExpectPictures(Down, Up);
}

TEST_F(PropertyToolTest, without_the_button_its_pictures_stay)
{
    const std::string before = ImageOf(Tool, "NormalImage");
    Frame().OpenPropertyDlg(nullptr, true);
    EXPECT_EQ(ImageOf(Tool, "NormalImage"), before);
}

TEST_F(PropertyToolTest, a_click_opens_and_the_next_closes)
{
    SetRows(NumberedRows(3));
    SlideIn(110, 550);
    const CPoint tool = GuiHost::CentreOf(Tool);
    Host().Click(tool.x, tool.y);
    EXPECT_TRUE(Frame().IsOpenPropertyDlg());
    EXPECT_TRUE(Visible(ListPicture));
    ExpectPictures(Down, Up);
    Host().Click(tool.x, tool.y);
    EXPECT_FALSE(Frame().IsOpenPropertyDlg());
    EXPECT_FALSE(Visible(ListPicture));
    ExpectPictures(Up, Down);
    EXPECT_EQ(Host().TakeCodes(), (std::vector<WPARAM>{11, 11}));
}

TEST_F(PropertyToolTest, it_shows_the_open_panel_after_a_resize)
{
    Frame().OpenPropertyDlg(GuiHost::Find(Tool), true);
    Rebuild();
    ExpectPictures(Down, Up);
    Frame().OpenPropertyDlg(GuiHost::Find(Tool), false);
    ExpectPictures(Up, Down);
}

TEST_F(PropertyToolTest, a_missing_picture_opens_the_panel_all_the_same)
{
    // The picture is loaded once, so the interface starts without it.
    const FileTaken taken(SkinDir() + L"new_skin\\propertyN.png");
    Frame().OpenPropertyDlg(GuiHost::Find(Tool), true);
    EXPECT_TRUE(Visible(ListPicture));
    EXPECT_FALSE(TakeLog().empty());
}
