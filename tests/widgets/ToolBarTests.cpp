// SPDX-License-Identifier: MIT
// A bar itself: its fields, its window and where that stands.
#include "Sheet.h"

#include <CEGUI/Window.h>

namespace
{
class ToolBar : public SheetTest
{
};

CEGUI::Window& AddButton(CeGuiToolBar& bar, const wchar_t* name)
{
    return *bar.items[static_cast<std::size_t>(bar.AddImageButton(name, L"", L"", L"", L""))].window;
}
} // namespace

TEST_F(ToolBar, fields_start_with_their_defaults)
{
    const RECT rect = {10, 20, 210, 70};
    const CeGuiToolBar& bar = NewLooseBar(rect, BAR_TOOLS, L"", L"some bar");
    EXPECT_NE(bar.window, nullptr);
    EXPECT_TRUE(bar.items.empty());
    EXPECT_EQ(Text(bar.rect), Text(rect));
    EXPECT_EQ(Text(bar.triggerRect), Text(rect));
    EXPECT_EQ(bar.barType, BAR_TOOLS);
    EXPECT_TRUE(bar.itemEvents.empty());
    EXPECT_EQ(bar.buttonWidth, 62u);
    EXPECT_EQ(bar.buttonHeight, 62u);
    EXPECT_EQ(bar.marginX, 0u);
    EXPECT_EQ(bar.marginY, 0u);
    EXPECT_EQ(bar.spacing, 0u);
    EXPECT_FALSE(bar.autoHide);
    EXPECT_FALSE(bar.showArmed);
    EXPECT_EQ(bar.thumb, nullptr);
    EXPECT_FALSE(bar.dragging);
    EXPECT_EQ(bar.contentExtent, 1.0f);
    EXPECT_FALSE(bar.slideOnHide);
    EXPECT_FALSE(bar.animating);
    EXPECT_EQ(bar.screenWidth, 400u);
    EXPECT_EQ(bar.screenHeight, 300u);
    EXPECT_EQ(bar.animClock, 0.0);
    EXPECT_EQ(Utf8(bar.name), "some bar");
    EXPECT_TRUE(bar.keyframes.empty());
}

TEST_F(ToolBar, windows_are_of_the_skins_types)
{
    CeGuiToolBar& bar = NewLooseBar({0, 0, 100, 100}, BAR_LIST);
    EXPECT_EQ(bar.window->getType(), "TavLook/StaticImage");
    EXPECT_EQ(AddButton(bar, L"button").getType(), "TavLook/ImageButton");
    bar.AddStaticImage({0, 0, 5, 5}, L"picture", L"");
    EXPECT_EQ(bar.items[1].window->getType(), "TavLook/StaticImage");
    EXPECT_EQ(bar.window->getName(), "bar");
    EXPECT_EQ(bar.items[0].window->getName(), "button");
    EXPECT_EQ(bar.items[1].window->getParent(), bar.window);
}

TEST_F(ToolBar, bar_stands_at_its_rectangle)
{
    const RECT rects[] = {{0, 0, 400, 50}, {0, 210, 400, 300}, {2, 50, 152, 250}, {-40, -10, 40, 30}, {398, 50, 400, 300}};
    for (const RECT& rect : rects)
    {
        CeGuiToolBar& bar = NewBar(rect, BAR_TITLE, L"", L"placed");
        EXPECT_EQ(Place(*bar.window), Text(rect));
    }
}

TEST_F(ToolBar, sizes_and_positions_are_relative_only)
{
    CeGuiToolBar& bar = NewLooseBar({100, 30, 300, 180}, BAR_LIST);
    EXPECT_EQ(bar.window->getPosition(), CEGUI::UVector2(CEGUI::UDim(0.25f, 0), CEGUI::UDim(0.1f, 0)));
    EXPECT_EQ(bar.window->getSize(), CEGUI::USize(CEGUI::UDim(0.5f, 0), CEGUI::UDim(0.5f, 0)));
    const CEGUI::Window& button = AddButton(bar, L"button");
    EXPECT_EQ(button.getPosition(), CEGUI::UVector2(CEGUI::UDim(0, 0), CEGUI::UDim(0, 0)));
    EXPECT_EQ(button.getSize(), CEGUI::USize(CEGUI::UDim(62 / 200.0f, 0), CEGUI::UDim(62 / 150.0f, 0)));
}

TEST_F(ToolBar, moved_bar_takes_rectangle_and_trigger_but_not_the_screen_size)
{
    CeGuiToolBar& bar = NewBar({0, 0, 100, 50}, BAR_TITLE);
    bar.triggerRect = {0, 0, 400, 10};
    const RECT place = {20, 30, 120, 90};
    bar.MoveBar(place, 400, 300);
    EXPECT_EQ(Text(bar.rect), Text(place));
    EXPECT_EQ(Text(bar.triggerRect), Text(place));
    EXPECT_EQ(Place(*bar.window), Text(place));
    bar.MoveBar({20, 30, 120, 90}, 800, 600);
    EXPECT_EQ(Place(*bar.window), Text({10, 15, 60, 45}));
    EXPECT_EQ(bar.screenWidth, 400u);
    EXPECT_EQ(bar.screenHeight, 300u);
}

TEST_F(ToolBar, bar_moved_for_another_screen_size_is_shown_again_where_it_was)
{
    CeGuiToolBar& bar = NewBar({0, 0, 100, 50}, BAR_TITLE);
    bar.MoveBar({20, 30, 120, 90}, 800, 600);
    bar.HideBar();
    bar.ShowBar();
    EXPECT_TRUE(bar.window->isVisible());
    EXPECT_EQ(Place(*bar.window), Text({10, 15, 60, 45}));
}

TEST_F(ToolBar, bar_larger_than_the_view_keeps_its_rectangle)
{
    for (const RECT& rect : {RECT{-50, 0, 550, 50}, RECT{100, 20, 900, 70}, RECT{0, -10, 150, 500}, RECT{-500, -500, 900, 900}})
    {
        CeGuiToolBar& bar = NewBar(rect, BAR_TITLE, L"", L"large");
        EXPECT_EQ(Place(*bar.window), Text(rect));
        RECT moved = rect;
        OffsetRect(&moved, 3, 4);
        bar.MoveBar(moved, ViewWidth, ViewHeight);
        EXPECT_EQ(Place(*bar.window), Text(moved));
    }
}

TEST_F(ToolBar, items_of_a_bar_larger_than_the_view_keep_theirs)
{
    for (const UINT type : {BAR_TITLE, BAR_TOOLS, BAR_LIST, BAR_PANEL})
    {
        SCOPED_TRACE(type);
        CeGuiToolBar& bar = NewBar({-100, -50, 900, 850}, type, L"", L"large");
        bar.buttonWidth = 500;
        bar.buttonHeight = 400;
        const CEGUI::Window& button = AddButton(bar, L"button");
        EXPECT_EQ(button.getPixelSize(), CEGUI::Sizef(500, 400));
        bar.AddStaticImage({10, 20, 1000, 900}, L"picture", L"");
        EXPECT_EQ(Place(*bar.items[1].window), Text({-90, -30, 900, 850}));
        bar.PlaceItem(1, {0, 0, 1000, 880});
        EXPECT_EQ(Place(*bar.items[1].window), Text({-100, -50, 900, 830}));
        bar.contentExtent = 2;
        ASSERT_TRUE(bar.CreateScrollThumb(4, L"thumb", L"", L"", L""));
        EXPECT_EQ(Place(*bar.thumb), Text({890, -50, 896, 400}));
    }
}

TEST_F(ToolBar, bar_without_a_window_is_moved_in_its_fields)
{
    CeGuiToolBar& bar = NewBar({0, 0, 100, 50}, BAR_TITLE);
    bar.DestroyToolBar();
    bar.MoveBar({1, 2, 3, 4}, 400, 300);
    EXPECT_EQ(Text(bar.rect), Text({1, 2, 3, 4}));
    EXPECT_EQ(Text(bar.triggerRect), Text({1, 2, 3, 4}));
}

TEST_F(ToolBar, bar_is_shown_and_hidden_as_often_as_asked)
{
    CeGuiToolBar& bar = NewBar({0, 0, 200, 100}, BAR_PANEL);
    for (int i = 0; i < 2; ++i)
    {
        bar.HideBar();
        EXPECT_FALSE(bar.window->isVisible());
        bar.HideBar();
        EXPECT_FALSE(bar.window->isVisible());
        bar.ShowBar();
        EXPECT_TRUE(bar.window->isVisible());
        bar.ShowBar();
        EXPECT_TRUE(bar.window->isVisible());
    }
    bar.DestroyToolBar();
    bar.HideBar();
    bar.ShowBar();
    EXPECT_EQ(bar.window, nullptr);
}
