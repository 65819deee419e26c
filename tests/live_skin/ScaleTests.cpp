// SPDX-License-Identifier: MIT
// The interface enlarged in whole steps, as the example host shows it on dense monitors.
#include "support/HostedFrame.h"

#include "host/InterfaceScale.h"

#include <memory>

namespace
{
class InterfaceScaleTest : public HostedFrame
{
protected:
    void SetUp() override
    {
        HostedFrame::SetUp();
        before_ = Host().Shoot();
        slot_ = new osg::Group;
        const osg::ref_ptr<osg::Group> gui = Frame().GetGUINode();
        Host().Root().addChild(slot_);
        slot_->addChild(gui);
        Host().Root().removeChild(gui);
        scale_ = std::make_unique<host::InterfaceScale>(Host().Root(), *slot_);
    }
    void TearDown() override
    {
        Scale(1);
        scale_.reset();
        Host().Root().removeChild(slot_);
        Host().Root().addChild(Frame().GetGUINode());
        HostedFrame::TearDown();
    }
    void Scale(int scale)
    {
        scale_->Set(scale);
        Rebuild();
        Host().Frames(2);
    }
    static std::string WindowSize()
    {
        UINT width = 0;
        UINT height = 0;
        Frame().GetWindowSize(width, height);
        return std::to_string(width) + "x" + std::to_string(height);
    }

    Screenshot before_;
    osg::ref_ptr<osg::Group> slot_;
    std::unique_ptr<host::InterfaceScale> scale_;
};

TEST_F(InterfaceScaleTest, one_is_the_view_itself)
{
    Scale(1);
    EXPECT_EQ(WindowSize(), "800x600");
    EXPECT_TRUE(Host().Shoot().pixels == before_.pixels);
}

TEST_F(InterfaceScaleTest, two_makes_each_pixel_of_the_interface_four_of_the_view)
{
    Scale(2);
    EXPECT_EQ(WindowSize(), "400x300");
    const Screenshot shot = Host().Shoot();
    ASSERT_EQ(shot.width, 800);
    int uneven = 0;
    int logo = 0;
    for (int y = 0; y < 98; y += 2)
    {
        for (int x = 0; x < 800; x += 2)
        {
            const Pixel pixel = shot.At(x, y);
            uneven += !(pixel == shot.At(x + 1, y) && pixel == shot.At(x, y + 1) && pixel == shot.At(x + 1, y + 1));
            const bool inLogo = x >= 30 && x < 90 && y >= 20 && y < 80;
            logo += inLogo && Distance(pixel, before_.At(x / 2, y / 2)) <= 2;
        }
    }
    EXPECT_EQ(uneven, 0) << "nothing is blurred";
    EXPECT_GT(logo, 880) << "of 900 pixels of the logo";
    EXPECT_TRUE(shot.At(400, 300) == Background());
}

TEST_F(InterfaceScaleTest, what_is_clicked_is_what_is_seen)
{
    Scale(2);
    Host().MoveMouse(400, 300);
    const RECT minimise = GuiHost::RectOf("TavTilteMinboxButtom");
    Host().TakeCodes();
    Host().Click((minimise.left + minimise.right), (minimise.top + minimise.bottom));
    const std::vector<WPARAM> codes = Host().TakeCodes();
    ASSERT_EQ(codes.size(), 1u);
    EXPECT_EQ(codes[0], 16u);
    EXPECT_EQ(Frame().GetMousePoint().x, (minimise.left + minimise.right) / 2);
}

TEST_F(InterfaceScaleTest, it_follows_the_view_and_goes_back)
{
    Scale(2);
    Scale(3);
    EXPECT_EQ(WindowSize(), "266x200");
    Scale(1);
    Host().MoveMouse(ViewWidth / 2, ViewHeight / 2);
    EXPECT_EQ(WindowSize(), "800x600");
    EXPECT_TRUE(Host().Shoot().pixels == before_.pixels);
}

TEST_F(InterfaceScaleTest, a_point_beside_the_view_stays_there)
{
    scale_->Set(2);
    EXPECT_EQ(scale_->Inner(CPoint(-1, -1)).x, -1);
    EXPECT_EQ(scale_->Inner(CPoint(-1, -1)).y, -1);
    EXPECT_EQ(scale_->Inner(CPoint(799, 5)).x, 399);
    EXPECT_EQ(scale_->Inner(CSize(801, 601)).cx, 400);
    scale_->Set(0);
    EXPECT_EQ(scale_->Get(), 1);
}
} // namespace
