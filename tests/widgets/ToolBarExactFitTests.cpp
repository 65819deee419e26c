// SPDX-License-Identifier: MIT
// Columns that end exactly at their bar's bottom: in floats the fractions of their parts add up to a rounding more or less
// than 1.
#include "Sheet.h"

#include <CEGUI/Window.h>

namespace
{
struct Column
{
    int count;
    int height; ///< of an item, pixels
    int spacing;
    int margin;

    int Height() const { return 2 * margin + count * height + (count - 1) * spacing; }
    std::string Name() const
    {
        return std::to_string(count) + " items of " + std::to_string(height) + " pixels, " + std::to_string(spacing) +
               " apart, margin " + std::to_string(margin);
    }
};

std::vector<Column> Columns()
{
    std::vector<Column> columns;
    for (int count = 1; count <= 16; ++count)
    {
        for (const int height : {1, 30, 62, 96})
        {
            for (const int spacing : {0, 5, 13})
            {
                for (const int margin : {0, 7, 13})
                {
                    columns.push_back({count, height, spacing, margin});
                }
            }
        }
    }
    return columns;
}

class ToolBarExactFit : public SheetTest
{
protected:
    /// Whether a bar of this height gets a thumb for the column.
    bool HasThumb(const Column& column, int barHeight)
    {
        CeGuiToolBar& bar = NewLooseBar({0, 0, 150, barHeight}, BAR_LIST);
        bar.buttonWidth = 100;
        bar.buttonHeight = static_cast<UINT>(column.height);
        bar.spacing = static_cast<UINT>(column.spacing);
        bar.marginY = static_cast<UINT>(column.margin);
        bar.BeginButtons();
        for (int i = 0; i < column.count; ++i)
        {
            bar.AddImageButton(L"item", L"", L"", L"", L"");
        }
        bar.EndButtons();
        const bool made = bar.CreateScrollThumb(4, L"thumb", L"", L"", L"");
        bar.DestroyToolBar();
        return made;
    }
};
} // namespace

TEST_F(ToolBarExactFit, gets_no_thumb_in_any_geometry)
{
    int wrong = 0;
    std::string names;
    for (const Column& column : Columns())
    {
        if (HasThumb(column, column.Height()))
        {
            ++wrong;
            names += "\n" + column.Name();
        }
    }
    EXPECT_EQ(wrong, 0) << "of " << Columns().size() << names;
}

TEST_F(ToolBarExactFit, a_pixel_less_gets_one_in_every_geometry)
{
    for (const Column& column : Columns())
    {
        if (column.Height() > 1)
        {
            EXPECT_TRUE(HasThumb(column, column.Height() - 1)) << column.Name();
        }
    }
}

TEST_F(ToolBarExactFit, a_panel_and_its_picture_of_equal_heights_are_one_bar_height)
{
    for (int height = 1; height < 1200; ++height)
    {
        CeGuiToolBar& bar = NewLooseBar({0, 0, 260, height}, BAR_PANEL);
        bar.AddStaticImage({0, 0, 260, height}, L"picture", L"");
        EXPECT_EQ(bar.contentExtent, 1.0f) << height;
        bar.DestroyToolBar();
    }
}

TEST_F(ToolBarExactFit, a_column_in_fractions_of_pixels_keeps_them)
{
    CeGuiToolBar& bar = NewBar({0, 0, 150, 100}, BAR_LIST);
    bar.buttonHeight = 99;
    bar.AddImageButton(L"item", L"", L"", L"", L"");
    bar.MoveBar({0, 0, 150, 150}, ViewWidth, ViewHeight);
    bar.UpdateContentExtent();
    EXPECT_FLOAT_EQ(bar.contentExtent, 0.99f) << "148.5 of 150 pixels";
}
