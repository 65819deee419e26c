// SPDX-License-Identifier: MIT
// The thumb of a list, and items brought into view.
#include "Pictures.h"
#include "ScrollSheet.h"

#include <widgets/FileImageset.h>

#include <CEGUI/Exceptions.h>
#include <CEGUI/InputEvent.h>

namespace
{
using ToolBarScroll = ScrollSheet;
} // namespace

TEST_F(ToolBarScroll, thumb_stands_at_the_right_and_shows_how_much_is_seen)
{
    ASSERT_NE(list_->thumb, nullptr);
    EXPECT_FLOAT_EQ(list_->contentExtent, Extent);
    EXPECT_EQ(Place(*list_->thumb), Text({240, 50, 246, 97}));
    EXPECT_EQ(list_->thumb->getType(), "TavLook/ImageButton");
    EXPECT_EQ(list_->thumb->getName(), "thumb");
    EXPECT_EQ(list_->thumb->getParent(), list_->window);
    EXPECT_TRUE(list_->thumb->isAlwaysOnTop());
    EXPECT_NEAR(list_->thumb->getHeight().d_scale, ThumbHeight, Near);
    EXPECT_EQ(list_->items.size(), 6u) << "the thumb is no item";
    ExpectScrolled(0);
}

TEST_F(ToolBarScroll, list_that_ends_exactly_at_the_bars_bottom_gets_no_thumb)
{
    CeGuiToolBar& list = NewBar({0, 0, 100, 100}, BAR_LIST, L"", L"exact");
    list.buttonHeight = 40;
    list.marginY = 5;
    list.spacing = 10;
    list.AddImageButton(L"a", L"", L"", L"", L"");
    list.AddImageButton(L"b", L"", L"", L"", L"");
    EXPECT_FLOAT_EQ(list.contentExtent, 1.0f);
    EXPECT_FALSE(list.CreateScrollThumb(4, L"thumb", L"new_skin/verticalscrollbar.png", L"", L""));
    EXPECT_EQ(list.thumb, nullptr);
    EXPECT_FALSE(FileImagesets::IsPresent(L"new_skin/verticalscrollbar.png"));
    EXPECT_EQ(list.window->getChildCount(), 2u);
    EXPECT_FALSE(list.ScrollToItem(1));
    Host().Wheel(50, 50, -1);
    EXPECT_FLOAT_EQ(list.items[0].window->getYPosition().d_scale, 0.05f);
}

TEST_F(ToolBarScroll, list_one_pixel_too_long_gets_a_thumb)
{
    CeGuiToolBar& list = NewBar({0, 0, 100, 100}, BAR_LIST, L"", L"long");
    list.buttonHeight = 91;
    list.marginY = 5;
    list.AddImageButton(L"a", L"", L"", L"", L"");
    EXPECT_FLOAT_EQ(list.contentExtent, 1.01f);
    EXPECT_TRUE(list.CreateScrollThumb(4, L"thumb", L"", L"", L""));
}

TEST_F(ToolBarScroll, second_thumb_is_refused)
{
    const CEGUI::Window* first = list_->thumb;
    EXPECT_FALSE(list_->CreateScrollThumb(4, L"another", L"", L"", L""));
    EXPECT_EQ(list_->thumb, first);
}

TEST_F(ToolBarScroll, thumb_whose_picture_is_missing_is_not_made)
{
    CeGuiToolBar& list = NewBar({0, 0, 100, 100}, BAR_LIST, L"", L"list");
    list.contentExtent = 2;
    EXPECT_THROW(list.CreateScrollThumb(0, L"t", L"new_skin/verticalscrollbar.png", L"nowhere.png", L""), CEGUI::Exception);
    EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: picture not loaded: nowhere.png"});
    EXPECT_EQ(list.thumb, nullptr);
    EXPECT_EQ(GuiHost::Find("t"), nullptr);
    Host().Wheel(50, 50, -1);
}

TEST_F(ToolBarScroll, thumbs_pictures_stand_in_for_each_other)
{
    const struct
    {
        const wchar_t *normal, *hover, *pushed;
        const char *seenNormal, *seenHover, *seenPushed;
    } rows[] = {
        {L"", L"", L"", "", "", ""},
        {L"n.bmp", L"", L"", "n.bmp/full_image", "n.bmp/full_image", "n.bmp/full_image"},
        {L"n.bmp", L"h.bmp", L"", "n.bmp/full_image", "h.bmp/full_image", "h.bmp/full_image"},
        {L"n.bmp", L"", L"p.bmp", "n.bmp/full_image", "p.bmp/full_image", "p.bmp/full_image"},
        {L"n.bmp", L"h.bmp", L"p.bmp", "n.bmp/full_image", "h.bmp/full_image", "p.bmp/full_image"},
        {L"", L"h.bmp", L"p.bmp", "", "h.bmp/full_image", "p.bmp/full_image"},
    };
    for (const wchar_t* file : {L"n.bmp", L"h.bmp", L"p.bmp"})
    {
        WriteSkinPicture(file, 0xFF00FF00);
    }
    for (const auto& row : rows)
    {
        CeGuiToolBar& list = NewBar({0, 0, 100, 100}, BAR_LIST, L"", L"list");
        list.contentExtent = 2;
        // The same pictures again and again: they are looked up, not made anew.
        ASSERT_TRUE(list.CreateScrollThumb(0, L"t", row.normal, row.hover, row.pushed));
        EXPECT_EQ(ImageOf(*list.thumb, "NormalImage"), row.seenNormal);
        EXPECT_EQ(ImageOf(*list.thumb, "HoverImage"), row.seenHover);
        EXPECT_EQ(ImageOf(*list.thumb, "PushedImage"), row.seenPushed);
    }
}

TEST_F(ToolBarScroll, slots_say_whether_they_used_the_event)
{
    CEGUI::MouseEventArgs args(list_->thumb);
    args.position = CEGUI::Vector2f(243, 60);
    args.wheelChange = 0;
    EXPECT_FALSE(list_->OnMouseWheel(args)) << "a wheel that did not turn";
    args.wheelChange = 1;
    EXPECT_TRUE(list_->OnMouseWheel(args));
    EXPECT_FALSE(list_->OnThumbMouseMove(args)) << "no drag";
    EXPECT_TRUE(list_->OnThumbMouseDown(args));
    EXPECT_FALSE(list_->OnThumbMouseMove(args)) << "a drag that did not move";
    args.position.d_y = 70;
    EXPECT_TRUE(list_->OnThumbMouseMove(args));
    EXPECT_EQ(list_->lastMousePos, CEGUI::Vector2f(243, 70));
    args.position.d_x = 200;
    EXPECT_FALSE(list_->OnThumbMouseMove(args)) << "sideways only";
    EXPECT_TRUE(list_->OnThumbMouseUp(args));
    EXPECT_FALSE(list_->dragging);
    list_->DestroyToolBar();
    EXPECT_FALSE(list_->OnMouseWheel(args));
    EXPECT_FALSE(list_->OnThumbMouseMove(args));
}

TEST_F(ToolBarScroll, first_item_of_a_list_at_the_top_stays)
{
    const auto places = [this]
    {
        std::vector<float> y = {ThumbY()};
        for (std::size_t i = 0; i < 6; ++i)
        {
            y.push_back(ItemY(i));
        }
        return y;
    };
    const std::vector<float> before = places();
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_TRUE(list_->ScrollToItem(0));
        EXPECT_EQ(places(), before) << "not by a rounding either";
    }
    ExpectScrolled(0);
}

TEST_F(ToolBarScroll, item_comes_to_the_middle_as_far_as_the_content_reaches)
{
    const struct
    {
        int item;
        float thumbY;
    } steps[] = {{3, 0.6f / Extent}, {0, 0}, {5, ThumbEnd}, {5, ThumbEnd}, {2, 0.25f / Extent}, {1, 0}, {4, 0.95f / Extent}};
    for (const auto& step : steps)
    {
        EXPECT_TRUE(list_->ScrollToItem(step.item));
        ExpectScrolled(step.thumbY);
    }
    EXPECT_NEAR(ItemY(4), 0.5f, Near);
}

TEST_F(ToolBarScroll, item_out_of_range_moves_nothing)
{
    list_->ScrollToItem(3);
    for (const int index : {-1, 6, 1000, -2147483647})
    {
        EXPECT_TRUE(list_->ScrollToItem(index));
        ExpectScrolled(0.6f / Extent);
    }
}

TEST_F(ToolBarScroll, scrolled_items_go_past_one_that_lost_its_window)
{
    list_->items[2].window->destroy();
    ASSERT_EQ(list_->items[2].window, nullptr);
    EXPECT_TRUE(list_->ScrollToItem(2));
    EXPECT_NEAR(ThumbY(), 0, Near);
    Host().Wheel(104, 100, -1);
    EXPECT_NEAR(ThumbY(), 0.3f, Near);
    EXPECT_NEAR(ItemY(3), 1.1f - 0.3f * Extent, Near);
}
