// SPDX-License-Identifier: MIT
#pragma once

#include "Sheet.h"

#include <CEGUI/Window.h>

/// A list 100 pixels high at (100, 50) with six buttons 30 high in a column 215 pixels high.
class ScrollSheet : public SheetTest
{
protected:
    static constexpr float Near = 1e-4f;
    static constexpr float Extent = 2.15f;
    static constexpr float ThumbHeight = 1 / Extent;
    static constexpr float ThumbEnd = 1 - ThumbHeight;

    void SetUp() override
    {
        SheetTest::SetUp();
        list_ = &NewBar({100, 50, 250, 150}, BAR_LIST);
        list_->buttonWidth = 100;
        list_->buttonHeight = 30;
        list_->marginX = 10;
        list_->marginY = 5;
        list_->spacing = 5;
        for (const wchar_t* name : {L"0", L"1", L"2", L"3", L"4", L"5"})
        {
            list_->AddImageButton(name, L"", L"", L"", L"");
        }
        list_->CreateScrollThumb(4, L"thumb", L"", L"", L"");
    }

    float ItemY(std::size_t index) const { return list_->items[index].window->getYPosition().d_scale; }
    float ThumbY() const { return list_->thumb->getYPosition().d_scale; }
    CPoint ThumbCentre() const
    {
        const CEGUI::Rectf area = list_->thumb->getUnclippedOuterRect().get();
        return CPoint(static_cast<int>(area.left() + 3), static_cast<int>((area.top() + area.bottom()) / 2));
    }
    /// The thumb stands there, and every item with it.
    void ExpectScrolled(float thumbY)
    {
        EXPECT_NEAR(ThumbY(), thumbY, Near);
        EXPECT_NEAR(list_->thumb->getXPosition().d_scale, 140 / 150.0f, Near);
        for (std::size_t i = 0; i < 6; ++i)
        {
            EXPECT_NEAR(ItemY(i), 0.05f + 0.35f * static_cast<float>(i) - thumbY * Extent, Near) << "item " << i;
            EXPECT_EQ(list_->items[i].window->getXPosition(), CEGUI::UDim(10 / 150.0f, 0)) << "item " << i;
            EXPECT_EQ(list_->items[i].window->getYPosition().d_offset, 0.0f);
        }
    }

    CeGuiToolBar* list_ = nullptr;
};
