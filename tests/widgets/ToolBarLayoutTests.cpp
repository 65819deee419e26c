// SPDX-License-Identifier: MIT
// Where the items of bars stand.
#include "Sheet.h"

#include <CEGUI/Window.h>

namespace
{
class ToolBarLayout : public SheetTest
{
};

void SetButtons(CeGuiToolBar& bar, UINT width, UINT height, UINT marginX, UINT marginY, UINT spacing)
{
    bar.buttonWidth = width;
    bar.buttonHeight = height;
    bar.marginX = marginX;
    bar.marginY = marginY;
    bar.spacing = spacing;
}

CEGUI::Window& AddButton(CeGuiToolBar& bar, const wchar_t* name)
{
    return *bar.items[static_cast<std::size_t>(bar.AddImageButton(name, L"", L"", L"", L""))].window;
}
} // namespace

TEST_F(ToolBarLayout, buttons_of_each_type_stand_in_their_row_or_column)
{
    // clang-format off: a table
    const struct
    {
        const char* name;
        UINT type;
        RECT bar;
        UINT width, height, marginX, marginY, spacing;
        RECT buttons[3];
    } rows[] = {
        {"title bar",
         BAR_TITLE,
         {0, 0, 400, 50},
         24,
         24,
         16,
         13,
         20,
         {{360, 13, 384, 37}, {316, 13, 340, 37}, {272, 13, 296, 37}}},
        {"title bar off the corner",
         BAR_TITLE,
         {50, 10, 350, 60},
         24,
         24,
         16,
         13,
         20,
         {{310, 23, 334, 47}, {266, 23, 290, 47}, {222, 23, 246, 47}}},
        {"tool bar",
         BAR_TOOLS,
         {0, 210, 400, 300},
         62,
         62,
         30,
         16,
         30,
         {{30, 226, 92, 288}, {122, 226, 184, 288}, {214, 226, 276, 288}}},
        {"left list",
         BAR_LIST,
         {2, 50, 152, 250},
         126,
         96,
         10,
         13,
         13,
         {{12, 63, 138, 159}, {12, 172, 138, 268}, {12, 281, 138, 377}}},
        {"property panel",
         BAR_PANEL,
         {100, 50, 300, 250},
         40,
         30,
         10,
         13,
         13,
         {{100, 50, 140, 80}, {100, 50, 140, 80}, {100, 50, 140, 80}}},
        {"type 0", 0, {10, 20, 110, 120}, 40, 30, 10, 13, 13, {{10, 20, 50, 50}, {10, 20, 50, 50}, {10, 20, 50, 50}}},
        {"type 3", 3, {10, 20, 110, 120}, 40, 30, 10, 13, 13, {{10, 20, 50, 50}, {10, 20, 50, 50}, {10, 20, 50, 50}}},
        {"type 5", 5, {10, 20, 110, 120}, 40, 30, 10, 13, 13, {{10, 20, 50, 50}, {10, 20, 50, 50}, {10, 20, 50, 50}}},
        {"type 99", 99, {10, 20, 110, 120}, 40, 30, 10, 13, 13, {{10, 20, 50, 50}, {10, 20, 50, 50}, {10, 20, 50, 50}}},
    };
    // clang-format on
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        CeGuiToolBar& bar = NewBar(row.bar, row.type);
        SetButtons(bar, row.width, row.height, row.marginX, row.marginY, row.spacing);
        for (const wchar_t* button : {L"a", L"b", L"c"})
        {
            AddButton(bar, button);
        }
        for (std::size_t i = 0; i < 3; ++i)
        {
            EXPECT_EQ(Place(*bar.items[i].window), Text(row.buttons[i])) << "button " << i;
        }
    }
}

TEST_F(ToolBarLayout, item_keeps_name_and_fractions_of_the_bar)
{
    CeGuiToolBar& bar = NewBar({0, 210, 400, 300}, BAR_TOOLS);
    SetButtons(bar, 60, 45, 20, 9, 40);
    EXPECT_EQ(bar.AddImageButton(L"first", L"", L"", L"", L""), 0);
    EXPECT_EQ(bar.AddImageButton(L"second", L"", L"", L"", L""), 1);
    EXPECT_EQ(bar.AddStaticImage({100, 45, 300, 90}, L"third", L""), 2);
    const struct
    {
        const char* name;
        float x, y, width, height;
    } rows[] = {{"first", 0.05f, 0.1f, 0.15f, 0.5f}, {"second", 0.3f, 0.1f, 0.15f, 0.5f}, {"third", 0.25f, 0.5f, 0.5f, 0.5f}};
    for (std::size_t i = 0; i < 3; ++i)
    {
        const ToolBarItem& item = bar.items[i];
        EXPECT_EQ(Utf8(item.name), rows[i].name);
        EXPECT_FLOAT_EQ(item.xScale, rows[i].x);
        EXPECT_FLOAT_EQ(item.yScale, rows[i].y);
        EXPECT_FLOAT_EQ(item.widthScale, rows[i].width);
        EXPECT_FLOAT_EQ(item.heightScale, rows[i].height);
    }
}

TEST_F(ToolBarLayout, first_title_button_sits_at_the_right_margin)
{
    CeGuiToolBar& bar = NewBar({0, 0, 400, 50}, BAR_TITLE);
    SetButtons(bar, 24, 24, 16, 13, 20);
    AddButton(bar, L"first");
    EXPECT_FLOAT_EQ(bar.items[0].xScale, (400.0f - 16 - 24) / 400);
}

TEST_F(ToolBarLayout, title_button_after_the_maximise_button_takes_its_place)
{
    CeGuiToolBar& bar = NewBar({0, 0, 400, 50}, BAR_TITLE);
    SetButtons(bar, 24, 24, 16, 13, 20);
    AddButton(bar, L"TavTilteCloseButtom");
    AddButton(bar, L"TavTilteMaxboxButtom");
    AddButton(bar, L"restore");
    EXPECT_EQ(bar.items[2].xScale, bar.items[1].xScale);
    EXPECT_EQ(Place(*bar.items[2].window), Text({316, 13, 340, 37}));
    // The one after that goes on to the left.
    EXPECT_EQ(Place(AddButton(bar, L"next")), Text({272, 13, 296, 37}));
}

TEST_F(ToolBarLayout, maximise_button_is_nothing_special_in_a_tool_bar)
{
    CeGuiToolBar& bar = NewBar({0, 0, 400, 90}, BAR_TOOLS);
    SetButtons(bar, 60, 60, 10, 0, 10);
    AddButton(bar, L"TavTilteMaxboxButtom");
    EXPECT_EQ(Place(AddButton(bar, L"next")), Text({80, 0, 140, 60}));
}

TEST_F(ToolBarLayout, title_bar_narrower_than_its_margin_counts_in_unsigned_pixels_kept_on_purpose)
{
    CeGuiToolBar& bar = NewBar({0, 0, 30, 50}, BAR_TITLE);
    SetButtons(bar, 24, 24, 16, 13, 20);
    AddButton(bar, L"first");
    EXPECT_FLOAT_EQ(bar.items[0].xScale, 4294967286.0f / 30);
    Host().Frames(2);
}

TEST_F(ToolBarLayout, button_that_leaves_full_scene_starts_hidden)
{
    CeGuiToolBar& bar = NewBar({0, 0, 400, 50}, BAR_TITLE);
    EXPECT_FALSE(AddButton(bar, L"TavFullTilteEscBtn").isVisible());
    EXPECT_TRUE(AddButton(bar, L"TavFullTilteEscBtn2").isVisible());
    bar.AddStaticImage({0, 0, 9, 9}, L"TavFullTilteEscBtn", L"");
    EXPECT_TRUE(bar.items[2].window->isVisible()) << "a picture of that name is no button";
}

TEST_F(ToolBarLayout, static_image_stands_at_its_rectangle_with_twice_its_height_as_limit)
{
    CeGuiToolBar& bar = NewBar({100, 100, 300, 200}, BAR_PANEL);
    EXPECT_EQ(bar.AddStaticImage({20, 10, 120, 35}, L"picture", L""), 0);
    const CEGUI::Window& picture = *bar.items[0].window;
    EXPECT_EQ(Place(picture), Text({120, 110, 220, 135}));
    EXPECT_EQ(picture.getMaxSize(), CEGUI::USize(CEGUI::UDim(0.5f, 0), CEGUI::UDim(0.5f, 0)));
}

TEST_F(ToolBarLayout, content_extent_counts_in_lists_and_panels_only)
{
    const struct
    {
        UINT type;
        float empty, after;
    } rows[] = {{BAR_TITLE, 1.0f, 1.0f},   {BAR_TOOLS, 1.0f, 1.0f}, {BAR_LIST, 0.26f, 1.35f},
                {BAR_PANEL, 0.26f, 0.91f}, {0, 1.0f, 1.0f},         {5, 1.0f, 1.0f}};
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.type);
        CeGuiToolBar& bar = NewBar({0, 0, 200, 100}, row.type);
        SetButtons(bar, 60, 46, 10, 13, 17);
        EXPECT_TRUE(bar.UpdateContentExtent());
        EXPECT_FLOAT_EQ(bar.contentExtent, row.empty);
        AddButton(bar, L"a");
        AddButton(bar, L"b");
        if (row.type == BAR_PANEL)
        {
            EXPECT_FLOAT_EQ(bar.contentExtent, 0.59f) << "buttons of a panel lie over each other";
            bar.AddStaticImage({0, 50, 200, 78}, L"picture", L"");
        }
        EXPECT_FLOAT_EQ(bar.contentExtent, row.after);
    }
}

TEST_F(ToolBarLayout, content_extent_follows_the_last_item_not_the_lowest_kept_on_purpose)
{
    CeGuiToolBar& bar = NewBar({0, 0, 200, 100}, BAR_PANEL);
    bar.AddStaticImage({0, 150, 200, 300}, L"low", L"");
    EXPECT_FLOAT_EQ(bar.contentExtent, 3.0f);
    bar.AddStaticImage({0, 0, 200, 20}, L"high", L"");
    EXPECT_FLOAT_EQ(bar.contentExtent, 0.2f);
}
