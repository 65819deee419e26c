// SPDX-License-Identifier: MIT
// Pictures by themselves: cut, reduced, kept in files, compared.
#include "support/GTest.h"
#include "support/driver/Compare.h"
#include "support/driver/Pictures.h"

#include <cmath>
#include <stdexcept>

namespace
{
using Colors = std::vector<int>;

/// A grey that tells each pixel's place, rows from the top.
osg::ref_ptr<osg::Image> Slope(int width, int height)
{
    osg::ref_ptr<osg::Image> picture = driver::NewPicture(width, height);
    for (int y = 0; y < height; ++y)
    {
        for (int x = 0; x < width; ++x)
        {
            unsigned char* pixel = picture->data(x, height - 1 - y);
            pixel[0] = static_cast<unsigned char>(x);
            pixel[1] = static_cast<unsigned char>(y);
            pixel[2] = 7;
        }
    }
    return picture;
}

void Set(osg::Image& picture, int x, int y, int red, int green, int blue)
{
    unsigned char* pixel = picture.data(x, picture.t() - 1 - y);
    pixel[0] = static_cast<unsigned char>(red);
    pixel[1] = static_cast<unsigned char>(green);
    pixel[2] = static_cast<unsigned char>(blue);
}

Colors ColorAt(const osg::Image& picture, int x, int y)
{
    const unsigned char* pixel = picture.data(x, picture.t() - 1 - y);
    return {pixel[0], pixel[1], pixel[2]};
}
} // namespace

TEST(DriverPicture, a_part_is_cut_at_the_pictures_edges)
{
    const osg::ref_ptr<osg::Image> part = driver::Part(*Slope(40, 30), {10, 20, 60, 90});
    EXPECT_EQ(part->s(), 30);
    EXPECT_EQ(part->t(), 10);
    EXPECT_EQ(ColorAt(*part, 0, 0), (Colors{10, 20, 7}));
    EXPECT_EQ(ColorAt(*part, 29, 9), (Colors{39, 29, 7}));
    EXPECT_EQ(driver::Part(*Slope(40, 30), {50, 5, 60, 10})->s(), 0) << "beside it";
}

TEST(DriverPicture, reduced_to_the_mean_of_each_square)
{
    const osg::ref_ptr<osg::Image> picture = driver::NewPicture(4, 2);
    for (int x = 0; x < 4; ++x)
    {
        for (int y = 0; y < 2; ++y)
        {
            Set(*picture, x, y, x < 2 ? 10 : 200, y == 0 ? 100 : 0, 255);
        }
    }
    const osg::ref_ptr<osg::Image> reduced = driver::Reduced(*picture, 2);
    EXPECT_EQ(reduced->s(), 2);
    EXPECT_EQ(reduced->t(), 1);
    EXPECT_EQ(ColorAt(*reduced, 0, 0), (Colors{10, 50, 255}));
    EXPECT_EQ(ColorAt(*reduced, 1, 0), (Colors{200, 50, 255}));
}

TEST(DriverPicture, a_png_file_keeps_every_pixel)
{
    const osg::ref_ptr<osg::Image> picture = Slope(33, 21);
    driver::WritePictureFile(L"slope.png", *picture);
    const osg::ref_ptr<osg::Image> read = driver::LoadPictureFile(L"slope.png");
    EXPECT_EQ(driver::Compare(*read, *picture, 1).Text(), "differs by 0.00 at 0,0 and by 0.0000 in the mean");
}

TEST(DriverPicture, a_jpeg_file_keeps_them_nearly)
{
    const osg::ref_ptr<osg::Image> picture = Slope(64, 48);
    driver::WritePictureFile(L"slope.jpg", *picture);
    const driver::Difference difference = driver::Compare(*driver::LoadPictureFile(L"slope.jpg"), *picture, 1);
    EXPECT_EQ(difference.actual, CSize(64, 48));
    EXPECT_LT(difference.mean, 3.0);
    EXPECT_GT(difference.mean, 0.0);
}

TEST(DriverPicture, files_that_cannot_be_read_are_told)
{
    EXPECT_THROW(driver::LoadPictureFile(L"no-such-file.png"), std::runtime_error);
    EXPECT_THROW(driver::Decoded("no picture", "png"), std::runtime_error);
    EXPECT_THROW(driver::Decoded("no picture", "no-such-format"), std::runtime_error);
    EXPECT_THROW(driver::WritePictureFile(L"no-such-folder\\a.png", *Slope(4, 4)), std::runtime_error);
}

TEST(DriverPicture, one_other_pixel_counts_by_its_components_largest_difference)
{
    const osg::ref_ptr<osg::Image> expected = Slope(20, 10);
    const osg::ref_ptr<osg::Image> actual = Slope(20, 10);
    Set(*actual, 13, 6, 13, 6 + 80, 7 + 30);
    const driver::Difference pixels = driver::Compare(*actual, *expected, 1);
    EXPECT_EQ(pixels.most, 80.0);
    EXPECT_EQ(pixels.where, CPoint(13, 6));
    EXPECT_EQ(pixels.mean, 80.0 / 200.0);
    const driver::Difference squares = driver::Compare(*actual, *expected, 4);
    EXPECT_EQ(squares.most, 80.0 / 16.0);
    EXPECT_EQ(squares.where, CPoint(12, 4));
    EXPECT_EQ(squares.mean, 80.0 / 200.0);
}

TEST(DriverPicture, within_a_tolerance_up_to_its_very_value)
{
    driver::Difference difference;
    difference.most = 5.0;
    difference.mean = 0.5;
    EXPECT_TRUE(difference.IsWithin({4, 5.0, 0.5}));
    EXPECT_FALSE(difference.IsWithin({4, 4.9, 0.5}));
    EXPECT_FALSE(difference.IsWithin({4, 5.0, 0.4}));
}

TEST(DriverPicture, another_size_is_never_within_a_tolerance)
{
    const driver::Difference difference = driver::Compare(*Slope(20, 10), *Slope(20, 12), 1);
    EXPECT_FALSE(difference.IsWithin({1, 255.0, 255.0}));
    EXPECT_EQ(difference.Text(), "is 20 x 10 pixels instead of 20 x 12");
}

TEST(DriverPicture, the_difference_is_brightest_where_it_is_largest)
{
    const osg::ref_ptr<osg::Image> actual = Slope(20, 10);
    Set(*actual, 13, 6, 13, 6 + 80, 7);
    Set(*actual, 2, 2, 2 + 40, 2, 7);
    const osg::ref_ptr<osg::Image> difference = driver::DifferencePicture(*actual, *Slope(20, 10));
    EXPECT_EQ(ColorAt(*difference, 13, 6), (Colors{0, 255, 0}));
    EXPECT_EQ(ColorAt(*difference, 2, 2), (Colors{127, 0, 0}));
    EXPECT_EQ(ColorAt(*difference, 5, 5), (Colors{0, 0, 0}));
}
