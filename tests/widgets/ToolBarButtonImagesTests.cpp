// SPDX-License-Identifier: MIT
// The pictures of buttons, and what is seen of them under the mouse.
#include "Pictures.h"
#include "Sheet.h"

#include <widgets/FileImageset.h>

#include <CEGUI/Exceptions.h>
#include <CEGUI/Window.h>

namespace
{
const char* const Normal = "normal.bmp/full_image";
const char* const Hover = "hover.bmp/full_image";
const char* const Pushed = "pushed.bmp/full_image";
constexpr Pixel Red = {255, 0, 0};
constexpr Pixel Green = {0, 255, 0};
constexpr Pixel Blue = {0, 0, 255};

/// A button at (30, 20) to (90, 60) with a red, a green and a blue picture at hand.
class ButtonImages : public SheetTest
{
protected:
    void SetUp() override
    {
        SheetTest::SetUp();
        WriteSkinPicture(L"normal.bmp", 0xFFFF0000);
        WriteSkinPicture(L"hover.bmp", 0xFF00FF00);
        WriteSkinPicture(L"pushed.bmp", 0xFF0000FF);
        bar_ = &NewBar({30, 20, 230, 120}, BAR_TOOLS);
        bar_->buttonWidth = 60;
        bar_->buttonHeight = 40;
    }

    CEGUI::Window& AddButton(const wchar_t* normal, const wchar_t* hover, const wchar_t* pushed)
    {
        return *bar_->items[static_cast<std::size_t>(bar_->AddImageButton(L"button", normal, hover, pushed, L""))].window;
    }
    static std::string Pictures(const CEGUI::Window& button)
    {
        return ImageOf(button, "NormalImage") + " " + ImageOf(button, "HoverImage") + " " + ImageOf(button, "PushedImage");
    }
    /// What is seen at rest, under the mouse and held down.
    static void ExpectSeen(Pixel atRest, Pixel hovered, Pixel held)
    {
        Host().MoveMouse(300, 200);
        EXPECT_EQ(Seen(60, 40), atRest) << "at rest";
        Host().MoveMouse(60, 40);
        EXPECT_EQ(Seen(60, 40), hovered) << "under the mouse";
        Host().Press(60, 40);
        EXPECT_EQ(Seen(60, 40), held) << "held down";
        Host().Release(60, 40);
        EXPECT_EQ(Seen(60, 40), hovered) << "let go";
        Host().MoveMouse(300, 200);
        EXPECT_EQ(Seen(60, 40), atRest) << "left";
    }

    CeGuiToolBar* bar_ = nullptr;
};
} // namespace

TEST_F(ButtonImages, missing_pictures_of_a_new_button_are_its_normal_one)
{
    const struct
    {
        const wchar_t *normal, *hover, *pushed;
        std::string pictures;
    } rows[] = {
        {L"normal.bmp", L"hover.bmp", L"pushed.bmp", std::string(Normal) + " " + Hover + " " + Pushed},
        {L"normal.bmp", L"", L"pushed.bmp", std::string(Normal) + " " + Normal + " " + Pushed},
        {L"normal.bmp", L"hover.bmp", L"", std::string(Normal) + " " + Hover + " " + Normal},
        {L"normal.bmp", L"", L"", std::string(Normal) + " " + Normal + " " + Normal},
        {L"", L"hover.bmp", L"pushed.bmp", std::string(" ") + Hover + " " + Pushed},
        {L"", L"hover.bmp", L"", std::string(" ") + Hover + " "},
        {L"", L"", L"pushed.bmp", std::string("  ") + Pushed},
        {L"", L"", L"", "  "},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(Pictures(AddButton(row.normal, row.hover, row.pushed)), row.pictures);
        FileImagesets::DestroyFileImagesets();
    }
}

TEST_F(ButtonImages, button_shows_its_three_pictures_on_the_screen)
{
    AddButton(L"normal.bmp", L"hover.bmp", L"pushed.bmp");
    ExpectSeen(Red, Green, Blue);
    EXPECT_EQ(Seen(29, 40), Background());
    EXPECT_EQ(Seen(90, 40), Background());
}

TEST_F(ButtonImages, button_without_pictures_shows_nothing)
{
    AddButton(L"", L"", L"");
    ExpectSeen(Background(), Background(), Background());
}

TEST_F(ButtonImages, same_pictures_for_a_second_button_are_refused_and_leave_no_item)
{
    AddButton(L"normal.bmp", L"hover.bmp", L"pushed.bmp");
    EXPECT_THROW(bar_->AddImageButton(L"second", L"normal.bmp", L"", L"", L""), CEGUI::AlreadyExistsException);
    EXPECT_EQ(bar_->items.size(), 1u);
    EXPECT_EQ(bar_->window->getChildCount(), 1u);
    EXPECT_EQ(GuiHost::Find("second"), nullptr);
}

TEST_F(ButtonImages, missing_picture_leaves_no_item_and_one_line_in_the_log)
{
    EXPECT_THROW(bar_->AddImageButton(L"button", L"normal.bmp", L"nowhere.png", L"", L""), CEGUI::Exception);
    EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: picture not loaded: nowhere.png"});
    EXPECT_TRUE(bar_->items.empty());
    EXPECT_EQ(bar_->window->getChildCount(), 0u);
    EXPECT_EQ(GuiHost::Find("button"), nullptr);
    Host().Frames(2);
}

TEST_F(ButtonImages, toggle_that_is_down_swaps_normal_and_pushed)
{
    const struct
    {
        bool down;
        const wchar_t* hover;
        std::string pictures;
        Pixel atRest, hovered, held;
    } rows[] = {
        {false, L"hover.bmp", std::string(Normal) + " " + Hover + " " + Pushed, Red, Green, Blue},
        {true, L"hover.bmp", std::string(Pushed) + " " + Hover + " " + Normal, Blue, Green, Red},
        {false, L"", std::string(Normal) + " " + Normal + " " + Pushed, Red, Red, Blue},
        {true, L"", std::string(Pushed) + " " + Pushed + " " + Normal, Blue, Blue, Red},
    };
    CEGUI::Window& button = AddButton(L"normal.bmp", L"hover.bmp", L"pushed.bmp");
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.pictures);
        EXPECT_TRUE(bar_->SetButtonImages(&button, L"normal.bmp", row.hover, L"pushed.bmp", row.down));
        EXPECT_EQ(Pictures(button), row.pictures);
        ExpectSeen(row.atRest, row.hovered, row.held);
        EXPECT_TRUE(bar_->SetItemImages(0, L"normal.bmp", row.hover, L"pushed.bmp", !row.down));
        EXPECT_NE(Pictures(button), row.pictures);
    }
}

TEST_F(ButtonImages, pushed_picture_is_loaded_when_it_is_not_there)
{
    CEGUI::Window& button = AddButton(L"normal.bmp", L"", L"");
    ASSERT_FALSE(FileImagesets::IsPresent(L"pushed.bmp"));
    bar_->SetButtonImages(&button, L"normal.bmp", L"", L"pushed.bmp", false);
    EXPECT_EQ(ImageOf(button, "PushedImage"), Pushed);
    EXPECT_TRUE(FileImagesets::IsPresent(L"pushed.bmp"));
}

TEST_F(ButtonImages, normal_and_hover_have_to_be_there_already)
{
    CEGUI::Window& button = AddButton(L"normal.bmp", L"", L"");
    const std::string before = Pictures(button);
    for (int i = 0; i < 2; ++i)
    {
        EXPECT_TRUE(bar_->SetButtonImages(&button, L"hover.bmp", L"", L"pushed.bmp", false));
        EXPECT_EQ(Pictures(button), before);
        EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: pictures of a button not changed (there is no imageset named 'hover.bmp'): "
                                   "hover.bmp"});
    }
    EXPECT_TRUE(bar_->SetButtonImages(&button, L"normal.bmp", L"hover.bmp", L"pushed.bmp", false));
    EXPECT_EQ(Pictures(button), before);
    EXPECT_EQ(TakeLog().size(), 1u);
    EXPECT_FALSE(FileImagesets::IsPresent(L"hover.bmp"));
}

TEST_F(ButtonImages, pushed_picture_that_cannot_be_loaded_leaves_the_button)
{
    CEGUI::Window& button = AddButton(L"normal.bmp", L"", L"");
    const std::string before = Pictures(button);
    for (int i = 0; i < 2; ++i)
    {
        EXPECT_TRUE(bar_->SetButtonImages(&button, L"normal.bmp", L"", L"nowhere.png", true));
        EXPECT_EQ(Pictures(button), before);
        EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: picture not loaded: nowhere.png"}) << "one line each time";
    }
}

TEST_F(ButtonImages, button_without_normal_or_pushed_name_stays_as_it_is)
{
    CEGUI::Window& button = AddButton(L"normal.bmp", L"hover.bmp", L"pushed.bmp");
    const std::string before = Pictures(button);
    EXPECT_TRUE(bar_->SetButtonImages(&button, L"", L"hover.bmp", L"pushed.bmp", true));
    EXPECT_TRUE(bar_->SetButtonImages(&button, L"normal.bmp", L"hover.bmp", L"", true));
    EXPECT_TRUE(bar_->SetButtonImages(nullptr, L"normal.bmp", L"hover.bmp", L"pushed.bmp", true));
    for (const int index : {-1, 1, 77})
    {
        EXPECT_TRUE(bar_->SetItemImages(index, L"normal.bmp", L"hover.bmp", L"pushed.bmp", true));
    }
    EXPECT_EQ(Pictures(button), before);
}
