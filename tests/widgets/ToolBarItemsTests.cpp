// SPDX-License-Identifier: MIT
// What bars do with their items: events, tooltips, pictures of texts, and change of a picture.
#include "Pictures.h"
#include "Sheet.h"

#include <widgets/FileImageset.h>

#include <CEGUI/Exceptions.h>
#include <CEGUI/Window.h>

namespace
{
class ToolBarItems : public SheetTest
{
protected:
    void SetUp() override
    {
        SheetTest::SetUp();
        WriteSkinPicture(L"red.bmp", 0xFFFF0000);
        WriteSkinPicture(L"blue.bmp", 0xFF0000FF);
        calls.clear();
    }

    static bool OnEnter(const CEGUI::EventArgs& args) { return Called("enter", args); }
    static bool OnLeave(const CEGUI::EventArgs& args) { return Called("leave", args); }
    static bool OnMove(const CEGUI::EventArgs& args) { return Called("move", args); }
    static bool OnDown(const CEGUI::EventArgs& args) { return Called("down", args); }
    static bool Called(const char* event, const CEGUI::EventArgs& args)
    {
        calls.push_back(event + std::string(" ") + static_cast<const CEGUI::WindowEventArgs&>(args).window->getName().c_str());
        return true;
    }

    inline static std::vector<std::string> calls;
};
} // namespace

TEST_F(ToolBarItems, new_buttons_get_the_bars_events)
{
    CeGuiToolBar& bar = NewBar({0, 0, 200, 60}, BAR_TOOLS);
    bar.AddImageButton(L"before", L"", L"", L"", L"");
    bar.itemEvents[CEGUI::Window::EventMouseMove] = OnMove;
    bar.itemEvents[CEGUI::Window::EventMouseButtonDown] = OnDown;
    bar.itemEvents[CEGUI::Window::EventMouseEntersArea] = OnEnter;
    bar.itemEvents[CEGUI::Window::EventMouseLeavesArea] = OnLeave;
    bar.AddImageButton(L"after", L"", L"", L"", L"");
    bar.AddStaticImage({130, 0, 200, 60}, L"picture", L"");
    Host().MoveMouse(10, 30);
    Host().MoveMouse(100, 30);
    Host().Press(100, 30);
    Host().Release(100, 30);
    Host().MoveMouse(150, 30);
    EXPECT_EQ(calls, (Lines{"enter after", "move after", "down after", "leave after"}))
        << "not the button that was there before, and no picture";
}

TEST_F(ToolBarItems, events_of_bar_and_item_are_subscribed_one_by_one)
{
    CeGuiToolBar& bar = NewBar({0, 0, 200, 60}, BAR_TOOLS);
    bar.AddImageButton(L"a", L"", L"", L"", L"");
    bar.SubscribeBarEvent(CEGUI::Window::EventMouseMove, CEGUI::SubscriberSlot(&OnMove));
    bar.SubscribeItemEvent(0, CEGUI::Window::EventMouseMove, CEGUI::SubscriberSlot(&OnMove));
    for (const int index : {-1, 1, 99})
    {
        bar.SubscribeItemEvent(index, CEGUI::Window::EventMouseMove, CEGUI::SubscriberSlot(&OnMove));
    }
    Host().MoveMouse(10, 30);
    Host().MoveMouse(100, 30);
    EXPECT_EQ(calls, (Lines{"move a", "move bar"}));
    bar.DestroyToolBar();
    bar.SubscribeBarEvent(CEGUI::Window::EventMouseMove, CEGUI::SubscriberSlot(&OnMove));
    bar.SubscribeItemEvent(0, CEGUI::Window::EventMouseMove, CEGUI::SubscriberSlot(&OnMove));
    Host().MoveMouse(10, 30);
    EXPECT_EQ(calls.size(), 2u);
}

TEST_F(ToolBarItems, tooltip_holds_the_bytes_of_the_ansi_code_page)
{
    CeGuiToolBar& bar = NewBar({0, 0, 200, 60}, BAR_TOOLS);
    bar.AddImageButton(L"a", L"", L"", L"", L"关闭 X");
    bar.AddImageButton(L"b", L"", L"", L"", L"");
    const CEGUI::String& tooltip = bar.items[0].window->getTooltipText();
    const CEGUI::utf32 bytes[] = {0xB9, 0xD8, 0xB1, 0xD5, ' ', 'X'};
    ASSERT_EQ(tooltip.length(), 6u) << "one code point a byte; the tests run in code page 936";
    for (std::size_t i = 0; i < 6; ++i)
    {
        EXPECT_EQ(tooltip[i], bytes[i]) << i;
    }
    EXPECT_TRUE(bar.items[1].window->getTooltipText().empty());
}

TEST_F(ToolBarItems, text_becomes_a_picture_item)
{
    CeGuiToolBar& bar = NewBar({50, 50, 350, 150}, BAR_PANEL);
    EXPECT_EQ(bar.AddTextImage({10, 20, 210, 60}, L"words", L"██", 30, L"DejaVu Sans", 0x000000FF), 0);
    EXPECT_EQ(ImageOf(*bar.items[0].window), "words.bmp/full_image");
    EXPECT_EQ(Place(*bar.items[0].window), Text({60, 70, 260, 110}));
    const PictureFile file = ReadPictureFile(SkinDir() + L"words.bmp");
    EXPECT_EQ(file.width, 200);
    EXPECT_EQ(file.height, 40);
    EXPECT_EQ(Seen(80, 90), (Pixel{255, 0, 0}));
    EXPECT_EQ(Seen(250, 90), Background());
}

TEST_F(ToolBarItems, text_that_cannot_be_written_gives_no_item)
{
    CeGuiToolBar& bar = NewBar({50, 50, 350, 150}, BAR_PANEL);
    EXPECT_EQ(bar.AddTextImage({10, 20, 210, 60}, L"words", L"text", 30, L"", 0), -1);
    EXPECT_EQ(bar.AddTextImage({10, 20, 210, 60}, L"no\\such\\folder\\words", L"text", 30, L"DejaVu Sans", 0), -1);
    EXPECT_EQ(TakeLog().size(), 2u);
    EXPECT_TRUE(bar.items.empty());
    EXPECT_EQ(bar.window->getChildCount(), 0u);
}

TEST_F(ToolBarItems, pictures_are_stretched_over_bar_and_item)
{
    CeGuiToolBar& bar = NewBar({50, 50, 350, 150}, BAR_PANEL, L"red.bmp");
    bar.AddStaticImage({100, 0, 200, 100}, L"blue", L"blue.bmp");
    EXPECT_EQ(ImageOf(*bar.window), "red.bmp/full_image");
    EXPECT_EQ(ImageOf(*bar.items[0].window), "blue.bmp/full_image");
    const Screenshot shot = Host().Shoot();
    EXPECT_EQ(shot.At(49, 100), Background());
    for (const int x : {50, 149, 250, 349})
    {
        EXPECT_EQ(shot.At(x, 100), (Pixel{255, 0, 0})) << x;
    }
    EXPECT_EQ(shot.At(150, 51), (Pixel{0, 0, 255}));
    EXPECT_EQ(shot.At(249, 148), (Pixel{0, 0, 255}));
    EXPECT_EQ(shot.At(350, 100), Background());
}

TEST_F(ToolBarItems, bar_without_a_picture_has_no_image_and_shows_nothing)
{
    CeGuiToolBar& bar = NewBar({50, 50, 350, 150}, BAR_PANEL);
    bar.AddStaticImage({100, 0, 200, 100}, L"empty", L"");
    EXPECT_EQ(ImageOf(*bar.window), "");
    EXPECT_EQ(ImageOf(*bar.items[0].window), "");
    EXPECT_EQ(Seen(200, 100), Background());
}

TEST_F(ToolBarItems, bar_whose_picture_is_missing_is_not_made)
{
    EXPECT_THROW(NewBar({0, 0, 9, 9}, BAR_TITLE, L"new_skin/nowhere.png", L"orphan"), CEGUI::Exception);
    EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: picture not loaded: new_skin/nowhere.png"});
    EXPECT_EQ(GuiHost::Find("orphan"), nullptr);
    Host().Frames(2);
}

TEST_F(ToolBarItems, changed_item_shows_the_rewritten_picture_at_its_new_place)
{
    CeGuiToolBar& bar = NewBar({50, 50, 250, 150}, BAR_PANEL);
    bar.marginY = 10;
    WriteSkinPicture(L"changing.bmp", 0xFFFF0000);
    bar.AddStaticImage({0, 0, 100, 50}, L"picture", L"changing.bmp");
    EXPECT_EQ(Seen(60, 60), (Pixel{255, 0, 0}));
    WriteSkinPicture(L"changing.bmp", 0xFF00FF00, 7, 3);
    EXPECT_TRUE(bar.ChangeItemImage(0, L"changing.bmp", {50, 25, 100, 75}));
    const ToolBarItem& item = bar.items[0];
    EXPECT_FLOAT_EQ(item.xScale, 0.25f);
    EXPECT_FLOAT_EQ(item.yScale, 0.25f);
    EXPECT_FLOAT_EQ(item.widthScale, 0.25f);
    EXPECT_FLOAT_EQ(item.heightScale, 0.5f);
    EXPECT_EQ(item.window->getMaxSize(), CEGUI::USize(CEGUI::UDim(0.25f, 0), CEGUI::UDim(1.0f, 0)));
    EXPECT_EQ(Place(*item.window), Text({100, 75, 150, 125}));
    EXPECT_FLOAT_EQ(bar.contentExtent, 0.85f);
    EXPECT_EQ(Seen(60, 60), Background());
    EXPECT_EQ(Seen(101, 76), (Pixel{0, 255, 0}));
    EXPECT_EQ(Seen(148, 123), (Pixel{0, 255, 0}));
}

TEST_F(ToolBarItems, item_changes_to_a_picture_that_was_not_there)
{
    CeGuiToolBar& bar = NewBar({50, 50, 250, 150}, BAR_PANEL);
    bar.AddStaticImage({0, 0, 100, 50}, L"picture", L"red.bmp");
    bar.ChangeItemImage(0, L"blue.bmp", {0, 0, 100, 50});
    EXPECT_EQ(ImageOf(*bar.items[0].window), "blue.bmp/full_image");
    EXPECT_EQ(Seen(60, 60), (Pixel{0, 0, 255}));
}

TEST_F(ToolBarItems, change_without_item_or_picture_does_nothing)
{
    CeGuiToolBar& bar = NewBar({50, 50, 250, 150}, BAR_PANEL);
    bar.AddStaticImage({0, 0, 100, 50}, L"picture", L"red.bmp");
    for (const int index : {-1, 1, 100})
    {
        EXPECT_TRUE(bar.ChangeItemImage(index, L"blue.bmp", {10, 10, 20, 20}));
    }
    EXPECT_TRUE(bar.ChangeItemImage(0, L"", {10, 10, 20, 20}));
    EXPECT_FALSE(FileImagesets::IsPresent(L"blue.bmp"));
    EXPECT_EQ(Place(*bar.items[0].window), Text({50, 50, 150, 100}));
    EXPECT_EQ(ImageOf(*bar.items[0].window), "red.bmp/full_image");
}

TEST_F(ToolBarItems, change_to_a_missing_picture_is_dropped_and_leaves_the_item_blank)
{
    CeGuiToolBar& bar = NewBar({50, 50, 250, 150}, BAR_PANEL);
    WriteSkinPicture(L"gone.bmp", 0xFFFF0000);
    bar.AddStaticImage({0, 0, 100, 50}, L"picture", L"gone.bmp");
    DeleteFileW(SkinDir() + L"gone.bmp");
    EXPECT_TRUE(bar.ChangeItemImage(0, L"gone.bmp", {10, 10, 20, 20}));
    EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: picture not loaded: gone.bmp"});
    EXPECT_EQ(ImageOf(*bar.items[0].window), "gone.bmp/full_image") << "the property is left as it was";
    EXPECT_FLOAT_EQ(bar.items[0].widthScale, 0.5f);
    EXPECT_EQ(Place(*bar.items[0].window), Text({50, 50, 150, 100}));
    EXPECT_EQ(Seen(60, 60), Background());
    WriteSkinPicture(L"gone.bmp", 0xFF00FF00);
    bar.ChangeItemImage(0, L"gone.bmp", {0, 0, 100, 50});
    EXPECT_EQ(Seen(60, 60), (Pixel{0, 255, 0}));
}
