// SPDX-License-Identifier: MIT
// Property lists taller than the largest texture: the numbers stay, and every row can be scrolled to.
#include "LongListTest.h"

#include <cstdlib>

TEST_F(LongListTest, up_to_the_largest_texture_it_is_one_picture)
{
    const int rows = LargestTexture() / RowHeight;
    OpenScrolling(rows);
    EXPECT_EQ(ImageOf(ListPicture), "PropertyImage_0.bmp/full_image");
    EXPECT_EQ(ReadPictureFile(ListFile()).height, rows * RowHeight);
    EXPECT_EQ(GuiHost::Find(ListPicture)->getChildCount(), 0u);
    ExpectRowsInSight(rows);
    Drag(1000);
    ExpectRowsInSight(rows);
}

TEST_F(LongListTest, one_row_more_shows_and_scrolls_the_same_way)
{
    const int rows = LargestTexture() / RowHeight + 1;
    OpenScrolling(rows);
    EXPECT_EQ(ImageOf(ListPicture), "");
    ExpectRowsInSight(rows);
    Drag(1000);
    ExpectRowsInSight(rows);
}

TEST_F(LongListTest, the_numbers_stay_those_of_a_short_list)
{
    for (const int rows : {1000, 10000, 100000})
    {
        SCOPED_TRACE(rows);
        OpenScrolling(rows);
        const float ratio = static_cast<float>(rows * RowHeight) / ListHeight;
        EXPECT_EQ(Place(ListFrame), "538,85 - 798,588");
        EXPECT_NEAR(List().contentExtent / ratio, 1, 1e-5f);
        EXPECT_NEAR(GuiHost::Find(ListPicture)->getPixelSize().d_height, rows * RowHeight, 1);
        EXPECT_NEAR(GuiHost::Find(Thumb)->getHeight().d_scale * ratio, 1, 1e-5f);
        EXPECT_NEAR(GuiHost::Find(Thumb)->getXPosition().d_scale, 242 / 260.0f, 1e-6f);
    }
}

TEST_F(LongListTest, any_stretch_of_it_can_be_scrolled_into_sight)
{
    for (const int rows : {1000, 10000, 100000})
    {
        OpenScrolling(rows);
        ExpectRowsInSight(rows);
        for (const float by : {1.0f, 7.3f, 100.0f, 201.7f, -55.5f, 1000.0f, -3.3f, 1000.0f})
        {
            Drag(by);
            ExpectRowsInSight(rows);
        }
        EXPECT_NEAR(Scrolled(), rows * RowHeight - ListHeight, 2) << "the end";
        Drag(-1000);
        EXPECT_EQ(Scrolled(), 0);
        ExpectRowsInSight(rows);
    }
}

TEST_F(LongListTest, the_wheel_leaves_no_row_out)
{
    for (const int rows : {1000, 100000})
    {
        OpenScrolling(rows);
        for (const float start : {0.0f, 250.0f, 1000.0f})
        {
            Drag(-1000);
            Drag(start);
            const int direction = start == 1000 ? 1 : -1;
            int before = Scrolled();
            for (int notch = 0; notch < 8; ++notch)
            {
                Host().Wheel(600, 300, direction);
                const int after = Scrolled();
                EXPECT_GT(-direction * (after - before), 0) << "notch " << notch;
                EXPECT_LE(std::abs(after - before), ListHeight - RowHeight + 1) << "notch " << notch;
                before = after;
            }
            ExpectRowsInSight(rows);
        }
    }
}
