// SPDX-License-Identifier: MIT
// The end of bars, and of windows under them.
#include "Pictures.h"
#include "Sheet.h"

#include <widgets/FileImageset.h>
#include <widgets/WindowNames.h>

#include <CEGUI/Exceptions.h>
#include <CEGUI/Window.h>

namespace
{
class ToolBarEnd : public SheetTest
{
protected:
    void SetUp() override
    {
        SheetTest::SetUp();
        WriteSkinPicture(L"red.bmp", 0xFFFF0000);
        WriteSkinPicture(L"blue.bmp", 0xFF0000FF);
    }

    static bool OnMove(const CEGUI::EventArgs&) { return true; }
};
} // namespace

TEST_F(ToolBarEnd, destroyed_bar_has_nothing_left_and_may_be_destroyed_again)
{
    CeGuiToolBar& bar = NewBar({50, 50, 250, 150}, BAR_LIST);
    bar.itemEvents[CEGUI::Window::EventMouseMove] = OnMove;
    bar.AddImageButton(L"a", L"", L"", L"", L"");
    bar.AddImageButton(L"b", L"", L"", L"", L"");
    ASSERT_TRUE(bar.CreateScrollThumb(4, L"thumb", L"", L"", L""));
    bar.dragging = true;
    for (int i = 0; i < 2; ++i)
    {
        bar.DestroyToolBar();
        EXPECT_EQ(bar.window, nullptr);
        EXPECT_EQ(bar.thumb, nullptr);
        EXPECT_TRUE(bar.items.empty());
        EXPECT_TRUE(bar.itemEvents.empty());
        EXPECT_FALSE(bar.dragging);
        for (const char* name : {"bar", "a", "b", "thumb"})
        {
            EXPECT_EQ(GuiHost::Find(name), nullptr) << name;
        }
        EXPECT_EQ(Root().getChildCount(), 0u);
        Host().Frames(1);
    }
}

TEST_F(ToolBarEnd, destroyed_bar_leaves_its_pictures_registered_kept_on_purpose)
{
    CeGuiToolBar& bar = NewBar({50, 50, 250, 150}, BAR_PANEL, L"red.bmp");
    bar.AddStaticImage({0, 0, 100, 50}, L"picture", L"blue.bmp");
    bar.DestroyToolBar();
    EXPECT_TRUE(FileImagesets::IsPresent(L"red.bmp"));
    EXPECT_TRUE(FileImagesets::IsPresent(L"blue.bmp"));
    EXPECT_THROW(NewBar({0, 0, 9, 9}, BAR_PANEL, L"red.bmp", L"again"), CEGUI::AlreadyExistsException);
}

TEST_F(ToolBarEnd, bar_without_a_window_takes_no_items)
{
    CeGuiToolBar& bar = NewBar({50, 50, 250, 150}, BAR_LIST);
    bar.DestroyToolBar();
    EXPECT_EQ(bar.AddImageButton(L"a", L"red.bmp", L"", L"", L""), -1);
    EXPECT_EQ(bar.AddStaticImage({0, 0, 9, 9}, L"b", L"red.bmp"), -1);
    bar.contentExtent = 2;
    EXPECT_FALSE(bar.CreateScrollThumb(0, L"thumb", L"", L"", L""));
    EXPECT_FALSE(FileImagesets::IsPresent(L"red.bmp"));
}

TEST_F(ToolBarEnd, bar_forgets_windows_that_are_destroyed_elsewhere)
{
    CeGuiToolBar& bar = NewBar({50, 50, 250, 150}, BAR_LIST);
    bar.AddImageButton(L"a", L"", L"", L"", L"");
    bar.AddImageButton(L"b", L"", L"", L"", L"");
    ASSERT_TRUE(bar.CreateScrollThumb(4, L"thumb", L"", L"", L""));
    WindowNames::Destroy(*bar.items[0].window);
    EXPECT_EQ(bar.items[0].window, nullptr);
    EXPECT_EQ(bar.items.size(), 2u) << "an index stays valid";
    bar.SubscribeItemEvent(0, CEGUI::Window::EventMouseMove, CEGUI::SubscriberSlot(&OnMove));
    EXPECT_TRUE(bar.ChangeItemImage(0, L"red.bmp", {0, 0, 9, 9}));
    EXPECT_TRUE(bar.SetItemImages(0, L"red.bmp", L"", L"red.bmp", false));
    bar.dragging = true;
    WindowNames::Destroy(*bar.thumb);
    EXPECT_EQ(bar.thumb, nullptr);
    EXPECT_FALSE(bar.dragging);
    WindowNames::Destroy(*bar.window);
    EXPECT_EQ(bar.window, nullptr);
    EXPECT_EQ(bar.items[1].window, nullptr) << "children go with their parent";
    bar.AutoHideByMouse(CPoint(0, 0));
    bar.DestroyToolBar();
    Host().Frames(2);
}

TEST_F(ToolBarEnd, bar_forgets_everything_when_all_windows_are_cleared)
{
    CeGuiToolBar& bar = NewBar({50, 50, 250, 150}, BAR_LIST);
    bar.AddImageButton(L"a", L"", L"", L"", L"");
    bar.AddImageButton(L"b", L"", L"", L"", L"");
    bar.CreateScrollThumb(4, L"thumb", L"", L"", L"");
    Host().Frame().ClearAllWindows();
    EXPECT_EQ(bar.window, nullptr);
    EXPECT_EQ(bar.thumb, nullptr);
    EXPECT_TRUE(bar.items.empty());
    bar.DestroyToolBar();
    Host().Frames(2);
}
